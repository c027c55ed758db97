#pragma once

#include "promotions/PromotionGallery.h"
#include "screens/RowListModel.h"

#include <vector>

namespace kavor {

// The pictures of the gallery that match its filters.
class PromotionGalleryModel : public kavor::RowListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the gallery")

public:
    enum Role { NameRole = Qt::UserRole + 1, BrandRole, DetailRole, ImageRole };

    using RowListModel::RowListModel;

    // Before rows are shown; with the language of each picture among its words, or without.
    void setGallery(PromotionGallery gallery, bool withLanguage);
    [[nodiscard]] const PromotionGallery& gallery() const { return gallery_; }
    void filter(std::optional<Int> classification, std::optional<Int> brand);
    // Nothing outside the list.
    [[nodiscard]] const PromotionTuple* at(int row) const;

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    PromotionGallery gallery_;
    bool withLanguage_ = false;
    RowList<std::size_t> rows_{*this}; // places among the promotions of the gallery
};

} // namespace kavor
