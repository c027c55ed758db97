#pragma once

#include "base/Int.h"
#include "screens/RowListModel.h"

#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <optional>
#include <string>
#include <tuple>
#include <vector>

namespace kavor {

class BrochureIntermediateData;

// A row of the drinks of the menu: the header of a category, or a product in one of its formats (in none
// after its last one went).
struct BeverageRow {
    Int category = 0;
    std::optional<Int> product = std::nullopt; // none: the header of the category
    std::optional<std::string> formatName = std::nullopt;
    std::string name = {};
    std::string description = {};
    bool beforeDistinct = true; // the row before is another product's
    std::optional<double> price1 = std::nullopt;
    std::optional<double> price2 = std::nullopt;

    bool operator==(const BeverageRow&) const = default;
    struct Key {
        std::tuple<Int, std::optional<Int>, std::optional<std::string>>
        operator()(const BeverageRow& row) const {
            return {row.category, row.product, row.formatName};
        }
    };
};

// What is selected so far: a header for each category, and a row for each product and format.
class BeveragesTableView : public kavor::RowListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the drink step")

public:
    enum Role {
        CellRole = Qt::UserRole + 1, // "cabecera" or "producto"
        NameRole,                    // of a header with a description: followed by ": "
        DescriptionRole,
        FormatRole,
        BeforeDistinctRole,
        WithFormatRole, // there is a format to take away, and a place for its prices
        PriceTextRole,  // in currency form
        PriceEditRole,  // in the form for editing
        SecondPriceTextRole,
        SecondPriceEditRole,
    };

    using RowListModel::RowListModel;

    // Shows what the draft has, by position, the user's own behind the catalogue's.
    void reload(const BrochureIntermediateData& draft);
    // The prices of one product, in all its categories.
    void reloadPrices(const BrochureIntermediateData& draft, Int product);
    // Null outside the list.
    [[nodiscard]] const BeverageRow* beverageAt(int row) const { return rows_.at(row); }
    // The row of a product in a format; of its first row without one. -1 when there is none.
    [[nodiscard]] int rowOf(Int category, std::optional<Int> product,
                            const std::optional<std::string>& formatName) const;
    // How many products the menu has.
    [[nodiscard]] int products() const;
    // The next row with a price below this one, from the first on for -1; -1 behind the last.
    Q_INVOKABLE int nextPriceRow(int row) const;

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    RowList<BeverageRow, BeverageRow::Key> rows_{*this};
};

} // namespace kavor
