#include "brochures/wizard/style/StyleLogosForm.h"

#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/wizard/StepSupport.h"
#include "screens/ResourceImages.h"

#include <algorithm>

namespace kavor {

void StyleLogosForm::setStyle(const StyleContext& context, const Brochures::Style* style) {
    context_ = context;
    logos_.clear();
    offered_ = PickerRows();
    // The logos belong to the printed cover; the online style neither shows nor clears them.
    if (!context.isSectionStyleDigital) {
        for (const Int id : style ? style->logotypeIdentifiers : std::vector<Int>()) {
            const Brochures::Logo* logo = context.catalogue->logo(id);
            if (!logo)
                continue;
            logos_.push_back(*logo);
            offered_.append(logo->id, fromUtf8(logo->brand));
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
    const int row = offered_.rowOf(logo);
    return row >= 0 ? row : std::min(otherwise, int(logos_.size()) - 1);
}

void StyleLogosForm::choose(int picker, int row) {
    if (picker < 0 || picker > 2 || !offered_.has(row))
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

QStringList StyleLogosForm::chosenImages() const {
    QStringList images;
    for (const int row : rows_) {
        if (offered_.has(row))
            images << resourceImageUrl(logos_[std::size_t(row)].image);
    }
    return images;
}

} // namespace kavor
