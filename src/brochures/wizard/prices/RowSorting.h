#pragma once

#include <QString>

#include <algorithm>
#include <cmath>
#include <functional>
#include <string>
#include <vector>

// What the sort buttons over prices share: each counts its own presses and answers the picture that it shows
// then. Equal rows keep their places.
namespace kavor::row_sorting {

inline const QString both = QStringLiteral("sort_both");
inline const QString ascendant = QStringLiteral("sort_ascendant");
inline const QString descendant = QStringLiteral("sort_descendant");

// Up at status 0 and down at status 1, as far as `end`; what stands behind it stays.
template <class Rows, class Iterator, class Key>
QString sortUpTo(Rows& rows, Iterator end, int& status, int statuses, Key key) {
    const bool up = status == 0;
    if (up)
        std::ranges::stable_sort(rows.begin(), end, std::less(), key);
    else
        std::ranges::stable_sort(rows.begin(), end, std::greater(), key);
    status = (status + 1) % statuses;
    return up ? ascendant : descendant;
}

template <class Row, class Key>
QString sortByKey(std::vector<Row>& rows, int& status, int statuses, Key key) {
    return sortUpTo(rows, rows.end(), status, statuses, key);
}

// By a text; at status 2 by the brand's position.
template <class Row>
QString sortByText(std::vector<Row>& rows, int& status, std::string Row::*text) {
    if (status < 2) // plain strings: upper case first, no locale
        return sortByKey(rows, status, 3, text);
    std::ranges::stable_sort(rows, {}, &Row::position);
    status = 0;
    return both;
}

// By a number; what is infinite or not a number stands last, up and down.
template <class Row>
QString sortByNumber(std::vector<Row>& rows, int& status, double Row::*number) {
    const auto finite = std::stable_partition(
        rows.begin(), rows.end(), [number](const Row& row) { return std::isfinite(row.*number); });
    return sortUpTo(rows, finite, status, 2, number);
}

} // namespace kavor::row_sorting
