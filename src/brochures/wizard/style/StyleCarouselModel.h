#pragma once

#include "catalogue/Catalogue.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <set>
#include <vector>

namespace kavor {

// The styles on offer in display order, each showing its cover or its back.
class StyleCarouselModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the style step")
    Q_PROPERTY(int count READ count NOTIFY stylesChanged)
    // For the strip of miniatures: {source, text} of each style.
    Q_PROPERTY(QVariantList thumbnails READ thumbnails NOTIFY stylesChanged)

public:
    enum Role { NameRole = Qt::UserRole + 1, ImageRole, CoverRole, PreferredRole };

    using QAbstractListModel::QAbstractListModel;

    // Takes the styles of a kind and, for a chalkboard, of a format; sorts them by position. Styles whose
    // preferred brands meet the selected ones get the badge "preferente_big".
    void setStyles(const std::vector<Brochures::Style>& unorderedStyles, BrochureType kind,
                   const std::optional<Int>& blackboardFormatTypeId,
                   const std::set<Int>& selectedBrandIdentifiers);
    // Shows the other side of a style.
    void flip(int row);

    [[nodiscard]] int count() const { return int(brochureStyles_.size()); }
    [[nodiscard]] const Brochures::Style* styleAt(int row) const;
    // The place of a style; -1 when it isn't on offer.
    [[nodiscard]] int indexOf(std::optional<Int> style) const;
    [[nodiscard]] bool isCover(int row) const { return isCoverStileList_[std::size_t(row)].isCover; }
    // Whether a style on offer has preferred brands that are selected.
    [[nodiscard]] bool hasPreferred() const;
    [[nodiscard]] QVariantList thumbnails() const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

signals:
    void stylesChanged();

private:
    struct Side {
        Int styleIdentifier = 0;
        bool isCover = true;
    };
    [[nodiscard]] bool isPreferred(const Brochures::Style& style) const;

    std::vector<Brochures::Style> brochureStyles_;
    std::vector<Side> isCoverStileList_; // spelt so in the model
    std::set<Int> selectedBrandIdentifiers_;
};

} // namespace kavor
