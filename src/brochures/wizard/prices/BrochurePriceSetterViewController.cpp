#include "brochures/wizard/prices/BrochurePriceSetterViewController.h"

#include "base/AppFormatter.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/wizard/StepSupport.h"
#include "brochures/wizard/prices/profit/BrochureProfitAccountViewController.h"
#include "brochures/wizard/prices/recommendation/BrochurePriceAssistantViewController.h"
#include "interaction/AlertPresenter.h"
#include "interaction/Questions.h"
#include "resources/PDFCacheManager.h"
#include "session/AppSingleton.h"

#include <algorithm>
#include <utility>

namespace kavor {

namespace {

const QString attention = QStringLiteral("Atención");

} // namespace

BrochurePriceSetterViewController::BrochurePriceSetterViewController(const WizardStepContext& context,
                                                                     QObject* parent)
    : WizardStepViewController(parent)
    , context_(context)
    , recommendationRoad_(context_) {
    connect(&recommendationRoad_, &PriceRecommendationRoad::answered, this,
            &BrochurePriceSetterViewController::showRecommendation);
    connect(&highlight_, &HighlightZone::highlightDidChange, this, [this] { autosave(context_.draft); });
}

BrochurePriceSetterViewController::~BrochurePriceSetterViewController() = default;

QUrl BrochurePriceSetterViewController::view() const {
    return stepView(QStringLiteral("BrochurePriceSetterView.qml"));
}

void BrochurePriceSetterViewController::viewDidLoad() {
    if (!context_.type)
        return;
    const Validations& validations = context_.catalogue->information().validations;
    const Brochures::Type::Parameters& parameters = context_.parameters();
    isSecondaryPriceAllowed_ = context_.type->isSecondBrochuresPriceAllowed;
    highlight_.configure(
        parameters.isHighlightable, parameters.highLightedNumber,
        parameters.maxBrandSelection.value_or(Int(context_.catalogue->information().products.size())));
    if (parameters.dtColumnFilePriceRecomended == "archive_price")
        archivePrice_ = validations.archivePrice;
    else if (parameters.dtColumnFilePriceRecomended == "archive_price_secondary")
        archivePrice_ = validations.archivePriceSecondary;
}

void BrochurePriceSetterViewController::viewWillAppear() {
    // What was over the prices has changed none of them: order and scroll stay, and nothing is said again.
    if (std::exchange(covered_, false))
        return;
    if (const auto second = context_.draft->currentSecondPrice(); second && isSecondaryPriceAllowed_)
        secondPriceType_ = second;
    rebuildRows();
    autosave(context_.draft);
    setUpHighlight(true);
    setUpWithoutPrice();
    reloadTable();
    emit changed();
}

void BrochurePriceSetterViewController::serializeAutoSave() {
    context_.draft->withoutPriceBeer = withoutPriceSwitch_;
}

PriceRow BrochurePriceSetterViewController::makeRow(const Product& brand,
                                                    const Product::ProductFormat& format) const {
    const BrochureIntermediateData& draft = *context_.draft;
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
    if (!context_.type)
        return;
    for (const Product* brand : context_.draft->selectedProducts()) {
        if (brand->applicationFather != context_.type->applicationFather)
            continue;
        for (const Product::ProductFormat& format : brand->productList) {
            if (context_.draft->isFormatSelected(format.id, brand->id) == SelectionState::selected)
                productsPerBrandsSelected_.push_back(makeRow(*brand, format));
        }
    }
}

PriceTableRow BrochurePriceSetterViewController::cellOf(const PriceRow& row) const {
    return {row, context_.draft->isNewProduct(row.productIdentifier, row.brandIdentifier).value_or(false)};
}

const PriceRow* BrochurePriceSetterViewController::rowAt(int row) const {
    return row >= 0 && row < int(productsPerBrandsSelected_.size())
               ? &productsPerBrandsSelected_[std::size_t(row)]
               : nullptr;
}

PriceRow* BrochurePriceSetterViewController::rowOf(const PriceRow& shown) {
    const auto found = std::ranges::find_if(productsPerBrandsSelected_, [&](const PriceRow& candidate) {
        return candidate.productIdentifier == shown.productIdentifier &&
               candidate.brandIdentifier == shown.brandIdentifier;
    });
    return found == productsPerBrandsSelected_.end() ? nullptr : &*found;
}

// What a cell shows: after an edit the table keeps an order that the rows have lost.
const PriceRow* BrochurePriceSetterViewController::shownAt(int row) {
    const PriceRow* shown = table_.at(row);
    return shown ? rowOf(*shown) : nullptr;
}

void BrochurePriceSetterViewController::reloadTable() {
    std::vector<PriceTableRow> cells;
    cells.reserve(productsPerBrandsSelected_.size());
    for (const PriceRow& row : productsPerBrandsSelected_)
        cells.push_back(cellOf(row));
    table_.reload(std::move(cells), secondPriceType_.has_value());
}

void BrochurePriceSetterViewController::setUpHighlight(bool withAlert) {
    const QString message = highlight_.setUp(context_.draft, *context_.catalogue, productsPerBrandsSelected_);
    if (withAlert)
        context_.services.alerts.inform(attention, message, this);
}

void BrochurePriceSetterViewController::setUpWithoutPrice() {
    if (!context_.type)
        return;
    if (context_.parameters().requiredPriceBeer)
        context_.draft->withoutPriceBeer = false;
    withoutPriceVisible_ = !context_.parameters().requiredPriceBeer;
    withoutPriceSwitch_ = context_.draft->withoutPriceBeer;
}

void BrochurePriceSetterViewController::withoutPriceSwitchChanged(bool on) {
    withoutPriceSwitch_ = on;
    context_.draft->withoutPriceBeer = on;
    autosave(context_.draft);
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
        value && context_.draft->setPrice(type, row->productIdentifier, row->brandIdentifier, *value);
    table_.setPriceText(tag, fromUtf8(AppFormatter::shared().currencyFormatter(taken ? *value : 0)));
    // The rows lose a sorted order here while the table keeps showing it: the next edit of a price goes by
    // the rebuilt rows. Meant so.
    rebuildRows();
    autosave(context_.draft);
}

void BrochurePriceSetterViewController::sort(PriceSorting::Button button) {
    sorting_.press(button, productsPerBrandsSelected_);
    autosave(context_.draft);
    reloadTable();
    emit sortingChanged();
}

void BrochurePriceSetterViewController::editVolumeButton(int row) {
    const PriceRow* productToEdit = shownAt(row);
    if (!productToEdit || volumeEditor_)
        return;
    volumeEditor_ = new VolumeEditorViewController(context_.services, this);
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
    if (!context_.draft->setVolume(volume, row.productIdentifier, row.brandIdentifier))
        return false;
    PriceRow* edited = rowOf(row);
    if (!edited)
        return false;
    edited->volume = volume;
    autosave(context_.draft);
    table_.reloadRow(table_.rowOf(row), cellOf(*edited));
    return true;
}

void BrochurePriceSetterViewController::newProductButton(int row) {
    const PriceRow* product = shownAt(row);
    if (!product)
        return;
    const bool wanted = !table_.data(table_.index(row), PriceTableModel::NewProductRole).toBool();
    if (!context_.draft->setNewProduct(wanted, product->productIdentifier, product->brandIdentifier))
        return;
    table_.setNewProduct(row, cellOf(*product).isNew);
    autosave(context_.draft);
}

void BrochurePriceSetterViewController::priceRecommendation(int row) {
    const PriceRow* product = shownAt(row);
    if (product && !covered_ &&
        product->brandIdentifier >= 0) // the server knows nothing of a brand added by hand
        recommendationRoad_.ask(product->productIdentifier);
}

void BrochurePriceSetterViewController::showRecommendation(const Recommendation& recommendation) {
    const auto row = std::ranges::find(productsPerBrandsSelected_, recommendation.productIdentifier,
                                       &PriceRow::productIdentifier);
    auto* assistant = new BrochurePriceAssistantViewController(
        recommendation, row == productsPerBrandsSelected_.end() ? 0 : row->mainPrice);
    connect(assistant, &BrochurePriceAssistantViewController::placeChangeRequested, &recommendationRoad_,
            &PriceRecommendationRoad::askElsewhere);
    show({stepView(QStringLiteral("BrochurePriceAssistantView.qml")), assistant});
}

void BrochurePriceSetterViewController::showProfitAccount() {
    if (covered_) // a second tap
        return;
    show({stepView(QStringLiteral("BrochureProfitAccountView.qml")),
          new BrochureProfitAccountViewController(context_)});
}

void BrochurePriceSetterViewController::show(const Screen& screen) {
    covered_ = true;
    emit screenRequested(screen);
}

void BrochurePriceSetterViewController::deleteProductButton(int row) {
    const PriceRow* product = shownAt(row);
    if (!product)
        return;
    // The question ends without its closing mark, meant so.
    ask(context_.services.alerts, this, attention,
        QStringLiteral("¿Desea borrar ") + fromUtf8(product->brandName) + QStringLiteral(" - ") +
            fromUtf8(product->productName),
        {no(), yesDestroy([this, doomed = *product] { deleteRow(doomed); })});
}

void BrochurePriceSetterViewController::deleteRow(const PriceRow& row) {
    const Int format = row.productIdentifier;
    const Int brand = row.brandIdentifier;
    if (context_.draft->isFormatHighlighted(format, brand) == SelectionState::selected) {
        context_.draft->setFormatHighlighted(false, format, brand);
        highlight_.scrollToNothing();
    }
    if (!context_.draft->setFormatSelected(false, format, brand))
        return;
    std::erase_if(productsPerBrandsSelected_, [&](const PriceRow& candidate) {
        return candidate.productIdentifier == format && candidate.brandIdentifier == brand;
    });
    autosave(context_.draft);
    reloadTable();
    setUpHighlight(false);
}

void BrochurePriceSetterViewController::showArchivePrice() {
    if (!archivePrice_)
        return;
    const PDFCacheManager cache(AppSingleton::shared().cachesFolder(), context_.services.downloader);
    if (const auto previewURL = cache.localOrRemoteURL(archivePrice_->downloadURL.text))
        emit previewRequested(*previewURL);
}

bool BrochurePriceSetterViewController::isOrderBySecondaryVisible() const {
    return !withoutPriceSwitch_ && secondPriceType_ && !orderBySecondaryTitle().isEmpty() &&
           context_.draft->currentSecondPrice();
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
    return context_.type ? fromUtf8(label(context_.type->id)) : QString();
}

QString BrochurePriceSetterViewController::withoutPriceLabel() const {
    return brochureWord() + QStringLiteral(" sin precios");
}

QString BrochurePriceSetterViewController::withoutPriceInfoLabel() const {
    return QStringLiteral("Marca esta opción para que la ") + brochureWord() +
           QStringLiteral(" no lleve precios");
}

} // namespace kavor
