#include "brochures/engine/DraftContent.h"

#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/engine/EngineSession.h"

#include <algorithm>
#include <array>

namespace kavor {

namespace {

using Draft = BrochureIntermediateData;

using engine::catalogue;

const Brochures::Type* sectionType() {
    const auto kind = engine::sectionKind();
    return kind ? catalogue().brochureType(*kind) : nullptr;
}

bool holdsCustomer(const std::optional<Customer>& customer) {
    if (!customer)
        return false;
    const std::array texts{&customer->email,           &customer->telephone,     &customer->contact,
                           &customer->localPhone,      &customer->url,           &customer->facebook,
                           &customer->twitter,         &customer->instagram,     &customer->freeText1,
                           &customer->freeText2,       &customer->freeText3,     &customer->tevo,
                           &customer->placePostalCode, &customer->placeLocality, &customer->placeProvinceName,
                           &customer->imageLogo};
    return !customer->name.empty() ||
           std::ranges::any_of(texts, [](const auto* text) { return *text && !(*text)->empty(); });
}

// The style that the style step proposes: the first of the kind, on a chalkboard of the format chosen.
const Brochures::Style* proposedStyle(const Draft& draft) {
    const auto* type = sectionType();
    const auto* board = draft.currentBlackboardFormat();
    const Brochures::Style* first = nullptr;
    for (const Brochures::Style& style : catalogue().brochures().styles) {
        const bool fits = type && style.typeId == Int(type->id) &&
                          (type->id != BrochureType::chalkboard ||
                           (board && style.blackboardFormatTypeId == board->typeId));
        if (fits && (!first || style.position < first->position))
            first = &style;
    }
    return first;
}

bool holdsStyle(const Draft& draft) {
    const auto* proposed = proposedStyle(draft);
    const auto chosen = [proposed](std::optional<Int> style) {
        return style && (!proposed || *style != proposed->id);
    };
    return chosen(draft.selectedStyleIdentifier) || chosen(draft.selectedStyleDigitalIdentifier) ||
           draft.selectedStylePennantIdentifier;
}

// Whether the logos of the cover differ from those that the style step puts there, the style's first ones.
bool holdsLogos(const Draft& draft) {
    const auto logos = draft.currentLogos();
    if (!logos)
        return false;
    std::vector<Int> offered;
    std::ranges::copy_if(draft.currentStyle()->logotypeIdentifiers, std::back_inserter(offered),
                         [](Int id) { return catalogue().logo(id) != nullptr; });
    const std::array chosen{logos->firstIdentifier, logos->secondIdentifier, logos->thirdIdentifier};
    for (std::size_t i = 0; i < chosen.size(); ++i) {
        if (!offered.empty() && chosen[i] != offered[std::min(i, offered.size() - 1)])
            return true;
    }
    return false;
}

// A quantity counts when it is not what its picker starts with; without a picker it was typed.
bool holdsQuantity(std::optional<Int> quantity, const std::vector<Int>& offered) {
    return quantity && *quantity > 0 && (offered.empty() || *quantity != offered.front());
}

bool holdsQuantities(const Draft& draft) {
    const auto* type = sectionType();
    const auto& range = type && type->parameters ? type->parameters->rangeOrderQuantity : std::vector<Int>();
    const Validations& lists = catalogue().information().validations;
    const auto& printed = draft.selectedNumberOfBrochures;
    return (printed && (holdsQuantity(printed->main, range) || holdsQuantity(printed->secondary, range))) ||
           holdsQuantity(draft.selectedQuantityQr, lists.lstMenuQrTableQuantity) ||
           holdsQuantity(draft.selectedQuantityQrCircular, lists.lstMenuQrDoorQuantity) ||
           holdsQuantity(draft.selectedQuantityQrTaco, lists.lstMenuQrTacoQuantity) ||
           draft.brandQrTypeSelected == 1;
}

bool holdsChalkboard(const Draft& draft) {
    const auto* type = draft.currentBlackboardType();
    return draft.selectedFormatIdentifier || (type && !type->isDefault);
}

bool holdsProducts(const Draft& draft) {
    return !draft.selectedBrands.empty() || !draft.selectedBeverages.empty() ||
           !draft.selectedBrandSecondary.empty() || !draft.promotions.empty() ||
           !draft.productPennant.empty() || draft.selectedOrderSheetIdentifier ||
           draft.selectedPennantBrandIdentifier;
}

// The switches by their working values: the plain ones also follow what a kind can't do.
bool holdsChoices(const Draft& draft) {
    return draft.selectedLanguageIdentifiers || draft.selectedSecondPriceIdentifier ||
           draft.selectedFormatVisualizeId || draft.selectedWineFormatVisualizeId ||
           (draft.valuesMenuStyleAttributes && !draft.valuesMenuStyleAttributes->empty()) ||
           !draft.includePaperBrochureTmp || !draft.includeDigitalBrochureTmp ||
           !draft.printDigitalBrochureTmp || !draft.withPennantTmp || draft.showQrOtherMenu ||
           draft.withoutPriceBeer || draft.withoutPricePennant;
}

} // namespace

bool holdsWork(const Draft& draft) {
    // An order that has a file or a number was kept by the user.
    return !draft.fileName.value_or("").empty() || draft.orderIdentifier || draft.sourceIdentifier ||
           holdsCustomer(draft.customerInformation) || !draft.supportComment.value_or("").empty() ||
           holdsProducts(draft) || holdsChoices(draft) || holdsChalkboard(draft) || holdsStyle(draft) ||
           holdsLogos(draft) || holdsQuantities(draft);
}

} // namespace kavor
