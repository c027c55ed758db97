#include "brochures/engine/BrochureIntermediateData.h"

#include "base/BackgroundFileWriter.h"
#include "base/Log.h"
#include "base/StopProcess.h"
#include "base/json/Table.h"
#include "brochures/engine/EngineSession.h"

#include <algorithm>
#include <array>

namespace kavor {

namespace {

using engine::catalogue;

std::shared_ptr<BrochureIntermediateData>& sharedDraft() {
    static std::shared_ptr<BrochureIntermediateData> draft;
    return draft;
}

// Sets the field when the catalogue has the id; none clears it.
template <class Record>
bool setChecked(std::optional<Int>& field, std::optional<Int> id,
                const Record* (Catalogue::*find)(Int) const) {
    if (id && !(catalogue().*find)(*id))
        return false;
    field = id;
    return true;
}

template <class Record>
const Record* current(const std::optional<Int>& field, const Record* (Catalogue::*find)(Int) const) {
    return field ? (catalogue().*find)(*field) : nullptr;
}

// The number of an own brand is another brand's in the next order.
bool isOfOwnBrand(const BrochureIntermediateData::NetPrices::value_type& brand) {
    return brand.first < 0;
}

} // namespace

BrochureIntermediateData::BrochureIntermediateData() {
    const auto& folder = engine::documentsFolder();
    if (folder.empty())
        return;
    BackgroundFileWriter::shared().flush(folder / state_file::netPrices);
    if (auto stored = state_file::read<NetPrices>(folder, state_file::netPrices))
        netPrices = std::move(*stored);
    std::erase_if(netPrices, isOfOwnBrand);
}

const std::shared_ptr<BrochureIntermediateData>& BrochureIntermediateData::temporalBrochure() {
    auto& draft = sharedDraft();
    if (!draft)
        draft = std::make_shared<BrochureIntermediateData>();
    return draft;
}

const std::shared_ptr<BrochureIntermediateData>& BrochureIntermediateData::replaceTemporalBrochure() {
    return sharedDraft() = std::make_shared<BrochureIntermediateData>();
}

void BrochureIntermediateData::storeNetPrices() const {
    const auto& folder = engine::documentsFolder();
    if (folder.empty())
        return;
    NetPrices kept = netPrices;
    std::erase_if(kept, isOfOwnBrand);
    const auto text = json::encode(kept);
    if (!text) {
        logLine(std::string(state_file::netPrices) + ": " + text.error().text());
        return;
    }
    BackgroundFileWriter::shared().write(folder / state_file::netPrices, *text);
}

bool BrochureIntermediateData::setLanguages(Int main, std::optional<Int> secondary) {
    if (!catalogue().language(main) || (secondary && !catalogue().language(*secondary)))
        return false;
    selectedLanguageIdentifiers = MainAndSecondary{main, secondary};
    return true;
}

std::optional<BrochureIntermediateData::MainAndSecondary> BrochureIntermediateData::currentLanguages() const {
    if (!selectedLanguageIdentifiers)
        return std::nullopt;
    const auto& [main, secondary] = *selectedLanguageIdentifiers;
    const bool known = catalogue().language(main) && (!secondary || catalogue().language(*secondary));
    return known ? selectedLanguageIdentifiers : std::nullopt;
}

const Brochures::Style* BrochureIntermediateData::currentStyle() const {
    return current(selectedStyleIdentifier, &Catalogue::style);
}

const Brochures::Style* BrochureIntermediateData::currentStyleDigital() const {
    return current(selectedStyleDigitalIdentifier, &Catalogue::style);
}

const Brochures::Style* BrochureIntermediateData::currentStylePennant() const {
    return current(selectedStylePennantIdentifier, &Catalogue::style);
}

bool BrochureIntermediateData::setOrderSheet(std::optional<Int> id) {
    return setChecked(selectedOrderSheetIdentifier, id, &Catalogue::orderSheet);
}

const Brochures::OrderSheet* BrochureIntermediateData::currentOrderSheet() const {
    return current(selectedOrderSheetIdentifier, &Catalogue::orderSheet);
}

bool BrochureIntermediateData::setPennantBrand(std::optional<Int> id) {
    return setChecked(selectedPennantBrandIdentifier, id, &Catalogue::pennantBrand);
}

const Brochures::PennantBrand* BrochureIntermediateData::currentPennantBrand() const {
    return current(selectedPennantBrandIdentifier, &Catalogue::pennantBrand);
}

bool BrochureIntermediateData::setBrandQr(std::optional<Int> id) {
    return setChecked(selectedBrandQrIdentifier, id, &Catalogue::brandQr);
}

const Brochures::BrandQr* BrochureIntermediateData::currentBrandQr() const {
    return current(selectedBrandQrIdentifier, &Catalogue::brandQr);
}

bool BrochureIntermediateData::setBlackboardFormat(std::optional<Int> id) {
    return setChecked(selectedFormatIdentifier, id, &Catalogue::blackboardFormat);
}

const Brochures::BlackBoardFormat* BrochureIntermediateData::currentBlackboardFormat() const {
    return current(selectedFormatIdentifier, &Catalogue::blackboardFormat);
}

SelectionState BrochureIntermediateData::isBlackboardFormatSelected(Int id) const {
    if (!catalogue().blackboardFormat(id))
        return SelectionState::unknown;
    return selectedFormatIdentifier == id ? SelectionState::selected : SelectionState::notSelected;
}

bool BrochureIntermediateData::setBlackboardType(std::optional<Int> id) {
    return setChecked(selectedBlackboardTypeIdentifier, id, &Catalogue::blackboardType);
}

const Brochures::BlackBoardType* BrochureIntermediateData::currentBlackboardType() const {
    return current(selectedBlackboardTypeIdentifier, &Catalogue::blackboardType);
}

const Brochures::MenuFormatVisualize* BrochureIntermediateData::currentFormatVisualize() const {
    return current(selectedFormatVisualizeId, &Catalogue::menuFormatVisualize);
}

const Brochures::MenuWineFormatVisualize* BrochureIntermediateData::currentWineFormatVisualize() const {
    return current(selectedWineFormatVisualizeId, &Catalogue::menuWineFormatVisualize);
}

bool BrochureIntermediateData::setSecondPrice(std::optional<PriceType> type) {
    if (type && !catalogue().price(*type))
        return false;
    for (auto& [brand, formats] : brandPrices) {
        for (auto& [format, prices] : formats) {
            if (selectedSecondPriceIdentifier)
                prices.erase(*selectedSecondPriceIdentifier);
            if (!type)
                continue;
            const auto* record = catalogue().format(brand, format);
            if (!record)
                stopProcess("format " + std::to_string(format) + " of brand " + std::to_string(brand));
            prices[*type] = record->price.value_or(0.0);
        }
    }
    selectedSecondPriceIdentifier = type;
    return true;
}

std::optional<PriceType> BrochureIntermediateData::currentSecondPrice() const {
    const bool known = selectedSecondPriceIdentifier && catalogue().price(*selectedSecondPriceIdentifier);
    return known ? selectedSecondPriceIdentifier : std::nullopt;
}

bool BrochureIntermediateData::setLogos(Int first, Int second, Int third, Int firstPosition,
                                        Int secondPosition, Int thirdPosition) {
    const auto* style = currentStyle();
    if (!style)
        return false;
    const auto offered = [style](Int id) {
        return std::ranges::find(style->logotypeIdentifiers, id) != style->logotypeIdentifiers.end();
    };
    if (!std::ranges::all_of(std::array{first, second, third}, offered))
        return false;
    selectedLogoIdentifiers =
        LogoIdentifiers{first, second, third, firstPosition, secondPosition, thirdPosition};
    return true;
}

std::optional<BrochureIntermediateData::LogoIdentifiers> BrochureIntermediateData::currentLogos() const {
    // Whether the style still offers them is the validation's question.
    return currentStyle() ? selectedLogoIdentifiers : std::nullopt;
}

} // namespace kavor
