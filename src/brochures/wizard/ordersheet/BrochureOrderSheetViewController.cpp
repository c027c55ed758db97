#include "brochures/wizard/ordersheet/BrochureOrderSheetViewController.h"

#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/wizard/StepSupport.h"
#include "catalogue/Catalogue.h"
#include "screens/ResourceImages.h"

#include <algorithm>

namespace kavor {

BrochureOrderSheetViewController::BrochureOrderSheetViewController(const WizardStepContext& context,
                                                                   QObject* parent)
    : WizardStepViewController(parent)
    , context_(context) {}

QUrl BrochureOrderSheetViewController::view() const {
    return stepView(QStringLiteral("BrochureOrderSheetView.qml"));
}

void BrochureOrderSheetViewController::viewDidLoad() {
    carousel_.setSheets(context_.catalogue->brochures().orderSheets);
}

void BrochureOrderSheetViewController::viewWillAppear() {
    showEntry(carousel_.indexOf(context_.draft->selectedOrderSheetIdentifier));
}

void BrochureOrderSheetViewController::showEntry(int index) {
    currentIndex_ = index;
    availableBrands_.clear();
    if (const Brochures::OrderSheet* sheet = carousel_.sheetAt(index)) {
        for (const Int brand : sheet->brands) {
            if (const Product* product = context_.catalogue->product(brand))
                availableBrands_.push_back({context_.draft->selectedBrands.contains(brand), product});
        }
    }
    emit changed();
}

void BrochureOrderSheetViewController::carouselCurrentItemIndexDidChange(int index) {
    if (index == currentIndex_ || index < 0 || index >= carousel_.count())
        return;
    showEntry(index);
    serializeAutoSave();
    autosave(context_.draft);
}

void BrochureOrderSheetViewController::serializeAutoSave() {
    const Brochures::OrderSheet* sheet = carousel_.sheetAt(currentIndex_);
    context_.draft->setOrderSheet(sheet ? std::optional(sheet->id) : std::nullopt);
}

QString BrochureOrderSheetViewController::numberOrderBrochuresToSend() const {
    return carousel_.sheetAt(currentIndex_) ? QStringLiteral("Se enviarán %1 unidades")
                                                  .arg(context_.parameters().numberOfOrderSheetsToSend)
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
