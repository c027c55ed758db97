#include "RoundTrip.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/engine/RetrievedOrder.h"
#include "session/AppSingleton.h"
#include "support/CatalogueBuilder.h"

#include <algorithm>

namespace kavor::fuzz {

namespace {

// A brand without its number, or a format without its own, stops the client on purpose.
bool isComplete(const SaveBrochuresOrder& order) {
    return std::ranges::all_of(order.menu.beerBrands, [](const auto& brand) {
        return brand.brand &&
               std::ranges::all_of(brand.beers, [](const auto& beer) { return beer.id.has_value(); });
    });
}

SaveBrochuresOrder rebuilt(const SaveBrochuresOrder& order) {
    AppSingleton::shared().actualSection = SectionIdentifier::brochure(order.menu.orderType);
    const auto& draft = BrochureIntermediateData::replaceTemporalBrochure();
    draft->loadOrder(order);
    draft->fileName = order.filename;
    // The rules must stand any draft.
    draft->brochureTypeParameters =
        AppSingleton::shared().catalogue().brochureType(order.menu.orderType)->parameters;
    static_cast<void>(draft->validationErrors());
    static_cast<void>(draft->priceWarnings());
    return draft->makeOrder(OrderRequestType::saveCloud, false);
}

std::string textOf(const auto& record) {
    return json::encodePretty(record).value_or("nothing");
}

// Categories of the user's own take new numbers, and with them another place, each time they are loaded.
std::string comparable(SaveBrochuresOrder order) {
    std::vector<std::string> drinks;
    for (auto& category : order.menu.otherDrinks.value()) {
        SaveBrochuresOrder alone;
        if (category.id && *category.id < 1)
            category.id.reset();
        alone.menu.otherDrinks = {category};
        drinks.push_back(textOf(alone));
    }
    order.menu.otherDrinks.reset();
    std::ranges::sort(drinks);
    std::string text = textOf(order);
    for (const auto& each : drinks)
        text += each;
    return text;
}

} // namespace

bool brochureOrder(std::string_view document) {
    static_cast<void>(roundTrip<KeptOrder>(document));
    const auto order = roundTrip<SaveBrochuresOrder>(document);
    if (!order || !isComplete(*order))
        return order.has_value();
    static const auto catalogue = CatalogueBuilder().take();
    AppSingleton::shared().applicationInformation = catalogue; // own brands of the last order grew it
    auto first = rebuilt(*order);
    // Without a first language no copies are written, and with their line the second price is lost.
    if (BrochureIntermediateData::temporalBrochure()->currentSecondPrice() && first.orderLines.size() == 1)
        first = rebuilt(first);
    const auto second = rebuilt(first);
    if (comparable(first) != comparable(second))
        fail("an order that was made is loaded and made again the same:\n" + comparable(first) + "\n" +
             comparable(second));
    return true;
}

bool retrieveAnswer(std::string_view document) {
    const auto answer = roundTrip<RetrieveBrochureOrderListResponse>(document);
    if (!answer)
        return false;
    const auto& brands = answer->orderInformation.beerList.brands;
    if (!std::ranges::all_of(brands, [](const auto& brand) { return brand.category.has_value(); }))
        return true; // stops the client on purpose
    auto order = orderOf(7, *answer);
    const auto read = json::decode<SaveBrochuresOrder>(textOf(order));
    order.printedMyself = false; // never read back
    if (!read || *read != order)
        fail("a converted answer is written and read the same");
    return true;
}

} // namespace kavor::fuzz
