#include "brochures/wizard/NewBrandForm.h"

#include "base/Text.h"
#include "brochures/wizard/StepSupport.h"

#include <algorithm>
#include <limits>

namespace kavor {

namespace {

constexpr Int addedByHandProperty = 4;

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

std::optional<HashedResource> NewBrandForm::imageOf(const Brochures::ProductType& type) const {
    const auto segment = segments_.chosen(segment_);
    const auto taste = tastes_.chosen(taste_);
    for (const auto& image : type.imageTastes.value_or(std::vector<Brochures::ProductType::TasteImage>())) {
        if (image.segmentId == segment && (!image.tasteId || image.tasteId == taste))
            return image.image;
    }
    return type.image;
}

Product::ProductFormat NewBrandForm::makeFormat(const Brochures::ProductType& type, Int brand) const {
    // Negative like its brand and of that brand alone, so that it never passes for a format of the catalogue.
    constexpr Int formatsPerBrand = 1'000'000;
    Product::ProductFormat format;
    format.id = brand * formatsPerBrand - type.id;
    format.typeId = type.id;
    format.factorCorrection = type.factorCorrection.value_or(1.0);
    format.icon = type.name;
    format.image = imageOf(type);
    format.imageThumb = type.imageThumb;
    format.position = type.position;
    format.showOnBrochures = true;
    format.priceMaximumAvise = std::numeric_limits<double>::max(); // nobody knows what would be too dear
    return format;
}

Product NewBrandForm::makeProduct(Int id) const {
    const Brochures& brochures = catalogue_->brochures();
    Product product;
    product.id = id;
    product.applicationFather = family_;
    product.name = name();
    product.nameSanitice = text::sanitised(product.name);
    if (const std::string description = description_.trimmed().toStdString(); !description.empty())
        product.description = description;
    product.isSecondary = true;
    product.category = Product::Category();
    product.category->propertyId = addedByHandProperty;
    product.category->categoryLabel = typologies_.names.value(typology_).toStdString();
    product.category->segmentId = segments_.chosen(segment_);
    product.category->typologyId = typologies_.chosen(typology_);
    product.category->subTypologyId = subTypologies_.chosen(subTypology_);
    product.category->tasteId = tastes_.chosen(taste_);
    product.category->ageId = ages_.chosen(age_);
    const auto segment = std::ranges::find(brochures.brandSegments, product.category->segmentId,
                                           [](const auto& record) { return std::optional(record.id); });
    if (segment != brochures.brandSegments.end())
        product.image = segment->segmentImage;
    for (const Brochures::ProductType& type : brochures.productTypes) {
        if (type.applicationFather == family_)
            product.productList.push_back(makeFormat(type, id));
    }
    std::ranges::stable_sort(product.productList, {}, &Product::ProductFormat::position);
    return product;
}

void NewBrandForm::clear() {
    typology_ = taste_ = subTypology_ = age_ = segment_ = 0;
    name_.clear();
    description_.clear();
    emit changed();
}

} // namespace kavor
