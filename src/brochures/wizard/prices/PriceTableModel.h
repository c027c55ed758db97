#pragma once

#include "brochures/wizard/prices/PriceRow.h"
#include "screens/RowListModel.h"

#include <QtQml/qqmlregistration.h>

#include <utility>
#include <vector>

namespace kavor {

// One row: its format, the draft's "new" mark, and the prices as their fields show them.
struct PriceTableRow {
    PriceRow row;
    bool isNew = false;
    QString primary = {};
    QString secondary = {};

    struct Key {
        std::pair<Int, Int> operator()(const PriceTableRow& each) const {
            return {each.row.brandIdentifier, each.row.productIdentifier};
        }
    };
};

// The table of the prices step as it stands on the screen. It shows the rows of its last reload: an edit
// writes back only the field that was left.
class PriceTableModel : public kavor::RowListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the prices step")

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

    using RowListModel::RowListModel;

    // The format that is on show in a place; null outside the table.
    [[nodiscard]] const PriceRow* at(int row) const { return rows_.at(row) ? &rows_.at(row)->row : nullptr; }
    // Where a format is on show; -1 when it is not.
    [[nodiscard]] int rowOf(const PriceRow& row) const;
    // Shows these rows in their places, with one price field each or two.
    void reload(std::vector<PriceTableRow> rows, bool withSecondaryPrice);
    void reloadRow(int row, const PriceTableRow& content);
    // What a price field shows after it was left, by its tag.
    void setPriceText(int tag, const QString& text);
    void setNewProduct(int row, bool isNew);

    // A text in the form for editing; text that is no price stays.
    [[nodiscard]] static QString editForm(const QString& currencyText);

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    [[nodiscard]] static QVariant rowData(const PriceTableRow& content, int role);

    RowList<PriceTableRow, PriceTableRow::Key> rows_{*this};
    bool withSecondaryPrice_ = false;
};

} // namespace kavor
