#include "brochures/wizard/products/NewBrandForm.h"

#include "brochures/wizard/StepSupport.h"

#include <algorithm>

namespace kavor {

namespace {

const QString unselectedString = QStringLiteral("Sin seleccionar");

} // namespace

std::optional<Int> NewBrandForm::Vocabulary::chosen(int row) const {
    return row > 0 && row <= int(ids.size()) ? std::optional(ids[std::size_t(row) - 1]) : std::nullopt;
}

template <class Record>
NewBrandForm::Vocabulary NewBrandForm::vocabularyOf(const std::vector<Record>& records) const {
    std::vector<const Record*> offered;
    for (const Record& record : records) {
        if (record.applicationFather == family_)
            offered.push_back(&record);
    }
    std::ranges::stable_sort(offered, {}, &Record::position);
    Vocabulary result{{unselectedString}, {}};
    for (const Record* record : offered) {
        result.names << fromUtf8(record->name);
        result.ids.push_back(record->id);
    }
    return result;
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
    return typologies_.chosen(typology_) && tastes_.chosen(taste_) && segments_.chosen(segment_) &&
           !name().empty();
}

OwnBrand NewBrandForm::ownBrand() const {
    const std::string description = description_.trimmed().toStdString();
    return {family_,
            name(),
            description.empty() ? std::nullopt : std::optional(description),
            segments_.chosen(segment_),
            typologies_.chosen(typology_),
            tastes_.chosen(taste_),
            subTypologies_.chosen(subTypology_),
            ages_.chosen(age_)};
}

void NewBrandForm::clear() {
    typology_ = taste_ = subTypology_ = age_ = segment_ = 0;
    name_.clear();
    description_.clear();
    emit changed();
}

} // namespace kavor
