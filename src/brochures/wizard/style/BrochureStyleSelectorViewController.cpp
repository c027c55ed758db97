#include "brochures/wizard/style/BrochureStyleSelectorViewController.h"

#include "base/StopProcess.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/wizard/StepSupport.h"
#include "brochures/wizard/StyleCover.h"
#include "session/AppSingleton.h"

#include <algorithm>
#include <utility>

namespace kavor {

BrochureStyleSelectorViewController::BrochureStyleSelectorViewController(const WizardStepContext& context,
                                                                         QObject* parent)
    : WizardStepViewController(parent)
    , context_{context.catalogue, context.draft, context.type, AppSingleton::shared().isSectionDigital}
    , attributeTable_(context.services.photos, nullptr) {
    bannerObserver_ = NotificationCenter::shared().observe(
        notification::showPreferredBrandsBanner, [this](const auto&) { showPreferredBrandsBanner(); });
    connect(&gallery_, &CoverGallery::chosen, this, [this](int index) {
        selectStyle(index);
        saveDraft();
    });
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
        gallery_.covers()->indexOf(context_.isSectionStyleDigital ? draft.selectedStyleDigitalIdentifier
                                                                  : draft.selectedStyleIdentifier);
    // The style in the middle of the carousel is the chosen one, also before anyone moved it.
    gallery_.select(std::max(selected, 0));
    selectStyle(gallery_.current());
    saveDraft();
}

bool BrochureStyleSelectorViewController::isOffered(const Brochures::Style& style) const {
    const BrochureType kind = context_.type->id;
    if (style.typeId != static_cast<Int>(kind))
        return false;
    if (kind != BrochureType::chalkboard)
        return true;
    const auto chosen = context_.draft->selectedFormatIdentifier;
    const auto* format = chosen ? context_.catalogue->blackboardFormat(*chosen) : nullptr;
    return format != nullptr && style.blackboardFormatTypeId == format->typeId;
}

void BrochureStyleSelectorViewController::readStyles() {
    brochureStyles_.clear();
    for (const Brochures::Style& style : context_.catalogue->brochures().styles) {
        if (isOffered(style))
            brochureStyles_.push_back(&style);
    }
    std::ranges::stable_sort(brochureStyles_, {}, &Brochures::Style::position);
    const auto isSelected = [this](Int brand) { return context_.draft->selectedBrands.contains(brand); };
    std::vector<Cover> covers;
    for (const Brochures::Style* style : brochureStyles_)
        covers.push_back(coverOf(*style, std::ranges::any_of(style->preferredBrands, isSelected)));
    gallery_.setCovers(std::move(covers));
}

void BrochureStyleSelectorViewController::selectStyle(int index) {
    const Brochures::Style* style = styleAt(index);
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

void BrochureStyleSelectorViewController::saveDraft() {
    autosave(context_.draft);
}

void BrochureStyleSelectorViewController::serializeAutoSave() {
    quantities_.serialize();
    logos_.serialize();
    brandQr_.serialize();
    attributeTable_.serialize();
}

const Brochures::Style* BrochureStyleSelectorViewController::styleAt(int index) const {
    return index >= 0 && index < int(brochureStyles_.size()) ? brochureStyles_[std::size_t(index)] : nullptr;
}

void BrochureStyleSelectorViewController::zoomStyleQrButtonAction() {
    gallery_.showZoom(brandQr_.brandQrTypes().value(brandQr_.brandQrTypePicker()), brandQr_.images(),
                      brandQr_.currentBrand());
}

void BrochureStyleSelectorViewController::showPreferredBrandsBanner() {
    if (bannerVisible_ || !gallery_.covers()->hasPreferred())
        return;
    bannerVisible_ = true;
    emit bannerChanged();
}

void BrochureStyleSelectorViewController::bannerCloseAction() {
    bannerVisible_ = false;
    emit bannerChanged();
    NotificationCenter::shared().post(notification::preferredBrandsBannerClosed);
}

QString BrochureStyleSelectorViewController::emptyMessage() const {
    if (!brochureStyles_.empty())
        return {};
    if (context_.type && context_.type->id == BrochureType::chalkboard &&
        !context_.draft->selectedFormatIdentifier)
        return QStringLiteral("Debes elegir un formato para la pizarra en configuración.");
    return QStringLiteral("No hay estilos para este tipo de carta.");
}

} // namespace kavor
