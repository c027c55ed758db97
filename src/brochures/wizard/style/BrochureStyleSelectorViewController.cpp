#include "brochures/wizard/style/BrochureStyleSelectorViewController.h"

#include "base/StopProcess.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/wizard/StepSupport.h"
#include "screens/ResourceImages.h"
#include "session/AppSingleton.h"

namespace kavor {

BrochureStyleSelectorViewController::BrochureStyleSelectorViewController(const WizardStepContext& context,
                                                                         QObject* parent)
    : WizardStepViewController(parent)
    , context_{context.catalogue, context.draft, context.type, AppSingleton::shared().isSectionDigital}
    , attributeTable_(context.services.photos, nullptr) {
    bannerObserver_ = NotificationCenter::shared().observe(
        notification::showPreferredBrandsBanner, [this](const auto&) { showPreferredBrandsBanner(); });
    connect(&logos_, &StyleLogosForm::edited, this, &BrochureStyleSelectorViewController::saveDraft);
    connect(&quantities_, &BrochureQuantityForm::edited, this,
            &BrochureStyleSelectorViewController::saveDraft);
    connect(&brandQr_, &BrandQrForm::edited, this, &BrochureStyleSelectorViewController::saveDraft);
    connect(&attributeTable_, &StyleAttributesModel::edited, this,
            &BrochureStyleSelectorViewController::saveDraft);
}

BrochureStyleSelectorViewController::~BrochureStyleSelectorViewController() = default;

QUrl BrochureStyleSelectorViewController::view() const {
    return stepView(QStringLiteral("BrochureStyleSelectorView.qml"));
}

void BrochureStyleSelectorViewController::viewDidLoad() {
    if (!context_.type)
        stopProcess("brochure section of the style step");
}

void BrochureStyleSelectorViewController::viewWillAppear() {
    readStyles();
    quantities_.appear(context_);
    brandQr_.appear(context_);
    const BrochureIntermediateData& draft = *context_.draft;
    const int selected =
        brochureStyles_.indexOf(context_.isSectionStyleDigital ? draft.selectedStyleDigitalIdentifier
                                                               : draft.selectedStyleIdentifier);
    // The style in the middle of the carousel is the chosen one, also before anyone moved it.
    selectStyle(std::max(selected, 0));
    saveDraft();
}

void BrochureStyleSelectorViewController::readStyles() {
    const BrochureIntermediateData& draft = *context_.draft;
    std::optional<Int> formatType;
    if (draft.selectedFormatIdentifier) {
        if (const auto* format = context_.catalogue->blackboardFormat(*draft.selectedFormatIdentifier))
            formatType = format->typeId;
    }
    std::set<Int> brands;
    for (const auto& [brand, formats] : draft.selectedBrands)
        brands.insert(brand);
    brochureStyles_.setStyles(context_.catalogue->brochures().styles, context_.type->id, formatType, brands);
}

void BrochureStyleSelectorViewController::selectStyle(int index) {
    currentStyle_ = index;
    const Brochures::Style* style = brochureStyles_.styleAt(index);
    BrochureIntermediateData& draft = *context_.draft;
    if (style && context_.isSectionStyleDigital) {
        draft.selectedStyleDigitalIdentifier = style->id;
    } else if (style && draft.selectedStyleIdentifier != style->id) {
        draft.selectedStyleIdentifier = style->id;
        draft.selectedLogoIdentifiers.reset();
    }
    logos_.setStyle(context_, style);
    attributeTable_.setStyle(context_, style);
    emit currentStyleChanged();
}

void BrochureStyleSelectorViewController::carouselCurrentItemIndexDidChange(int index) {
    if (index == currentStyle_ || !brochureStyles_.styleAt(index))
        return;
    selectStyle(index);
    saveDraft();
}

void BrochureStyleSelectorViewController::saveDraft() {
    autosave(context_.draft);
}

void BrochureStyleSelectorViewController::serializeAutoSave() {
    quantities_.serialize();
    logos_.serialize();
    brandQr_.serialize();
    attributeTable_.serialize();
}

void BrochureStyleSelectorViewController::flipStyleButtonAction() {
    brochureStyles_.flip(currentStyle_);
}

void BrochureStyleSelectorViewController::showZoom(TypeZooms zoom) {
    closeZoom();
    if (zoom == TypeZooms::zoomStyleQr) {
        zoom_ = new StyleSelectorOrderSheet(brandQr_.brandQrTypes().value(brandQr_.brandQrTypePicker()),
                                            brandQr_.images(), brandQr_.currentBrand(), this);
    } else if (const Brochures::Style* style = brochureStyles_.styleAt(currentStyle_)) {
        zoom_ = new StyleSelectorOrderSheet(
            fromUtf8(style->name),
            {resourceImageUrl(style->firstImage), resourceImageUrl(style->secondImage)},
            brochureStyles_.isCover(currentStyle_) ? 0 : 1, this);
    }
    emit zoomChanged();
}

void BrochureStyleSelectorViewController::closeZoom() {
    if (!zoom_)
        return;
    zoom_->deleteLater();
    zoom_ = nullptr;
    emit zoomChanged();
}

void BrochureStyleSelectorViewController::showPreferredBrandsBanner() {
    if (bannerVisible_ || !brochureStyles_.hasPreferred())
        return;
    bannerVisible_ = true;
    emit bannerChanged();
}

void BrochureStyleSelectorViewController::bannerCloseAction() {
    bannerVisible_ = false;
    emit bannerChanged();
    NotificationCenter::shared().post(notification::preferredBrandsBannerClosed);
}

QString BrochureStyleSelectorViewController::currentStyleName() const {
    const Brochures::Style* style = brochureStyles_.styleAt(currentStyle_);
    return style ? fromUtf8(style->name) : QString();
}

QString BrochureStyleSelectorViewController::selectedAndTotalNumberOfStylesLabel() const {
    return brochureStyles_.count() == 0
               ? QString()
               : QStringLiteral("%1 / %2").arg(currentStyle_ + 1).arg(brochureStyles_.count());
}

QString BrochureStyleSelectorViewController::emptyMessage() const {
    if (brochureStyles_.count() > 0)
        return {};
    if (context_.type && context_.type->id == BrochureType::chalkboard &&
        !context_.draft->selectedFormatIdentifier)
        return QStringLiteral("Debes elegir un formato para la pizarra en configuración.");
    return QStringLiteral("No hay estilos para este tipo de carta.");
}

} // namespace kavor
