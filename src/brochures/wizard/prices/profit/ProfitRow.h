#pragma once

#include "base/Int.h"

#include <string>

namespace kavor {

// The columns of the profit account, in the order of the fields' tags.
enum class ProfitColumn { RetailPrice, NetPrice, Margin, MarginPercent };
inline constexpr int profitColumns = 4;

// A format with a price, as the profit account shows it. Only the net price is kept, in the draft; the rest
// is a what-if.
struct ProfitRow {
    Int productIdentifier = 0; // of the format
    Int brandIdentifier = 0;
    std::string productName; // the format's display text
    std::string brandName;
    Int position = 0; // of the brand
    double retailPrice = 0;
    double netPrice = 0;
    double margin = 0;
    double marginPercent = 0; // of the retail price

    bool operator==(const ProfitRow&) const = default;

    [[nodiscard]] double value(ProfitColumn column) const;
    // The row after one of its numbers was typed: the others follow. Nothing is rounded, and nothing stops a
    // division by zero.
    [[nodiscard]] ProfitRow with(ProfitColumn column, double value) const;
};

} // namespace kavor
