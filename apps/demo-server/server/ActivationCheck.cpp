#include "server/ActivationCheck.h"

#include "catalogue/Activations.h"
#include "server/Orders.h"
#include "server/Time.h"

#include <algorithm>
#include <chrono>
#include <set>

namespace kavor::demo {

namespace {

std::string placeIn(const std::string& list, size_t index) {
    return "activation." + list + "[" + std::to_string(index) + "].id";
}

/// The number that stands in a text at a place; none for anything but digits.
std::optional<int> digits(const std::string& text, size_t from, size_t count) {
    int number = 0;
    for (size_t i = from; i < from + count; ++i) {
        if (i >= text.size() || text[i] < '0' || text[i] > '9') {
            return std::nullopt;
        }
        number = number * 10 + (text[i] - '0');
    }
    return number;
}

/// A day "dd-MM-yyyy".
std::optional<std::chrono::sys_days> dayOf(const std::string& text) {
    const auto day = digits(text, 0, 2), month = digits(text, 3, 2), year = digits(text, 6, 4);
    if (text.size() != 10 || text[2] != '-' || text[5] != '-' || !day || !month || !year) {
        return std::nullopt;
    }
    const std::chrono::year_month_day date{std::chrono::year(*year), std::chrono::month(unsigned(*month)),
                                           std::chrono::day(unsigned(*day))};
    return date.ok() ? std::optional(std::chrono::sys_days(date)) : std::nullopt;
}

/// The minute of an hour "HH:mm".
std::optional<int> minuteOf(const std::string& text) {
    const auto hour = digits(text, 0, 2), minute = digits(text, 3, 2);
    const bool real = text.size() == 5 && text[2] == ':' && hour && minute && *hour < 24 && *minute < 60;
    return real ? std::optional(*hour * 60 + *minute) : std::nullopt;
}

void checkDay(const Json& event, const Activation& activation, Faults& faults) {
    auto& wrong = faults["activation.date_event"];
    const auto day = dayOf(event["date_event"].get<std::string>());
    if (!day) {
        wrong.push_back("La fecha no es válida.");
        return;
    }
    const auto today = *dayOf(wireDate(now()).substr(0, 10));
    if (*day <= today) {
        wrong.push_back("La fecha de la fiesta ya ha pasado.");
    } else if (*day < today + std::chrono::days(activation.noticeDays)) {
        wrong.push_back("La agencia necesita " + std::to_string(activation.noticeDays) +
                        " días de antelación.");
    }
}

void checkHours(const Json& event, Faults& faults) {
    const auto from = minuteOf(event["time_from"].get<std::string>());
    const auto to = minuteOf(event["time_to"].get<std::string>());
    if (!from) {
        faults["activation.time_from"].push_back("La hora de inicio no es válida.");
    }
    if (!to) {
        faults["activation.time_to"].push_back("La hora de finalización no es válida.");
    }
    if (from && to && *from >= *to) {
        faults["activation.time_to"].push_back("La fiesta termina antes de empezar.");
    }
}

void checkElements(const Json& items, const Activation& activation, Faults& faults) {
    const auto elements = elementsOf(activation);
    std::set<int> seen;
    for (size_t i = 0; i < items.size(); ++i) {
        const int id = items[i]["id"].get<int>();
        if (std::ranges::find(elements, id, &ActivationElement::id) == elements.end()) {
            faults[placeIn("items", i)].push_back("El elemento no es de esta activación.");
        } else if (!seen.insert(id).second) {
            faults[placeIn("items", i)].push_back("El elemento se pide dos veces.");
        }
    }
    for (const ActivationElement& element : elements) {
        if (element.required && !seen.contains(element.id)) {
            faults["activation.items"].push_back(std::string("Falta un elemento obligatorio: ") +
                                                 element.name + ".");
        }
    }
}

void checkAnswers(const Json& attributes, const Activation& activation, Faults& faults) {
    const auto questions = questionsOf(activation);
    std::set<int> answered;
    for (size_t i = 0; i < attributes.size(); ++i) {
        const int id = attributes[i]["id"].get<int>();
        if (std::ranges::find(questions, id, &ActivationQuestion::id) == questions.end()) {
            faults[placeIn("attributes", i)].push_back("El dato no es de esta activación.");
        } else if (!attributes[i]["value"].get<std::string>().empty()) {
            answered.insert(id);
        }
    }
    for (const ActivationQuestion& question : questions) {
        if (question.required && !answered.contains(question.id)) {
            faults["activation.attributes"].push_back(std::string("Falta un dato: ") + question.name + ".");
        }
    }
}

void checkTie(const Json& event, const std::optional<Order>& tied, Faults& faults) {
    if (!event.contains("activation_relation_id")) {
        return;
    }
    auto& wrong = faults["activation.activation_relation_id"];
    if (!tied) {
        wrong.push_back("El pedido al que se asocia no existe.");
    } else if (tied->body["activation"]["date_event"] != event["date_event"]) {
        wrong.push_back("El pedido al que se asocia es de otro día.");
    }
}

} // namespace

Faults activationContentFaults(const Json& order, const std::optional<Order>& tied) {
    const Json& event = order["activation"];
    const Activation* activation = activationOf(event["activation_id"].get<int>());
    if (!activation) {
        return {{"activation.activation_id", {"La activación ya no está en el catálogo."}}};
    }
    Faults faults;
    for (const char* key : {"name", "full_address"}) {
        if (order["customer"][key].get<std::string>().empty()) {
            faults[std::string("customer.") + key].push_back("Falta el nombre o la dirección del local.");
        }
    }
    checkDay(event, *activation, faults);
    checkHours(event, faults);
    checkElements(event.value("items", Json::array()), *activation, faults);
    checkAnswers(event.value("attributes", Json::array()), *activation, faults);
    checkTie(event, tied, faults);
    std::erase_if(faults, [](const auto& fault) { return fault.second.empty(); });
    return faults;
}

} // namespace kavor::demo
