#pragma once

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <algorithm>
#include <concepts>
#include <functional>
#include <map>
#include <numeric>
#include <type_traits>
#include <utility>
#include <vector>

namespace kavor {

// A list model whose rows are kept by a RowList, its member. It never resets.
class RowListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] int count() const { return count_; }
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const final {
        return parent.isValid() ? 0 : count_;
    }

signals:
    void countChanged();

private:
    template <class Row, class KeyOf>
    friend class RowList;

    int count_ = 0;
};

// The rows of a model, with a key each, no two the same. Another list of rows arrives as few changes, worked
// out from the keys, so that a view keeps its place and what is typed into it. Rows that compare with == are
// painted anew only where they differ, other rows always.
//
// The model has it as a member, calls show with the rows that it wants, and reads at() in data().
template <class Row, class KeyOf = std::identity>
class RowList {
public:
    explicit RowList(RowListModel& model)
        : model_(model) {}

    // Nothing outside the list.
    [[nodiscard]] const Row* at(int row) const {
        return row >= 0 && row < int(rows_.size()) ? &rows_[std::size_t(row)] : nullptr;
    }
    [[nodiscard]] const Row* at(const QModelIndex& index) const {
        return index.isValid() ? at(index.row()) : nullptr;
    }
    [[nodiscard]] const std::vector<Row>& all() const { return rows_; }

    // Shows these rows: what goes, comes and moves does so run by run where the user looks, and as one span
    // below that.
    void show(std::vector<Row> wanted);
    // Like show, for a table that the user puts in order: each place stays and shows what is there now.
    void showInPlaces(std::vector<Row> wanted);
    // Another content for a row that stays.
    void set(int row, Row content, const QList<int>& roles = {}) {
        rows_[std::size_t(row)] = std::move(content);
        repaintBetween(Place(row), Place(row) + 1, roles);
    }
    // Every row is painted anew, or these roles of it.
    void repaint(const QList<int>& roles = {}) { repaintBetween(0, rows_.size(), roles); }

private:
    using Key = std::remove_cvref_t<std::invoke_result_t<KeyOf, const Row&>>;
    using Rows = std::vector<Row>;
    using Place = std::size_t;

    // So many runs of rows change one by one; a view never shows more.
    static constexpr int exactRuns = 48;
    static constexpr Place gone = Place(-1);

    static Key keyOf(const Row& row) { return std::invoke(KeyOf(), row); }
    void repaintBetween(Place first, Place last, const QList<int>& roles = {}) {
        if (first < last)
            emit model_.dataChanged(model_.index(int(first)), model_.index(int(last) - 1), roles);
    }
    void tellCount(int before) {
        if (model_.count_ != before)
            emit model_.countChanged();
    }
    void compareWith(const Rows& wanted);
    Place skipSame(Place at, const Rows& wanted) const;
    Place endOfGone(Place at) const;
    void changeRunAt(Place at, const Rows& wanted);
    void removeBetween(Place first, Place last);
    void insertAt(Place at, const Rows& wanted, Place last);
    void moveUp(Place at);
    void moveDown(Place at);
    void takeContents(Rows wanted, Place upTo);

    RowListModel& model_;
    Rows rows_;
    // While rows change: where each row goes, and which of the wanted rows are new.
    std::vector<Place> target_;
    std::vector<bool> isNew_;
};

template <class Row, class KeyOf>
void RowList<Row, KeyOf>::compareWith(const Rows& wanted) {
    const auto isSame = [](const Row& row, const Row& other) { return keyOf(row) == keyOf(other); };
    const Place same = Place(std::ranges::mismatch(rows_, wanted, isSame).in1 - rows_.begin());
    std::map<Key, Place> places;
    for (Place i = same; i < wanted.size(); ++i)
        places.emplace_hint(places.end(), keyOf(wanted[i]), i);
    isNew_.assign(wanted.size(), true);
    target_.assign(rows_.size(), gone);
    for (Place i = 0; i < rows_.size(); ++i) {
        const auto found = i < same ? places.end() : places.find(keyOf(rows_[i]));
        if (i >= same && (found == places.end() || !isNew_[found->second]))
            continue;
        target_[i] = i < same ? i : found->second;
        isNew_[target_[i]] = false;
    }
}

template <class Row, class KeyOf>
auto RowList<Row, KeyOf>::skipSame(Place at, const Rows& wanted) const -> Place {
    while (at < rows_.size() && at < wanted.size() && target_[at] == at)
        ++at;
    return at;
}

template <class Row, class KeyOf>
void RowList<Row, KeyOf>::show(Rows wanted) {
    const int before = model_.count_;
    compareWith(wanted);
    Place at = 0;
    for (int runs = 0; runs < exactRuns; ++runs) {
        at = skipSame(at, wanted);
        if (at == rows_.size() || at == wanted.size())
            break;
        changeRunAt(at, wanted);
    }
    at = skipSame(at, wanted);
    // What is left lies below the part on show: one span goes, one comes.
    removeBetween(at, rows_.size());
    insertAt(at, wanted, wanted.size());
    takeContents(std::move(wanted), at);
    tellCount(before);
}

template <class Row, class KeyOf>
auto RowList<Row, KeyOf>::endOfGone(Place at) const -> Place {
    while (at < rows_.size() && target_[at] == gone)
        ++at;
    return at;
}

template <class Row, class KeyOf>
void RowList<Row, KeyOf>::changeRunAt(Place at, const Rows& wanted) {
    if (target_[at] == gone) {
        removeBetween(at, endOfGone(at));
    } else if (isNew_[at]) {
        const auto end = std::find(isNew_.begin() + std::ptrdiff_t(at), isNew_.end(), false);
        insertAt(at, wanted, Place(end - isNew_.begin()));
    } else if (at + 1 < rows_.size() && target_[at + 1] == at) {
        moveDown(at);
    } else {
        moveUp(at);
    }
}

template <class Row, class KeyOf>
void RowList<Row, KeyOf>::removeBetween(Place first, Place last) {
    if (first == last)
        return;
    model_.beginRemoveRows({}, int(first), int(last) - 1);
    rows_.erase(rows_.begin() + std::ptrdiff_t(first), rows_.begin() + std::ptrdiff_t(last));
    target_.erase(target_.begin() + std::ptrdiff_t(first), target_.begin() + std::ptrdiff_t(last));
    model_.count_ = int(rows_.size());
    model_.endRemoveRows();
}

// The wanted rows from this place on, up to the last.
template <class Row, class KeyOf>
void RowList<Row, KeyOf>::insertAt(Place at, const Rows& wanted, Place last) {
    if (at == last)
        return;
    std::vector<Place> targets(last - at);
    std::iota(targets.begin(), targets.end(), at);
    model_.beginInsertRows({}, int(at), int(last) - 1);
    rows_.insert(rows_.begin() + std::ptrdiff_t(at), wanted.begin() + std::ptrdiff_t(at),
                 wanted.begin() + std::ptrdiff_t(last));
    target_.insert(target_.begin() + std::ptrdiff_t(at), targets.begin(), targets.end());
    model_.count_ = int(rows_.size());
    model_.endInsertRows();
}

// The row that is wanted here stands further down: it comes up, with those that follow it.
template <class Row, class KeyOf>
void RowList<Row, KeyOf>::moveUp(Place at) {
    const auto first = std::find(target_.begin() + std::ptrdiff_t(at), target_.end(), at);
    auto last = first;
    for (Place next = at; last != target_.end() && *last == next; ++next)
        ++last;
    const auto from = first - target_.begin();
    const auto to = last - target_.begin();
    model_.beginMoveRows({}, int(from), int(to) - 1, {}, int(at));
    std::rotate(rows_.begin() + std::ptrdiff_t(at), rows_.begin() + from, rows_.begin() + to);
    std::rotate(target_.begin() + std::ptrdiff_t(at), first, last);
    model_.endMoveRows();
}

// The row below belongs here: this one goes down, to before the first that comes after it.
template <class Row, class KeyOf>
void RowList<Row, KeyOf>::moveDown(Place at) {
    const auto start = target_.begin() + std::ptrdiff_t(at);
    const auto next = std::find_if(start + 1, target_.end(),
                                   [&](Place target) { return target != gone && target > *start; });
    const auto to = next - target_.begin();
    model_.beginMoveRows({}, int(at), int(at), {}, int(to));
    std::rotate(rows_.begin() + std::ptrdiff_t(at), rows_.begin() + std::ptrdiff_t(at) + 1,
                rows_.begin() + to);
    std::rotate(start, start + 1, next);
    model_.endMoveRows();
}

// The contents of the rows that stayed, painted anew run by run.
template <class Row, class KeyOf>
void RowList<Row, KeyOf>::takeContents(Rows wanted, Place upTo) {
    Place changed = 0;
    bool running = false;
    for (Place i = 0; i < upTo; ++i) {
        bool differs = !isNew_[i];
        if constexpr (std::equality_comparable<Row>)
            differs = differs && !(rows_[i] == wanted[i]);
        if (differs && !running)
            changed = i;
        if (!differs && running)
            repaintBetween(changed, i);
        running = differs;
        rows_[i] = std::move(wanted[i]);
    }
    if (running)
        repaintBetween(changed, upTo);
}

template <class Row, class KeyOf>
void RowList<Row, KeyOf>::showInPlaces(Rows wanted) {
    const int before = model_.count_;
    compareWith(wanted);
    for (Place at = 0; at < rows_.size();) {
        removeBetween(at, endOfGone(at));
        ++at;
    }
    const Place kept = rows_.size();
    std::move(wanted.begin(), wanted.begin() + std::ptrdiff_t(kept), rows_.begin());
    repaintBetween(0, kept);
    insertAt(kept, wanted, wanted.size());
    tellCount(before);
}

} // namespace kavor
