#include "brochures/wizard/drinks/BeveragesTableView.h"

#include "base/AppFormatter.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "interaction/QtText.h"

#include <algorithm>
#include <cstdlib>

namespace kavor {

namespace {

using Draft = BrochureIntermediateData;
using Beverage = Draft::BeverageIdentifier;

QString shownPrice(std::optional<double> value) {
    return value ? fromUtf8(AppFormatter::shared().currencyFormatter(*value)) : QString();
}

QString editedPrice(std::optional<double> value) {
    return value ? fromUtf8(AppFormatter::shared().numberFormatter(*value)) : QString();
}

QString shownName(const BeverageRow& row) {
    if (row.name.empty())
        return QStringLiteral("Ya no está en el catálogo");
    const bool header = !row.product;
    return fromUtf8(row.name) + (header && !row.description.empty() ? QStringLiteral(": ") : QString());
}

// A record of what is selected; one that neither the catalogue nor the user explains any more has no name.
Beverage infoOf(const Draft& draft, Int category, Int product, bool isCategory) {
    auto info = draft.beverageInfo(category, product, isCategory, std::nullopt);
    return info ? std::move(*info)
                : Beverage{.identifier = isCategory ? category : product, .isCategory = isCategory};
}

void sortByPosition(std::vector<Beverage>& all) {
    std::ranges::sort(all, {}, [](const Beverage& each) {
        return std::tuple(each.identifier < 1, each.position, std::abs(each.identifier));
    });
}

std::vector<Beverage> selectedCategories(const Draft& draft) {
    std::vector<Beverage> all;
    for (const auto& entry : draft.selectedBeverages)
        all.push_back(infoOf(draft, entry.first, 0, true));
    sortByPosition(all);
    return all;
}

std::vector<Beverage> selectedProducts(const Draft& draft, Int category) {
    std::vector<Beverage> all;
    for (const Int product : draft.selectedBeverages.at(category))
        all.push_back(infoOf(draft, category, product, false));
    sortByPosition(all);
    return all;
}

void takePrices(BeverageRow& row, const Draft& draft) {
    const auto info = draft.beverageInfo(row.category, *row.product, false, row.formatName);
    row.price1 = info ? info->price1 : std::nullopt;
    row.price2 = info ? info->price2 : std::nullopt;
}

// A row for each format of a product, or one without a price.
void appendFormats(std::vector<BeverageRow>& rows, const Draft& draft, Int category,
                   const Beverage& product) {
    BeverageRow row{.category = category,
                    .product = product.identifier,
                    .name = product.name,
                    .description = product.description.value_or("")};
    const auto names = draft.selectedProductFormat.find(product.identifier);
    if (names == draft.selectedProductFormat.end()) {
        rows.push_back(std::move(row));
        return;
    }
    for (const std::string& name : names->second) {
        row.formatName = name;
        takePrices(row, draft);
        rows.push_back(row);
        row.beforeDistinct = false;
    }
}

} // namespace

int BeveragesTableView::rowOf(Int category, std::optional<Int> product,
                              const std::optional<std::string>& formatName) const {
    const auto& all = rows_.all();
    const auto found = std::ranges::find_if(all, [&](const BeverageRow& row) {
        return row.category == category && row.product == product &&
               (!formatName || row.formatName == formatName);
    });
    return found == all.end() ? -1 : int(found - all.begin());
}

void BeveragesTableView::reload(const Draft& draft) {
    std::vector<BeverageRow> rows;
    for (const Beverage& category : selectedCategories(draft)) {
        rows.push_back({.category = category.identifier,
                        .name = category.name,
                        .description = category.description.value_or("")});
        for (const Beverage& product : selectedProducts(draft, category.identifier))
            appendFormats(rows, draft, category.identifier, product);
    }
    rows_.show(std::move(rows));
}

void BeveragesTableView::reloadPrices(const Draft& draft, Int product) {
    for (int i = 0; i < count(); ++i) {
        if (rows_.at(i)->product != product || !rows_.at(i)->formatName)
            continue;
        BeverageRow row = *rows_.at(i);
        takePrices(row, draft);
        rows_.set(i, std::move(row),
                  {PriceTextRole, PriceEditRole, SecondPriceTextRole, SecondPriceEditRole});
    }
}

int BeveragesTableView::products() const {
    return int(std::ranges::count_if(
        rows_.all(), [](const BeverageRow& row) { return row.product && row.beforeDistinct; }));
}

int BeveragesTableView::nextPriceRow(int row) const {
    for (int next = row + 1; next < count(); ++next) {
        if (rows_.at(next)->formatName)
            return next;
    }
    return -1;
}

QVariant BeveragesTableView::data(const QModelIndex& index, int role) const {
    const BeverageRow* row = rows_.at(index);
    if (!row)
        return {};
    switch (role) {
    case CellRole:
        return row->product ? QStringLiteral("producto") : QStringLiteral("cabecera");
    case NameRole:
        return shownName(*row);
    case DescriptionRole:
        return fromUtf8(row->description);
    case FormatRole:
        return fromUtf8(row->formatName.value_or(""));
    case BeforeDistinctRole:
        return row->beforeDistinct;
    case WithFormatRole:
        return row->formatName.has_value();
    case PriceTextRole:
        return shownPrice(row->price1);
    case PriceEditRole:
        return editedPrice(row->price1);
    case SecondPriceTextRole:
        return shownPrice(row->price2);
    case SecondPriceEditRole:
        return editedPrice(row->price2);
    default:
        return {};
    }
}

QHash<int, QByteArray> BeveragesTableView::roleNames() const {
    return {{CellRole, "cellIdentifier"},
            {NameRole, "beverageName"},
            {DescriptionRole, "beverageDescription"},
            {FormatRole, "formatName"},
            {BeforeDistinctRole, "beforeDistinct"},
            {WithFormatRole, "withFormat"},
            {PriceTextRole, "priceText"},
            {PriceEditRole, "priceEditText"},
            {SecondPriceTextRole, "secondPriceText"},
            {SecondPriceEditRole, "secondPriceEditText"}};
}

} // namespace kavor
