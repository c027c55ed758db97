#include "catalogue/Brands.h"

#include "catalogue/Dice.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <string_view>

namespace kavor::demo {

namespace {

// Every name is made up.
constexpr std::array beerNames = {
    "Trasgalonga", "Rocaveta",    "Valmerín",   "Oropelusa",  "Marisombra", "Torrelúpula",
    "Cantabrumas", "Zarzalume",   "Brunavega",  "Altocardo",  "Faroluz",    "Peñagrifa",
    "Corvomalta",  "Sietebotas",  "Ribadorna",  "Lumbrisca",  "Nieblalta",  "Campomirlo",
    "Jarandel",    "Buhardina",   "Solmarengo", "Tizonalba",  "Gavilenta",  "Duendrina",
    "Vientorrojo", "Mantelumbre", "Pardalusa",  "Graniteja",  "Estribalda", "Lobarquina",
    "Salmigón",    "Candilarga",  "Cimalbresa", "Norteñuela", "Ventisquel", "Quejigalba",
};
constexpr std::array wineNames = {
    "Viñarcaza",   "Pago del Zurriel", "Lagarbruna",  "Tempranieve",    "Sotocalandro",
    "Majuelumbre", "Cepalinde",        "Raspalnegro", "Condalarga",     "Rubicardel",
    "Alborciño",   "Terrazgada",       "Dulcimorra",  "Burbujante Sil",
};
constexpr std::array marketNames = {
    "Limocasta",  "Naranquela",  "Tonicuarza", "Manzanubia", "Kombuleta", "Fuentebrisca",
    "Gaseolinda", "Jengibrusco", "Colabruna",  "Chufarela",  "Granadusa", "Avelusca",
};
constexpr std::array firstHalves = {
    "Bres",   "Calm", "Dorv",  "Falg", "Garn", "Hust",  "Jarb",  "Lorv",  "Malg", "Nard",
    "Orb",    "Palv", "Quer",  "Rasc", "Sald", "Tarv",  "Urd",   "Valg",  "Yerg", "Zarb",
    "Almd",   "Berg", "Cordv", "Drag", "Esk",  "Fronv", "Grand", "Hierv", "Izt",  "Juncv",
    "Lucern", "Mirv", "Nogv",  "Olmv", "Pizv", "Retv",  "Serv",  "Tejv",  "Umbr", "Vern",
};
constexpr std::array secondHalves = {
    "adela",  "anca",   "ardo",  "avia",   "azul",   "ebrán",   "edina",  "egall",  "elmo",  "enara",
    "eñal",   "erusa",  "ibla",  "icanto", "idor",   "iesta",   "igosa",  "ilunda", "imera", "inaz",
    "irela",  "isco",   "ivana", "obrega", "odal",   "ofresca", "olanda", "omiel",  "onera", "oraz",
    "osquel", "otilla", "ubena", "ucaro",  "udelia", "ufanda",  "ulmar",  "umbela", "uñosa", "urgal",
};
constexpr std::array surnames = {"",         " Brava", " Serena", " de Monte",  " Rubia",
                                 " del Sur", " Alta",  " Vieja",  " de Fiesta", " Clara"};

struct Palette {
    int base, accent, paper;
};
constexpr std::array palettes = {
    Palette{0x123F31, 0xE0A126, 0xFAF2DC}, Palette{0x8E2C2C, 0xF2C14E, 0xFFF4E0},
    Palette{0x1F3A68, 0xE8C9A0, 0xF3F6FB}, Palette{0x20262B, 0xD9A441, 0xF5EEDD},
    Palette{0xB5541C, 0xFFE2A8, 0xFFF6EA}, Palette{0x2F6F6B, 0xF6D365, 0xEEF8F5},
    Palette{0x5B3A6B, 0xE7B7C8, 0xF8F1FA}, Palette{0xC4882A, 0x3A2414, 0xFFF3D1},
    Palette{0x3C5A2E, 0xEBD36B, 0xF4F6E6}, Palette{0x7A1F3D, 0xE9A6A6, 0xFBEFF1},
    Palette{0x0F5C8C, 0xFFB347, 0xEAF5FB}, Palette{0x6B4423, 0xF0D9A6, 0xFBF3E6},
    Palette{0xC23B22, 0x1E3D3A, 0xFFF1E6}, Palette{0x37474F, 0x8BC6A5, 0xEEF3F2},
    Palette{0xD18F00, 0x5A1E1E, 0xFFF7DF}, Palette{0x17635B, 0xF26B4E, 0xF0FAF7},
    Palette{0x4A2C63, 0xF5C542, 0xF7F1FB}, Palette{0x2B2D6E, 0x9ED8DB, 0xEFF1FB},
};

constexpr int emblemShapes = 8;
constexpr int labelShapes = 4;
constexpr int patterns = 6;

/// Kinds of beer, wine and market drink: one decides segment, taste, bitterness and the colour in the glass.
struct Kind {
    const char* style;
    int typologyId, subTypologyId, segmentId, tasteId;
    std::optional<int> bitterness;
    int liquid;
};
const std::array beerKinds = {
    Kind{"Lager dorada", 11, 111, 101, 31, 2, 0xF2B632},
    Kind{"Tostada de malta", 12, 121, 102, 32, 2, 0xB5651D},
    Kind{"Trigo sin filtrar", 13, 131, 103, 33, 1, 0xF5CF6B},
    Kind{"IPA cítrica", 14, 141, 104, 34, 4, 0xE39A2D},
    Kind{"Negra cremosa", 15, 151, 102, 35, 3, 0x2E1A12},
    Kind{"Especial de guarda", 12, 122, 102, 32, 3, 0xC9812B},
    Kind{"Sin alcohol", 16, 161, 105, 31, 1, 0xF4C95D},
    Kind{"Con limón", 17, 171, 105, 33, 1, 0xF8E16C},
    Kind{"Roja de abadía", 12, 122, 103, 32, 2, 0x9C3B1B},
    Kind{"Pilsen fina", 11, 112, 101, 34, 3, 0xF6C445},
};
const std::array wineKinds = {
    Kind{"Tinto joven", 21, 211, 201, 41, std::nullopt, 0x7B1E3A},
    Kind{"Tinto crianza", 21, 212, 202, 42, std::nullopt, 0x5E1530},
    Kind{"Blanco fresco", 22, 221, 201, 43, std::nullopt, 0xF1E3A0},
    Kind{"Rosado de lágrima", 23, 231, 201, 43, std::nullopt, 0xF08A8A},
    Kind{"Espumoso natural", 24, 241, 202, 43, std::nullopt, 0xF5E9B8},
    Kind{"Dulce de postre", 25, 251, 202, 44, std::nullopt, 0xB4731F},
};
const std::array marketKinds = {
    Kind{"Refresco de fruta", 31, 311, 301, 51, std::nullopt, 0xF59E34},
    Kind{"Tónica botánica", 32, 321, 302, 52, 3, 0xDDEFF2},
    Kind{"Sidra de manzana", 33, 331, 302, 53, 1, 0xE8C15A},
    Kind{"Agua con gas", 34, 341, 301, 54, std::nullopt, 0xD6ECF5},
    Kind{"Fermento de té", 35, 351, 302, 52, 1, 0xC97B3A},
};

struct Serving {
    const char* icon;
    int typeId;
    Vessel vessel;
    int volume;
    double price, factor;
    bool bottle;
    int box;
    bool editable;
    int minimumVolume, maximumVolume; // 0: unset
};
const std::array beerServings = {
    Serving{"Caña 20 cl", 1, Vessel::glass, 20, 1.60, 1.0, false, 0, true, 15, 30},
    Serving{"Tercio 33 cl", 2, Vessel::bottle, 33, 2.20, 1.2, true, 24, false, 0, 0},
    Serving{"Doble 33 cl", 1, Vessel::tallGlass, 33, 2.40, 1.1, false, 0, true, 25, 40},
    Serving{"Quinto 20 cl", 2, Vessel::smallBottle, 20, 1.50, 1.1, true, 30, false, 0, 0},
    Serving{"Lata 33 cl", 3, Vessel::can, 33, 1.80, 1.0, false, 24, false, 0, 0},
    Serving{"Pinta 50 cl", 1, Vessel::pint, 50, 3.60, 1.3, false, 0, true, 40, 0},
    Serving{"Botella 75 cl", 2, Vessel::largeBottle, 75, 7.50, 1.4, true, 6, false, 0, 0},
    Serving{"Lata 50 cl", 3, Vessel::tallCan, 50, 2.60, 1.0, false, 12, false, 0, 0},
};
const std::array wineServings = {
    Serving{"Copa 12 cl", 4, Vessel::wineGlass, 12, 2.80, 1.5, false, 0, true, 10, 18},
    Serving{"Botella 75 cl", 5, Vessel::wineBottle, 75, 14.00, 1.6, true, 6, false, 0, 0},
    Serving{"Media botella 37,5 cl", 5, Vessel::wineBottle, 37, 8.50, 1.6, true, 12, false, 0, 0},
    Serving{"Mágnum 150 cl", 6, Vessel::magnum, 150, 29.00, 1.8, true, 3, false, 0, 0},
};
const std::array marketServings = {
    Serving{"Botellín 20 cl", 7, Vessel::softBottle, 20, 1.90, 1.0, true, 24, false, 0, 0},
    Serving{"Lata 33 cl", 8, Vessel::softCan, 33, 1.90, 1.0, false, 24, false, 0, 0},
    Serving{"Vaso 25 cl", 9, Vessel::tumbler, 25, 2.10, 1.0, false, 0, true, 20, 40},
    Serving{"Jarra 1 l", 9, Vessel::jug, 100, 6.50, 1.2, false, 0, true, 75, 0},
};

double cents(double value) {
    return std::round(value * 20.0) / 20.0;
}

Format makeFormat(const Brand& brand, const Serving& serving, int place, Dice& dice) {
    Format format;
    format.id = brand.id * 10 + place;
    format.typeId = serving.typeId;
    format.icon = serving.icon;
    format.vessel = serving.vessel;
    format.volume = serving.volume;
    const double price = cents(serving.price * (0.9 + 0.5 * dice.fraction()));
    if (dice.below(12) != 0) {
        format.price = price;
    }
    format.minimalPrice = cents(price * 0.5);
    format.warningPrice = cents(price * 2.5);
    format.factor = serving.factor;
    format.isBottle = serving.bottle;
    if (serving.box > 0) {
        format.bottlesPerBox = serving.box;
    }
    format.volumeEditable = serving.editable;
    if (serving.minimumVolume > 0) {
        format.minimumVolume = serving.minimumVolume;
    }
    if (serving.maximumVolume > 0) {
        format.maximumVolume = serving.maximumVolume;
    }
    format.onSellingSheet = serving.box > 0;
    format.onBrochures = serving.vessel != Vessel::tallCan || dice.below(3) != 0;
    format.highlightable = serving.vessel == Vessel::bottle || serving.vessel == Vessel::pint ||
                           serving.vessel == Vessel::wineBottle || serving.vessel == Vessel::softBottle;
    format.highlightPosition = format.highlightable && brand.isMain ? brand.position : 0;
    format.onPennant = serving.volume <= 50 && serving.vessel != Vessel::can;
    return format;
}

template <typename Servings>
std::vector<Format> makeFormats(const Brand& brand, const Servings& servings, Dice& dice) {
    std::vector<Serving> chosen(std::begin(servings), std::end(servings));
    const int number = std::min(int(chosen.size()), 2 + dice.below(5));
    while (int(chosen.size()) > number) {
        chosen.erase(chosen.begin() + dice.below(int(chosen.size())));
    }
    std::vector<Format> formats;
    formats.reserve(chosen.size());
    for (const Serving& serving : chosen) {
        formats.push_back(makeFormat(brand, serving, int(formats.size()) + 1, dice));
    }
    return formats;
}

std::string inventedName(int index) {
    const int firsts = int(firstHalves.size()), seconds = int(secondHalves.size());
    const int round = index / (firsts * seconds);
    std::string name = std::string(firstHalves[index % firsts]) + secondHalves[(index / firsts) % seconds] +
                       surnames[round % surnames.size()];
    if (round >= int(surnames.size())) {
        name += ' ';
        name += std::to_string(round / int(surnames.size()) + 1);
    }
    return name;
}

template <typename Names>
std::string nameOf(const Names& names, int index, int id) {
    return index < int(names.size()) ? std::string(names[index]) : inventedName(id);
}

Look makeLook(const Brand& brand, int liquid, Dice& dice) {
    const Palette& palette = palettes[(brand.id * 7 + dice.below(3)) % palettes.size()];
    constexpr std::array beerGlass = {0x5A2E12, 0x1F4D2B, 0x3E2412, 0x2B5A45};
    constexpr std::array wineGlass = {0x1E3A22, 0x2A1B12, 0x4E5B3A};
    Look look;
    look.base = palette.base;
    look.accent = palette.accent;
    look.paper = palette.paper;
    look.liquid = liquid;
    look.bottleGlass = brand.family == Family::wine ? wineGlass[dice.below(int(wineGlass.size()))]
                                                    : beerGlass[dice.below(int(beerGlass.size()))];
    if (brand.family == Family::market) {
        look.bottleGlass = liquid;
    }
    look.emblem = (brand.id + dice.below(2)) % emblemShapes;
    look.label = dice.below(labelShapes);
    look.pattern = dice.below(patterns);
    look.motif = brand.family == Family::beer   ? (brand.id * 5 + brand.id / 7) % 7
                 : brand.family == Family::wine ? 7 + brand.id % 3
                                                : 10 + brand.id % 3;
    look.name = brand.name;
    return look;
}

void classify(Brand& brand, const Kind& kind, Dice& dice) {
    brand.style = kind.style;
    brand.typologyId = kind.typologyId;
    brand.subTypologyId = dice.below(6) == 0 ? std::nullopt : std::optional(kind.subTypologyId);
    brand.segmentId = kind.segmentId;
    brand.tasteId = kind.tasteId;
    brand.bitterness = kind.bitterness;
    brand.propertyId = 1 + dice.below(3);
    if (brand.family == Family::wine) {
        brand.ageId = 1 + dice.below(4);
    }
    const int pairings = dice.below(4);
    for (int i = 0; i < pairings; ++i) {
        const int pairing = 1 + dice.below(10);
        if (std::ranges::find(brand.pairings, pairing) == brand.pairings.end()) {
            brand.pairings.push_back(pairing);
        }
    }
}

/// Six beers, two wines and two market drinks in each row of ten, with the first row's beers ahead.
Family familyOf(int index) {
    constexpr std::array row = {Family::beer, Family::beer, Family::wine, Family::beer, Family::market,
                                Family::beer, Family::wine, Family::beer, Family::beer, Family::market};
    return row[index % row.size()];
}

} // namespace

std::string sanitised(const std::string& name) {
    static constexpr std::array<std::pair<std::string_view, char>, 16> letters = {{{"á", 'a'},
                                                                                   {"é", 'e'},
                                                                                   {"í", 'i'},
                                                                                   {"ó", 'o'},
                                                                                   {"ú", 'u'},
                                                                                   {"ü", 'u'},
                                                                                   {"ñ", 'n'},
                                                                                   {"ç", 'c'},
                                                                                   {"Á", 'a'},
                                                                                   {"É", 'e'},
                                                                                   {"Í", 'i'},
                                                                                   {"Ó", 'o'},
                                                                                   {"Ú", 'u'},
                                                                                   {"Ü", 'u'},
                                                                                   {"Ñ", 'n'},
                                                                                   {"Ç", 'c'}}};
    std::string plain;
    for (size_t i = 0; i < name.size(); ++i) {
        const auto letter = std::ranges::find_if(letters, [&](const auto& entry) {
            return name.compare(i, entry.first.size(), entry.first) == 0;
        });
        if (letter != letters.end()) {
            plain += letter->second;
            i += letter->first.size() - 1;
        } else {
            plain += char(std::tolower(static_cast<unsigned char>(name[i])));
        }
    }
    return plain;
}

std::vector<Brand> makeBrands(int number) {
    std::vector<Brand> brands;
    brands.reserve(size_t(number));
    int beers = 0, wines = 0, drinks = 0;
    for (int index = 0; index < number; ++index) {
        Dice dice{std::uint64_t(index) + 17};
        Brand brand;
        brand.id = index + 1;
        brand.family = familyOf(index);
        const int place = brand.family == Family::beer   ? beers++
                          : brand.family == Family::wine ? wines++
                                                         : drinks++;
        brand.position = place + 1;
        brand.isMain = place < 12 && place % 2 == 0;
        brand.isSecondary = place % 3 == 2;
        brand.withLogo = place % 4 != 3;
        brand.colourByTypology = place % 2 == 0;
        const Kind* kind = nullptr;
        switch (brand.family) {
        case Family::beer:
            brand.name = nameOf(beerNames, place, brand.id);
            kind = &beerKinds[size_t(place) % beerKinds.size()];
            break;
        case Family::wine:
            brand.name = nameOf(wineNames, place, brand.id);
            kind = &wineKinds[size_t(place) % wineKinds.size()];
            break;
        case Family::market:
            brand.name = nameOf(marketNames, place, brand.id);
            kind = &marketKinds[size_t(place) % marketKinds.size()];
            break;
        }
        brand.sanitised = sanitised(brand.name);
        classify(brand, *kind, dice);
        brand.look = makeLook(brand, kind->liquid, dice);
        brand.formats = brand.family == Family::beer   ? makeFormats(brand, beerServings, dice)
                        : brand.family == Family::wine ? makeFormats(brand, wineServings, dice)
                                                       : makeFormats(brand, marketServings, dice);
        brands.push_back(std::move(brand));
    }
    return brands;
}

} // namespace kavor::demo
