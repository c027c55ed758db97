#include "activations/ActivationForm.h"

#include "base/Log.h"

#include <unicode/regex.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <charconv>

namespace kavor {

namespace {

constexpr Int priceAttributeType = 3;

std::optional<std::string> unlessEmpty(const std::string& text) {
    return text.empty() ? std::nullopt : std::optional(text);
}

std::optional<Int> integer(const std::string& digits) {
    const bool onlyDigits =
        std::ranges::all_of(digits, [](char character) { return character >= '0' && character <= '9'; });
    Int number = 0;
    const char* const end = digits.data() + digits.size();
    const auto [read, error] = std::from_chars(digits.data(), end, number);
    return onlyDigits && error == std::errc() && read == end ? std::optional(number) : std::nullopt;
}

std::string hourOf(const std::optional<std::string>& chosen) {
    return chosen.value_or(noHour);
}

bool hasValue(const ActivationOrder& order, Int attribute) {
    using Value = ActivationOrder::ActivationInfo::Attributes;
    const auto& list = order.activationInfo.attributesList;
    if (!list)
        return false;
    const auto given = std::ranges::find(*list, attribute, &Value::id);
    return given != list->end() && !given->value.empty();
}

// Whether a text holds the expression; none when that cannot be judged.
std::optional<bool> isFoundIn(const std::string& text, const std::string& expression) {
    constexpr int32_t mostSteps = 200; // of the engine's own unit, below a millisecond each
    UErrorCode status = U_ZERO_ERROR;
    icu::RegexMatcher matcher(icu::UnicodeString::fromUTF8(expression), 0, status);
    if (U_FAILURE(status))
        return std::nullopt;
    matcher.setTimeLimit(mostSteps, status);
    const icu::UnicodeString subject = icu::UnicodeString::fromUTF8(text);
    matcher.reset(subject);
    const bool found = matcher.find(status);
    return U_FAILURE(status) ? std::nullopt : std::optional(found);
}

} // namespace

PartyPlace placeOf(const SearchMapsResponse::Address& address) {
    if (address.zip.value_or("").empty() || address.city.value_or("").empty())
        return {address.fullAddress, std::nullopt, std::nullopt};
    return {address.fullAddress, address.zip, address.city};
}

std::vector<ActivationInformation::Item> chosenItems(const ActivationInformation& activation,
                                                     const std::vector<bool>& selectedItems) {
    std::vector<ActivationInformation::Item> chosen;
    for (std::size_t place = 0; place < activation.itemsList.size(); ++place) {
        const auto& item = activation.itemsList[place];
        if (item.required || (place < selectedItems.size() && selectedItems[place]))
            chosen.push_back(item);
    }
    return chosen;
}

ActivationOrder makeActivationOrder(const ActivationForm& form, const ActivationInformation& activation,
                                    const std::vector<ActivationInformation::Item>& items) {
    using Info = ActivationOrder::ActivationInfo;
    ActivationOrder order;
    order.customer = {form.name,
                      integer(form.code),
                      unlessEmpty(form.email),
                      unlessEmpty(form.telephone),
                      unlessEmpty(form.contact),
                      form.place.fullAddress,
                      unlessEmpty(form.place.postalCode.value_or("")),
                      unlessEmpty(form.place.city.value_or(""))};
    Info& info = order.activationInfo;
    info.activationId = activation.id;
    info.dateEvent = form.partyDate.value_or("");
    info.hourFrom = hourOf(form.hourFrom);
    info.hourTo = hourOf(form.hourTo);
    info.comment = unlessEmpty(form.comment);
    info.favoriteSteward = unlessEmpty(form.favoriteSteward);
    info.localInformation = unlessEmpty(form.localInformation);
    info.otherActivationRelationIdentifier = form.otherActivationRelationIdentifier;
    info.itemList.emplace();
    for (const auto& item : items)
        info.itemList->push_back({item.id});
    info.attributesList.emplace();
    for (const auto& [id, value] : form.attributesToSend) { // ascending
        const bool asked =
            std::ranges::find(activation.attributesList, id, &ActivationInformation::Attribute::id) !=
            activation.attributesList.end();
        if (asked && !value.empty())
            info.attributesList->push_back({id, value});
    }
    return order;
}

std::vector<std::string> activationErrors(const ActivationOrder& order,
                                          const std::vector<ActivationInformation::Attribute>& attributes) {
    const auto& info = order.activationInfo;
    std::vector<std::string> errors;
    if (info.dateEvent.empty())
        errors.emplace_back("No hay seleccionada ninguna fecha.");
    if (info.hourFrom == noHour)
        errors.emplace_back("No hay seleccionada ninguna hora de inicio.");
    if (info.hourTo == noHour)
        errors.emplace_back("No hay seleccionada ninguna hora de finalización.");
    if (order.customer.name.empty())
        errors.emplace_back("No has introducido el nombre del establecimiento.");
    if (order.customer.fullAddress.empty())
        errors.emplace_back("No has introducido ninguna ubicación.");
    for (const auto& attribute : attributes) {
        if (attribute.required && !hasValue(order, attribute.id))
            errors.push_back("El campo " + attribute.name + " es obligatorio.");
    }
    return errors;
}

ActivationOrder tiedOrder(ActivationOrder sent, Int orderId) {
    auto& info = sent.activationInfo;
    info.otherActivationRelationIdentifier = orderId;
    info.hourFrom = info.hourTo = noHour;
    info.comment.reset();
    info.favoriteSteward.reset();
    info.localInformation.reset();
    return sent;
}

ActivationForm formOf(const ActivationOrder& order, const std::map<Int, std::string>& attributesToSend) {
    const auto& customer = order.customer;
    const auto& info = order.activationInfo;
    const auto hour = [](const std::string& text) {
        return text == noHour ? std::nullopt : std::optional(text);
    };
    ActivationForm form;
    form.name = customer.name;
    form.code = customer.cobrixCode ? std::to_string(*customer.cobrixCode) : "";
    form.contact = customer.contact.value_or("");
    form.email = customer.email.value_or("");
    form.telephone = customer.telephone.value_or("");
    form.place = {customer.fullAddress, customer.postalCode, customer.city};
    form.partyDate = unlessEmpty(info.dateEvent);
    form.hourFrom = hour(info.hourFrom);
    form.hourTo = hour(info.hourTo);
    form.comment = info.comment.value_or("");
    form.favoriteSteward = info.favoriteSteward.value_or("");
    form.localInformation = info.localInformation.value_or("");
    form.attributesToSend = attributesToSend;
    form.otherActivationRelationIdentifier = info.otherActivationRelationIdentifier;
    return form;
}

std::string storedValue(const ActivationInformation::Attribute& attribute, std::string typed) {
    if (attribute.typeId == priceAttributeType)
        std::ranges::replace(typed, ',', '.');
    return typed;
}

bool missesFormat(const ActivationInformation::Attribute& attribute, const std::string& value) {
    if (!attribute.fieldValidation || value.empty())
        return false;
    const auto found = isFoundIn(value, *attribute.fieldValidation);
    if (!found)
        logLine("attribute " + std::to_string(attribute.id) + ": its regular expression cannot be judged");
    return found == false;
}

} // namespace kavor
