#include "brochures/wizard/configuration/BlackboardFormatModel.h"

#include "catalogue/Catalogue.h"
#include "screens/ResourceImages.h"

#include <utility>

namespace kavor {

void BlackboardFormatModel::show(std::shared_ptr<const Catalogue> catalogue,
                                 std::shared_ptr<const BrochureIntermediateData> draft) {
    beginResetModel();
    catalogue_ = std::move(catalogue);
    draft_ = std::move(draft);
    formats_.clear();
    for (const auto& format : catalogue_->brochures().blackboardFormats)
        formats_.push_back(&format);
    endResetModel();
}

void BlackboardFormatModel::selectionChanged() {
    if (!formats_.empty())
        emit dataChanged(index(0), index(int(formats_.size()) - 1), {ImageRole, SelectedRole});
}

int BlackboardFormatModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(formats_.size());
}

QVariant BlackboardFormatModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const auto& format = *formats_[std::size_t(index.row())];
    const bool selected = draft_->isBlackboardFormatSelected(format.id) == SelectionState::selected;
    switch (role) {
    case IdentifierRole:
        return qint64(format.id);
    case NameRole:
        return QString::fromStdString(format.name);
    case DescriptionRole:
        return QString::fromStdString(format.description);
    case ImageRole:
        return resourceImageUrl(selected ? format.imageSelected : format.imageUnselected);
    case SelectedRole:
        return selected;
    default:
        return {};
    }
}

QHash<int, QByteArray> BlackboardFormatModel::roleNames() const {
    return {{IdentifierRole, "identifier"},
            {NameRole, "name"},
            {DescriptionRole, "description"},
            {ImageRole, "image"},
            {SelectedRole, "selected"}};
}

} // namespace kavor
