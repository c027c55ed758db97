#include "brochures/wizard/promotions/MenuPromotionModel.h"

#include "interaction/QtText.h"

#include <QStringList>

namespace kavor {

namespace {

// The values of the attributes; a picture is only named.
QString dataOf(const MenuPromotion& promotion) {
    QStringList values;
    for (const auto& attribute : promotion.attributes) {
        if (!attribute.value.empty())
            values << (attribute.value.starts_with("data:") ? QStringLiteral("imagen")
                                                            : fromUtf8(attribute.value));
    }
    return values.join(QStringLiteral(", "));
}

} // namespace

QVariant MenuPromotionModel::data(const QModelIndex& index, int role) const {
    const MenuPromotionRow* row = rows_.at(index);
    if (!row)
        return {};
    switch (role) {
    case NumberRole:
        return index.row() + 1;
    case BrandRole:
        return fromUtf8(row->promotion.brandName.value_or(""));
    case NameRole:
        return fromUtf8(row->promotion.promotionName.value_or(""));
    case DataRole:
        return dataOf(row->promotion);
    case ImageRole:
        return row->image;
    case KnownRole:
        return row->known;
    default:
        return {};
    }
}

QHash<int, QByteArray> MenuPromotionModel::roleNames() const {
    return {{NumberRole, "number"}, {BrandRole, "brand"}, {NameRole, "name"},
            {DataRole, "values"},   {ImageRole, "image"}, {KnownRole, "known"}};
}

} // namespace kavor
