#include "catalogue/Sections.h"

#include "catalogue/Catalogue.h"
#include "catalogue/Content.h"

#include <array>
#include <filesystem>

namespace kavor::demo {

Json sellingSheetSection(PictureBook& book) {
    Json styles = Json::array();
    for (const SheetStyle& style : sheetStyles()) {
        styles.push_back({{"id", style.id},
                          {"name", style.name},
                          {"position", style.id},
                          {"image", book.resource({PictureKind::sheetStyle, style.id}, style.name, 2)}});
    }
    return {{"validaciones",
             {{"longitud_titulo", sheetTitleLength},
              {"longitud_subtitulo", sheetSubtitleLength},
              {"longitud_free_text", sheetFreeTextLength}}},
            {"estilos", std::move(styles)}};
}

namespace {

struct Place {
    int x, y, width, height, rotate;
};
/// Places on a board of 1000 by 700, one beside the other and slightly turned.
Place placeOf(int number) {
    constexpr std::array places = {Place{60, 80, 380, 240, -4}, Place{560, 70, 380, 240, 3},
                                   Place{80, 390, 380, 240, 2}, Place{550, 390, 380, 240, -3}};
    return places[size_t(number) % places.size()];
}

Json activationItems(const Activation& activation, PictureBook& book) {
    constexpr std::array names = {"Vasos serigrafiados", "Mantelillos", "Camisetas de sorteo", "Guirnalda"};
    Json items = Json::array();
    for (int i = 0; i < 2 + activation.id % 3; ++i) {
        Json images = Json::array();
        images.push_back(
            {{"image", book.resource({PictureKind::activationScene, activation.id, 10 + i}, names[i], 3)},
             {"position", 1}});
        Json item = {{"id", activation.id * 100 + i + 1},
                     {"position", i + 1},
                     {"name", names[i]},
                     {"required", i == 0},
                     {"images", std::move(images)}};
        if (i % 2 == 0) {
            item["description"] = "Incluido en el presupuesto de la activación";
        }
        items.push_back(std::move(item));
    }
    return items;
}

Json activationAttributes(const Activation& activation) {
    const int first = activation.id * 100 + 50;
    Json list = Json::array();
    list.push_back({{"id", first + 1},
                    {"type_id", 1},
                    {"position", 1},
                    {"name", "Responsable en el local"},
                    {"description", "Nombre y apellido"},
                    {"required", true}});
    list.push_back({{"id", first + 2},
                    {"type_id", 1},
                    {"position", 2},
                    {"name", "Aforo"},
                    {"description", "un número de personas"},
                    {"required", false},
                    {"regex", "^[0-9]{1,4}$"}});
    if (activation.related) {
        list.push_back({{"id", first + 3},
                        {"type_id", 3},
                        {"position", 3},
                        {"name", "Precio de la consumición"},
                        {"description", "un importe, como 2.50"},
                        {"required", true},
                        {"regex", "^[0-9]+([.][0-9]{1,2})?$"}});
    }
    return list;
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
        {"date_to", activation.monthsOpen
                        ? Json("31-12-" + std::to_string(2030 + *activation.monthsOpen) + " 23:59:59")
                        : Json(nullptr)},
        {"agency_name", activation.agency},
        {"agency_description", "Agencia homologada por el programa"},
        {"previous_days", activation.noticeDays},
        {"x_quota", place.x + place.width - 70},
        {"y_quota", place.y - 10},
        {"w_quota", 72},
        {"h_quota", 72},
        {"size_quota", 22},
        {"quota", activation.quota},
        {"number_made", activation.made},
        {"allow_activation_relation", activation.related},
        {"atributos", activationAttributes(activation)},
        {"items", activationItems(activation, book)},
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

std::vector<TextileFont> installedFonts() {
    constexpr std::array wanted = {
        TextileFont{1, "LobsterTwo-BoldItalic", "lobster.otf", "Lobster Two",
                    "/usr/share/fonts/opentype/lobster/lobster.otf"},
        TextileFont{2, "DancingScript-Bold", "DancingScript-Bold.otf", "Dancing Script",
                    "/usr/share/fonts/opentype/dancingscript/DancingScript-Bold.otf"},
        TextileFont{3, "Quicksand-Bold", "Quicksand-Bold.ttf", "Quicksand",
                    "/usr/share/fonts/truetype/quicksand/Quicksand-Bold.ttf"},
        TextileFont{4, "Cabin-Bold", "Cabin-Bold.otf", "Cabin",
                    "/usr/share/fonts/opentype/cabin/Cabin-Bold.otf"},
        TextileFont{5, "Comfortaa-Bold", "Comfortaa-Bold.ttf", "Comfortaa",
                    "/usr/share/fonts/truetype/comfortaa/Comfortaa-Bold.ttf"},
    };
    std::vector<TextileFont> fonts;
    for (const TextileFont& font : wanted) {
        if (std::filesystem::exists(font.path)) {
            fonts.push_back(font);
        }
    }
    return fonts;
}

namespace {

Json garmentItems(std::span<const Brand> brands, PictureBook& book) {
    constexpr int sizes = 6;
    Json items = Json::array();
    int id = 1;
    const auto add = [&](const Brand& brand, int applicationType, int type, int gender, int colour) {
        for (int size = 1; size <= sizes; ++size) {
            items.push_back({{"id", id},
                             {"application_father_id", applicationType == 8 ? 4 : 10},
                             {"application_type_id", applicationType},
                             {"position", id},
                             {"brand_id", brand.id},
                             {"type_id", type},
                             {"model_id", gender},
                             {"color_id", colour},
                             {"size_id", size},
                             {"by_default", true},
                             {"image", book.resource({PictureKind::garment, type, colour, brand.id},
                                                     lookText(brand.look), size == 1 ? 2 : 3)}});
            ++id;
        }
    };
    for (int place = 0; place < 4; ++place) {
        const Brand& brand = brandAt(brands, Family::beer, place);
        for (const GarmentType& type : garmentTypes()) {
            for (int gender = 1; gender <= (type.id == 3 ? 1 : 2); ++gender) {
                for (int colour = 1 + place % 2; colour <= 5; colour += 2) {
                    add(brand, 8, type.id, type.id == 3 ? 3 : gender, colour);
                }
            }
        }
    }
    for (int place = 0; place < 2; ++place) {
        const Brand& brand = brandAt(brands, Family::wine, place);
        for (const int type : {1, 3}) {
            for (const int colour : {2, 4}) {
                add(brand, 21, type, 3, colour);
            }
        }
    }
    return items;
}

Json named(std::initializer_list<const char*> names) {
    Json list = Json::array();
    for (const char* name : names) {
        const int id = int(list.size()) + 1;
        list.push_back({{"id", id}, {"position", id}, {"name", name}});
    }
    return list;
}

} // namespace

Json textileSection(std::span<const Brand> brands, PictureBook& book) {
    Json types = Json::array();
    for (const GarmentType& type : garmentTypes()) {
        types.push_back({{"id", type.id},
                         {"position", type.id},
                         {"name", type.name},
                         {"order_min", type.least},
                         {"order_max", type.greatest}});
    }
    Json colours = Json::array();
    for (const GarmentColour& colour : garmentColours()) {
        std::array<char, 16> text{};
        std::snprintf(text.data(), text.size(), "#%06X", unsigned(colour.colour));
        colours.push_back(
            {{"id", colour.id}, {"position", colour.id}, {"name", colour.name}, {"color", text.data()}});
    }
    Json sizes =
        named({"Extra pequeña", "Pequeña", "Mediana", "Grande", "Extra grande", "Doble extra grande"});
    constexpr std::array codes = {"XS", "S", "M", "L", "XL", "XXL"};
    for (size_t i = 0; i < codes.size(); ++i) {
        sizes[i]["code"] = codes[i];
    }
    Json fonts = Json::array();
    for (const TextileFont& font : installedFonts()) {
        fonts.push_back({{"id", font.id},
                         {"position", font.id},
                         {"name", font.postScriptName},
                         {"font", font.filename},
                         {"url_font", book.baseUrl() + "/fonts/" + font.filename},
                         {"mime", font.name}});
    }
    return {{"validaciones", {{"order_min", 10}, {"message_max", 25}}},
            {"textil_type", std::move(types)},
            {"textil_model", named({"Hombre", "Mujer", "Unisex"})},
            {"textil_color", std::move(colours)},
            {"textil_size", std::move(sizes)},
            {"textil_typography", std::move(fonts)},
            {"textil", garmentItems(brands, book)}};
}

} // namespace kavor::demo
