#pragma once

#include "Json.h"
#include "catalogue/Brands.h"

#include <array>
#include <span>
#include <string>
#include <vector>

namespace kavor::demo {

/// What kinds of things a promotion may ask of its bar, with their wire values.
enum class AttributeKind { words = 1, logo = 2, price = 3, list = 4, hour = 5 };

/// What a promotion asks of its bar.
struct PosterAttribute {
    int id;
    AttributeKind kind;
    const char* name;
    int maximumLength;
    std::vector<const char*> choices; ///< of a list
};

/// A size that posters are printed in, in millimetres, or shown in.
struct Support {
    int id;
    const char* name;
    const char* description;
    double width, height;
};
std::span<const Support> supports();

/// What stands on a poster in a language.
struct PosterText {
    int language;
    const char* title;
    const char* description;
};

/// A promotion of the catalogue.
struct Poster {
    /// The place of its brand when the brand is no longer in the catalogue.
    static constexpr int retired = -1;

    int id, typeId, classificationId; // classification 0: none
    Family family;
    int brandPlace, theme, motif;
    bool online;
    std::vector<AttributeKind> asks;
    std::vector<int> supports;
    std::vector<PosterText> texts; ///< the first is the one by default

    /// The words in a language, or the ones by default.
    const PosterText& in(int language) const;
    bool speaks(int language) const;
    /// Its own number of a support.
    int supportId(int support) const { return id * 10 + support; }
    std::vector<PosterAttribute> attributes() const;
    int brandId(std::span<const Brand> brands) const;
    Look look(std::span<const Brand> brands) const;
};
std::span<const Poster> posters();
/// Null for an id that is none.
const Poster* posterOf(int id);

/// A brand that the catalogue no longer holds, though orders and promotions name it.
inline constexpr int retiredBrandId = 990001;
inline constexpr const char* retiredBrandName = "Torrealba de Ayer";

} // namespace kavor::demo
