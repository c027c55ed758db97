#include "brochures/wizard/ordersheet/BrochureOrderSheetViewController.h"

#include "base/StopProcess.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/wizard/StepSupport.h"
#include "catalogue/Catalogue.h"
#include "screens/ResourceImages.h"
#include "session/AppSingleton.h"

#include <algorithm>

namespace kavor {

BrochureOrderSheetViewController::BrochureOrderSheetViewController(const WizardServices& /*services*/,
                                                                   QObject* parent)
    : WizardStepViewController(parent) {}

QUrl BrochureOrderSheetViewController::view() const {
    return stepView(QStringLiteral("BrochureOrderSheetView.qml"));
}

void BrochureOrderSheetViewController::viewDidLoad() {
    catalogue_ = AppSingleton::shared().applicationInformation;
    if (!catalogue_)
        stopProcess("catalogue of the order sheet step");
    const auto* parameters = sectionParameters(*catalogue_);
    if (!parameters)
        stopProcess("brochure section of the order sheet step");
    unitsToSend_ = parameters->numberOfOrderSheetsToSend;
    carousel_.setSheets(catalogue_->brochures().orderSheets);
}

void BrochureOrderSheetViewController::viewWillAppear() {
    draft_ = BrochureIntermediateData::temporalBrochure();
    showEntry(carousel_.indexOf(draft_->selectedOrderSheetIdentifier));
}

void BrochureOrderSheetViewController::showEntry(int index) {
    currentIndex_ = index;
    availableBrands_.clear();
    if (const Brochures::OrderSheet* sheet = carousel_.sheetAt(index)) {
        for (const Int brand : sheet->brands) {
            if (const Product* product = catalogue_->product(brand))
                availableBrands_.push_back({draft_->selectedBrands.contains(brand), product});
        }
    }
    emit changed();
}

void BrochureOrderSheetViewController::carouselCurrentItemIndexDidChange(int index) {
    if (index == currentIndex_ || index < 0 || index >= carousel_.count())
        return;
    showEntry(index);
    serializeAutoSave();
    autosave(draft_);
}

void BrochureOrderSheetViewController::serializeAutoSave() {
    const Brochures::OrderSheet* sheet = carousel_.sheetAt(currentIndex_);
    draft_->setOrderSheet(sheet ? std::optional(sheet->id) : std::nullopt);
}

QString BrochureOrderSheetViewController::numberOrderBrochuresToSend() const {
    return carousel_.sheetAt(currentIndex_) ? QStringLiteral("Se enviarán %1 unidades").arg(unitsToSend_)
                                            : QString();
}

QVariantList BrochureOrderSheetViewController::brandLogosCollection() const {
    QVariantList logos;
    for (const AvailableBrand& each : availableBrands_) {
        if (each.isSelected)
            logos << QVariantMap{{QStringLiteral("source"), resourceImageUrl(each.brand->image)},
                                 {QStringLiteral("text"), fromUtf8(each.brand->name)}};
    }
    return logos;
}

QString BrochureOrderSheetViewController::noBrandAvailableLabel() const {
    if (!carousel_.sheetAt(currentIndex_) ||
        std::ranges::any_of(availableBrands_, &AvailableBrand::isSelected))
        return {};
    return QStringLiteral("Ninguna de las marcas de este comandero está en la carta");
}

} // namespace kavor
