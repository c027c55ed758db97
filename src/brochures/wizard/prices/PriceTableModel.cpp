#include "brochures/wizard/prices/PriceTableModel.h"

#include "base/AppFormatter.h"
#include "brochures/wizard/StepSupport.h"
#include "screens/ResourceImages.h"

#include <algorithm>

namespace kavor {

namespace {

QString currency(double value) {
    return fromUtf8(AppFormatter::shared().currencyFormatter(value));
}

PriceTableRow shown(PriceTableRow content) {
    content.primary = currency(content.row.mainPrice);
    content.secondary = content.row.secondaryPrice ? currency(*content.row.secondaryPrice) : QString();
    return content;
}

} // namespace

QString PriceTableModel::editForm(const QString& currencyText) {
    const auto value = AppFormatter::shared().parseCurrency(currencyText.toStdString());
    return value ? fromUtf8(AppFormatter::shared().numberFormatter(*value)) : currencyText;
}

int PriceTableModel::rowOf(const PriceRow& row) const {
    const auto& all = rows_.all();
    const auto found = std::ranges::find(all, PriceTableRow::Key()({row}), PriceTableRow::Key());
    return found == all.end() ? -1 : int(found - all.begin());
}

void PriceTableModel::reload(std::vector<PriceTableRow> rows, bool withSecondaryPrice) {
    withSecondaryPrice_ = withSecondaryPrice;
    std::ranges::transform(rows, rows.begin(), shown);
    rows_.showInPlaces(std::move(rows));
}

void PriceTableModel::reloadRow(int row, const PriceTableRow& content) {
    if (rows_.at(row))
        rows_.set(row, shown(content));
}

void PriceTableModel::setPriceText(int tag, const QString& text) {
    const int n = tag - tagOffset;
    const int row = withSecondaryPrice_ ? n / 2 : n;
    if (n < 0 || !rows_.at(row))
        return;
    const bool secondary = withSecondaryPrice_ && n % 2 == 1;
    PriceTableRow content = *rows_.at(row);
    (secondary ? content.secondary : content.primary) = text;
    rows_.set(row, std::move(content),
              {PrimaryTextRole, PrimaryEditRole, SecondaryTextRole, SecondaryEditRole});
}

void PriceTableModel::setNewProduct(int row, bool isNew) {
    if (!rows_.at(row))
        return;
    PriceTableRow content = *rows_.at(row);
    content.isNew = isNew;
    rows_.set(row, std::move(content), {NewProductRole});
}

QVariant PriceTableModel::data(const QModelIndex& index, int role) const {
    const PriceTableRow* content = rows_.at(index);
    if (!content)
        return {};
    switch (role) {
    case PrimaryTagRole:
        return tagOffset + (withSecondaryPrice_ ? 2 * index.row() : index.row());
    case SecondaryTagRole:
        return tagOffset + 2 * index.row() + 1;
    default:
        return rowData(*content, role);
    }
}

QVariant PriceTableModel::rowData(const PriceTableRow& content, int role) {
    const PriceRow& row = content.row;
    switch (role) {
    case BrandNameRole:
        return fromUtf8(row.brandName);
    case TypeRole:
        return fromUtf8(row.productName);
    case ImageRole:
        return resourceImageUrl(row.productImage);
    case PrimaryTextRole:
        return content.primary;
    case PrimaryEditRole:
        return editForm(content.primary);
    case SecondaryTextRole:
        return content.secondary;
    case SecondaryEditRole:
        return editForm(content.secondary);
    case VolumeEditableRole:
        return row.isVolumeEditable;
    case VolumeUnsetRole:
        return !row.volume.has_value();
    case VolumeTextRole:
        return row.isVolumeEditable && row.volume ? QStringLiteral("%1 cl").arg(*row.volume) : QString();
    case NewProductRole:
        return content.isNew;
    case RecommendationRole:
        return row.brandIdentifier >= 0; // none for a brand added by hand
    default:
        return {};
    }
}

QHash<int, QByteArray> PriceTableModel::roleNames() const {
    return {{BrandNameRole, "productBrandNameLabel"},
            {TypeRole, "productTypeLabel"},
            {ImageRole, "productImage"},
            {PrimaryTextRole, "primaryText"},
            {PrimaryEditRole, "primaryEditText"},
            {PrimaryTagRole, "primaryTag"},
            {SecondaryTextRole, "secondaryText"},
            {SecondaryEditRole, "secondaryEditText"},
            {SecondaryTagRole, "secondaryTag"},
            {VolumeEditableRole, "isVolumeEditable"},
            {VolumeUnsetRole, "isVolumeUnset"},
            {VolumeTextRole, "formatCustomVolumeLabel"},
            {NewProductRole, "isNewProduct"},
            {RecommendationRole, "hasRecommendation"}};
}

} // namespace kavor
