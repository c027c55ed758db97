#pragma once

#include "catalogue/Catalogue.h"
#include "screens/RowListModel.h"
#include "sellingsheets/SellingSheetOrder.h"

#include <QString>

#include <utility>
#include <vector>

namespace kavor {

// A row of SingleModuleTableViewCell.
struct SheetModuleRow {
    std::pair<Int, int> key; // the module's number, and how many above it bear the same
    QString description;
    QString products;
    QString secondProducts; // empty without a second product
    QString price;
    QString bottle;
    QString programme;
    QString reference;
    QString image;
    QString secondImage;
    bool gone = false; // a product left the catalogue

    struct Key {
        const std::pair<Int, int>& operator()(const SheetModuleRow& row) const { return row.key; }
    };
    bool operator==(const SheetModuleRow&) const = default;
};

// The modules of a sheet in their order.
class SheetModuleModel : public kavor::RowListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the list of modules")

public:
    enum Role {
        DescriptionRole = Qt::UserRole + 1,
        ProductsRole,
        SecondProductsRole,
        PriceRole,
        BottleRole,
        ProgrammeRole,
        ReferenceRole,
        ImageRole,
        SecondImageRole,
        GoneRole
    };

    using RowListModel::RowListModel;

    void show(const std::vector<SellingSheetOrder::Item>& modules, const Catalogue& catalogue);

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    RowList<SheetModuleRow, SheetModuleRow::Key> rows_{*this};
};

} // namespace kavor
