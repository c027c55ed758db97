#include "base/StopProcess.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/engine/EngineSession.h"
#include "brochures/engine/OrderToEdit.h"
#include "brochures/engine/TemporalBrochure.h"
#include "catalogue/OwnBrand.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace kavor {

namespace {

using engine::catalogue;

// The price column of a number in an order document; every other number is the main one.
PriceType priceTypeOf(Int raw) {
    return caseOf<PriceType>(raw).value_or(PriceType::main);
}

std::optional<Int> knownStyle(std::optional<Int> id) {
    return id && catalogue().style(*id) ? id : std::nullopt;
}

using Menu = SaveBrochuresOrder::Menu;
using Beer = Menu::BeerBrand::Beer;

void stopAtMissingNumbers(const Menu& menu) {
    for (std::size_t i = 0; i < menu.beerBrands.size(); ++i) {
        const auto& brand = menu.beerBrands[i];
        if (!brand.brand)
            stopProcess("\"brand\" of an order's brand, menu.items[" + std::to_string(i) + "]");
        if (!std::ranges::all_of(brand.beers, [](const Beer& beer) { return beer.id.has_value(); }))
            stopProcess("\"product\" of a format of brand " + std::to_string(*brand.brand));
    }
}

// The family of an own brand of the order: that of its formats, which the order does not say otherwise.
std::optional<ApplicationFather> familyOf(const Menu::BeerBrand& brand, BrochureType kind) {
    const auto* type = catalogue().brochureType(kind);
    std::optional<ApplicationFather> other;
    for (const auto& productType : catalogue().brochures().productTypes) {
        if (std::ranges::find(brand.beers, productType.id, &Beer::productType) == brand.beers.end())
            continue;
        if (type && productType.applicationFather == type->applicationFather)
            return type->applicationFather;
        other = productType.applicationFather;
    }
    return other || !type ? other : type->applicationFather;
}

OwnBrand asOwnBrand(const Menu::BeerBrand& brand, ApplicationFather family) {
    const bool described = brand.description && !brand.description->empty();
    return {family,
            brand.name.value_or(""),
            described ? brand.description : std::nullopt,
            brand.segment,
            brand.typology,
            brand.taste,
            brand.subTypology,
            brand.age};
}

// Finds the own brands of an order in the catalogue, and makes those that it lacks. A number alone proves
// nothing: after a reset the numbers start anew, so another brand may bear it.
class OwnBrandFinder {
public:
    explicit OwnBrandFinder(const Menu& menu)
        : kind_(menu.orderType) {
        for (const Product& product : catalogue().ownBrands())
            there_.emplace(product.id, OwnBrand::of(product));
        for (const auto& record : menu.beerBrands) {
            numbers_.insert(*record.brand);
            if (const auto brand = ownBrandOf(record); brand && isThere(*record.brand, *brand))
                taken_.insert(*record.brand);
        }
    }

    // The number that the brand has in the catalogue with those made. None where it can't be built.
    std::optional<Int> find(const Menu::BeerBrand& record) {
        const auto brand = ownBrandOf(record);
        if (!brand)
            return std::nullopt;
        if (isThere(*record.brand, *brand))
            return *record.brand;
        const auto equal = std::ranges::find_if(
            there_, [&](const auto& each) { return each.second == *brand && !taken_.contains(each.first); });
        if (equal != there_.end()) {
            taken_.insert(equal->first);
            return equal->first;
        }
        Product product = brand->product(catalogue().brochures(), numberFor(*record.brand));
        const bool hasFormats = std::ranges::any_of(record.beers, [&](const Beer& beer) {
            return std::ranges::find(product.productList, beer.productType,
                                     &Product::ProductFormat::typeId) != product.productList.end();
        });
        if (!hasFormats)
            return std::nullopt;
        there_.emplace(product.id, *brand);
        taken_.insert(product.id);
        made_.push_back(std::move(product));
        return made_.back().id;
    }
    [[nodiscard]] std::vector<Product> takeMade() { return std::move(made_); }

private:
    [[nodiscard]] std::optional<OwnBrand> ownBrandOf(const Menu::BeerBrand& record) const {
        const auto family = familyOf(record, kind_);
        if (!family || *record.brand >= 0 || !record.name || record.name->empty())
            return std::nullopt;
        return asOwnBrand(record, *family);
    }
    [[nodiscard]] bool isThere(Int id, const OwnBrand& brand) const {
        const auto found = there_.find(id);
        return found != there_.end() && found->second == brand;
    }
    // The order's own number where it is free, or the next free one below zero.
    Int numberFor(Int wanted) {
        constexpr Int lowest = -1'000'000; // what comes from outside must not overflow a format's number
        const auto isFree = [this](Int id) { return !there_.contains(id) && !catalogue().product(id); };
        if (wanted >= lowest && isFree(wanted))
            return wanted;
        while (!isFree(next_) || numbers_.contains(next_))
            --next_;
        return next_;
    }

    BrochureType kind_;
    std::map<Int, OwnBrand> there_; // in the catalogue, and those made
    std::set<Int> numbers_;         // of the order
    std::set<Int> taken_;           // numbers that stand for a brand of the order
    std::vector<Product> made_;
    Int next_ = -1;
};

// The number in the catalogue for each brand of the order, none for one that can't come back.
std::vector<std::optional<Int>> bringBackOwnBrands(const Menu& menu) {
    std::vector<std::optional<Int>> numbers;
    if (std::ranges::none_of(menu.beerBrands, [](const auto& each) { return *each.brand < 0; })) {
        for (const auto& brand : menu.beerBrands)
            numbers.push_back(brand.brand);
        return numbers; // without a look at the whole catalogue
    }
    OwnBrandFinder finder(menu);
    for (const auto& brand : menu.beerBrands)
        numbers.push_back(*brand.brand < 0 ? finder.find(brand) : brand.brand);
    if (auto made = finder.takeMade(); !made.empty())
        engine::addProducts(std::move(made));
    return numbers;
}

// The format of a brand that a record means: by its number or, in an own brand that has another number than
// when the record was made, by its product type.
std::optional<Int> formatFor(Int brand, const Beer& beer) {
    if (catalogue().format(brand, *beer.id))
        return *beer.id;
    const Product* product = catalogue().product(brand);
    if (!product || !OwnBrand::is(*product))
        return std::nullopt;
    const auto found =
        std::ranges::find(product->productList, beer.productType, &Product::ProductFormat::typeId);
    return found == product->productList.end() ? std::nullopt : std::optional(found->id);
}

template <class Item>
void append(std::vector<Item>& list, const std::optional<std::vector<Item>>& more) {
    if (more)
        list.insert(list.end(), more->begin(), more->end());
}

} // namespace

void BrochureIntermediateData::loadOrder(const SaveBrochuresOrder& order) {
    TemporalBrochure::shared().removeForLoading(order.menu.orderType);
    const auto& menu = order.menu;
    openedAs = menu.orderType;
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
    loadBrands(menu);
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

void BrochureIntermediateData::loadBrands(const SaveBrochuresOrder::Menu& menu) {
    fallenOut_.clear();
    stopAtMissingNumbers(menu);
    const auto numbers = bringBackOwnBrands(menu);
    for (std::size_t i = 0; i < menu.beerBrands.size(); ++i) {
        const auto& brand = menu.beerBrands[i];
        if (numbers[i] && catalogue().product(*numbers[i]))
            loadBrand(*numbers[i], brand, menu.highlightedProductIdentifier);
        else
            fallenOut_.push_back(brand.name.value_or(""));
    }
}

void BrochureIntermediateData::loadBrand(Int identifier, const BeerBrand& brand,
                                         std::optional<Int> highlighted) {
    for (const auto& beer : brand.beers) {
        const auto format = formatFor(identifier, beer);
        if (!format) {
            fallenOut_.push_back(brand.name.value_or(""));
            continue;
        }
        setFormatSelected(true, *format, identifier);
        setNewProduct(beer.isNew, *format, identifier);
        setVolume(beer.volume, *format, identifier);
        if (highlighted)
            setFormatHighlighted(true, *highlighted, identifier);
        for (const auto& price : beer.prices)
            setPrice(priceTypeOf(price.id), *format, identifier, price.price);
    }
}

std::string BrochureIntermediateData::takeFallenOut() {
    return fellOutText(std::exchange(fallenOut_, {}));
}

std::string fellOutText(const std::vector<std::string>& names) {
    if (names.empty())
        return {};
    std::string text = names.size() == 1
                           ? "1 producto ya no está en el catálogo"
                           : std::to_string(names.size()) + " productos ya no están en el catálogo";
    constexpr std::size_t mostNames = 5;
    std::vector<std::string> different;
    for (const auto& name : names) {
        if (!name.empty() && std::ranges::find(different, name) == different.end())
            different.push_back(name);
    }
    for (std::size_t i = 0; i < std::min(different.size(), mostNames); ++i)
        text += (i == 0 ? ": " : ", ") + different[i];
    return different.size() > mostNames ? text + "…" : text;
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
