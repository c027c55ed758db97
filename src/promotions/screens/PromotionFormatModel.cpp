#include "promotions/screens/PromotionFormatModel.h"

#include "interaction/QtText.h"

#include <algorithm>

namespace kavor {

namespace {

QString descriptionOf(const Posters* posters, Int typeId) {
    if (!posters)
        return {};
    const auto type = std::ranges::find(posters->supportTypes, typeId, &Posters::SupportType::id);
    return type == posters->supportTypes.end() ? QString() : fromUtf8(type->description);
}

} // namespace

void PromotionFormatModel::show(const Posters* posters, const PromotionTuple& promotion,
                                const std::vector<Int>& on) {
    std::vector<Posters::Promotion::Support> sorted(promotion.formatos.begin(), promotion.formatos.end());
    std::ranges::stable_sort(sorted, {}, &Posters::Promotion::Support::position);
    std::vector<PromotionFormatRow> rows;
    rows.reserve(sorted.size());
    for (const auto& support : sorted)
        rows.push_back({support.id, fromUtf8(support.typeName), descriptionOf(posters, support.typeId),
                        std::ranges::find(on, support.id) != on.end()});
    rows_.show(std::move(rows));
}

std::vector<Int> PromotionFormatModel::switchValues() const {
    std::vector<Int> on;
    for (const PromotionFormatRow& row : rows_.all()) {
        if (row.on)
            on.push_back(row.id);
    }
    return on;
}

void PromotionFormatModel::switchFormat(int row, bool on) {
    const PromotionFormatRow* content = rows_.at(row);
    if (!content || content->on == on)
        return;
    PromotionFormatRow changed = *content;
    changed.on = on;
    rows_.set(row, std::move(changed), {OnRole});
    emit edited();
}

QVariant PromotionFormatModel::data(const QModelIndex& index, int role) const {
    const PromotionFormatRow* row = rows_.at(index);
    if (!row)
        return {};
    switch (role) {
    case NameRole:
        return row->name;
    case DescriptionRole:
        return row->description;
    case OnRole:
        return row->on;
    default:
        return {};
    }
}

QHash<int, QByteArray> PromotionFormatModel::roleNames() const {
    return {{NameRole, "name"}, {DescriptionRole, "description"}, {OnRole, "on"}};
}

} // namespace kavor
