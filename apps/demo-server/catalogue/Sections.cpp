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

/// Aprons come in one size; the widest are not cut for women, and no one asks for a small sweatshirt in
/// black.
constexpr int oneSize = 7;
bool isMade(int type, int gender, int colour, int size) {
    if (type == 3 || size == oneSize) {
        return type == 3 && size == oneSize;
    }
    return !(gender == 2 && size == 6) && !(type == 4 && colour == 3 && size == 1);
}

Json garmentItems(std::span<const Brand> brands, PictureBook& book) {
    Json items = Json::array();
    int id = 1;
    const auto add = [&](const Brand& brand, int applicationType, int type, int gender, int colour) {
        for (int size = 1; size <= oneSize; ++size) {
            if (!isMade(type, gender, colour, size)) {
                continue;
            }
            items.push_back({{"id", id},
                             {"application_father_id", applicationType == 8 ? 4 : 10},
                             {"application_type_id", applicationType},
                             {"position", 1 + id * 37 % 1009}, // unlike the order of the records
                             {"brand_id", brand.id},
                             {"type_id", type},
                             {"model_id", gender},
                             {"color_id", colour},
                             {"size_id", size},
                             {"by_default", !(type == 4 && colour == 5)}, // an earlier season's
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
            {{"id", colour.id}, {"position", 6 - colour.id}, {"name", colour.name}, {"color", text.data()}});
    }
    Json sizes = named({"Extra pequeña", "Pequeña", "Mediana", "Grande", "Extra grande", "Doble extra grande",
                        "Talla única"});
    constexpr std::array codes = {"XS", "S", "M", "L", "XL", "XXL", "U"};
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
