#pragma once

#include "brochures/wizard/prices/profit/ProfitRow.h"
#include "screens/RowListModel.h"

#include <QtQml/qqmlregistration.h>

#include <cmath>
#include <optional>
#include <utility>
#include <vector>

namespace kavor {

// One row of the profit account, beside what the menu says and what is being typed.
struct ProfitTableRow {
    ProfitRow row;
    double menuPrice = 0;           // the draft's retail price
    std::optional<ProfitRow> typed; // as the row would be with the text in one of its fields

    struct Key {
        std::pair<Int, Int> operator()(const ProfitTableRow& each) const {
            return {each.row.brandIdentifier, each.row.productIdentifier};
        }
    };

    // As prices are read, to the cent: what comes back by another column is not another price.
    [[nodiscard]] bool isChanged() const { return !(std::abs(row.retailPrice - menuPrice) < 0.005); }
    // With what is being typed.
    [[nodiscard]] const ProfitRow& seen() const { return typed ? *typed : row; }
};

// The table of the profit account. A field's tag tells column and row at once: of n rows, that of column c in
// row r is c x n + r.
class ProfitTableModel : public kavor::RowListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the profit account")

public:
    enum Role {
        BrandNameRole = Qt::UserRole + 1,
        ProductNameRole,
        PvpTextRole, // the texts stand column by column: at rest, while edited, and the tag
        PvpEditRole,
        PvpTagRole,
        NetPriceTextRole,
        NetPriceEditRole,
        NetPriceTagRole,
        MarginTextRole,
        MarginEditRole,
        MarginTagRole,
        PercentTextRole,
        PercentEditRole,
        PercentTagRole,
        ShareRole,      // of the margin in the retail price, 0 to 1, as the bar shows it
        ToneRole,       // of the bar
        ChangedRole,    // the price is not the menu's
        MenuPriceRole,  // what the menu says
        NoNetPriceRole, // nothing is known of what the format costs
    };

    using RowListModel::RowListModel;

    // Shows these rows in their places.
    void reload(std::vector<ProfitTableRow> rows) { rows_.showInPlaces(std::move(rows)); }
    void reloadRow(int row, const ProfitTableRow& content);
    [[nodiscard]] const std::vector<ProfitTableRow>& rows() const { return rows_.all(); }

    // A number of a row in the form for editing.
    [[nodiscard]] static QString editForm(double value);

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    [[nodiscard]] QVariant field(int row, const ProfitRow& content, int role) const;

    RowList<ProfitTableRow, ProfitTableRow::Key> rows_{*this};
};

} // namespace kavor
