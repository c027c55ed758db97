#include "catalogue/OwnBrand.h"

#include "base/Text.h"

#include <algorithm>
#include <limits>

namespace kavor {

namespace {

std::optional<HashedResource> imageOf(const OwnBrand& brand, const Brochures::ProductType& type) {
    for (const auto& image : type.imageTastes.value_or(std::vector<Brochures::ProductType::TasteImage>())) {
        if (image.segmentId == brand.segment && (!image.tasteId || image.tasteId == brand.taste))
            return image.image;
    }
    return type.image;
}

Product::ProductFormat formatOf(const OwnBrand& brand, const Brochures::ProductType& type, Int id) {
    // Negative like its brand and of that brand alone, so that it never passes for a format of the catalogue.
    constexpr Int formatsPerBrand = 1'000'000;
    Product::ProductFormat format;
    format.id = id * formatsPerBrand - type.id;
    format.typeId = type.id;
    format.factorCorrection = type.factorCorrection.value_or(1.0);
    format.icon = type.name;
    format.image = imageOf(brand, type);
    format.imageThumb = type.imageThumb;
    format.position = type.position;
    format.showOnBrochures = true;
    format.priceMaximumAvise = std::numeric_limits<double>::max(); // nobody knows what would be too dear
    return format;
}

// The record of the family with this id, or null.
template <class Record>
const Record* find(const std::vector<Record>& records, std::optional<Int> id, ApplicationFather family) {
    const auto found = std::ranges::find_if(
        records, [&](const Record& record) { return record.id == id && record.applicationFather == family; });
    return found == records.end() ? nullptr : &*found;
}

} // namespace

bool OwnBrand::is(const Product& product) {
    return product.id < 0 && product.category && product.category->propertyId == property;
}

OwnBrand OwnBrand::of(const Product& product) {
    const auto category = product.category.value_or(Product::Category());
    const bool described = product.description && !product.description->empty();
    return {product.applicationFather, product.name,        described ? product.description : std::nullopt,
            category.segmentId,        category.typologyId, category.tasteId,
            category.subTypologyId,    category.ageId};
}

Product OwnBrand::product(const Brochures& brochures, Int id) const {
    Product product;
    product.id = id;
    product.applicationFather = family;
    product.name = name;
    product.nameSanitice = text::sanitised(name);
    product.description = description;
    product.isSecondary = true;
    auto& category = product.category.emplace(Product::Category());
    category.propertyId = property;
    if (const auto* found = find(brochures.brandTypologies, typology, family))
        category.categoryLabel = found->name;
    category.segmentId = segment;
    category.typologyId = typology;
    category.subTypologyId = subTypology;
    category.tasteId = taste;
    category.ageId = age;
    if (const auto* found = find(brochures.brandSegments, segment, family))
        product.image = found->segmentImage;
    for (const Brochures::ProductType& type : brochures.productTypes) {
        if (type.applicationFather == family)
            product.productList.push_back(formatOf(*this, type, id));
    }
    std::ranges::stable_sort(product.productList, {}, &Product::ProductFormat::position);
    return product;
}

} // namespace kavor
