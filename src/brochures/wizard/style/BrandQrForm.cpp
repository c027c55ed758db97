#include "brochures/wizard/style/BrandQrForm.h"

#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/wizard/StepSupport.h"
#include "screens/ResourceImages.h"

#include <algorithm>

namespace kavor {

void BrandQrForm::appear(const StyleContext& context) {
    context_ = context;
    const BrochureIntermediateData& draft = *context.draft;
    visible_ = context.isSectionStyleDigital && draft.printDigitalBrochure;
    type_ = draft.brandQrTypeSelected == 1 && context.parameters().withTaco ? 1 : 0;
    for (const Quantity quantity : {Table, Door, Taco})
        rows_[quantity] = rowOf(quantity);
    filteredBrandQrs_.clear();
    if (visible_)
        filterBrands();
    emit changed();
    emit currentBrandChanged();
}

void BrandQrForm::filterBrands() {
    BrochureIntermediateData& draft = *context_.draft;
    std::ranges::copy_if(context_.catalogue->brochures().brandQrs, std::back_inserter(filteredBrandQrs_),
                         [&](const Brochures::BrandQr& brand) {
                             return brand.applicationFather == context_.type->applicationFather &&
                                    draft.selectedBrands.contains(brand.brandId);
                         });
    const auto selected = std::ranges::find(filteredBrandQrs_, draft.selectedBrandQrIdentifier,
                                            [](const auto& brand) { return std::optional(brand.id); });
    currentBrand_ = selected == filteredBrandQrs_.end() ? 0 : int(selected - filteredBrandQrs_.begin());
    // The one in the middle is the chosen one, also before anyone moved the carousel.
    draft.selectedBrandQrIdentifier.reset();
    if (!filteredBrandQrs_.empty())
        draft.setBrandQr(filteredBrandQrs_[std::size_t(currentBrand_)].id);
}

void BrandQrForm::serialize() {
    if (!visible_)
        return;
    BrochureIntermediateData& draft = *context_.draft;
    draft.brandQrTypeSelected = type_;
    // A quantity of blocks is how a stored order tells the blocks from the vinyls, so only one kind is kept.
    const auto table = isWooden() ? std::nullopt : chosen(Table);
    const auto door = isWooden() ? std::nullopt : chosen(Door);
    const auto taco = isWooden() ? chosen(Taco) : std::nullopt;
    draft.selectedQuantityQr = table;
    draft.selectedQuantityQrCircular = door;
    draft.selectedQuantityQrTaco = taco;
}

void BrandQrForm::chooseType(int row) {
    if (row < 0 || row >= brandQrTypes().size() || row == type_)
        return;
    type_ = row;
    serialize();
    for (const Quantity quantity : {Table, Door, Taco}) {
        if (rows_[quantity] < 0 && !stored(quantity)) // what wasn't offered went with the other type
            rows_[quantity] = 0;
    }
    emit changed();
    emit edited();
}

void BrandQrForm::chooseQuantity(int quantity, int row) {
    if (quantity < Table || quantity > Taco || !offered(Quantity(quantity)).has(row))
        return;
    rows_[quantity] = row;
    serialize();
    emit changed();
    emit edited();
}

void BrandQrForm::brandQrCarouselDidChange(int index) {
    if (index < 0 || index >= int(filteredBrandQrs_.size()) || index == currentBrand_)
        return;
    currentBrand_ = index;
    context_.draft->setBrandQr(filteredBrandQrs_[std::size_t(index)].id);
    emit currentBrandChanged();
    emit edited();
}

const std::vector<Int>& BrandQrForm::list(Quantity quantity) const {
    const Validations& validations = context_.catalogue->information().validations;
    switch (quantity) {
    case Table:
        return validations.lstMenuQrTableQuantity;
    case Door:
        return validations.lstMenuQrDoorQuantity;
    case Taco:
        break;
    }
    return validations.lstMenuQrTacoQuantity;
}

PickerRows BrandQrForm::offered(Quantity quantity) const {
    return context_.catalogue ? PickerRows::ofNumbers(list(quantity)) : PickerRows();
}

std::optional<Int> BrandQrForm::stored(Quantity quantity) const {
    const BrochureIntermediateData& draft = *context_.draft;
    switch (quantity) {
    case Table:
        return draft.selectedQuantityQr;
    case Door:
        return draft.selectedQuantityQrCircular;
    case Taco:
        break;
    }
    return draft.selectedQuantityQrTaco;
}

// Without a quantity the picker starts at the first one.
int BrandQrForm::rowOf(Quantity quantity) const {
    const auto value = stored(quantity);
    const int row = offered(quantity).rowOf(value);
    return row >= 0 || value.value_or(0) > 0 ? row : 0;
}

QString BrandQrForm::errorOf(Quantity quantity) const {
    const auto& numbers = list(quantity);
    if (!visible_ || rows_[quantity] >= 0 || numbers.empty())
        return {};
    return notOffered(stored(quantity).value_or(0), numbers);
}

std::optional<Int> BrandQrForm::chosen(Quantity quantity) const {
    if (rows_[quantity] < 0) // what is no longer offered stays until another is chosen
        return stored(quantity);
    return offered(quantity).idAt(rows_[quantity]);
}

QStringList BrandQrForm::brandQrTypes() const {
    QStringList types{QStringLiteral("Vinilos para mesa y puerta")};
    if (context_.type && context_.parameters().withTaco)
        types << QStringLiteral("Tacos de madera");
    return types;
}

QStringList BrandQrForm::images() const {
    QStringList result;
    for (const Brochures::BrandQr& brand : filteredBrandQrs_)
        result << resourceImageUrl(isWooden() ? brand.imageTaco : brand.image);
    return result;
}

QVariantList BrandQrForm::brands() const {
    const QStringList sources = images();
    QVariantList result;
    for (int i = 0; i < sources.size(); ++i)
        result << QVariantMap{{QStringLiteral("source"), sources[i]},
                              {QStringLiteral("text"), fromUtf8(filteredBrandQrs_[std::size_t(i)].name)}};
    return result;
}

} // namespace kavor
