#pragma once

#include <optional>
#include <string>
#include <vector>

namespace kavor::demo {

/// Product families of the catalogue, with their wire values.
enum class Family { beer = 1, market = 7, wine = 8 };

/// What a format is served in; decides its picture.
enum class Vessel {
    glass,
    tallGlass,
    pint,
    smallBottle,
    bottle,
    largeBottle,
    can,
    tallCan,
    wineGlass,
    wineBottle,
    magnum,
    softBottle,
    softCan,
    tumbler,
    jug
};

/// How a brand is drawn: colours as 0xRRGGBB, shapes as small numbers.
struct Look {
    int base = 0;
    int accent = 0;
    int paper = 0;
    int liquid = 0;
    int bottleGlass = 0;
    int emblem = 0;
    int label = 0;
    int pattern = 0;
    int motif = 0;
    std::string name;
};

struct Format {
    int id = 0;
    int typeId = 0;
    std::string icon; ///< the label that a Spaniard reads, "Tercio 33 cl"
    Vessel vessel = Vessel::bottle;
    int volume = 0; ///< centilitres
    std::optional<double> price;
    double minimalPrice = 0;
    double warningPrice = 0;
    double factor = 1;
    bool isBottle = false;
    std::optional<int> bottlesPerBox;
    bool volumeEditable = false;
    std::optional<int> minimumVolume, maximumVolume;
    bool onSellingSheet = false;
    bool onBrochures = true;
    bool highlightable = false;
    int highlightPosition = 0;
    bool onPennant = false;
};

struct Brand {
    int id = 0;
    Family family = Family::beer;
    std::string name;
    std::string sanitised;
    std::string style; ///< one line for the printed menu, "Lager dorada"
    int position = 0;
    Look look;
    bool withLogo = false;
    bool isMain = false;
    bool isSecondary = false;
    bool colourByTypology = false;
    std::optional<int> bitterness;
    std::vector<int> pairings;
    std::optional<std::string> pairingsLabel;
    int propertyId = 1;
    std::optional<int> segmentId, typologyId, subTypologyId, tasteId, ageId;
    std::vector<Format> formats;
};

/// The fictional brands: about three in five beers, one in four wines, the rest drinks of the market family.
/// The same number gives the same brands, and a brand keeps its id whatever the number.
std::vector<Brand> makeBrands(int number);

/// A name in lower case without diacritics.
std::string sanitised(const std::string& name);

} // namespace kavor::demo
