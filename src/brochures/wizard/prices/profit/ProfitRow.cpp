#include "brochures/wizard/prices/profit/ProfitRow.h"

namespace kavor {

double ProfitRow::value(ProfitColumn column) const {
    switch (column) {
    case ProfitColumn::RetailPrice:
        return retailPrice;
    case ProfitColumn::NetPrice:
        return netPrice;
    case ProfitColumn::Margin:
        return margin;
    case ProfitColumn::MarginPercent:
        break;
    }
    return marginPercent;
}

ProfitRow ProfitRow::with(ProfitColumn column, double value) const {
    ProfitRow row = *this;
    switch (column) {
    case ProfitColumn::RetailPrice:
        row.retailPrice = value;
        row.margin = row.retailPrice - row.netPrice;
        break;
    case ProfitColumn::NetPrice:
        row.netPrice = value;
        row.margin = row.retailPrice - row.netPrice;
        break;
    case ProfitColumn::Margin:
        row.margin = value;
        row.retailPrice = row.netPrice + row.margin;
        break;
    case ProfitColumn::MarginPercent:
        row.marginPercent = value;
        row.retailPrice = row.netPrice / (100 - value) * 100;
        row.margin = value / 100 * row.retailPrice;
        return row;
    }
    row.marginPercent = row.margin * 100 / row.retailPrice;
    return row;
}

} // namespace kavor
