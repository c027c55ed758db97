#include "brochures/wizard/configuration/BlackboardFormatModel.h"

#include "catalogue/Catalogue.h"
#include "screens/ResourceImages.h"

#include <utility>

namespace kavor {

void BlackboardFormatModel::show(const Catalogue& catalogue,
                                 std::shared_ptr<const BrochureIntermediateData> draft) {
    draft_ = std::move(draft);
    formats_.show(catalogue.brochures().blackboardFormats);
}

void BlackboardFormatModel::selectionChanged() {
    formats_.repaint({ImageRole, SelectedRole});
}

QVariant BlackboardFormatModel::data(const QModelIndex& index, int role) const {
    const Brochures::BlackBoardFormat* format = formats_.at(index);
    if (!format)
        return {};
    const bool selected = draft_->isBlackboardFormatSelected(format->id) == SelectionState::selected;
    switch (role) {
    case IdentifierRole:
        return qint64(format->id);
    case NameRole:
        return QString::fromStdString(format->name);
    case DescriptionRole:
        return QString::fromStdString(format->description);
    case ImageRole:
        return resourceImageUrl(selected ? format->imageSelected : format->imageUnselected);
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
