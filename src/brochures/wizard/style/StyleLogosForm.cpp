#include "brochures/wizard/style/StyleLogosForm.h"

#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/wizard/StepSupport.h"
#include "screens/ResourceImages.h"

#include <algorithm>

namespace kavor {

void StyleLogosForm::setStyle(const StyleContext& context, const Brochures::Style* style) {
    context_ = context;
    logos_.clear();
    // The logos belong to the printed cover; the online style neither shows nor clears them.
    if (!context.isSectionStyleDigital) {
        for (const Int id : style ? style->logotypeIdentifiers : std::vector<Int>()) {
            if (const Brochures::Logo* logo = context.catalogue->logo(id))
                logos_.push_back(*logo);
        }
        if (logos_.empty())
            context.draft->selectedLogoIdentifiers.reset();
    }
    const auto chosen = context.draft->currentLogos().value_or(BrochureIntermediateData::LogoIdentifiers());
    rows_ = {rowOf(chosen.firstIdentifier, 0), rowOf(chosen.secondIdentifier, 1),
             rowOf(chosen.thirdIdentifier, 2)};
    emit changed();
}

int StyleLogosForm::rowOf(Int logo, int otherwise) const {
    const auto found = std::ranges::find(logos_, logo, &Brochures::Logo::id);
    return found != logos_.end() ? int(found - logos_.begin()) : std::min(otherwise, int(logos_.size()) - 1);
}

void StyleLogosForm::choose(int picker, int row) {
    if (picker < 0 || picker > 2 || row < 0 || row >= int(logos_.size()))
        return;
    rows_[std::size_t(picker)] = row;
    serialize();
    emit changed();
    emit edited();
}

void StyleLogosForm::serialize() {
    if (!isVisible())
        return;
    const auto id = [this](std::size_t picker) { return logos_[std::size_t(rows_[picker])].id; };
    context_.draft->setLogos(id(0), id(1), id(2), 1, 2, 3);
}

QStringList StyleLogosForm::logos() const {
    QStringList names;
    for (const Brochures::Logo& logo : logos_)
        names << fromUtf8(logo.brand);
    return names;
}

QStringList StyleLogosForm::chosenImages() const {
    QStringList images;
    for (const int row : rows_) {
        if (row >= 0 && row < int(logos_.size()))
            images << resourceImageUrl(logos_[std::size_t(row)].image);
    }
    return images;
}

} // namespace kavor
