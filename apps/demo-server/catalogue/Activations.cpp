#include "catalogue/Activations.h"

#include "catalogue/Catalogue.h"
#include "server/Time.h"

#include <algorithm>
#include <array>

namespace kavor::demo {

std::vector<ActivationElement> elementsOf(const Activation& activation) {
    constexpr std::array names = {"Vasos serigrafiados", "Mantelillos", "Camisetas de sorteo", "Guirnalda"};
    const int number = 2 + activation.id % 3;
    std::vector<ActivationElement> elements;
    elements.reserve(size_t(number));
    for (int i = 0; i < number; ++i) {
        elements.push_back({activation.id * 100 + i + 1, i, names[size_t(i)], i == 0});
    }
    return elements;
}

std::vector<ActivationQuestion> questionsOf(const Activation& activation) {
    const int first = activation.id * 100 + 50;
    std::vector<ActivationQuestion> questions = {
        {first + 1, 1, "Responsable en el local", "Nombre y apellido", true, nullptr},
        {first + 2, 1, "Aforo", "un número de personas", false, "^[0-9]{1,4}$"}};
    if (activation.related) {
        questions.push_back({first + 3, 3, "Precio de la consumición", "un importe, como 2.50", true,
                             "^[0-9]+([.][0-9]{1,2})?$"});
    }
    return questions;
}

const Activation* activationOf(int id) {
    const auto found = std::ranges::find(activations(), id, &Activation::id);
    return found == activations().end() ? nullptr : &*found;
}

const ActivationGroup& groupOf(const Activation& activation) {
    return *std::ranges::find(activationGroups(), activation.groupId, &ActivationGroup::id);
}

namespace {

/// A sign and its badge. All of them stand beside each other, turned or not, and are large enough to be
/// touched when the board is as narrow as a phone.
struct Place {
    int x, y, width, height, rotate;
};
Place placeOf(int number) {
    constexpr std::array places = {Place{22, 28, 280, 177, -4}, Place{358, 34, 280, 177, 3},
                                   Place{26, 258, 280, 177, 2}, Place{354, 252, 280, 177, -3}};
    return places[size_t(number) % places.size()];
}
constexpr int badgeSide = 66;

Json itemRecords(const Activation& activation, PictureBook& book) {
    Json items = Json::array();
    for (const ActivationElement& element : elementsOf(activation)) {
        Json images = Json::array();
        images.push_back(
            {{"image", book.resource({PictureKind::activationScene, activation.id, 10 + element.number},
                                     element.name, 3)},
             {"position", 1}});
        Json item = {{"id", element.id},
                     {"position", element.number + 1},
                     {"name", element.name},
                     {"required", element.required},
                     {"images", std::move(images)}};
        if (element.number % 2 == 0) {
            item["description"] = "Incluido en el presupuesto de la activación";
        }
        items.push_back(std::move(item));
    }
    return items;
}

Json attributeRecords(const Activation& activation) {
    Json list = Json::array();
    for (const ActivationQuestion& question : questionsOf(activation)) {
        Json record = {{"id", question.id},
                       {"type_id", question.typeId},
                       {"position", int(list.size()) + 1},
                       {"name", question.name},
                       {"description", question.description},
                       {"required", question.required}};
        if (question.regex) {
            record["regex"] = question.regex;
        }
        list.push_back(std::move(record));
    }
    return list;
}

/// The last moment of an activation; one without months ends soon.
std::string endOf(int monthsOpen) {
    constexpr std::int64_t day = 86400, soon = 20 * day;
    return monthsOpen > 0 ? "31-12-" + std::to_string(2030 + monthsOpen) + " 23:59:59"
                          : wireDate(startOfDay(now() + soon) - 1);
}

Json activationRecord(const Activation& activation, int number, PictureBook& book) {
    const Place place = placeOf(number);
    const std::string look = std::string(activation.name) + std::to_string(activation.colour);
    Json images = Json::array();
    for (int i = 0; i < 2; ++i) {
        images.push_back({{"image", book.resource({PictureKind::activationScene, activation.id, i}, look, 3)},
                          {"position", i + 1}});
    }
    return {
        {"id", activation.id},
        {"position", number + 1},
        {"name", activation.name},
        {"description", activation.description},
        {"color", number % 2 == 0 ? Json("#FFFFFF") : Json(nullptr)},
        {"image_on", book.resource({PictureKind::activationSign, activation.id, 1}, look, 2)},
        {"image_off", book.resource({PictureKind::activationSign, activation.id, 0}, look, 2)},
        {"image_background",
         number % 2 == 0 ? book.resource({PictureKind::activationBackground, activation.groupId}, "board", 2)
                         : Json(nullptr)},
        {"image_w", place.width},
        {"image_h", place.height},
        {"image_x", place.x},
        {"image_y", place.y},
        {"image_rotate", place.rotate},
        {"archive", activation.withDocument ? Json(book.baseUrl() + "/documentos/activacion-" +
                                                   std::to_string(activation.id) + ".pdf")
                                            : Json(nullptr)},
        {"date_from", activation.monthsOpen ? Json("01-01-2024 00:00:00") : Json(nullptr)},
        {"date_to", activation.monthsOpen ? Json(endOf(*activation.monthsOpen)) : Json(nullptr)},
        {"agency_name", activation.agency},
        {"agency_description", "Agencia homologada por el programa"},
        {"previous_days", activation.noticeDays},
        {"x_quota", place.x + place.width - 46},
        {"y_quota", place.y - 22},
        {"w_quota", badgeSide},
        {"h_quota", badgeSide},
        {"size_quota", 25},
        {"quota", activation.quota},
        {"number_made", activation.made},
        {"allow_activation_relation", activation.related},
        {"atributos", attributeRecords(activation)},
        {"items", itemRecords(activation, book)},
        {"image", std::move(images)},
    };
}

} // namespace

Json activationsSection(std::span<const Brand> brands, PictureBook& book) {
    Json definitions = Json::array();
    for (const ActivationGroup& group : activationGroups()) {
        Json list = Json::array();
        for (const Activation& activation : activations()) {
            if (activation.groupId == group.id) {
                list.push_back(activationRecord(activation, int(list.size()), book));
            }
        }
        const Brand& brand = brandAt(brands, Family::beer, group.brandPlace);
        const Place place = placeOf(group.id - 1);
        const std::string look = lookText(brand.look) + group.name;
        Json record = {
            {"id", group.id},
            {"brand_id", brand.id},
            {"brand_name", brand.name},
            {"name", group.name},
            {"background_color", group.id % 2 == 0 ? Json("#FAF6EE") : Json(nullptr)},
            {"image_logo", book.resource({PictureKind::activationLogo, group.id}, look, 2)},
            {"image_w", place.width},
            {"image_h", place.height},
            {"image_x", place.x},
            {"image_y", place.y},
            {"image_rotate", place.rotate},
            {"activaciones", std::move(list)},
        };
        if (group.id != 4) {
            record["image_background"] =
                book.resource({PictureKind::activationBackground, group.id}, "board", 2);
        }
        definitions.push_back(std::move(record));
    }
    return {{"definiciones", std::move(definitions)}};
}

} // namespace kavor::demo
