#include "brochures/wizard/products/NewBrandForm.h"

namespace kavor {

namespace {

const QString unselectedString = QStringLiteral("Sin seleccionar");

} // namespace

template <class Record>
PickerRows NewBrandForm::vocabularyOf(const std::vector<Record>& records) const {
    PickerRows rows(unselectedString);
    rows.appendByPosition(records,
                          [this](const Record& record) { return record.applicationFather == family_; });
    return rows;
}

NewBrandForm::NewBrandForm(std::shared_ptr<const Catalogue> catalogue, ApplicationFather family,
                           QObject* parent)
    : QObject(parent)
    , catalogue_(std::move(catalogue))
    , family_(family) {
    const Brochures& brochures = catalogue_->brochures();
    typologies_ = vocabularyOf(brochures.brandTypologies);
    tastes_ = vocabularyOf(brochures.brandTastes);
    subTypologies_ = vocabularyOf(brochures.brandSubTypologies);
    ages_ = vocabularyOf(brochures.brandAges);
    segments_ = vocabularyOf(brochures.brandSegments);
}

int NewBrandForm::maximumNameLength() const {
    return int(catalogue_->information().validations.productName);
}

int NewBrandForm::maximumDescriptionLength() const {
    return int(catalogue_->information().validations.productDescription);
}

bool NewBrandForm::isComplete() const {
    return typologies_.idAt(typology_) && tastes_.idAt(taste_) && segments_.idAt(segment_) && !name().empty();
}

OwnBrand NewBrandForm::ownBrand() const {
    const std::string description = description_.trimmed().toStdString();
    return {family_,
            name(),
            description.empty() ? std::nullopt : std::optional(description),
            segments_.idAt(segment_),
            typologies_.idAt(typology_),
            tastes_.idAt(taste_),
            subTypologies_.idAt(subTypology_),
            ages_.idAt(age_)};
}

void NewBrandForm::clear() {
    typology_ = taste_ = subTypology_ = age_ = segment_ = 0;
    name_.clear();
    description_.clear();
    emit changed();
}

} // namespace kavor
