#include "brochures/wizard/products/BrochureProductListViewController.h"

#include "base/AppFormatter.h"
#include "base/StopProcess.h"
#include "base/Text.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/wizard/StepSupport.h"
#include "interaction/AlertPresenter.h"
#include "session/AppSingleton.h"

#include <algorithm>
#include <limits>

namespace kavor {

namespace {

const QString attention = QStringLiteral("Atención");

QString labelOf(std::optional<Int> limit) {
    return limit ? fromUtf8(AppFormatter::shared().integerFormatter(*limit)) : QString();
}

// What the draft's check answers where the kind has no limit.
constexpr Int noLimit = std::numeric_limits<Int>::min();

QString fullText(const QString& brand) {
    return QStringLiteral("Ya has seleccionado el máximo de marcas. Quita una para añadir %1.").arg(brand);
}

std::optional<Int> limitOf(Int limit) {
    return limit == noLimit ? std::nullopt : std::optional(limit);
}

} // namespace

BrochureProductListViewController::BrochureProductListViewController(const WizardStepContext& context,
                                                                     QObject* parent)
    : WizardStepViewController(parent)
    , context_(context) {}

BrochureProductListViewController::~BrochureProductListViewController() = default;

QUrl BrochureProductListViewController::view() const {
    return stepView(QStringLiteral("BrochureProductListView.qml"));
}

void BrochureProductListViewController::viewWillAppear() {
    readBrochureType();
    readChalkboard();
    brands_.setDraft(context_.draft);
    brands_.setBrands(context_.catalogue, family_);
    if (!filter_)
        filter_ = new PriorityBrandSelectorView(context_.catalogue->brochures().brandProperties, family_,
                                                *this, this);
    readCustomer();
    runCounter();
    emit changed();
}

void BrochureProductListViewController::readBrochureType() {
    const Brochures::Type* type = context_.type;
    if (!type)
        stopProcess("brochure section of the product step");
    const Brochures::Type::Parameters& parameters = context_.parameters();
    family_ = type->applicationFather;
    isChalkboard_ = type->id == BrochureType::chalkboard;
    minimum_ = limitOf(context_.draft->minimumBrands(noLimit));
    maximum_ = limitOf(context_.draft->maximumBrands(noLimit));
    newBrandVisible_ = parameters.showProductSecondary;
    information_ = informationText(*type);
}

void BrochureProductListViewController::readChalkboard() {
    numberOfFormatsToSelect_.clear();
    if (!isChalkboard_)
        return;
    if (!context_.draft->selectedFormatIdentifier) {
        context_.services.alerts.inform(
            attention, QStringLiteral("Debes elegir un formato para la pizarra en configuración."), this);
        return;
    }
    if (const auto* format = context_.catalogue->blackboardFormat(*context_.draft->selectedFormatIdentifier))
        numberOfFormatsToSelect_ = format->numberOfSelectableBrands;
}

QString BrochureProductListViewController::informationText(const Brochures::Type& type) const {
    QString result = QStringLiteral("Selecciona las marcas y los formatos que aparecerán en tu %1.")
                         .arg(fromUtf8(label(type.id)));
    if (!type.parameters->isHighlightable)
        return result;
    result +=
        QStringLiteral(" En la pantalla Precios Recomendados podrás destacar una de las referencias que "
                       "selecciones.");
    const Int places = type.parameters->highLightedNumber;
    if (places > 0 && maximum_) {
        result +=
            QStringLiteral(" El destacado ocupa %1 marcas, por lo que si quieres añadir un destacado podrás "
                           "seleccionar como máximo %2 marcas.")
                .arg(places)
                .arg(*maximum_ - places);
    }
    return result;
}

void BrochureProductListViewController::readCustomer() {
    std::set<Int> priority;
    if (const auto& customer = context_.draft->customerInformation;
        customer && customer->priorityBrandIdentifiers)
        priority.insert(customer->priorityBrandIdentifiers->begin(),
                        customer->priorityBrandIdentifiers->end());
    priorityBrandsVisible_ = !priority.empty();
    brands_.setPriorityBrands(std::move(priority));
}

void BrochureProductListViewController::runCounter() {
    currentNumberOfSelections_ =
        std::ranges::count_if(context_.draft->selectedBrands, [this](const auto& entry) {
            const Product* brand = context_.catalogue->product(entry.first);
            return brand && brand->applicationFather == family_ && !entry.second.empty();
        });
    emit counterChanged();
}

void BrochureProductListViewController::brandFilterDidChange() {
    brands_.setFilter(filter_->brandFilter());
}

bool BrochureProductListViewController::mayAddBrand(std::optional<Int> brand) const {
    // A chalkboard has no such limit: its format names the numbers that the draft's check allows.
    if (isChalkboard_ || (brand && context_.draft->selectedBrands.contains(*brand)))
        return true;
    return !maximum_ || currentNumberOfSelections_ < *maximum_;
}

void BrochureProductListViewController::setRefusal(const QString& text) {
    if (refusal_ == text)
        return;
    refusal_ = text;
    emit refusalChanged();
}

void BrochureProductListViewController::toggleFormat(int row, qint64 format) {
    const Product* brand = brands_.brandAt(row);
    if (!brand)
        return;
    const bool on = context_.draft->isFormatSelected(format, brand->id) == SelectionState::notSelected;
    if (on && !mayAddBrand(brand->id)) {
        setRefusal(fullText(fromUtf8(brand->name)));
        return;
    }
    setRefusal({});
    if (!context_.draft->setFormatSelected(on, format, brand->id))
        return;
    brands_.selectionChanged(brand->id);
    runCounter();
    autosave(context_.draft);
}

void BrochureProductListViewController::addNewBrandBtn() {
    if (form_ || !newBrandVisible_)
        return;
    form_ = new NewBrandForm(context_.catalogue, family_, this);
    catalogueToGrow_.prepare();
    emit formChanged();
}

void BrochureProductListViewController::closeFormNewBrandBtn() {
    if (!form_)
        return;
    form_->deleteLater();
    form_ = nullptr;
    emit formChanged();
}

void BrochureProductListViewController::createNewBrandBtn() {
    if (!form_)
        return;
    if (!form_->isComplete()) {
        context_.services.alerts.inform(
            attention, QStringLiteral("Se han de informar todos los campos obligatorios *"), this);
        return;
    }
    // Only the brands on show are compared: the filters take part.
    if (brands_.hasVisibleName(text::sanitised(form_->name()))) {
        context_.services.alerts.inform(attention, QStringLiteral("Este producto ya está añadido a la Carta"),
                                        this);
        return;
    }
    if (!mayAddBrand({})) { // the form stays, with all that was typed
        context_.services.alerts.inform(attention, fullText(fromUtf8(form_->name())), this);
        return;
    }
    addBrand();
    closeFormNewBrandBtn();
}

void BrochureProductListViewController::addBrand() {
    AppSingleton& session = AppSingleton::shared();
    const Int brand = session.catalogue().freeNegativeProductId();
    session.changeCatalogue(
        [&](Catalogue& grown) { grown.addProduct(form_->ownBrand().product(grown.brochures(), brand)); },
        catalogueToGrow_.take());
    context_.readCatalogue();
    for (const auto& format : context_.catalogue->product(brand)->productList)
        context_.draft->setFormatSelected(true, format.id, brand);
    brands_.setBrands(context_.catalogue, family_);
    runCounter();
    autosave(context_.draft);
}

QString BrochureProductListViewController::minimumProductsSelectedLabel() const {
    return labelOf(minimum_);
}

QString BrochureProductListViewController::maximumBrandsSelectedLabel() const {
    return labelOf(maximum_);
}

QString BrochureProductListViewController::setOfBrandsChoicesLabel() const {
    if (!isChalkboard_ || numberOfFormatsToSelect_.empty())
        return {};
    QStringList numbers;
    for (const Int number : numberOfFormatsToSelect_)
        numbers << QString::number(number);
    return QStringLiteral("Debes elegir entre ") + numbers.join(QStringLiteral(" o ")) +
           QStringLiteral(" marcas.");
}

QString BrochureProductListViewController::currentProductsSelectedLabel() const {
    return labelOf(currentNumberOfSelections_);
}

double BrochureProductListViewController::progress() const {
    return maximum_ && *maximum_ > 0 ? double(currentNumberOfSelections_) / double(*maximum_) : 0;
}

bool BrochureProductListViewController::isProgressRed() const {
    if (isChalkboard_) // also red with no format chosen: then no number is allowed
        return std::ranges::find(numberOfFormatsToSelect_, currentNumberOfSelections_) ==
               numberOfFormatsToSelect_.end();
    return (minimum_ && currentNumberOfSelections_ < *minimum_) ||
           (maximum_ && currentNumberOfSelections_ > *maximum_);
}

} // namespace kavor
