#include "brochures/wizard/pennantbrand/PennantBrandViewController.h"

#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/wizard/StepSupport.h"
#include "screens/ResourceImages.h"

#include <algorithm>
#include <utility>

namespace kavor {

PennantBrandViewController::PennantBrandViewController(const WizardStepContext& context, QObject* parent)
    : WizardStepViewController(parent)
    , context_(context) {
    connect(&detailedCarousel_, &CoverGallery::chosen, this, [this] {
        serializeAutoSave();
        autosave(context_.draft);
        emit changed();
    });
}

QUrl PennantBrandViewController::view() const {
    return stepView(QStringLiteral("PennantBrandView.qml"));
}

void PennantBrandViewController::viewDidLoad() {
    for (const Brochures::PennantBrand& each : context_.catalogue->brochures().pennantBrands)
        pennantStyles_.push_back(&each);
    std::ranges::stable_sort(pennantStyles_, {}, &Brochures::PennantBrand::position);
}

bool PennantBrandViewController::isSelected(Int brand) const {
    return context_.draft->selectedBrands.contains(brand);
}

// The one in the middle is the chosen one, also before anyone moved it.
void PennantBrandViewController::viewWillAppear() {
    pennantStylesFilter_.clear();
    std::vector<Cover> covers;
    for (const Brochures::PennantBrand* each : pennantStyles_) {
        if (!std::ranges::any_of(each->brands, [this](Int brand) { return isSelected(brand); }))
            continue;
        pennantStylesFilter_.push_back(each);
        covers.push_back({each->id, fromUtf8(each->name), resourceImageUrl(each->imageSample),
                          resourceImageUrl(each->imageThumb), resourceImageUrl(each->imageThumb)});
    }
    detailedCarousel_.setCovers(std::move(covers));
    detailedCarousel_.select(
        std::max(detailedCarousel_.covers()->indexOf(context_.draft->selectedPennantBrandIdentifier), 0));
    serializeAutoSave();
    autosave(context_.draft);
    emit changed();
}

void PennantBrandViewController::serializeAutoSave() {
    const Brochures::PennantBrand* chosen = pennant();
    context_.draft->setPennantBrand(chosen ? std::optional(chosen->id) : std::nullopt);
}

const Brochures::PennantBrand* PennantBrandViewController::pennant() const {
    const auto index = std::size_t(detailedCarousel_.current());
    return index < pennantStylesFilter_.size() ? pennantStylesFilter_[index] : nullptr;
}

QString PennantBrandViewController::infoPennantBrandLabel() const {
    return pennant() ? fromUtf8(pennant()->name) : QString();
}

QString PennantBrandViewController::helpTextPennantLabel() const {
    return pennant() ? fromUtf8(pennant()->helpText) : QString();
}

QString PennantBrandViewController::imageBrand() const {
    return pennant() ? resourceImageUrl(pennant()->imageBrand) : QString();
}

QVariantList PennantBrandViewController::brandLogosCollection() const {
    QVariantList brands;
    for (const Int id : pennant() ? pennant()->brands : std::vector<Int>()) {
        if (const Product* brand = context_.catalogue->product(id))
            brands << QVariantMap{{QStringLiteral("text"), fromUtf8(brand->name)},
                                  {QStringLiteral("available"), isSelected(id)}};
    }
    return brands;
}

} // namespace kavor
