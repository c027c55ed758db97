#include "activations/screens/ActivationItemModel.h"

#include "activations/screens/ActivationTexts.h"
#include "interaction/QtText.h"
#include "screens/ResourceImages.h"

#include <utility>

namespace kavor {

void ActivationItemModel::show(const std::vector<ActivationInformation::Item>& items,
                               const std::vector<bool>& selected) {
    std::vector<Row> rows;
    for (std::size_t place = 0; place < items.size(); ++place)
        rows.push_back({&items[place], place < selected.size() && selected[place]});
    rows_.show(std::move(rows));
}

QVariant ActivationItemModel::data(const QModelIndex& index, int role) const {
    const Row* row = rows_.at(index);
    if (!row)
        return {};
    switch (role) {
    case NameRole:
        return fromUtf8(row->item->name);
    case DescriptionRole:
        return fromUtf8(row->item->description.value_or(""));
    case SourceRole: {
        const auto pictures = picturesOf(row->item->imagesList);
        return pictures.isEmpty() ? QString() : pictures.first();
    }
    case RequiredRole:
        return row->item->required;
    case SelectedRole:
        return row->selected;
    default:
        return {};
    }
}

QHash<int, QByteArray> ActivationItemModel::roleNames() const {
    return {{NameRole, "name"},
            {DescriptionRole, "description"},
            {SourceRole, "source"},
            {RequiredRole, "required"},
            {SelectedRole, "selected"}};
}

} // namespace kavor
