#pragma once

#include "catalogue/Brands.h"
#include "catalogue/PictureBook.h"
#include "catalogue/Styles.h"

#include <span>

namespace kavor::demo {

/// Subtrees of the catalogue document. Each names its pictures in the book.

/// One entry of "productos".
Json productRecord(const Brand& brand, PictureBook& book);

/// The subtree "cartas".
Json brochuresSection(std::span<const Brand> brands, std::span<const Style> styles, PictureBook& book);

/// A subtree "carteleria"; the one inside "cartas" holds only what can go online.
Json postersSection(std::span<const Brand> brands, PictureBook& book, bool onlineOnly);

/// The subtrees "hoja_vendedora" and "textil".
Json sellingSheetSection(PictureBook& book);
Json textileSection(std::span<const Brand> brands, PictureBook& book);

/// An open font of the textile catalogue, where Debian's packages put it.
struct TextileFont {
    int id;
    const char* postScriptName;
    const char* filename;
    const char* name;
    const char* path;
};
/// The fonts that are installed on this machine.
std::vector<TextileFont> installedFonts();

} // namespace kavor::demo
