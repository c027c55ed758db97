#include "promotions/PromotionDraft.h"

#include "base/AppFormatter.h"
#include "documents/DocumentTables.h"

#include <algorithm>

namespace kavor::json {

template <>
struct Table<PromotionValidity> {
    using R = PromotionValidity;
    static constexpr auto fields =
        std::tuple{required("date_from", &R::dateFrom), required("date_to", &R::dateTo),
                   required("show_menu", &R::showMenu), required("days", &R::days)};
};

template <>
struct Table<PromotionDraft> {
    using R = PromotionDraft;
    static constexpr auto fields = std::tuple{required("promotion_id", &R::promotionId),
                                              optional("language_id", &R::languageId),
                                              required("formats", &R::formats),
                                              required("attributes", &R::attributes),
                                              optional("customer_id", &R::customerId),
                                              required("cod_tevo", &R::code),
                                              required("name", &R::name),
                                              optional("image_logo", &R::imageLogo),
                                              required("emails", &R::emails),
                                              required("validity", &R::validity),
                                              required("comment", &R::comment),
                                              required("unanswered_sends", &R::unansweredSends)};
};

} // namespace kavor::json

KAVOR_JSON_DOCUMENT(kavor::PromotionDraft)

namespace kavor {

namespace {

constexpr Int priceAttributeType = 3;

using Support = Posters::Promotion::Support;

bool isEmpty(const std::string& text) {
    return text.empty();
}

std::optional<std::string> unlessEmpty(const std::string& text) {
    return text.empty() ? std::nullopt : std::optional(text);
}

std::vector<PromotionOrder::Support> supportsOf(const PromotionDraft& draft,
                                                const PromotionTuple& promotion) {
    const auto has = [](std::optional<Int> id) {
        return [id](const Posters::Promotion::Language& language) { return language.id == id; };
    };
    auto language = draft.languageId;
    if (std::ranges::none_of(promotion.languajes, has(language)))
        language = promotion.language ? std::optional(promotion.language->id) : std::nullopt;
    if (!language)
        return {};
    std::vector<Support> chosen;
    for (const Support& support : promotion.formatos) {
        if (std::ranges::find(draft.formats, support.id) != draft.formats.end())
            chosen.push_back(support);
    }
    std::ranges::stable_sort(chosen, {}, &Support::position);
    std::vector<PromotionOrder::Support> supports;
    supports.reserve(chosen.size());
    for (const Support& support : chosen)
        supports.push_back({support.id, *language});
    return supports;
}

std::vector<PromotionOrder::Attribute>
attributesOf(const PromotionDraft& draft, const PromotionTuple& promotion, const AttributeTypes& types) {
    std::vector<PromotionOrder::Attribute> attributes;
    for (const PromotionDraft::AttributeValue& given : draft.attributes) {
        const auto asked = std::ranges::find(promotion.attributes, given.id, &Attribute::id);
        if (!given.value.empty() && asked != promotion.attributes.end() && !isLogoKind(*asked, types))
            attributes.push_back({given.id, given.value});
    }
    std::ranges::sort(attributes, {}, &PromotionOrder::Attribute::id);
    return attributes;
}

// On offer only for a promotion that the online menu may show.
void applyValidity(PromotionOrder& order, const PromotionValidity& validity) {
    order.dateFrom = unlessEmpty(validity.dateFrom);
    order.dateTo = unlessEmpty(validity.dateTo);
    order.showMenu = validity.showMenu;
    order.showPromotionDay1 = validity.showsOn(1);
    order.showPromotionDay2 = validity.showsOn(2);
    order.showPromotionDay3 = validity.showsOn(3);
    order.showPromotionDay4 = validity.showsOn(4);
    order.showPromotionDay5 = validity.showsOn(5);
    order.showPromotionDay6 = validity.showsOn(6);
    order.showPromotionDay7 = validity.showsOn(7);
}

template <class Given>
void checkPrices(std::span<const Attribute> attributes, const std::vector<Given>& given,
                 std::vector<std::string>& errors) {
    for (const Attribute& attribute : attributes) {
        const auto value = std::ranges::find(given, attribute.id, &Given::id);
        if (attribute.typeId == priceAttributeType && value != given.end() && !value->value.empty() &&
            !AppFormatter::shared().parseNumber(value->value))
            errors.emplace_back("El precio no es válido.");
    }
}

} // namespace

bool holdsWork(const PromotionDraft& draft) {
    PromotionDraft untouched;
    untouched.promotionId = draft.promotionId;
    untouched.languageId = draft.languageId;
    PromotionDraft held = draft;
    if (std::ranges::all_of(held.emails, isEmpty))
        held.emails.clear();
    return !(held == untouched);
}

bool isLogoKind(const Attribute& attribute, const AttributeTypes& types) {
    const auto type = std::ranges::find(types, attribute.typeId, &ApplicationInformation::AttributeType::id);
    return attribute.values.empty() && type != types.end() && type->format == "image";
}

PromotionOrder makePromotionOrder(const PromotionDraft& draft, const PromotionTuple& promotion,
                                  const AttributeTypes& types, OrderRequestType type) {
    PromotionOrder order;
    order.save = type == OrderRequestType::sendToPrint;
    order.promotionId = promotion.identifier;
    const bool takesLogo = std::ranges::any_of(
        promotion.attributes, [&](const Attribute& attribute) { return isLogoKind(attribute, types); });
    if (takesLogo)
        order.imageLogo = draft.imageLogo;
    for (const std::string& email : draft.emails) {
        if (!email.empty())
            order.emails.push_back({email});
    }
    order.supports = supportsOf(draft, promotion);
    order.attributes = attributesOf(draft, promotion, types);
    order.customer = {draft.customerId, unlessEmpty(draft.code), draft.name};
    if (promotion.showMenuOnline)
        applyValidity(order, draft.validity);
    order.comment = unlessEmpty(draft.comment);
    return order;
}

std::vector<std::string> promotionErrors(const PromotionOrder& order, std::span<const Attribute> attributes,
                                         bool customerCodeRequired) {
    std::vector<std::string> errors;
    if (customerCodeRequired && order.customer.codTevo.value_or("").empty())
        errors.emplace_back("El código cliente debe informarse.");
    if (order.customer.name.value_or("").empty())
        errors.emplace_back("El nombre del establecimiento es obligatorio.");
    if (order.supports.empty())
        errors.emplace_back("No hay ningún formato seleccionado, seleccione al menos uno.");
    checkPrices(attributes, order.attributes, errors);
    return errors;
}

MenuPromotion makeMenuPromotion(const PromotionDraft& draft, const PromotionTuple& promotion,
                                const std::optional<MenuPromotion>& edited) {
    MenuPromotion result;
    if (edited)
        result.id = edited->id;
    result.promotionId = promotion.identifier;
    result.promotionName = std::string(promotion.promotionName);
    result.brandName = std::string(promotion.brandName);
    for (const PromotionDraft::AttributeValue& given : draft.attributes) {
        if (!given.value.empty())
            result.attributes.push_back(given);
    }
    std::ranges::sort(result.attributes, {}, &PromotionDraft::AttributeValue::id);
    return result;
}

std::vector<std::string> menuPromotionErrors(const MenuPromotion& menuPromotion,
                                             std::span<const Attribute> attributes) {
    std::vector<std::string> errors;
    checkPrices(attributes, menuPromotion.attributes, errors);
    return errors;
}

} // namespace kavor
