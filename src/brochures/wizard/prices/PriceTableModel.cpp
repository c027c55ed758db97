#include "brochures/wizard/prices/PriceTableModel.h"

#include "base/AppFormatter.h"
#include "brochures/wizard/StepSupport.h"
#include "screens/ResourceImages.h"

#include <algorithm>

namespace kavor {

namespace {

bool isSameFormat(const PriceRow& one, const PriceRow& other) {
    return one.productIdentifier == other.productIdentifier && one.brandIdentifier == other.brandIdentifier;
}

QString currency(double value) {
    return fromUtf8(AppFormatter::shared().currencyFormatter(value));
}

} // namespace

PriceTableModel::Shown PriceTableModel::shown(Cell cell) {
    Shown result;
    result.primary = currency(cell.row.mainPrice);
    result.secondary = cell.row.secondaryPrice ? currency(*cell.row.secondaryPrice) : QString();
    result.cell = std::move(cell);
    return result;
}

QString PriceTableModel::editForm(const QString& currencyText) {
    const auto value = AppFormatter::shared().parseCurrency(currencyText.toStdString());
    return value ? fromUtf8(AppFormatter::shared().numberFormatter(*value)) : currencyText;
}

void PriceTableModel::reload(std::vector<Cell> cells, bool withSecondaryPrice) {
    const int before = count();
    withSecondaryPrice_ = withSecondaryPrice;
    // A row that went leaves its place; the others stay where they are and are painted anew.
    while (cells_.size() > cells.size()) {
        std::size_t gone = 0;
        while (gone < cells.size() && isSameFormat(cells_[gone].cell.row, cells[gone].row))
            ++gone;
        beginRemoveRows({}, int(gone), int(gone));
        cells_.erase(cells_.begin() + std::ptrdiff_t(gone));
        endRemoveRows();
    }
    const std::size_t kept = cells_.size();
    for (std::size_t i = 0; i < kept; ++i)
        cells_[i] = shown(std::move(cells[i]));
    if (kept > 0)
        emit dataChanged(index(0), index(int(kept) - 1));
    if (kept < cells.size()) {
        beginInsertRows({}, int(kept), int(cells.size()) - 1);
        for (std::size_t i = kept; i < cells.size(); ++i)
            cells_.push_back(shown(std::move(cells[i])));
        endInsertRows();
    }
    if (count() != before)
        emit countChanged();
}

void PriceTableModel::reloadRow(int row, const Cell& cell) {
    if (row < 0 || row >= count())
        return;
    cells_[std::size_t(row)] = shown(cell);
    emit dataChanged(index(row), index(row));
}

void PriceTableModel::setPriceText(int tag, const QString& text) {
    const int n = tag - tagOffset;
    const int row = withSecondaryPrice_ ? n / 2 : n;
    if (n < 0 || row >= count())
        return;
    const bool secondary = withSecondaryPrice_ && n % 2 == 1;
    (secondary ? cells_[std::size_t(row)].secondary : cells_[std::size_t(row)].primary) = text;
    emit dataChanged(index(row), index(row),
                     {PrimaryTextRole, PrimaryEditRole, SecondaryTextRole, SecondaryEditRole});
}

void PriceTableModel::setNewProduct(int row, bool isNew) {
    if (row < 0 || row >= count())
        return;
    cells_[std::size_t(row)].cell.isNew = isNew;
    emit dataChanged(index(row), index(row), {NewProductRole});
}

int PriceTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant PriceTableModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= count())
        return {};
    switch (role) {
    case PrimaryTagRole:
        return tagOffset + (withSecondaryPrice_ ? 2 * index.row() : index.row());
    case SecondaryTagRole:
        return tagOffset + 2 * index.row() + 1;
    default:
        return rowData(cells_[std::size_t(index.row())], role);
    }
}

QVariant PriceTableModel::rowData(const Shown& shown, int role) const {
    const PriceRow& row = shown.cell.row;
    switch (role) {
    case BrandNameRole:
        return fromUtf8(row.brandName);
    case TypeRole:
        return fromUtf8(row.productName);
    case ImageRole:
        return resourceImageUrl(row.productImage);
    case PrimaryTextRole:
        return shown.primary;
    case PrimaryEditRole:
        return editForm(shown.primary);
    case SecondaryTextRole:
        return shown.secondary;
    case SecondaryEditRole:
        return editForm(shown.secondary);
    case VolumeEditableRole:
        return row.isVolumeEditable;
    case VolumeUnsetRole:
        return !row.volume.has_value();
    case VolumeTextRole:
        return row.isVolumeEditable && row.volume ? QStringLiteral("%1 cl").arg(*row.volume) : QString();
    case NewProductRole:
        return shown.cell.isNew;
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
