#include "brochures/wizard/prices/profit/BrochureProfitAccountViewController.h"

#include "base/AppFormatter.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "interaction/QtText.h"
#include "session/AppSingleton.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kavor {

namespace {

// What was typed as a number; text that is none counts as 0, and a percent sign is not read.
double numberOf(QString text) {
    text.remove(QLatin1Char('%'));
    return AppFormatter::shared().parseNumber(text.trimmed().toStdString()).value_or(0);
}

// To the tenth, for reading at a glance.
QString percentText(double percent) {
    return fromUtf8(AppFormatter::shared().numberFormatter(std::round(percent * 10) / 10)) +
           QStringLiteral(" %");
}

// The margin of a row whose cost is known; without one it would read as 100 %.
bool hasMargin(const ProfitTableRow& each) {
    return each.seen().netPrice != 0 && std::isfinite(each.seen().marginPercent);
}

} // namespace

BrochureProfitAccountViewController::BrochureProfitAccountViewController(const WizardStepContext& context,
                                                                         QObject* parent)
    : ScreenController(parent)
    , context_(context)
    , actualOrder_(context.draft) {}

// The application ends, or the session, with the account open.
BrochureProfitAccountViewController::~BrochureProfitAccountViewController() {
    if (AppSingleton::shared().applicationInformation)
        takeTyped();
    keepNetPrices();
}

void BrochureProfitAccountViewController::viewWillAppear() {
    actualOrder_ = context_.draft;
    typing_.reset();
    rebuildRows();
    reloadTable();
    emit changed();
}

// Selected formats of every family; one without a price has no row.
void BrochureProfitAccountViewController::rebuildRows() {
    productsPerBrand_.clear();
    for (const Product* brand : actualOrder_->selectedProducts()) {
        for (const Product::ProductFormat& format : brand->productList) {
            if (actualOrder_->isFormatSelected(format.id, brand->id) != SelectionState::selected)
                continue;
            const double price = actualOrder_->priceOf(PriceType::main, format.id, brand->id).value_or(0);
            if (price == 0)
                continue;
            ProfitRow row{format.id, brand->id, format.icon, brand->name, brand->position};
            row.netPrice = actualOrder_->netPriceOf(format.id, brand->id).value_or(0);
            productsPerBrand_.push_back(row.with(ProfitColumn::RetailPrice, price));
        }
    }
}

ProfitTableRow BrochureProfitAccountViewController::cellOf(const ProfitRow& row) const {
    return {row,
            actualOrder_->priceOf(PriceType::main, row.productIdentifier, row.brandIdentifier).value_or(0),
            std::nullopt};
}

void BrochureProfitAccountViewController::reloadTable() {
    std::vector<ProfitTableRow> cells;
    cells.reserve(productsPerBrand_.size());
    for (const ProfitRow& row : productsPerBrand_)
        cells.push_back(cellOf(row));
    table_.reload(std::move(cells));
    emit summaryChanged();
}

void BrochureProfitAccountViewController::sort(ProfitSorting::Button button) {
    sorting_.press(button, productsPerBrand_);
    reloadTable();
    emit sortingChanged();
}

// The row of a field as its text makes it; none for a tag of no field, and where the text says what stands
// there already: a field that was only visited must not round its row, nor read an infinite price as nothing.
std::optional<ProfitRow> BrochureProfitAccountViewController::typedRow(int tag, const QString& text) const {
    const int n = int(productsPerBrand_.size());
    if (tag < 0 || tag >= n * profitColumns)
        return std::nullopt;
    const ProfitRow& row = productsPerBrand_[std::size_t(tag % n)];
    const auto column = ProfitColumn(tag / n);
    if (text == ProfitTableModel::editForm(row.value(column)))
        return std::nullopt;
    return row.with(column, numberOf(text));
}

void BrochureProfitAccountViewController::fieldEdited(int tag, const QString& text) {
    const int n = int(productsPerBrand_.size());
    if (tag < 0 || tag >= n * profitColumns)
        return;
    typing_ = Typing{tag, text};
    ProfitTableRow cell = cellOf(productsPerBrand_[std::size_t(tag % n)]);
    cell.typed = typedRow(tag, text);
    table_.reloadRow(tag % n, cell);
    emit summaryChanged();
}

void BrochureProfitAccountViewController::fieldDidEndEditing(int tag, const QString& text) {
    typing_.reset();
    const int n = int(productsPerBrand_.size());
    if (tag < 0 || tag >= n * profitColumns)
        return;
    ProfitRow& row = productsPerBrand_[std::size_t(tag % n)];
    const auto typed = typedRow(tag, text);
    if (typed) {
        row = *typed;
        if (ProfitColumn(tag / n) == ProfitColumn::NetPrice &&
            actualOrder_->setNetPrice(row.productIdentifier, row.brandIdentifier, row.netPrice))
            keepNetPrices();
    }
    table_.reloadRow(tag % n, cellOf(row));
    emit summaryChanged();
}

void BrochureProfitAccountViewController::takeTyped() {
    if (const auto typing = std::exchange(typing_, std::nullopt))
        fieldDidEndEditing(typing->tag, typing->text);
}

void BrochureProfitAccountViewController::keepNetPrices() const {
    actualOrder_->storeNetPrices();
}

void BrochureProfitAccountViewController::restoreMenuPrices() {
    takeTyped();
    for (ProfitRow& row : productsPerBrand_)
        row = row.with(ProfitColumn::RetailPrice, cellOf(row).menuPrice);
    reloadTable();
}

void BrochureProfitAccountViewController::showToCustomer(bool on) {
    if (std::exchange(shownToCustomer_, on) != on)
        emit shownToCustomerChanged();
}

void BrochureProfitAccountViewController::closeSceneAction() {
    takeTyped();
    keepNetPrices();
    emit closed();
}

QString BrochureProfitAccountViewController::subtitle() const {
    const auto& customer = actualOrder_->customerInformation;
    return customer ? fromUtf8(customer->name) : QString();
}

QString BrochureProfitAccountViewController::helpText() const {
    if (shownToCustomer_)
        return QStringLiteral("Cambia un número y los demás se calculan solos.");
    return QStringLiteral(
        "Cambia un número y los demás se calculan solos. Solo se guardan los precios netos.");
}

QString BrochureProfitAccountViewController::meanLabel() const {
    double sum = 0;
    int number = 0;
    for (const ProfitTableRow& each : table_.rows()) {
        if (!hasMargin(each))
            continue;
        sum += each.seen().marginPercent;
        ++number;
    }
    return number == 0 ? QString() : percentText(sum / number);
}

QString BrochureProfitAccountViewController::lowestLabel() const {
    const ProfitRow* lowest = nullptr;
    for (const ProfitTableRow& each : table_.rows()) {
        if (hasMargin(each) && (!lowest || each.seen().marginPercent < lowest->marginPercent))
            lowest = &each.seen();
    }
    if (!lowest)
        return {};
    return percentText(lowest->marginPercent) + QStringLiteral(" · ") + fromUtf8(lowest->brandName) +
           QLatin1Char(' ') + fromUtf8(lowest->productName);
}

QString BrochureProfitAccountViewController::withoutNetPriceLabel() const {
    const auto number = std::ranges::count_if(
        table_.rows(), [](const ProfitTableRow& each) { return each.seen().netPrice == 0; });
    if (number == 0)
        return {};
    return number == 1 ? QStringLiteral("1 formato sin precio neto")
                       : QStringLiteral("%1 formatos sin precio neto").arg(number);
}

bool BrochureProfitAccountViewController::differsFromMenu() const {
    return std::ranges::any_of(table_.rows(), &ProfitTableRow::isChanged);
}

} // namespace kavor
