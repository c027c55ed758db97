#pragma once

#include "base/Int.h"
#include "interaction/QtText.h"

#include <QStringList>

#include <algorithm>
#include <optional>
#include <vector>

namespace kavor {

// What a picker offers, in the order on the screen: a row for each record, and before them, where it is asked
// for, one that means none of them.
class PickerRows {
public:
    PickerRows() = default;
    // Starts with the row that means none.
    explicit PickerRows(const QString& none)
        : names_{none}
        , ids_{std::nullopt} {}

    void append(Int id, const QString& name) {
        names_.append(name);
        ids_.emplace_back(id);
    }
    // Adds records by their position, or those of them that are offered; such as share one stay in their
    // order.
    template <class Record>
    void appendByPosition(const std::vector<Record>& records) {
        appendByPosition(records, [](const Record&) { return true; });
    }
    template <class Record, class Offered>
    void appendByPosition(const std::vector<Record>& records, Offered isOffered) {
        std::vector<const Record*> sorted;
        for (const Record& record : records) {
            if (isOffered(record))
                sorted.push_back(&record);
        }
        std::ranges::stable_sort(sorted, {}, &Record::position);
        for (const Record* record : sorted)
            append(record->id, fromUtf8(record->name));
    }
    // A row for each number.
    static PickerRows ofNumbers(const std::vector<Int>& numbers) {
        PickerRows rows;
        for (const Int number : numbers)
            rows.append(number, QString::number(number));
        return rows;
    }

    [[nodiscard]] const QStringList& names() const { return names_; }
    [[nodiscard]] bool has(int row) const { return row >= 0 && row < int(ids_.size()); }
    // The row that means none for no id; -1 for what is not offered.
    [[nodiscard]] int rowOf(std::optional<Int> id) const {
        const auto found = std::ranges::find(ids_, id);
        return found == ids_.end() ? -1 : int(found - ids_.begin());
    }
    // None for the row that means none, and for a row that is not there.
    [[nodiscard]] std::optional<Int> idAt(int row) const {
        return has(row) ? ids_[std::size_t(row)] : std::nullopt;
    }

private:
    QStringList names_;
    std::vector<std::optional<Int>> ids_;
};

} // namespace kavor
