#pragma once

#include "catalogue/Styles.h"

#include <array>
#include <optional>
#include <span>
#include <vector>

namespace kavor::demo {

/// What the catalogue offers beside brands and styles, as tables that both the documents and the drawings
/// read. `brandPlace` counts inside a family, from 0.

struct ChalkboardFormat {
    int id, typeId;
    const char* name;
    const char* description;
    int sizeIcon, prints;
    std::vector<int> brandCounts;
    bool landscape;
};
std::span<const ChalkboardFormat> chalkboardFormats();

struct OrderSheet {
    int id;
    const char* name;
    const char* reference;
    int colour;
    std::vector<int> brandPlaces;
};
std::span<const OrderSheet> orderSheets();

struct PennantBrand {
    int id;
    const char* name;
    const char* description;
    const char* help;
    std::vector<int> brandPlaces;
    int shape;
};
std::span<const PennantBrand> pennantBrands();

struct SheetStyle {
    int id;
    const char* name;
    int theme;
};
std::span<const SheetStyle> sheetStyles();
/// How many characters the texts of a selling sheet may have.
inline constexpr int sheetTitleLength = 50, sheetSubtitleLength = 80, sheetFreeTextLength = 200;

struct Activation {
    int id, groupId;
    const char* name;
    const char* description;
    const char* agency;
    int motif, colour, noticeDays, quota, made;
    bool related, withDocument;
    std::optional<int> monthsOpen; ///< 0 ends in some days
};
std::span<const Activation> activations();

struct ActivationGroup {
    int id;
    const char* name;
    int brandPlace, colour;
};
std::span<const ActivationGroup> activationGroups();

struct GarmentType {
    int id;
    const char* name;
    int least, greatest;
};
std::span<const GarmentType> garmentTypes();

struct GarmentColour {
    int id;
    const char* name;
    int colour;
};
std::span<const GarmentColour> garmentColours();

/// A tutorial; its film is films/ID.mp4.
struct Manual {
    int id;
    const char* type;
    const char* label;
    std::vector<const char*> steps;
};
std::span<const Manual> manuals();

/// Categories of the suggestion mailbox; their ids count from 1.
std::span<const char* const> suggestionCategories();

struct Notice {
    int id;
    const char* title;
    const char* description;
    int motif;
};
std::span<const Notice> notices();

struct Language {
    int id;
    const char* name;
    const char* code;
    const char* reference;
    std::vector<BrochureKind> kinds;
};
std::span<const Language> languages();

struct DrinkProduct {
    int id;
    const char* name;
    const char* description; ///< may be null, as `format` and the prices may be absent
    const char* format;
    std::optional<double> price, secondPrice;
};
struct DrinkCategory {
    int id;
    const char* name;
    const char* description; ///< may be null
    std::vector<DrinkProduct> products;
};
std::span<const DrinkCategory> drinkCategories();

/// Logos and QR material are made for the first brands only: the large catalogues are large in brands.
inline constexpr size_t brandsWithMaterial = 60;

/// The brands with QR material, in the order of the catalogue: beers, wines, and a few of the other drinks.
std::vector<const Brand*> qrBrands(std::span<const Brand> brands);

/// How much QR material may be asked for: stickers for tables, round ones for doors, wooden blocks.
inline constexpr std::array qrTableQuantities = {10, 20, 40, 60};
inline constexpr std::array qrDoorQuantities = {1, 2, 4};
inline constexpr std::array qrBlockQuantities = {5, 10, 15};

/// The name of a price column, empty for a number that is none.
const char* priceName(int priceType);

/// The name of a pairing.
std::span<const char* const> pairingNames();

/// The brand at a place of a family, counted round when the family is smaller.
const Brand& brandAt(std::span<const Brand> brands, Family family, int place);

} // namespace kavor::demo
