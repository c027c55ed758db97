#pragma once

#include "base/Int.h"

#include <algorithm>
#include <string>
#include <vector>

namespace kavor {

// When a promotion holds: its dates, and on which days of the week the online menu shows it.
struct PromotionValidity {
    std::string dateFrom; // "dd-MM-yy"; empty for none
    std::string dateTo;
    bool showMenu = false;
    std::vector<Int> days{1, 2, 3, 4, 5, 6, 7}; // ascending; 1 is Monday

    [[nodiscard]] bool showsOn(Int day) const { return std::ranges::find(days, day) != days.end(); }
    bool operator==(const PromotionValidity&) const = default;
};

} // namespace kavor
