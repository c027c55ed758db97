#pragma once

#include "base/Int.h"

#include <optional>
#include <string_view>

namespace kavor {

// A number of units as it is typed: digits, with or without thousands points ("1200", "1.200"). Nothing for
// any other text, and for more than there are numbers.
std::optional<UInt> unitsOf(std::string_view text);

} // namespace kavor
