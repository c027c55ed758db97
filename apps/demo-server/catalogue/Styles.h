#pragma once

#include "catalogue/Brands.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace kavor::demo {

/// Kinds of brochure, with their wire values.
enum class BrochureKind {
    beer = 1,
    beverage = 2,
    menu = 3,
    flyer = 4,
    chalkboard = 5,
    video = 6,
    mantel = 7,
    wineA4 = 12,
    encarte = 13,
    wineOrder = 14,
    digital = 100,
    pennant = 101
};

/// The word of a kind on covers and order lists.
std::string kindName(int kind);
/// Every kind, in the order of the catalogue.
std::span<const BrochureKind> allKinds();
/// The family whose brands a kind of brochure offers.
Family familyOfKind(int kind);
/// The application type that an order of this kind has in order lists.
int applicationTypeOfKind(int kind);

/// Colours and ornament of a printed design; colours as 0xRRGGBB.
struct Theme {
    const char* name;
    int paper, ink, accent, second;
    int pattern;
    bool script; ///< title in a script face
    bool dark;   ///< dark paper
};
std::span<const Theme> themes();

/// A graphic style that the catalogue offers for one kind of brochure.
struct Style {
    int id = 0;
    BrochureKind kind = BrochureKind::beer;
    std::string name;
    int position = 0;
    int theme = 0;
    std::optional<int> chalkboardFormatType;
    std::vector<int> logos;
    std::vector<int> preferredBrands;
    bool withAttributes = false;
};

/// Three to six styles for each kind; logos and preferred brands are taken from the given brands.
std::vector<Style> makeStyles(std::span<const Brand> brands);

/// The logo's id of a brand that has one.
constexpr int logoIdOf(int brandId) {
    return 5000 + brandId;
}

/// The id of a brand's QR material.
constexpr int qrIdOf(int brandId) {
    return 700 + brandId;
}

} // namespace kavor::demo
