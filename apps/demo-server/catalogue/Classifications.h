#pragma once

#include "Json.h"
#include "catalogue/PictureBook.h"

namespace kavor::demo {

/// Adds the lists by which brands are sorted ("product_types", "brand_typologies" and their kin).
void addClassifications(Json& section, PictureBook& book);

/// Adds the lists of printed formats ("menu_format_visualize", "other_formats" and their kin).
void addFormatLists(Json& section);

} // namespace kavor::demo
