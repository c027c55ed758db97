#include "documents/PromotionPdf.h"
#include "server/OrderCheck.h"

#include <algorithm>
#include <chrono>
#include <optional>
#include <set>

namespace kavor::demo {

namespace {

std::string placeIn(const std::string& list, size_t index, const char* member) {
    return list + "[" + std::to_string(index) + "]." + member;
}

/// A date of the form "dd-MM-yy".
std::optional<std::chrono::sys_days> dateOf(const std::string& text) {
    if (text.size() != 8 || text[2] != '-' || text[5] != '-') {
        return std::nullopt;
    }
    for (const size_t place : {0, 1, 3, 4, 6, 7}) {
        if (text[place] < '0' || text[place] > '9') {
            return std::nullopt;
        }
    }
    const auto number = [&text](size_t place) { return (text[place] - '0') * 10 + text[place + 1] - '0'; };
    const std::chrono::year_month_day date{std::chrono::year(2000 + number(6)),
                                           std::chrono::month(unsigned(number(3))),
                                           std::chrono::day(unsigned(number(0)))};
    return date.ok() ? std::optional(std::chrono::sys_days(date)) : std::nullopt;
}

void checkDates(const Json& order, Faults& faults) {
    std::optional<std::chrono::sys_days> dates[2];
    const char* keys[2] = {"date_from", "date_to"};
    for (size_t i = 0; i < 2; ++i) {
        if (const auto found = order.find(keys[i]); found != order.end()) {
            dates[i] = dateOf(found->get<std::string>());
            if (!dates[i]) {
                faults[keys[i]].push_back("La fecha no es válida.");
            }
        }
    }
    if (dates[0] && dates[1] && *dates[1] < *dates[0]) {
        faults["date_to"].push_back("La vigencia termina antes de empezar.");
    }
}

void checkSupports(const Json& supports, const Poster& poster, Faults& faults) {
    if (supports.empty()) {
        faults["supports"].push_back("Elige al menos un formato.");
    }
    std::set<int> seen;
    for (size_t i = 0; i < supports.size(); ++i) {
        const int id = supports[i]["id"].get<int>();
        const bool own = std::ranges::any_of(poster.supports,
                                             [&](int support) { return poster.supportId(support) == id; });
        if (!own) {
            faults[placeIn("supports", i, "id")].push_back("El formato no es de esta promoción.");
        } else if (!seen.insert(id).second) {
            faults[placeIn("supports", i, "id")].push_back("El formato se pide dos veces.");
        }
        if (!poster.speaks(supports[i]["language_id"].get<int>())) {
            faults[placeIn("supports", i, "language_id")].push_back("La promoción no está en este idioma.");
        }
    }
}

void checkEmails(const Json& emails, Faults& faults) {
    for (size_t i = 0; i < emails.size(); ++i) {
        const std::string address = emails[i]["email"].get<std::string>();
        const size_t at = address.find('@');
        if (at == std::string::npos || at == 0 || at + 1 == address.size() ||
            address.find(' ') != std::string::npos) {
            faults[placeIn("emails", i, "email")].push_back("El correo «" + address +
                                                            "» no es una dirección válida.");
        }
    }
}

/// What is wrong with a value; null when nothing is.
const char* valueFault(const PosterAttribute& attribute, const std::string& value) {
    if (attribute.kind == AttributeKind::price && !typedPrice(value)) {
        return "El precio no es válido.";
    }
    if (attribute.kind == AttributeKind::list &&
        std::ranges::none_of(attribute.choices, [&value](const char* choice) { return value == choice; })) {
        return "La opción no es de esta promoción.";
    }
    return nullptr;
}

} // namespace

void checkAttributes(const Json& attributes, const Poster& poster, const std::string& path, Faults& faults) {
    const std::vector<PosterAttribute> asked = poster.attributes();
    for (size_t i = 0; i < attributes.size(); ++i) {
        const auto attribute = std::ranges::find(asked, attributes[i]["id"].get<int>(), &PosterAttribute::id);
        if (attribute == asked.end()) {
            faults[placeIn(path, i, "id")].push_back("El dato no es de esta promoción.");
            continue;
        }
        const std::string value = attributes[i]["value"].get<std::string>();
        if (const char* wrong = value.empty() ? nullptr : valueFault(*attribute, value)) {
            faults[placeIn(path, i, "value")].push_back(wrong);
        }
    }
}

Faults promotionContentFaults(const Json& order) {
    const Poster* poster = posterOf(order["promotion_id"].get<int>());
    if (!poster) {
        return {{"promotion_id", {"La promoción ya no está en el catálogo."}}};
    }
    Faults faults;
    checkSupports(order["supports"], *poster, faults);
    checkAttributes(order["attributes"], *poster, "attributes", faults);
    checkDates(order, faults);
    checkEmails(order["emails"], faults);
    if (order["show_menu"].get<bool>() && !poster->online) {
        faults["show_menu"].push_back("La promoción no se muestra en la carta online.");
    }
    return faults;
}

} // namespace kavor::demo
