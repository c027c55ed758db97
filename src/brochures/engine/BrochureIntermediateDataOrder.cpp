#include "base/StopProcess.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/engine/DrinkKinds.h"
#include "brochures/engine/EngineSession.h"

namespace kavor {

namespace {

using Draft = BrochureIntermediateData;
using Menu = SaveBrochuresOrder::Menu;
using BeerBrand = Menu::BeerBrand;
using DrinkCategory = Menu::OtherDrinkCategory;
using DrinkPrice = DrinkCategory::OtherDrink::SubItemPrice;

using engine::catalogue;

BrochureType sectionKind() {
    const auto kind = engine::sectionKind();
    if (!kind)
        stopProcess("a brochure section");
    return *kind;
}

// A point of sale that nobody has entered goes out with empty texts.
Customer blankCustomer() {
    Customer customer;
    for (auto* text : {&customer.email, &customer.telephone, &customer.contact, &customer.localPhone,
                       &customer.url, &customer.facebook, &customer.twitter, &customer.instagram,
                       &customer.freeText1, &customer.freeText2, &customer.freeText3, &customer.tevo,
                       &customer.placePostalCode, &customer.placeLocality, &customer.placeProvinceName,
                       &customer.imageLogo, &customer.commentImageLogo})
        *text = "";
    return customer;
}

template <class Record>
std::optional<Int> idOf(const Record* record) {
    return record ? std::optional(record->id) : std::nullopt;
}

std::vector<SaveBrochuresOrder::OrderLine> orderLinesOf(const Draft& draft) {
    Draft::MainAndSecondary quantity;
    if (draft.selectedLanguageIdentifiers && draft.selectedNumberOfBrochures)
        quantity = *draft.selectedNumberOfBrochures;
    std::vector<SaveBrochuresOrder::OrderLine> lines{{PriceType::main, quantity.main}};
    const auto second = draft.currentSecondPrice();
    if (second && quantity.secondary)
        lines.push_back({*second, *quantity.secondary});
    return lines;
}

BeerBrand beerBrandOf(const Draft& draft, Int brand, const Draft::Prices::mapped_type& formats) {
    const auto* product = catalogue().product(brand);
    if (!product)
        stopProcess("brand " + std::to_string(brand));
    if (!product->category)
        stopProcess("category of brand " + std::to_string(brand));
    const auto& category = *product->category;
    BeerBrand result{brand,
                     category.segmentId,
                     category.typologyId,
                     category.tasteId,
                     category.subTypologyId,
                     category.ageId,
                     product->name,
                     product->description,
                     {}};
    result.beers.reserve(formats.size());
    for (const auto& [format, prices] : formats) {
        const auto* record = catalogue().format(brand, format);
        const auto isNew = draft.isNewProduct(format, brand);
        if (!record || !isNew)
            stopProcess("format " + std::to_string(format) + " of brand " + std::to_string(brand));
        auto& beer = result.beers.emplace_back();
        beer.id = format;
        beer.productType = record->typeId;
        beer.isNew = *isNew;
        beer.volume = draft.volumeOf(format, brand);
        beer.prices.reserve(prices.size());
        for (const auto& [type, price] : prices)
            beer.prices.push_back({static_cast<Int>(type), price});
    }
    return result;
}

Draft::BeverageIdentifier mergedBeverage(const Draft& draft, Int category, Int product, bool isCategory,
                                         const std::optional<std::string>& formatName) {
    auto info = draft.beverageInfo(category, product, isCategory, formatName);
    if (!info)
        stopProcess("drink " + std::to_string(product) + " of category " + std::to_string(category));
    return std::move(*info);
}

std::vector<DrinkPrice> drinkPricesOf(const Draft& draft, Int category, Int product) {
    std::vector<DrinkPrice> prices;
    const auto names = draft.selectedProductFormat.find(product);
    if (names == draft.selectedProductFormat.end())
        return prices;
    // The second column is that of the shared draft, not of this one.
    const auto second = Draft::temporalBrochure()->currentSecondPrice();
    for (const auto& name : names->second) {
        const auto info = mergedBeverage(draft, category, product, false, name);
        prices.push_back({static_cast<Int>(PriceType::main), info.price1, name});
        if (second && info.price2)
            prices.push_back({static_cast<Int>(*second), info.price2, name});
    }
    return prices;
}

DrinkCategory drinkCategoryOf(const Draft& draft, Int category, const std::set<Int>& products,
                              OrderRequestType save) {
    const auto info = mergedBeverage(draft, category, 0, true, std::nullopt);
    const bool own = category < 1;
    DrinkCategory result;
    // The server must not see the number of an own category; a file needs it to be read back.
    if (!own || save == OrderRequestType::saveCloud)
        result.id = category;
    if (own)
        result.name = info.name;
    result.position = info.position;
    result.description = info.description;
    for (const Int product : products) {
        const auto drink = mergedBeverage(draft, category, product, false, std::nullopt);
        auto& element = result.elements.emplace_back();
        element.id = product;
        if (product < 1)
            element.name = drink.name;
        element.position = drink.position;
        element.description = drink.description;
        element.prices = drinkPricesOf(draft, category, product);
    }
    return result;
}

std::vector<DrinkCategory> otherDrinksOf(const Draft& draft, BrochureType kind, OrderRequestType save) {
    std::vector<DrinkCategory> result;
    if (!printsDrinks(kind))
        return result;
    const auto& selected = draft.selectedBeverages;
    // The user's own first, from -1 down: loading numbers them anew in the order in which they stand.
    const auto firstOfCatalogue = selected.lower_bound(1);
    for (auto own = firstOfCatalogue; own != selected.begin();) {
        --own;
        result.push_back(drinkCategoryOf(draft, own->first, own->second, save));
    }
    for (auto known = firstOfCatalogue; known != selected.end(); ++known)
        result.push_back(drinkCategoryOf(draft, known->first, known->second, save));
    return result;
}

// One highlighted format reaches the server, whatever the draft holds.
std::optional<Int> highlightedOf(const Draft::FormatsOfBrands& highlighted, BrochureType kind) {
    const auto* type = catalogue().brochureType(kind);
    const bool highlightable = type && type->parameters && type->parameters->isHighlightable;
    if (!highlightable || highlighted.empty() || highlighted.begin()->second.empty())
        return std::nullopt;
    return highlighted.begin()->second.front();
}

} // namespace

SaveBrochuresOrder BrochureIntermediateData::makeOrder(OrderRequestType save, bool validate) const {
    if (validate) {
        if (const auto messages = validationErrors(); !messages.empty())
            stopProcess("an order without messages: " + messages.front());
    }
    SaveBrochuresOrder order;
    order.sourceIdentifier = sourceIdentifier;
    order.save = save;
    order.menu = menuOf(save, validate);
    order.orderLines = orderLinesOf(*this);
    order.filename = fileName;
    order.orderIdentifier = orderIdentifier;
    order.includeDigitalBrochure = includeDigitalBrochure;
    order.printDigitalBrochure = printDigitalBrochure;
    order.includePaperBrochure = includePaperBrochure;
    order.withPennant = withPennant;
    order.includeDigitalBrochureTmp = includeDigitalBrochureTmp;
    order.printDigitalBrochureTmp = printDigitalBrochureTmp;
    order.includePaperBrochureTmp = includePaperBrochureTmp;
    order.withPennantTmp = withPennantTmp;
    order.printedMyself = printedMyself;
    return order;
}

KeptOrder BrochureIntermediateData::keptOrder(OrderRequestType save, bool validate) const {
    KeptOrder order{makeOrder(save, validate)};
    if (!unansweredSends.empty())
        order.unansweredSends = unansweredSends;
    order.outboxFile = outboxFile;
    order.supportComment = supportComment;
    return order;
}

SaveBrochuresOrder::Menu BrochureIntermediateData::menuOf(OrderRequestType save, bool validate) const {
    Menu menu;
    menu.orderType = sectionKind();
    const bool chalkboard = menu.orderType == BrochureType::chalkboard;
    const auto languages = currentLanguages().value_or(MainAndSecondary());
    const auto filtered = validate ? filteredSelection() : FilteredSelection();
    menu.style = idOf(currentStyle());
    menu.styleDigital = idOf(currentStyleDigital());
    menu.stylePennant = idOf(currentStylePennant());
    menu.orderSheetIdentifier = idOf(currentOrderSheet());
    menu.pennantBrandId = idOf(currentPennantBrand());
    menu.formatVisualizeId = idOf(currentFormatVisualize());
    menu.wineFormatVisualizeId = idOf(currentWineFormatVisualize());
    menu.highlightedProductIdentifier =
        highlightedOf(validate ? filtered.highlightedBrands : highlightedBrands, menu.orderType);
    menu.orientation = chalkboard ? selectedFormatIdentifier : std::nullopt;
    menu.blackboardTypeId = chalkboard ? selectedBlackboardTypeIdentifier : std::nullopt;
    menu.language1Id = languages.main;
    menu.language2Id = languages.secondary;
    menu.customer = customerInformation ? *customerInformation : blankCustomer();
    if (const auto& logos = selectedLogoIdentifiers) {
        menu.selectedLogoIdentifiersList = {{logos->firstIdentifier, logos->firstPosition},
                                            {logos->secondIdentifier, logos->secondPosition},
                                            {logos->thirdIdentifier, logos->thirdPosition}};
    }
    const Prices& prices = validate ? filtered.brandPrices : brandPrices;
    menu.beerBrands.reserve(prices.size());
    for (const auto& [brand, formats] : prices)
        menu.beerBrands.push_back(beerBrandOf(*this, brand, formats));
    menu.productPennant = productPennant;
    menu.otherDrinks = otherDrinksOf(*this, menu.orderType, save);
    menu.promotions = promotions;
    menu.brandQrId = idOf(currentBrandQr());
    menu.brandQrTableQuantity = selectedQuantityQr;
    menu.brandQrCircleQuantity = selectedQuantityQrCircular;
    menu.brandQrTacoQuantity = selectedQuantityQrTaco;
    menu.showQrOtherMenu = showQrOtherMenu;
    menu.withoutPriceBeer = withoutPriceBeer;
    menu.withoutPricePennant = withoutPricePennant;
    menu.menuStyleAttributes = valuesMenuStyleAttributes;
    return menu;
}

} // namespace kavor
