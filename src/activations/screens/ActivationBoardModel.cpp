#include "activations/screens/ActivationBoardModel.h"

#include <algorithm>
#include <set>
#include <utility>

namespace kavor {

QRect boardPlace(Int x, Int y, Int width, Int height) {
    const auto within = [](Int value, Int least) { return int(std::clamp<Int>(value, least, 100000)); };
    return {within(x, 0), within(y, 0), within(width, 1), within(height, 1)};
}

void ActivationBoardModel::show(std::vector<BoardControl> controls) {
    std::set<Int> seen;
    std::erase_if(controls, [&](const BoardControl& each) { return !seen.insert(each.id).second; });
    QSize size;
    for (const BoardControl& each : controls) {
        const QRect badge = each.badge ? each.badge->place : QRect();
        const QRect all = each.place.united(badge);
        size = size.expandedTo({all.x() + all.width(), all.y() + all.height()});
    }
    rows_.show(std::move(controls));
    if (std::exchange(size_, size) != size)
        emit sizeChanged();
}

QVariant ActivationBoardModel::data(const QModelIndex& index, int role) const {
    const BoardControl* control = rows_.at(index);
    if (!control)
        return {};
    const BoardBadge badge = control->badge.value_or(BoardBadge());
    switch (role) {
    case IdRole:
        return qlonglong(control->id);
    case NameRole:
        return control->name;
    case SourceRole:
        return control->source;
    case PlaceRole:
        return control->place;
    case RotateRole:
        return control->rotate;
    case SelectedRole:
        return control->selected;
    case BadgePlaceRole:
        return badge.place;
    case BadgeFontSizeRole:
        return badge.fontSize;
    case BadgeTextRole:
        return badge.text;
    case BadgeOnRole:
        return badge.hasRoom;
    default:
        return {};
    }
}

QHash<int, QByteArray> ActivationBoardModel::roleNames() const {
    return {{IdRole, "identifier"},         {NameRole, "name"},
            {SourceRole, "source"},         {PlaceRole, "place"},
            {RotateRole, "rotate"},         {SelectedRole, "selected"},
            {BadgePlaceRole, "badgePlace"}, {BadgeFontSizeRole, "badgeFontSize"},
            {BadgeTextRole, "badgeText"},   {BadgeOnRole, "badgeOn"}};
}

} // namespace kavor
