#include "catalogue/Classifications.h"

#include "catalogue/Brands.h"

#include <array>
#include <vector>

namespace kavor::demo {

namespace {

struct Entry {
    int id;
    Family family;
    const char* name;
    const char* colour = nullptr;
    const char* textColour = nullptr;
    bool picture = false;
};

constexpr std::array productTypes = {
    Entry{1, Family::beer, "Barril"},         Entry{2, Family::beer, "Botella"},
    Entry{3, Family::beer, "Lata"},           Entry{4, Family::wine, "Copa"},
    Entry{5, Family::wine, "Botella"},        Entry{6, Family::wine, "Mágnum"},
    Entry{7, Family::market, "Vidrio"},       Entry{8, Family::market, "Lata"},
    Entry{9, Family::market, "Vaso y jarra"},
};
constexpr std::array properties = {
    Entry{1, Family::beer, "Marcas propias"},
    Entry{2, Family::beer, "Marcas de fuera"},
    Entry{3, Family::beer, "Edición corta"},
    Entry{4, Family::beer, "Añadidas por el usuario"},
};
constexpr std::array typologies = {
    Entry{11, Family::beer, "Doradas", "#F2B632", "#20262B"},
    Entry{12, Family::beer, "Tostadas y rojas", "#B5651D", "#FFFFFF"},
    Entry{13, Family::beer, "De trigo", "#F5CF6B", "#20262B"},
    Entry{14, Family::beer, "Lupuladas", "#3C5A2E", "#FFFFFF"},
    Entry{15, Family::beer, "Negras", "#2E1A12", "#FFFFFF"},
    Entry{16, Family::beer, "Sin alcohol", "#0F5C8C", "#FFFFFF"},
    Entry{17, Family::beer, "Con fruta"},
    Entry{21, Family::wine, "Tintos", "#7B1E3A", "#FFFFFF"},
    Entry{22, Family::wine, "Blancos", "#F1E3A0", "#20262B"},
    Entry{23, Family::wine, "Rosados", "#F08A8A", "#20262B"},
    Entry{24, Family::wine, "Espumosos"},
    Entry{25, Family::wine, "Dulces"},
    Entry{31, Family::market, "Refrescos"},
    Entry{32, Family::market, "Tónicas"},
    Entry{33, Family::market, "Sidras"},
    Entry{34, Family::market, "Aguas"},
    Entry{35, Family::market, "Fermentos"},
};
constexpr std::array subTypologies = {
    Entry{111, Family::beer, "Lager"},       Entry{112, Family::beer, "Pilsen"},
    Entry{121, Family::beer, "Malta"},       Entry{122, Family::beer, "Guarda"},
    Entry{131, Family::beer, "Sin filtrar"}, Entry{141, Family::beer, "IPA"},
    Entry{151, Family::beer, "Cremosa"},     Entry{161, Family::beer, "0,0"},
    Entry{171, Family::beer, "Limón"},       Entry{211, Family::wine, "Joven"},
    Entry{212, Family::wine, "Crianza"},     Entry{221, Family::wine, "Fresco"},
    Entry{231, Family::wine, "De lágrima"},  Entry{241, Family::wine, "Natural"},
    Entry{251, Family::wine, "De postre"},   Entry{311, Family::market, "Fruta"},
    Entry{321, Family::market, "Botánica"},  Entry{331, Family::market, "Manzana"},
    Entry{341, Family::market, "Con gas"},   Entry{351, Family::market, "Té"},
};
constexpr std::array tastes = {
    Entry{31, Family::beer, "Suave", "#F8E9B0", "#20262B", true},
    Entry{32, Family::beer, "Maltosa", "#C9812B", "#FFFFFF", true},
    Entry{33, Family::beer, "Refrescante", "#9ED8DB", "#20262B", true},
    Entry{34, Family::beer, "Amarga", "#3C5A2E", "#FFFFFF", true},
    Entry{35, Family::beer, "Torrefacta", "#2E1A12", "#FFFFFF", true},
    Entry{41, Family::wine, "Afrutado"},
    Entry{42, Family::wine, "Con cuerpo"},
    Entry{43, Family::wine, "Vivo"},
    Entry{44, Family::wine, "Meloso"},
    Entry{51, Family::market, "Dulce"},
    Entry{52, Family::market, "Especiado"},
    Entry{53, Family::market, "Ácido"},
    Entry{54, Family::market, "Neutro"},
};
constexpr std::array segments = {
    Entry{101, Family::beer, "De siempre", nullptr, nullptr, true},
    Entry{102, Family::beer, "Para saborear", nullptr, nullptr, true},
    Entry{103, Family::beer, "Para descubrir", nullptr, nullptr, true},
    Entry{104, Family::beer, "Con carácter", nullptr, nullptr, true},
    Entry{105, Family::beer, "Ligeras", nullptr, nullptr, true},
    Entry{201, Family::wine, "De diario"},
    Entry{202, Family::wine, "De celebración"},
    Entry{301, Family::market, "Refrescantes"},
    Entry{302, Family::market, "De aperitivo"},
};
constexpr std::array ages = {
    Entry{1, Family::wine, "Joven"},
    Entry{2, Family::wine, "Roble"},
    Entry{3, Family::wine, "Crianza"},
    Entry{4, Family::wine, "Reserva"},
};

template <typename Entries, typename More>
Json listOf(const Entries& entries, bool withPosition, More more) {
    Json list = Json::array();
    int position = 1;
    for (const Entry& entry : entries) {
        Json record = {{"id", entry.id}, {"application_father_id", int(entry.family)}, {"name", entry.name}};
        if (withPosition) {
            record["position"] = position++;
        }
        more(record, entry);
        list.push_back(std::move(record));
    }
    return list;
}

void plain(Json&, const Entry&) {}

void coloured(Json& record, const Entry& entry) {
    if (entry.colour) {
        record["color"] = entry.colour;
        record["color_text"] = entry.textColour;
    }
}

Json tasteImages(PictureBook& book) {
    Json list = Json::array();
    for (const auto& [taste, segment] : {std::pair{31, 101}, {32, 102}, {33, 103}, {34, 104}, {0, 105}}) {
        Json record = {{"segment_id", segment},
                       {"taste_id", taste == 0 ? Json(nullptr) : Json(taste)},
                       {"image", book.resource({PictureKind::taste, taste, segment}, "taste", 3)}};
        list.push_back(std::move(record));
    }
    return list;
}

Json numbered(const std::vector<const char*>& names) {
    Json list = Json::array();
    int id = 1;
    for (const char* name : names) {
        list.push_back({{"id", id}, {"name", name}, {"position", id}});
        ++id;
    }
    return list;
}

} // namespace

void addClassifications(Json& section, PictureBook& book) {
    section["product_types"] = listOf(productTypes, true, [&](Json& record, const Entry& entry) {
        if (entry.id != 6) {
            record["image"] = book.resource({PictureKind::servingType, entry.id}, entry.name, 2);
            record["image_thumb"] = book.resource({PictureKind::servingType, entry.id, 1}, entry.name, 3);
            record["factor_correction"] = 1.0 + 0.1 * entry.id;
        }
        if (entry.family == Family::beer) {
            record["image_tastes"] = tasteImages(book);
        }
    });
    section["brand_properties"] = listOf(properties, false, plain);
    section["brand_typologies"] = listOf(typologies, true, coloured);
    section["brand_tastes"] = listOf(tastes, true, [](Json& record, const Entry& entry) {
        coloured(record, entry);
        record["with_image"] = entry.picture;
    });
    section["brand_sub_typologies"] = listOf(subTypologies, true, plain);
    section["brand_segments"] = listOf(segments, true, [&](Json& record, const Entry& entry) {
        if (entry.picture) {
            record["segment_image"] = book.resource({PictureKind::segment, entry.id}, entry.name, 3);
        }
    });
    section["brand_ages"] = listOf(ages, true, plain);
}

void addFormatLists(Json& section) {
    section["menu_format_visualize"] = numbered({"Con fichas de marca", "En lista"});
    section["menu_wine_format_visualize"] = numbered({"Por tipo de vino", "Por precio", "En lista"});
    Json others = Json::array();
    int id = 1;
    for (const auto& [type, name, label] : {std::tuple{1, "Ración", true},
                                            {1, "Media", true},
                                            {1, "Tapa", true},
                                            {2, "Copa", true},
                                            {2, "Vaso", true},
                                            {2, "Jarra", true},
                                            {3, "Único", false}}) {
        others.push_back(
            {{"id", id}, {"other_type_id", type}, {"name", name}, {"position", id}, {"show_label", label}});
        ++id;
    }
    section["other_formats"] = std::move(others);
}

} // namespace kavor::demo
