#pragma once

#include "brochures/wizard/prices/profit/ProfitRow.h"

#include <QString>

#include <array>
#include <vector>

namespace kavor {

// The six sort buttons of the profit account. Each counts its own presses; all but the pressed one go back to
// "sort_both".
class ProfitSorting {
public:
    enum class Button { BrandName, FormatName, Pvp, NetPrice, Margin, MarginPercent };

    ProfitSorting();

    // Sorts the rows as the next press of a button does, and changes the pictures.
    void press(Button button, std::vector<ProfitRow>& rows);
    [[nodiscard]] QString picture(Button button) const { return pictures_[std::size_t(button)]; }

private:
    int sortByBrandStatus_ = 0;
    int sortByProductFormatStatus_ = 0;
    int sortByPvpStatus_ = 0;
    int sortByNetPriceStatus_ = 0;
    int sortByMarginStatus_ = 0;
    int sortByMarginPercentStatus_ = 0;
    std::array<QString, 6> pictures_;
};

} // namespace kavor
