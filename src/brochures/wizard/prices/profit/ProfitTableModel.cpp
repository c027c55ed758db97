#include "brochures/wizard/prices/profit/ProfitTableModel.h"

#include "base/AppFormatter.h"
#include "interaction/QtText.h"

#include <algorithm>
#include <cmath>

namespace kavor {

namespace {

QString currency(double value) {
    return fromUtf8(AppFormatter::shared().currencyFormatter(value));
}

// The bar of a loss grows with the loss, in its own colour.
double share(double percent) {
    return std::isnan(percent) ? 0 : std::clamp(std::abs(percent) / 100, 0.0, 1.0);
}

QString tone(const ProfitRow& row) {
    if (row.marginPercent < 0)
        return QStringLiteral("danger");
    return row.netPrice == 0 ? QStringLiteral("amber") : QStringLiteral("success");
}

} // namespace

QString ProfitTableModel::editForm(double value) {
    return fromUtf8(AppFormatter::shared().numberFormatter(value));
}

void ProfitTableModel::reloadRow(int row, const ProfitTableRow& content) {
    if (rows_.at(row))
        rows_.set(row, content);
}

QVariant ProfitTableModel::data(const QModelIndex& index, int role) const {
    const ProfitTableRow* content = rows_.at(index);
    if (!content)
        return {};
    switch (role) {
    case BrandNameRole:
        return fromUtf8(content->row.brandName);
    case ProductNameRole:
        return fromUtf8(content->row.productName);
    case ShareRole:
        return share(content->seen().marginPercent);
    case ToneRole:
        return tone(content->seen());
    case ChangedRole:
        return content->isChanged();
    case MenuPriceRole:
        return QStringLiteral("En la carta: ") + currency(content->menuPrice);
    case NoNetPriceRole:
        return content->row.netPrice == 0;
    default:
        return field(index.row(), content->row, role);
    }
}

QVariant ProfitTableModel::field(int row, const ProfitRow& content, int role) const {
    if (role < PvpTextRole || role > PercentTagRole)
        return {};
    const int column = (role - PvpTextRole) / 3;
    const double value = content.value(ProfitColumn(column));
    switch ((role - PvpTextRole) % 3) {
    case 0:
        return column == int(ProfitColumn::MarginPercent) ? editForm(value) + QLatin1Char('%')
                                                          : currency(value);
    case 1:
        return editForm(value);
    default:
        return column * count() + row;
    }
}

QHash<int, QByteArray> ProfitTableModel::roleNames() const {
    return {{BrandNameRole, "brandNameLabel"},
            {ProductNameRole, "productNameLabel"},
            {PvpTextRole, "pvpText"},
            {PvpEditRole, "pvpEditText"},
            {PvpTagRole, "pvpTag"},
            {NetPriceTextRole, "netPriceText"},
            {NetPriceEditRole, "netPriceEditText"},
            {NetPriceTagRole, "netPriceTag"},
            {MarginTextRole, "marginText"},
            {MarginEditRole, "marginEditText"},
            {MarginTagRole, "marginTag"},
            {PercentTextRole, "percentText"},
            {PercentEditRole, "percentEditText"},
            {PercentTagRole, "percentTag"},
            {ShareRole, "marginShare"},
            {ToneRole, "marginTone"},
            {ChangedRole, "isChanged"},
            {MenuPriceRole, "menuPriceLabel"},
            {NoNetPriceRole, "isWithoutNetPrice"}};
}

} // namespace kavor
