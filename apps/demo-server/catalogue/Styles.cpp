#include "catalogue/Styles.h"

#include <algorithm>
#include <array>

namespace kavor::demo {

namespace {

constexpr std::array kinds = {BrochureKind::beer,      BrochureKind::beverage,   BrochureKind::menu,
                              BrochureKind::flyer,     BrochureKind::chalkboard, BrochureKind::video,
                              BrochureKind::mantel,    BrochureKind::encarte,    BrochureKind::wineA4,
                              BrochureKind::wineOrder, BrochureKind::digital,    BrochureKind::pennant};

constexpr std::array themeTable = {
    Theme{"Barra clásica", 0xFAF6EE, 0x123F31, 0xE0A126, 0x8C5A2B, 0, true, false},
    Theme{"Azulejo", 0xF4F8FB, 0x17406D, 0x2E86AB, 0xE3B23C, 1, false, false},
    Theme{"Hora del vermut", 0xFFF3E4, 0x7A1F2B, 0xC8452F, 0x2F5D50, 2, true, false},
    Theme{"Brisa de costa", 0xEAF6F6, 0x0B4F6C, 0x01A7C2, 0xF4A259, 3, false, false},
    Theme{"Noche de concierto", 0x1B1B2F, 0xF5EBDD, 0xE94F64, 0xF2C14E, 4, false, true},
    Theme{"Huerta", 0xF7F8EA, 0x33482B, 0x7BA05B, 0xD9752B, 5, true, false},
    Theme{"Cobre y lúpulo", 0x23302B, 0xF3E4C8, 0xC77B3B, 0x7FB285, 0, false, true},
    Theme{"Papel kraft", 0xE6D3B1, 0x3B2A1A, 0x9C4A1A, 0x2D5D54, 2, true, false},
    Theme{"Verbena", 0xFFF9EC, 0x4A2463, 0xE4572E, 0x17BEBB, 4, true, false},
    Theme{"Bodega", 0xF8F1EA, 0x4A1528, 0x9B2D4B, 0xBF9B5F, 1, true, false},
};

struct KindStyles {
    BrochureKind kind;
    std::vector<int> themes;
};
const std::array<KindStyles, kinds.size()> offers = {{
    {BrochureKind::beer, {0, 1, 6, 3, 7, 8}},
    {BrochureKind::beverage, {3, 5, 2, 8}},
    {BrochureKind::menu, {5, 7, 0, 1}},
    {BrochureKind::flyer, {7, 4, 2}},
    {BrochureKind::chalkboard, {6, 4, 6, 4}},
    {BrochureKind::video, {4, 6, 8}},
    {BrochureKind::mantel, {1, 2, 5, 3}},
    {BrochureKind::encarte, {0, 8, 7}},
    {BrochureKind::wineA4, {9, 2, 7}},
    {BrochureKind::wineOrder, {9, 6, 0}},
    {BrochureKind::digital, {0, 4, 3, 5, 8, 9}},
    {BrochureKind::pennant, {8, 2, 1, 6}},
}};

std::vector<const Brand*> brandsOf(std::span<const Brand> brands, Family family, size_t limit) {
    std::vector<const Brand*> found;
    for (const Brand& brand : brands) {
        if (brand.family == family && found.size() < limit) {
            found.push_back(&brand);
        }
    }
    return found;
}

void addLogos(Style& style, const std::vector<const Brand*>& brands) {
    for (const Brand* brand : brands) {
        if (brand->withLogo && style.logos.size() < 8) {
            style.logos.push_back(logoIdOf(brand->id));
        }
    }
    if (style.logos.size() < 3) {
        style.logos.clear(); // a style with logos asks for three different ones
    }
}

} // namespace

std::string kindName(int kind) {
    switch (BrochureKind(kind)) {
    case BrochureKind::beer:
        return "Carta de Cervezas";
    case BrochureKind::beverage:
        return "Carta de Bebidas";
    case BrochureKind::menu:
        return "Carta de Menú";
    case BrochureKind::flyer:
        return "Hoja única";
    case BrochureKind::chalkboard:
        return "Pizarra";
    case BrochureKind::video:
        return "Video Carta";
    case BrochureKind::mantel:
        return "Mantelería";
    case BrochureKind::encarte:
        return "Encarte de Cervezas";
    case BrochureKind::wineA4:
    case BrochureKind::wineOrder:
        return "Carta de vinos";
    case BrochureKind::digital:
        return "Digital";
    case BrochureKind::pennant:
        return "Banderines";
    }
    return "Carta";
}

std::span<const BrochureKind> allKinds() {
    return kinds;
}

Family familyOfKind(int kind) {
    switch (BrochureKind(kind)) {
    case BrochureKind::wineA4:
    case BrochureKind::wineOrder:
        return Family::wine;
    case BrochureKind::beverage:
        return Family::market;
    default:
        return Family::beer;
    }
}

int applicationTypeOfKind(int kind) {
    switch (BrochureKind(kind)) {
    case BrochureKind::video:
        return 11;
    case BrochureKind::mantel:
        return 13;
    case BrochureKind::encarte:
        return 23;
    case BrochureKind::wineA4:
        return 19;
    case BrochureKind::wineOrder:
        return 24;
    default:
        return kind;
    }
}

std::span<const Theme> themes() {
    return themeTable;
}

std::vector<Style> makeStyles(std::span<const Brand> brands) {
    std::vector<Style> styles;
    for (const KindStyles& offer : offers) {
        const auto family = brandsOf(brands, familyOfKind(int(offer.kind)), 24);
        for (size_t place = 0; place < offer.themes.size(); ++place) {
            Style style;
            style.kind = offer.kind;
            style.id = int(offer.kind) * 10 + int(place) + 1;
            style.position = int(place) + 1;
            style.theme = offer.themes[place];
            style.name = themeTable[size_t(style.theme)].name;
            if (offer.kind == BrochureKind::chalkboard) {
                style.chalkboardFormatType = place < 2 ? 1 : 2;
                style.name += place < 2 ? " vertical" : " apaisada";
            }
            const bool paper = offer.kind != BrochureKind::digital && offer.kind != BrochureKind::pennant;
            if (paper && place % 3 == 1) {
                addLogos(style, family);
            }
            if (place == 2 && family.size() >= 6) {
                style.preferredBrands = {family[1]->id, family[4]->id, family[5]->id};
            }
            style.withAttributes = place == 2;
            styles.push_back(std::move(style));
        }
    }
    return styles;
}

} // namespace kavor::demo
