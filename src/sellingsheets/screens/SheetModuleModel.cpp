#include "sellingsheets/screens/SheetModuleModel.h"

#include "base/AppFormatter.h"
#include "interaction/QtText.h"
#include "sellingsheets/SheetModules.h"
#include "sellingsheets/screens/SheetPage.h"

#include <QStringList>

#include <map>

namespace kavor {

namespace {

SheetModuleRow rowOf(const SellingSheetOrder::Item& module, const Catalogue& catalogue) {
    SheetModuleRow row;
    row.products = boxesText(catalogue, module.productIdentifier1, module.productBox1);
    row.image = productImage(catalogue, module.productIdentifier1);
    row.gone = !isOnOffer(sheetFormat(catalogue, module.productIdentifier1));
    if (module.productIdentifier2) {
        row.secondProducts = boxesText(catalogue, *module.productIdentifier2, module.productBox2.value_or(0));
        row.secondImage = productImage(catalogue, *module.productIdentifier2);
        row.gone = row.gone || !isOnOffer(sheetFormat(catalogue, *module.productIdentifier2));
    }
    row.price = fromUtf8(AppFormatter::shared().currencyFormatter(module.price));
    row.bottle = bottleText(catalogue, module);
    row.programme = programmeText(catalogue, module);
    row.reference = fromUtf8(module.promotionCode.value_or(""));
    QStringList all{row.products, row.secondProducts, row.price, row.bottle};
    all.removeAll(QString());
    row.description = all.join(QStringLiteral(". "));
    return row;
}

} // namespace

void SheetModuleModel::show(const std::vector<SellingSheetOrder::Item>& modules, const Catalogue& catalogue) {
    std::vector<SheetModuleRow> rows;
    std::map<Int, int> met;
    for (const auto& module : modules) {
        rows.push_back(rowOf(module, catalogue));
        rows.back().key = {module.identifier, met[module.identifier]++};
    }
    rows_.show(std::move(rows));
}

QVariant SheetModuleModel::data(const QModelIndex& index, int role) const {
    const SheetModuleRow* row = rows_.at(index);
    if (!row)
        return {};
    switch (role) {
    case DescriptionRole:
        return row->description;
    case ProductsRole:
        return row->products;
    case SecondProductsRole:
        return row->secondProducts;
    case PriceRole:
        return row->price;
    case BottleRole:
        return row->bottle;
    case ProgrammeRole:
        return row->programme;
    case ReferenceRole:
        return row->reference;
    case ImageRole:
        return row->image;
    case SecondImageRole:
        return row->secondImage;
    case GoneRole:
        return row->gone;
    default:
        return {};
    }
}

QHash<int, QByteArray> SheetModuleModel::roleNames() const {
    return {{DescriptionRole, "description"},
            {ProductsRole, "products"},
            {SecondProductsRole, "secondProducts"},
            {PriceRole, "price"},
            {BottleRole, "bottle"},
            {ProgrammeRole, "programme"},
            {ReferenceRole, "reference"},
            {ImageRole, "image"},
            {SecondImageRole, "secondImage"},
            {GoneRole, "gone"}};
}

} // namespace kavor
