#include "brochures/wizard/prices/BrochurePriceSetterViewController.h"

#include "base/AppFormatter.h"
#include "base/StopProcess.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/wizard/StepSupport.h"
#include "interaction/AlertPresenter.h"
#include "interaction/Questions.h"
#include "resources/PDFCacheManager.h"
#include "session/AppSingleton.h"

#include <algorithm>

namespace kavor {

namespace {

const QString attention = QStringLiteral("Atención");
const QString toCome = QStringLiteral("Próximamente");

} // namespace

BrochurePriceSetterViewController::BrochurePriceSetterViewController(const WizardServices& services,
                                                                     QObject* parent)
    : WizardStepViewController(parent)
    , services_(services) {
    connect(&highlight_, &HighlightZone::highlightDidChange, this, [this] { autosave(actualOrder_); });
}

BrochurePriceSetterViewController::~BrochurePriceSetterViewController() = default;

QUrl BrochurePriceSetterViewController::view() const {
    return stepView(QStringLiteral("BrochurePriceSetterView.qml"));
}

void BrochurePriceSetterViewController::viewDidLoad() {
    catalogue_ = AppSingleton::shared().applicationInformation;
    if (!catalogue_)
        stopProcess("catalogue of the prices step");
    const Validations& validations = catalogue_->information().validations;
    const Brochures::Type::Parameters* parameters = sectionParameters(*catalogue_);
    if (!parameters)
        return;
    orderType_ = sectionBrochureType(*catalogue_);
    isSecondaryPriceAllowed_ = orderType_->isSecondBrochuresPriceAllowed;
    highlight_.configure(
        parameters->isHighlightable, parameters->highLightedNumber,
        parameters->maxBrandSelection.value_or(Int(catalogue_->information().products.size())));
    if (parameters->dtColumnFilePriceRecomended == "archive_price")
        archivePrice_ = validations.archivePrice;
    else if (parameters->dtColumnFilePriceRecomended == "archive_price_secondary")
        archivePrice_ = validations.archivePriceSecondary;
}

void BrochurePriceSetterViewController::viewWillAppear() {
    actualOrder_ = BrochureIntermediateData::temporalBrochure();
    if (const auto second = actualOrder_->currentSecondPrice(); second && isSecondaryPriceAllowed_)
        secondPriceType_ = second;
    rebuildRows();
    autosave(actualOrder_);
    setUpHighlight(true);
    setUpWithoutPrice();
    reloadTable();
    emit changed();
}

void BrochurePriceSetterViewController::serializeAutoSave() {
    if (actualOrder_)
        actualOrder_->withoutPriceBeer = withoutPriceSwitch_;
}

PriceRow BrochurePriceSetterViewController::makeRow(const Product& brand,
                                                    const Product::ProductFormat& format) const {
    const BrochureIntermediateData& draft = *actualOrder_;
    PriceRow row;
    row.productIdentifier = format.id;
    row.productImage = format.image;
    row.isHighlightable = format.isHighlightable;
    row.highlightablePosition = format.positionHighlightable;
    row.brandIdentifier = brand.id;
    row.productName = format.icon;
    row.brandName = brand.name;
    row.position = brand.position;
    row.isVolumeEditable = format.isVolumeEditable;
    row.volume = draft.volumeOf(format.id, brand.id);
    row.minimumVolume = format.minimumVolume;
    row.maximumVolume = format.maximumVolume;
    row.mainPrice = draft.priceOf(PriceType::main, format.id, brand.id).value_or(0);
    row.secondaryPrice =
        secondPriceType_ ? draft.priceOf(*secondPriceType_, format.id, brand.id) : format.price;
    return row;
}

void BrochurePriceSetterViewController::rebuildRows() {
    productsPerBrandsSelected_.clear();
    if (!orderType_)
        return;
    for (const Product* brand : actualOrder_->selectedProducts()) {
        if (brand->applicationFather != orderType_->applicationFather)
            continue;
        for (const Product::ProductFormat& format : brand->productList) {
            if (actualOrder_->isFormatSelected(format.id, brand->id) == SelectionState::selected)
                productsPerBrandsSelected_.push_back(makeRow(*brand, format));
        }
    }
}

PriceTableRow BrochurePriceSetterViewController::cellOf(const PriceRow& row) const {
    return {row, actualOrder_->isNewProduct(row.productIdentifier, row.brandIdentifier).value_or(false)};
}

const PriceRow* BrochurePriceSetterViewController::rowAt(int row) const {
    return row >= 0 && row < int(productsPerBrandsSelected_.size())
               ? &productsPerBrandsSelected_[std::size_t(row)]
               : nullptr;
}

void BrochurePriceSetterViewController::reloadTable() {
    std::vector<PriceTableRow> cells;
    cells.reserve(productsPerBrandsSelected_.size());
    for (const PriceRow& row : productsPerBrandsSelected_)
        cells.push_back(cellOf(row));
    table_.reload(std::move(cells), secondPriceType_.has_value());
}

void BrochurePriceSetterViewController::setUpHighlight(bool withAlert) {
    const QString message = highlight_.setUp(actualOrder_, *catalogue_, productsPerBrandsSelected_);
    if (withAlert)
        services_.alerts.inform(attention, message, this);
}

void BrochurePriceSetterViewController::setUpWithoutPrice() {
    if (!orderType_)
        return;
    if (orderType_->parameters->requiredPriceBeer)
        actualOrder_->withoutPriceBeer = false;
    withoutPriceVisible_ = !orderType_->parameters->requiredPriceBeer;
    withoutPriceSwitch_ = actualOrder_->withoutPriceBeer;
}

void BrochurePriceSetterViewController::withoutPriceSwitchChanged(bool on) {
    withoutPriceSwitch_ = on;
    actualOrder_->withoutPriceBeer = on;
    autosave(actualOrder_);
    emit changed();
}

void BrochurePriceSetterViewController::priceFieldDidEndEditing(int tag, const QString& text) {
    const int n = tag - PriceTableModel::tagOffset;
    if (n < 0)
        return;
    const PriceRow* row = rowAt(secondPriceType_ ? n / 2 : n);
    if (!row)
        return;
    const PriceType type = secondPriceType_ && n % 2 == 1 ? *secondPriceType_ : PriceType::main;
    const auto value = AppFormatter::shared().parseNumber(text.toStdString());
    const bool taken =
        value && actualOrder_->setPrice(type, row->productIdentifier, row->brandIdentifier, *value);
    table_.setPriceText(tag, fromUtf8(AppFormatter::shared().currencyFormatter(taken ? *value : 0)));
    // The rows lose a sorted order here while the table keeps showing it: the next edit goes by the rebuilt
    // rows. Meant so.
    rebuildRows();
    autosave(actualOrder_);
}

void BrochurePriceSetterViewController::sort(PriceSorting::Button button) {
    sorting_.press(button, productsPerBrandsSelected_);
    autosave(actualOrder_);
    reloadTable();
    emit sortingChanged();
}

void BrochurePriceSetterViewController::editVolumeButton(int row) {
    const PriceRow* productToEdit = rowAt(row);
    if (!productToEdit || volumeEditor_)
        return;
    volumeEditor_ = new VolumeEditorViewController(services_, this);
    volumeEditor_->edit(*productToEdit, [this](std::optional<Int> volume, const PriceRow& edited) {
        return changeVolume(volume, edited);
    });
    connect(volumeEditor_, &VolumeEditorViewController::closed, this, [this] {
        volumeEditor_->deleteLater();
        volumeEditor_ = nullptr;
        emit volumeEditorChanged();
    });
    emit volumeEditorChanged();
}

bool BrochurePriceSetterViewController::changeVolume(std::optional<Int> volume, const PriceRow& row) {
    if (!actualOrder_->setVolume(volume, row.productIdentifier, row.brandIdentifier))
        return false;
    const auto found = std::ranges::find_if(productsPerBrandsSelected_, [&](const PriceRow& candidate) {
        return candidate.productIdentifier == row.productIdentifier &&
               candidate.brandIdentifier == row.brandIdentifier;
    });
    if (found == productsPerBrandsSelected_.end())
        return false;
    found->volume = volume;
    autosave(actualOrder_);
    table_.reloadRow(int(found - productsPerBrandsSelected_.begin()), cellOf(*found));
    return true;
}

void BrochurePriceSetterViewController::newProductButton(int row) {
    const PriceRow* product = rowAt(row);
    if (!product)
        return;
    const bool wanted = !table_.data(table_.index(row), PriceTableModel::NewProductRole).toBool();
    if (!actualOrder_->setNewProduct(wanted, product->productIdentifier, product->brandIdentifier))
        return;
    table_.setNewProduct(row, cellOf(*product).isNew);
    autosave(actualOrder_);
}

void BrochurePriceSetterViewController::priceRecommendation(int) {
    services_.alerts.inform(toCome, QStringLiteral("La recomendación de precios todavía no está disponible."),
                            this);
}

void BrochurePriceSetterViewController::showProfitAccount() {
    services_.alerts.inform(toCome, QStringLiteral("La cuenta de beneficios todavía no está disponible."),
                            this);
}

void BrochurePriceSetterViewController::deleteProductButton(int row) {
    const PriceRow* product = rowAt(row);
    if (!product)
        return;
    // The question ends without its closing mark, meant so.
    ask(services_.alerts, this, attention,
        QStringLiteral("¿Desea borrar ") + fromUtf8(product->brandName) + QStringLiteral(" - ") +
            fromUtf8(product->productName),
        {no(), yesDestroy([this, doomed = *product] { deleteRow(doomed); })});
}

void BrochurePriceSetterViewController::deleteRow(const PriceRow& row) {
    const Int format = row.productIdentifier;
    const Int brand = row.brandIdentifier;
    if (actualOrder_->isFormatHighlighted(format, brand) == SelectionState::selected) {
        actualOrder_->setFormatHighlighted(false, format, brand);
        highlight_.scrollToNothing();
    }
    if (!actualOrder_->setFormatSelected(false, format, brand))
        return;
    std::erase_if(productsPerBrandsSelected_, [&](const PriceRow& candidate) {
        return candidate.productIdentifier == format && candidate.brandIdentifier == brand;
    });
    autosave(actualOrder_);
    reloadTable();
    setUpHighlight(false);
}

void BrochurePriceSetterViewController::showArchivePrice() {
    if (!archivePrice_)
        return;
    const PDFCacheManager cache(AppSingleton::shared().cachesFolder(), services_.downloader);
    if (const auto previewURL = cache.localOrRemoteURL(archivePrice_->downloadURL.text))
        emit previewRequested(*previewURL);
}

bool BrochurePriceSetterViewController::isOrderBySecondaryVisible() const {
    return !withoutPriceSwitch_ && secondPriceType_ && !orderBySecondaryTitle().isEmpty() && actualOrder_ &&
           actualOrder_->currentSecondPrice();
}

QString BrochurePriceSetterViewController::orderBySecondaryTitle() const {
    switch (secondPriceType_.value_or(PriceType::main)) {
    case PriceType::terrace:
        return QStringLiteral("Terraza Rec");
    case PriceType::table:
        return QStringLiteral("Mesa Rec");
    case PriceType::night:
        return QStringLiteral("Noche Rec");
    case PriceType::main:
        break;
    }
    return {};
}

QString BrochurePriceSetterViewController::brochureWord() const {
    return orderType_ ? fromUtf8(label(orderType_->id)) : QString();
}

QString BrochurePriceSetterViewController::withoutPriceLabel() const {
    return brochureWord() + QStringLiteral(" sin precios");
}

QString BrochurePriceSetterViewController::withoutPriceInfoLabel() const {
    return QStringLiteral("Marca esta opción para que la ") + brochureWord() +
           QStringLiteral(" no lleve precios");
}

} // namespace kavor
