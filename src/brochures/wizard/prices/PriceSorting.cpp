#include "brochures/wizard/prices/PriceSorting.h"

#include "base/StopProcess.h"
#include "brochures/wizard/prices/RowSorting.h"

#include <algorithm>

namespace kavor {

namespace {

double setSecondaryPrice(const PriceRow& row) {
    if (!row.secondaryPrice)
        stopProcess("secondary price of format " + std::to_string(row.productIdentifier));
    return *row.secondaryPrice;
}

} // namespace

QString& PriceSorting::pictureOf(Button button) {
    return pictures_[int(button)];
}

QString PriceSorting::picture(Button button) const {
    return pictures_[int(button)];
}

void PriceSorting::press(Button button, std::vector<PriceRow>& rows) {
    QString picture;
    switch (button) {
    case Button::Brand:
        picture = row_sorting::sortByText(rows, sortedByProductButtonStatus_, &PriceRow::brandName);
        break;
    case Button::Format:
        picture = row_sorting::sortByText(rows, sortByFormatButtonStatus_, &PriceRow::productName);
        break;
    case Button::PrimaryPrice:
        picture = row_sorting::sortByKey(rows, sortedByFirstPvp_, 2, &PriceRow::mainPrice);
        break;
    case Button::SecondaryPrice:
        picture = row_sorting::sortByKey(rows, sortedBySecondaryPvp_, 2, &setSecondaryPrice);
        break;
    }
    // A price sort leaves the pictures of brand and format as they are, meant so.
    if (button == Button::Brand || button == Button::Format)
        std::ranges::fill(pictures_, row_sorting::both);
    else
        pictureOf(button == Button::PrimaryPrice ? Button::SecondaryPrice : Button::PrimaryPrice) =
            row_sorting::both;
    pictureOf(button) = picture;
}

} // namespace kavor
