#include "brochures/wizard/prices/profit/ProfitSorting.h"

#include "brochures/wizard/prices/RowSorting.h"

namespace kavor {

using row_sorting::sortByNumber;
using row_sorting::sortByText;

ProfitSorting::ProfitSorting() {
    pictures_.fill(row_sorting::both);
}

void ProfitSorting::press(Button button, std::vector<ProfitRow>& rows) {
    pictures_.fill(row_sorting::both);
    QString& picture = pictures_[std::size_t(button)];
    switch (button) {
    case Button::BrandName:
        picture = sortByText(rows, sortByBrandStatus_, &ProfitRow::brandName);
        break;
    case Button::FormatName:
        picture = sortByText(rows, sortByProductFormatStatus_, &ProfitRow::productName);
        break;
    case Button::Pvp:
        picture = sortByNumber(rows, sortByPvpStatus_, &ProfitRow::retailPrice);
        break;
    case Button::NetPrice:
        picture = sortByNumber(rows, sortByNetPriceStatus_, &ProfitRow::netPrice);
        break;
    case Button::Margin:
        picture = sortByNumber(rows, sortByMarginStatus_, &ProfitRow::margin);
        break;
    case Button::MarginPercent:
        picture = sortByNumber(rows, sortByMarginPercentStatus_, &ProfitRow::marginPercent);
        break;
    }
}

} // namespace kavor
