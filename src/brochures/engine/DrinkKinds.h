#pragma once

#include "catalogue/Enumerations.h"

namespace kavor {

// Whether a menu of this kind carries the other drinks. The orders of the other kinds leave them out.
constexpr bool printsDrinks(BrochureType kind) {
    return kind == BrochureType::beverage || kind == BrochureType::menu;
}

} // namespace kavor
