#include "sellingsheets/screens/SheetListModel.h"

namespace kavor {

QVariant SheetListModel::data(const QModelIndex& index, int role) const {
    const SheetListRow* row = rows_.at(index);
    if (!row)
        return {};
    switch (role) {
    case KeyRole:
        return row->key;
    case NameRole:
        return row->name;
    case TitleRole:
        return row->title;
    case StateRole:
        return row->state;
    case DetailsRole:
        return row->details;
    case DescriptionRole:
        return row->description;
    case DateRole:
        return row->date;
    case ImageRole:
        return row->image;
    default:
        return {};
    }
}

QHash<int, QByteArray> SheetListModel::roleNames() const {
    return {{KeyRole, "key"},         {NameRole, "name"},       {TitleRole, "title"},
            {StateRole, "stateText"}, {DetailsRole, "details"}, {DescriptionRole, "description"},
            {DateRole, "date"},       {ImageRole, "image"}};
}

} // namespace kavor
