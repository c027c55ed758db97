#include "textile/screens/TextileModels.h"

namespace kavor {

namespace {

enum ChoiceRole { ChoiceKey = Qt::UserRole + 1, Title, Detail, Picture, Colour, Lettering, Chosen };
enum SizeRole { Size = Qt::UserRole + 1, Code, Name, Units, Positive };
enum CartRole {
    CartKey = Qt::UserRole + 1,
    CartTitle,
    CartDetail,
    CartSizes,
    CartUnits,
    Garment,
    CartChosen
};

} // namespace

QVariant TextileChoiceModel::data(const QModelIndex& index, int role) const {
    const TextileChoice* row = rows_.at(index);
    if (!row)
        return {};
    switch (role) {
    case ChoiceKey:
        return row->key;
    case Title:
        return row->title;
    case Detail:
        return row->detail;
    case Picture:
        return row->image;
    case Colour:
        return row->colour;
    case Lettering:
        return row->lettering;
    case Chosen:
        return row->selected;
    default:
        return {};
    }
}

QHash<int, QByteArray> TextileChoiceModel::roleNames() const {
    return {{ChoiceKey, "key"}, {Title, "title"},         {Detail, "detail"}, {Picture, "image"},
            {Colour, "colour"}, {Lettering, "lettering"}, {Chosen, "chosen"}};
}

QVariant TextileSizeModel::data(const QModelIndex& index, int role) const {
    const TextileSizeRow* row = rows_.at(index);
    if (!row)
        return {};
    switch (role) {
    case Size:
        return QVariant::fromValue(qlonglong(row->size));
    case Code:
        return row->code;
    case Name:
        return row->name;
    case Units:
        return row->text;
    case Positive:
        return row->units > 0;
    default:
        return {};
    }
}

QHash<int, QByteArray> TextileSizeModel::roleNames() const {
    return {{Size, "size"}, {Code, "code"}, {Name, "name"}, {Units, "units"}, {Positive, "positive"}};
}

QVariant TextileCartModel::data(const QModelIndex& index, int role) const {
    const TextileCartRow* row = rows_.at(index);
    if (!row)
        return {};
    switch (role) {
    case CartKey:
        return row->key;
    case CartTitle:
        return row->title;
    case CartDetail:
        return row->detail;
    case CartSizes:
        return row->sizes;
    case CartUnits:
        return row->units;
    case Garment:
        return row->garment;
    case CartChosen:
        return row->selected;
    default:
        return {};
    }
}

QHash<int, QByteArray> TextileCartModel::roleNames() const {
    return {{CartKey, "key"},     {CartTitle, "title"}, {CartDetail, "detail"}, {CartSizes, "sizes"},
            {CartUnits, "units"}, {Garment, "garment"}, {CartChosen, "chosen"}};
}

} // namespace kavor
