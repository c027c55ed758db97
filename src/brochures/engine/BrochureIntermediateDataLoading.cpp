#include "base/StopProcess.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/engine/TemporalBrochure.h"
#include "shell/AppSingleton.h"

namespace kavor {

namespace {

const Catalogue& catalogue() {
    return AppSingleton::shared().catalogue();
}

// The price column of a number in an order document; every other number is the main one.
PriceType priceTypeOf(Int raw) {
    for (const auto type : {PriceType::terrace, PriceType::table, PriceType::night}) {
        if (static_cast<Int>(type) == raw)
            return type;
    }
    return PriceType::main;
}

std::optional<Int> knownStyle(std::optional<Int> id) {
    return id && catalogue().style(*id) ? id : std::nullopt;
}

template <class Item>
void append(std::vector<Item>& list, const std::optional<std::vector<Item>>& more) {
    if (more)
        list.insert(list.end(), more->begin(), more->end());
}

} // namespace

void BrochureIntermediateData::loadOrder(const SaveBrochuresOrder& order) {
    TemporalBrochure::shared().removeForLoading();
    const auto& menu = order.menu;
    sourceIdentifier = order.sourceIdentifier;
    customerInformation = menu.customer;
    const bool languagesAccepted = setLanguages(menu.language1Id, menu.language2Id);
    loadReferences(menu);
    loadQuantities(order.orderLines, languagesAccepted);
    if (menu.orderType == BrochureType::chalkboard) {
        if (menu.orientation)
            setBlackboardFormat(menu.orientation);
        if (menu.blackboardTypeId)
            setBlackboardType(menu.blackboardTypeId);
    }
    for (std::size_t i = 0; i < menu.beerBrands.size(); ++i) {
        const auto& brand = menu.beerBrands[i];
        if (!brand.brand)
            stopProcess("\"brand\" of an order's brand, menu.items[" + std::to_string(i) + "]");
        loadBrand(*brand.brand, brand, menu.highlightedProductIdentifier);
    }
    if (menu.otherDrinks)
        loadDrinks(*menu.otherDrinks);
    append(promotions, menu.promotions);
    append(productPennant, menu.productPennant);
    orderIdentifier = order.orderIdentifier;
    includeDigitalBrochure = order.includeDigitalBrochure;
    includeDigitalBrochureTmp = order.includeDigitalBrochureTmp;
    printDigitalBrochure = order.printDigitalBrochure;
    printDigitalBrochureTmp = order.printDigitalBrochureTmp;
    includePaperBrochure = order.includePaperBrochure;
    includePaperBrochureTmp = order.includePaperBrochureTmp;
    withPennant = order.withPennant;
    withPennantTmp = order.withPennantTmp;
    // printedMyself is not taken: who prints is asked anew each time.
}

void BrochureIntermediateData::loadReferences(const SaveBrochuresOrder::Menu& menu) {
    selectedStyleIdentifier = knownStyle(menu.style);
    selectedStyleDigitalIdentifier = knownStyle(menu.styleDigital);
    selectedStylePennantIdentifier = knownStyle(menu.stylePennant);
    setOrderSheet(menu.orderSheetIdentifier);
    setPennantBrand(menu.pennantBrandId);
    if (const auto& logos = menu.selectedLogoIdentifiersList; logos && logos->size() == 3)
        setLogos((*logos)[0].id, (*logos)[1].id, (*logos)[2].id, 1, 2, 3);
    selectedBrandQrIdentifier = menu.brandQrId;
    selectedQuantityQr = menu.brandQrTableQuantity;
    selectedQuantityQrCircular = menu.brandQrCircleQuantity;
    selectedQuantityQrTaco = menu.brandQrTacoQuantity;
    if (selectedQuantityQrTaco.value_or(0) >= 1)
        brandQrTypeSelected = 1;
    showQrOtherMenu = menu.showQrOtherMenu.value_or(false);
    withoutPriceBeer = menu.withoutPriceBeer.value_or(false);
    withoutPricePennant = menu.withoutPricePennant.value_or(false);
    selectedFormatVisualizeId = menu.formatVisualizeId;
    selectedWineFormatVisualizeId = menu.wineFormatVisualizeId;
    valuesMenuStyleAttributes = menu.menuStyleAttributes;
}

void BrochureIntermediateData::loadQuantities(const std::vector<SaveBrochuresOrder::OrderLine>& lines,
                                              bool languagesAccepted) {
    std::optional<Int> main;
    std::optional<PriceType> second;
    Int secondary = 0; // present also without a second line
    for (const auto& line : lines) {
        if (line.priceIdentifier == PriceType::main) {
            main = line.quantity;
        } else {
            second = line.priceIdentifier;
            secondary = line.quantity;
        }
    }
    if (second)
        setSecondPrice(second);
    if (main && languagesAccepted)
        selectedNumberOfBrochures = MainAndSecondary{*main, secondary};
}

void BrochureIntermediateData::loadBrand(Int identifier, const BeerBrand& brand,
                                         std::optional<Int> highlighted) {
    for (const auto& beer : brand.beers) {
        if (!beer.id)
            stopProcess("\"product\" of a format of brand " + std::to_string(identifier));
        setFormatSelected(true, *beer.id, identifier);
        setNewProduct(beer.isNew, *beer.id, identifier);
        setVolume(beer.volume, *beer.id, identifier);
        if (highlighted)
            setFormatHighlighted(true, *highlighted, identifier);
        for (const auto& price : beer.prices)
            setPrice(priceTypeOf(price.id), *beer.id, identifier, price.price);
    }
}

void BrochureIntermediateData::loadDrinks(const std::vector<DrinkCategory>& categories) {
    Int nextOwn = -1;
    for (const auto& category : categories) {
        const bool own = category.id.value_or(0) < 1;
        const Int id = own ? nextOwn-- : *category.id;
        if (!own && !catalogue().drink(id))
            continue;
        setBeverageSelected(true,
                            {.identifier = id,
                             .isCategory = true,
                             .name = category.name.value_or(""),
                             .position = category.position,
                             .description = category.description},
                            id);
        for (const auto& element : category.elements)
            loadDrink(element, id);
    }
}

void BrochureIntermediateData::loadDrink(const DrinkCategory::OtherDrink& element, Int category) {
    // A product that left the catalogue stays, without a name, so that the validation tells the user.
    const BeverageIdentifier beverage{.identifier = element.id,
                                      .isCategory = false,
                                      .name = element.id < 1 ? element.name.value_or("") : "",
                                      .position = element.position,
                                      .description = element.description};
    selectedBeverages[category].insert(element.id);
    keepDescription(beverage, category);
    for (const auto& price : element.prices) {
        if (!price.formatName)
            continue;
        setBeverageFormatSelected(true, *price.formatName, element.id, category);
        const auto type = priceTypeOf(price.identifier);
        const bool main = type == PriceType::main;
        if (main || type == currentSecondPrice())
            setBeveragePrice(price.value, !main, *price.formatName, element.id, category);
    }
}

} // namespace kavor
