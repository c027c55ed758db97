#include "brochures/wizard/prices/PriceSorting.h"

#include "base/StopProcess.h"

#include <algorithm>

namespace kavor {

namespace {

const QString both = QStringLiteral("sort_both");
const QString ascendant = QStringLiteral("sort_ascendant");
const QString descendant = QStringLiteral("sort_descendant");

// Sorts by a key, up at status 0 and down at status 1; equal rows keep their places.
template <class Key>
QString sortByKey(std::vector<PriceRow>& rows, int& status, int statuses, Key key) {
    const bool up = status == 0;
    if (up)
        std::ranges::stable_sort(rows, std::less(), key);
    else
        std::ranges::stable_sort(rows, std::greater(), key);
    status = (status + 1) % statuses;
    return up ? ascendant : descendant;
}

QString sortByText(std::vector<PriceRow>& rows, int& status, std::string PriceRow::*text) {
    if (status < 2) // plain strings: upper case first, no locale
        return sortByKey(rows, status, 3, text);
    std::ranges::stable_sort(rows, {}, &PriceRow::position);
    status = 0;
    return both;
}

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
        picture = sortByText(rows, sortedByProductButtonStatus_, &PriceRow::brandName);
        break;
    case Button::Format:
        picture = sortByText(rows, sortByFormatButtonStatus_, &PriceRow::productName);
        break;
    case Button::PrimaryPrice:
        picture = sortByKey(rows, sortedByFirstPvp_, 2, &PriceRow::mainPrice);
        break;
    case Button::SecondaryPrice:
        picture = sortByKey(rows, sortedBySecondaryPvp_, 2, &setSecondaryPrice);
        break;
    }
    // A price sort leaves the pictures of brand and format as they are, meant so.
    if (button == Button::Brand || button == Button::Format)
        std::ranges::fill(pictures_, both);
    else
        pictureOf(button == Button::PrimaryPrice ? Button::SecondaryPrice : Button::PrimaryPrice) = both;
    pictureOf(button) = picture;
}

} // namespace kavor
