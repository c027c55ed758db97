#include "promotions/screens/PromotionGalleryModel.h"

#include "interaction/QtText.h"
#include "screens/ResourceImages.h"

#include <utility>

namespace kavor {

void PromotionGalleryModel::setGallery(PromotionGallery gallery, bool withLanguage) {
    gallery_ = std::move(gallery);
    withLanguage_ = withLanguage;
    filter(std::nullopt, std::nullopt);
}

void PromotionGalleryModel::filter(std::optional<Int> classification, std::optional<Int> brand) {
    rows_.show(gallery_.visiblePromotions(classification, brand));
}

const PromotionTuple* PromotionGalleryModel::at(int row) const {
    const std::size_t* place = rows_.at(row);
    return place ? &gallery_.unfilteredPromotions()[*place] : nullptr;
}

QVariant PromotionGalleryModel::data(const QModelIndex& index, int role) const {
    const PromotionTuple* promotion = index.isValid() ? at(index.row()) : nullptr;
    if (!promotion)
        return {};
    switch (role) {
    case NameRole:
        return fromUtf8(promotion->promotionName);
    case BrandRole:
        return fromUtf8(promotion->brandName);
    case DetailRole:
        return withLanguage_ && promotion->language ? fromUtf8(promotion->typeName) + QStringLiteral(" · ") +
                                                          fromUtf8(promotion->language->name)
                                                    : fromUtf8(promotion->typeName);
    case ImageRole:
        return promotion->image ? resourceImageUrl(*promotion->image) : QString();
    default:
        return {};
    }
}

QHash<int, QByteArray> PromotionGalleryModel::roleNames() const {
    return {{NameRole, "name"}, {BrandRole, "brand"}, {DetailRole, "detail"}, {ImageRole, "image"}};
}

} // namespace kavor
