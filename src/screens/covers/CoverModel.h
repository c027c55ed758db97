#pragma once

#include "base/Int.h"

#include <QAbstractListModel>
#include <QString>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <optional>
#include <vector>

namespace kavor {

// Something with two printed sides, on offer in a carousel; the pictures as resourceImageUrl gives them.
struct Cover {
    Int id = 0;
    QString name;
    QString firstImage;
    QString secondImage;
    QString thumbImage;
    bool isPreferred = false; // bears the badge "preferente_big"
};

// The covers on offer in display order, each showing its front or its back.
class CoverModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by CoverGallery")
    Q_PROPERTY(int count READ count NOTIFY coversChanged)
    // For the strip of miniatures: {source, text} of each cover.
    Q_PROPERTY(QVariantList thumbnails READ thumbnails NOTIFY coversChanged)

public:
    enum Role { NameRole = Qt::UserRole + 1, ImageRole, CoverRole, PreferredRole };

    using QAbstractListModel::QAbstractListModel;

    // Shows these, each with its front.
    void setCovers(std::vector<Cover> covers);
    // Shows the other side of a cover.
    void flip(int row);

    [[nodiscard]] int count() const { return int(covers_.size()); }
    // Null outside the list.
    [[nodiscard]] const Cover* coverAt(int row) const;
    // The place of a cover; -1 when it isn't on offer.
    [[nodiscard]] int indexOf(std::optional<Int> cover) const;
    [[nodiscard]] bool isCover(int row) const { return isCoverStileList_[std::size_t(row)].isCover; }
    // Whether one of them bears the badge.
    [[nodiscard]] bool hasPreferred() const;
    [[nodiscard]] QVariantList thumbnails() const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

signals:
    void coversChanged();

private:
    struct Side {
        Int styleIdentifier = 0;
        bool isCover = true;
    };

    std::vector<Cover> covers_;
    std::vector<Side> isCoverStileList_; // spelt so in the model
};

} // namespace kavor
