#pragma once

#include "brochures/wizard/prices/PriceRow.h"

#include <QString>

#include <vector>

namespace kavor {

// The four sort buttons of the prices step. Each counts its own presses.
class PriceSorting {
public:
    enum class Button { Brand, Format, PrimaryPrice, SecondaryPrice };

    // Sorts the rows as the next press of a button does, and changes the pictures. The process stops when the
    // secondary prices are sorted while one is unset: the button is hidden then.
    void press(Button button, std::vector<PriceRow>& rows);
    // "sort_both", "sort_ascendant" or "sort_descendant".
    [[nodiscard]] QString picture(Button button) const;

private:
    [[nodiscard]] QString& pictureOf(Button button);

    int sortedByProductButtonStatus_ = 0;
    int sortByFormatButtonStatus_ = 0;
    int sortedByFirstPvp_ = 0;
    int sortedBySecondaryPvp_ = 0;
    QString pictures_[4] = {QStringLiteral("sort_both"), QStringLiteral("sort_both"),
                            QStringLiteral("sort_both"), QStringLiteral("sort_both")};
};

} // namespace kavor
