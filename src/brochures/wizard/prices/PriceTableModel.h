#pragma once

#include "brochures/wizard/prices/PriceRow.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace kavor {

// The table of the prices step as it stands on the screen. It shows the rows of its last reload: an edit
// writes back only the field that was left.
class PriceTableModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the prices step")
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Role {
        BrandNameRole = Qt::UserRole + 1,
        TypeRole,
        ImageRole,
        PrimaryTextRole, // in currency form
        PrimaryEditRole, // in the form for editing
        PrimaryTagRole,
        SecondaryTextRole,
        SecondaryEditRole,
        SecondaryTagRole,
        VolumeEditableRole,
        VolumeUnsetRole,
        VolumeTextRole, // "N cl", empty when hidden
        NewProductRole,
        RecommendationRole,
    };
    static constexpr int tagOffset = 100;

    // One cell: its row and the draft's "new" mark.
    struct Cell {
        PriceRow row;
        bool isNew = false;
    };

    using QAbstractListModel::QAbstractListModel;

    // Shows these cells, with one price field each or two.
    void reload(std::vector<Cell> cells, bool withSecondaryPrice);
    void reloadRow(int row, const Cell& cell);
    // What a price field shows after it was left, by its tag.
    void setPriceText(int tag, const QString& text);
    void setNewProduct(int row, bool isNew);

    // A text in the form for editing; text that is no price stays.
    [[nodiscard]] static QString editForm(const QString& currencyText);

    [[nodiscard]] int count() const { return int(cells_.size()); }
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

signals:
    void countChanged();

private:
    struct Shown {
        Cell cell;
        QString primary;
        QString secondary;
    };
    [[nodiscard]] static Shown shown(Cell cell);
    [[nodiscard]] QVariant rowData(const Shown& shown, int role) const;

    std::vector<Shown> cells_;
    bool withSecondaryPrice_ = false;
};

} // namespace kavor
