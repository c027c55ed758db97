#pragma once

#include "catalogue/Brochures.h"
#include "screens/covers/CoverModel.h"

namespace kavor {

// A style of the catalogue as a carousel shows it; preferred when brands of the menu prefer it.
Cover coverOf(const Brochures::Style& style, bool isPreferred = false);

} // namespace kavor
