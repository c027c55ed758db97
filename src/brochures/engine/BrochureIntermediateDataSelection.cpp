#include "base/StopProcess.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/engine/EngineSession.h"

#include <algorithm>

namespace kavor {

namespace {

using engine::catalogue;

bool isKnown(Int brand, Int format) {
    return catalogue().format(brand, format) != nullptr;
}

// The value of a format, or null.
template <class Value>
auto* valueOf(Value& map, Int brand, Int format) {
    using Found = decltype(&map.begin()->second.begin()->second);
    const auto formats = map.find(brand);
    if (formats == map.end())
        return Found(nullptr);
    const auto found = formats->second.find(format);
    return found == formats->second.end() ? Found(nullptr) : &found->second;
}

template <class Map>
void eraseFormat(Map& map, Int brand, Int format) {
    const auto formats = map.find(brand);
    if (formats == map.end())
        return;
    formats->second.erase(format);
    if (formats->second.empty())
        map.erase(formats);
}

void eraseFormat(BrochureIntermediateData::FormatsOfBrands& map, Int brand, Int format) {
    const auto formats = map.find(brand);
    if (formats == map.end())
        return;
    std::erase(formats->second, format);
    if (formats->second.empty())
        map.erase(formats);
}

bool holds(const BrochureIntermediateData::FormatsOfBrands& map, Int brand, Int format) {
    const auto formats = map.find(brand);
    return formats != map.end() && std::ranges::find(formats->second, format) != formats->second.end();
}

SelectionState stateIn(const BrochureIntermediateData::FormatsOfBrands& map, Int brand, Int format) {
    if (!isKnown(brand, format))
        return SelectionState::unknown;
    return holds(map, brand, format) ? SelectionState::selected : SelectionState::notSelected;
}

const Brochures::Type& sectionType() {
    const auto kind = engine::sectionKind();
    if (!kind)
        stopProcess("a brochure section");
    const auto* type = catalogue().brochureType(*kind);
    if (!type)
        stopProcess("brochure type " + std::to_string(static_cast<Int>(*kind)));
    return *type;
}

const Brochures::Type::Parameters& sectionParameters() {
    const auto& type = sectionType();
    if (!type.parameters)
        stopProcess("parameters of brochure type " + std::to_string(static_cast<Int>(type.id)));
    return *type.parameters;
}

// The limits of the list form hold when the kind has several forms and another than the first is chosen.
bool limitsOfList(const Brochures::Type::Parameters& parameters, const BrochureIntermediateData& draft) {
    return parameters.withMenuFormat && draft.selectedFormatVisualizeId != Int(1);
}

} // namespace

bool BrochureIntermediateData::setFormatSelected(bool on, Int format, Int brand) {
    const auto* record = catalogue().format(brand, format);
    if (!record || holds(selectedBrands, brand, format) == on)
        return false;
    if (!on) {
        if (holds(highlightedBrands, brand, format) && !setFormatHighlighted(false, format, brand).success)
            return false;
        if (valueOf(brandPrices, brand, format))
            removeFormat(format, brand);
        return true;
    }
    selectedBrands[brand].push_back(format);
    auto& prices = brandPrices[brand][format];
    netPrices[brand].try_emplace(format, 0.0);
    // The columns are those of the shared draft, not of this one.
    const auto second = temporalBrochure()->currentSecondPrice();
    prices[PriceType::main] = record->price.value_or(0.0);
    if (second)
        prices[*second] = record->price.value_or(0.0);
    brandVolumes[brand][format] = std::nullopt;
    newProducts[brand][format] = false;
    return true;
}

void BrochureIntermediateData::removeFormat(Int format, Int brand) {
    eraseFormat(selectedBrands, brand, format);
    eraseFormat(brandPrices, brand, format);
    eraseFormat(netPrices, brand, format);
    eraseFormat(brandVolumes, brand, format);
    eraseFormat(newProducts, brand, format);
}

SelectionState BrochureIntermediateData::isFormatSelected(Int format, Int brand) const {
    return stateIn(selectedBrands, brand, format);
}

BrochureIntermediateData::HighlightChange BrochureIntermediateData::setFormatHighlighted(bool on, Int format,
                                                                                         Int brand) {
    const auto* record = catalogue().format(brand, format);
    if (!record || !holds(selectedBrands, brand, format))
        return {};
    if (!on) {
        if (!highlightedBrands.contains(brand))
            return {};
        eraseFormat(highlightedBrands, brand, format);
        return {true, std::nullopt, std::nullopt};
    }
    if (!record->isHighlightable)
        return {};
    HighlightChange change{true, std::nullopt, std::nullopt};
    if (!highlightedBrands.empty()) {
        const auto& [previousBrand, formats] = *highlightedBrands.begin();
        change.previousBrand = previousBrand;
        if (!formats.empty())
            change.previousFormat = formats.front();
    }
    highlightedBrands.clear();
    highlightedBrands[brand] = {format};
    return change;
}

SelectionState BrochureIntermediateData::isFormatHighlighted(Int format, Int brand) const {
    return stateIn(highlightedBrands, brand, format);
}

bool BrochureIntermediateData::setPrice(PriceType type, Int format, Int brand, double value) {
    auto* prices = isKnown(brand, format) ? valueOf(brandPrices, brand, format) : nullptr;
    if (!prices)
        return false;
    (*prices)[type] = value;
    return true;
}

std::optional<double> BrochureIntermediateData::priceOf(PriceType type, Int format, Int brand) const {
    const auto* prices = isKnown(brand, format) ? valueOf(brandPrices, brand, format) : nullptr;
    if (!prices || !prices->contains(type))
        return std::nullopt;
    return prices->at(type);
}

bool BrochureIntermediateData::setNetPrice(Int format, Int brand, double value) {
    auto* price = isKnown(brand, format) ? valueOf(netPrices, brand, format) : nullptr;
    if (price)
        *price = value;
    return price != nullptr;
}

std::optional<double> BrochureIntermediateData::netPriceOf(Int format, Int brand) const {
    const auto* price = isKnown(brand, format) ? valueOf(netPrices, brand, format) : nullptr;
    return price ? std::optional(*price) : std::nullopt;
}

bool BrochureIntermediateData::setVolume(std::optional<Int> value, Int format, Int brand) {
    auto* volume = isKnown(brand, format) ? valueOf(brandVolumes, brand, format) : nullptr;
    if (volume)
        *volume = value;
    return volume != nullptr;
}

std::optional<Int> BrochureIntermediateData::volumeOf(Int format, Int brand) const {
    const auto* volume = isKnown(brand, format) ? valueOf(brandVolumes, brand, format) : nullptr;
    return volume ? *volume : std::nullopt;
}

bool BrochureIntermediateData::setNewProduct(bool flag, Int format, Int brand) {
    auto* isNew = isKnown(brand, format) ? valueOf(newProducts, brand, format) : nullptr;
    if (isNew)
        *isNew = flag;
    return isNew != nullptr;
}

std::optional<bool> BrochureIntermediateData::isNewProduct(Int format, Int brand) const {
    const auto* isNew = isKnown(brand, format) ? valueOf(newProducts, brand, format) : nullptr;
    return isNew ? std::optional(*isNew) : std::nullopt;
}

std::vector<const Product*> BrochureIntermediateData::selectedProducts() const {
    std::vector<std::pair<std::size_t, const Product*>> found;
    for (const auto& [brand, formats] : selectedBrands) {
        if (const auto index = catalogue().productIndex(brand))
            found.emplace_back(*index, catalogue().product(brand));
    }
    std::ranges::sort(found);
    std::vector<const Product*> result;
    result.reserve(found.size());
    for (const auto& [index, product] : found)
        result.push_back(product);
    return result;
}

BrochureIntermediateData::FilteredSelection BrochureIntermediateData::filteredSelection() const {
    const auto family = sectionType().applicationFather;
    const auto ofFamily = [family](const auto& map) {
        std::remove_cvref_t<decltype(map)> result;
        for (const auto& entry : map) {
            const auto* product = catalogue().product(entry.first);
            if (!product || product->applicationFather == family)
                result.insert(result.end(), entry);
        }
        return result;
    };
    return {ofFamily(selectedBrands), ofFamily(brandPrices), ofFamily(highlightedBrands)};
}

Int BrochureIntermediateData::minimumBrands(Int defaultValue) const {
    const auto& parameters = sectionParameters();
    const bool list = limitsOfList(parameters, *this);
    return (list ? parameters.minBrandListSelection : parameters.minBrandSelection).value_or(defaultValue);
}

Int BrochureIntermediateData::maximumBrands(Int defaultValue) const {
    const auto& parameters = sectionParameters();
    const bool list = limitsOfList(parameters, *this);
    return (list ? parameters.maxBrandListSelection : parameters.maxBrandSelection).value_or(defaultValue);
}

} // namespace kavor
