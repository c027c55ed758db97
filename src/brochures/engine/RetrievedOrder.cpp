#include "brochures/engine/RetrievedOrder.h"

#include "base/StopProcess.h"

namespace kavor {

namespace {

using Answer = RetrieveBrochureOrderListResponse::Order;
using Menu = SaveBrochuresOrder::Menu;

Menu::BeerBrand beerBrandOf(const Answer::Beer::Brand& brand) {
    if (!brand.category)
        stopProcess("category of the retrieved brand " + std::to_string(brand.id));
    const auto& category = *brand.category;
    Menu::BeerBrand result{brand.id,
                           category.segmentId,
                           category.typologyId,
                           category.tasteId,
                           category.subTypologyId,
                           category.ageId,
                           brand.name,
                           brand.description.value_or(""),
                           {}};
    for (const auto& product : brand.products) {
        auto& beer = result.beers.emplace_back();
        beer.id = product.id;
        beer.productType = product.typeId;
        beer.volume = product.volume;
        for (const auto& price : product.prices)
            beer.prices.push_back({static_cast<Int>(price.id), price.price});
    }
    return result;
}

Menu::OtherDrinkCategory drinkCategoryOf(const Answer::Drink& drink) {
    Menu::OtherDrinkCategory result{drink.id, drink.name, drink.position, drink.description, {}};
    for (const auto& product : drink.otherProducts) {
        auto& element = result.elements.emplace_back();
        element.id = product.id;
        element.name = product.name;
        element.position = product.position;
        element.description = product.description;
        for (const auto& price : product.prices)
            element.prices.push_back({static_cast<Int>(price.id), price.price, price.formatName});
    }
    return result;
}

// The answer's visualize formats and style attributes are dropped on purpose.
Menu menuOf(const Answer& answer) {
    const auto& beer = answer.beerList;
    Menu menu;
    menu.orderType = answer.typeId;
    menu.style = beer.styleId;
    menu.styleDigital = beer.styleDigitalId;
    menu.stylePennant = beer.stylePennantId;
    menu.orderSheetIdentifier = beer.orderSheetId;
    menu.pennantBrandId = beer.pennantBrandId;
    menu.highlightedProductIdentifier = beer.productFeaturedId;
    menu.orientation = beer.blackboard_format_id;
    menu.blackboardTypeId = beer.blackboard_type_id;
    menu.language1Id = beer.language1Id;
    menu.language2Id = beer.language2Id;
    auto& logos = menu.selectedLogoIdentifiersList.emplace();
    for (const auto& logo : beer.menuStyleLogos)
        logos.push_back({logo.id, logo.position});
    for (const auto& brand : beer.brands)
        menu.beerBrands.push_back(beerBrandOf(brand));
    menu.productPennant = beer.productPennant;
    if (answer.drinkList) {
        auto& drinks = menu.otherDrinks.emplace();
        for (const auto& drink : *answer.drinkList)
            drinks.push_back(drinkCategoryOf(drink));
    }
    menu.promotions = beer.promotions;
    menu.brandQrId = beer.brandQrId;
    menu.brandQrTableQuantity = beer.brandQrTableQuantity;
    menu.brandQrCircleQuantity = beer.brandQrCircleQuantity;
    menu.brandQrTacoQuantity = beer.brandQrTacoQuantity;
    menu.showQrOtherMenu = beer.showQrOtherMenu;
    menu.withoutPriceBeer = beer.withoutPriceBeer;
    menu.withoutPricePennant = beer.withoutPricePennant;
    return menu;
}

} // namespace

SaveBrochuresOrder orderOf(Int rowIdentifier, const RetrieveBrochureOrderListResponse& answer) {
    const auto& source = answer.orderInformation;
    SaveBrochuresOrder order;
    order.sourceIdentifier = rowIdentifier;
    order.save = OrderRequestType::sendToPrint;
    for (const auto& line : source.orderLineList)
        order.orderLines.push_back({line.priceId, line.quantity});
    order.menu = menuOf(source);
    order.menu.customer = answer.customerInformation;
    order.filename = source.filename;
    order.orderIdentifier = source.id;
    order.includeDigitalBrochure = source.includeDigitalBrochure;
    order.includeDigitalBrochureTmp = source.includeDigitalBrochure;
    order.printDigitalBrochure = source.printDigitalBrochure;
    // These two are crossed on purpose, as long as the server expects it so.
    order.printDigitalBrochureTmp = source.withPennant;
    order.includePaperBrochure = source.printDigitalBrochure;
    order.includePaperBrochureTmp = source.includePaperBrochure;
    order.withPennant = source.withPennant;
    order.withPennantTmp = true; // the answer has no such value
    order.printedMyself = source.printedMyself;
    return order;
}

} // namespace kavor
