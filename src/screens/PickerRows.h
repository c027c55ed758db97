#pragma once

#include "base/Int.h"
#include "interaction/QtText.h"

#include <QStringList>

#include <algorithm>
#include <functional>
#include <optional>
#include <ranges>
#include <type_traits>
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
    // Adds records by their position; those that share one stay in their order.
    template <std::ranges::forward_range Records, class Id, class Name>
    void appendByPosition(Records&& records, Id id, Name name) {
        using Record = std::remove_reference_t<std::ranges::range_reference_t<Records>>;
        std::vector<Record*> sorted;
        for (Record& record : records)
            sorted.push_back(&record);
        std::ranges::stable_sort(sorted, {}, [](const Record* record) { return record->position; });
        for (const Record* record : sorted)
            append(std::invoke(id, *record), fromUtf8(std::invoke(name, *record)));
    }
    // The same for records that have id and name under these names.
    template <std::ranges::forward_range Records>
    void appendByPosition(Records&& records) {
        appendByPosition(
            records, [](const auto& record) { return record.id; },
            [](const auto& record) { return record.name; });
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
