#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/engine/EngineSession.h"

#include <algorithm>

namespace kavor {

namespace {

using Beverage = BrochureIntermediateData::BeverageIdentifier;

using engine::catalogue;

std::optional<Beverage> catalogueCategory(Int category) {
    const auto* drink = catalogue().drink(category);
    if (!drink)
        return std::nullopt;
    return Beverage{drink->id, true, drink->name, drink->position, drink->description, {}, {}, {}};
}

// A record without a format is found under the empty name.
const Brochures::Drink::Product* findIn(const Brochures::Drink& drink, Int product,
                                        const std::optional<std::string>& formatName) {
    const auto found = std::ranges::find_if(drink.products, [&](const Brochures::Drink::Product& each) {
        return each.id == product && (!formatName || each.formatName.value_or("") == *formatName);
    });
    return found == drink.products.end() ? nullptr : &*found;
}

std::optional<Beverage> beverageOf(const Brochures::Drink::Product* product) {
    if (!product)
        return std::nullopt;
    return Beverage{product->id,          false,           product->name,   product->position,
                    product->description, product->price1, product->price2, product->formatName};
}

std::optional<Beverage> catalogueProductAnywhere(Int product, const std::optional<std::string>& formatName) {
    for (const auto& each : catalogue().brochures().drinks) {
        if (const auto* found = findIn(each, product, formatName))
            return beverageOf(found);
    }
    return std::nullopt;
}

// The catalogue may list a product once per format. One of its products may stand in an own category too.
std::optional<Beverage> catalogueProduct(Int category, Int product,
                                         const std::optional<std::string>& formatName) {
    if (product < 1)
        return std::nullopt;
    if (const auto* drink = catalogue().drink(category))
        return beverageOf(findIn(*drink, product, formatName));
    return catalogueProductAnywhere(product, formatName);
}

template <class List>
auto findRecord(List& list, Int identifier) {
    return std::ranges::find(list, identifier, &Beverage::identifier);
}

template <class List>
auto findRecord(List& list, Int identifier, const std::optional<std::string>& formatName) {
    return std::ranges::find_if(list, [&](const Beverage& each) {
        return each.identifier == identifier && each.formatName == formatName;
    });
}

// What the user left empty shows the catalogue's value.
Beverage merged(Beverage user, const std::optional<Beverage>& base) {
    if (!base)
        return user;
    const auto fill = [](auto& field, const auto& value) {
        if (!field)
            field = value;
    };
    fill(user.description, base->description);
    fill(user.price1, base->price1);
    fill(user.price2, base->price2);
    fill(user.formatName, base->formatName);
    return user;
}

template <class Used>
Int freeNegativeNumber(const Used& isUsed) {
    Int number = -1;
    while (isUsed(number))
        --number;
    return number;
}

Int nextPosition(const std::vector<Beverage>& records) {
    Int position = 0;
    for (const auto& each : records)
        position = std::max(position, each.position);
    return position + 1;
}

} // namespace

std::optional<Beverage>
BrochureIntermediateData::beverageInfo(Int category, Int product, bool isCategory,
                                       const std::optional<std::string>& formatName) const {
    const auto selected = selectedBeverages.find(category);
    if (selected == selectedBeverages.end())
        return std::nullopt;
    if (isCategory) {
        const auto base = catalogueCategory(category);
        const auto user = findRecord(beverageCategoryInformation, category);
        return user == beverageCategoryInformation.end() ? base : merged(*user, base);
    }
    if (!selected->second.contains(product))
        return std::nullopt;
    const auto here = catalogueProduct(category, product, formatName);
    // The names of the formats serve all categories of a product, also those in which it has others.
    const bool elsewhere = !here && formatName && product >= 1;
    const auto base = elsewhere ? catalogueProductAnywhere(product, formatName) : here;
    auto user = findRecord(beverageProductInformation, product, formatName);
    if (user == beverageProductInformation.end() && !base && !formatName)
        user = findRecord(beverageProductInformation, product);
    const bool hasRecord = user != beverageProductInformation.end();
    if (!hasRecord && !base)
        return std::nullopt;
    Beverage result = hasRecord ? merged(*user, base) : *base;
    // One record serves all categories of a product. Its name and place come from where it stands: a product
    // that left this category is nameless in it, also while another category still has it.
    if (product >= 1) {
        const auto known = here ? here : catalogueProduct(category, product, std::nullopt);
        result.name = known ? known->name : std::string();
        result.position = known ? known->position : result.position;
    }
    return result;
}

bool BrochureIntermediateData::setBeverageSelected(bool on, const BeverageIdentifier& beverage,
                                                   Int category) {
    if (!beverage.isCategory)
        return on ? addBeverage(beverage, category) : removeBeverage(beverage.identifier, category);
    if (on)
        return addCategory(beverage);
    const auto found = selectedBeverages.find(beverage.identifier);
    if (found == selectedBeverages.end())
        return false;
    for (const Int product : std::set<Int>(found->second))
        removeBeverage(product, beverage.identifier);
    std::erase_if(beverageCategoryInformation,
                  [&](const Beverage& each) { return each.identifier == beverage.identifier; });
    selectedBeverages.erase(beverage.identifier);
    return true;
}

bool BrochureIntermediateData::addCategory(const BeverageIdentifier& category) {
    if (selectedBeverages.contains(category.identifier))
        return false;
    const auto base = category.identifier < 1 ? std::nullopt : catalogueCategory(category.identifier);
    if (category.identifier >= 1 && !base)
        return false;
    selectedBeverages[category.identifier];
    Beverage record = category;
    if (base) {
        record.name = base->name;
        record.position = base->position;
    }
    if (!base || (record.description && record.description != base->description))
        beverageCategoryInformation.push_back(std::move(record));
    return true;
}

bool BrochureIntermediateData::addBeverage(const BeverageIdentifier& beverage, Int category) {
    const bool own = beverage.identifier < 1;
    if (!own && !catalogueProduct(category, beverage.identifier, std::nullopt))
        return false;
    if (!selectedBeverages.contains(category)) {
        if (category < 1 || !addCategory({.identifier = category, .isCategory = true}))
            return false;
    }
    const bool added = selectedBeverages[category].insert(beverage.identifier).second;
    if (added)
        keepDescription(beverage, category);
    const bool withFormat = beverage.formatName && setBeverageFormatSelected(true, *beverage.formatName,
                                                                             beverage.identifier, category);
    if (withFormat) {
        const auto shown = beverageInfo(category, beverage.identifier, false, beverage.formatName);
        if (beverage.price1 && shown->price1 != beverage.price1)
            setBeveragePrice(beverage.price1, false, *beverage.formatName, beverage.identifier, category);
        if (beverage.price2 && shown->price2 != beverage.price2)
            setBeveragePrice(beverage.price2, true, *beverage.formatName, beverage.identifier, category);
    }
    return added || withFormat;
}

// Own products, and those that left the catalogue, live in their record; the catalogue's need one for another
// text.
void BrochureIntermediateData::keepDescription(const BeverageIdentifier& beverage, Int category) {
    const auto base = catalogueProduct(category, beverage.identifier, std::nullopt);
    if (base && (!beverage.description || beverage.description == base->description))
        return;
    if (findRecord(beverageProductInformation, beverage.identifier, std::nullopt) !=
        beverageProductInformation.end())
        return;
    const auto& named = base ? *base : beverage;
    beverageProductInformation.push_back(
        {beverage.identifier, false, named.name, named.position, beverage.description, {}, {}, {}});
}

bool BrochureIntermediateData::removeBeverage(Int product, Int category) {
    const auto selected = selectedBeverages.find(category);
    if (selected == selectedBeverages.end() || selected->second.erase(product) == 0)
        return false;
    const bool elsewhere = std::ranges::any_of(
        selectedBeverages, [product](const auto& entry) { return entry.second.contains(product); });
    if (elsewhere)
        return true;
    selectedProductFormat.erase(product);
    std::erase_if(beverageProductInformation,
                  [product](const Beverage& each) { return each.identifier == product; });
    return true;
}

Int BrochureIntermediateData::addBeverageCategory(const std::string& name) {
    const Int id = freeNegativeNumber([this](Int number) { return selectedBeverages.contains(number); });
    addCategory({.identifier = id,
                 .isCategory = true,
                 .name = name,
                 .position = nextPosition(beverageCategoryInformation)});
    return id;
}

std::optional<Int> BrochureIntermediateData::addBeverageProduct(const std::string& name, Int category) {
    const auto used = [this](Int number) {
        return std::ranges::any_of(selectedBeverages,
                                   [number](const auto& entry) { return entry.second.contains(number); });
    };
    const Int id = freeNegativeNumber(used);
    const Beverage beverage{.identifier = id,
                            .isCategory = false,
                            .name = name,
                            .position = nextPosition(beverageProductInformation)};
    return addBeverage(beverage, category) ? std::optional(id) : std::nullopt;
}

bool BrochureIntermediateData::setBeverageFormatSelected(bool on, const std::string& formatName, Int product,
                                                         Int category) {
    if (!beverageInfo(category, product, false, std::nullopt))
        return false;
    if (!on) {
        const auto names = selectedProductFormat.find(product);
        if (names == selectedProductFormat.end() || names->second.erase(formatName) == 0)
            return false;
        if (names->second.empty())
            selectedProductFormat.erase(names);
        std::erase_if(beverageProductInformation, [&](const Beverage& each) {
            return each.identifier == product && each.formatName == formatName;
        });
        return true;
    }
    if (!selectedProductFormat[product].insert(formatName).second)
        return false;
    // A format of the user's own has no other place to live.
    if (!beverageInfo(category, product, false, formatName))
        productRecord(category, product, formatName);
    return true;
}

// The user's record of a selected product (in a format), made with the product's name when there is none.
Beverage& BrochureIntermediateData::productRecord(Int category, Int product,
                                                  const std::optional<std::string>& formatName) {
    const auto found = findRecord(beverageProductInformation, product, formatName);
    if (found != beverageProductInformation.end())
        return *found;
    const auto known = beverageInfo(category, product, false, std::nullopt).value_or(Beverage());
    return beverageProductInformation.emplace_back(
        Beverage{product, false, known.name, known.position, {}, {}, {}, formatName});
}

bool BrochureIntermediateData::setBeverageCategoryDescription(const std::optional<std::string>& description,
                                                              Int category) {
    auto info = beverageInfo(category, 0, true, std::nullopt);
    if (!info)
        return false;
    info->description = description;
    const auto record = findRecord(beverageCategoryInformation, category);
    if (record == beverageCategoryInformation.end())
        beverageCategoryInformation.push_back(std::move(*info));
    else
        record->description = description;
    return true;
}

bool BrochureIntermediateData::setBeverageProductDescription(const std::optional<std::string>& description,
                                                             Int product, Int category) {
    if (!beverageInfo(category, product, false, std::nullopt))
        return false;
    productRecord(category, product, std::nullopt).description = description;
    return true;
}

bool BrochureIntermediateData::setBeveragePrice(std::optional<double> value, bool second,
                                                const std::string& formatName, Int product, Int category) {
    const auto names = selectedProductFormat.find(product);
    const bool selected = names != selectedProductFormat.end() && names->second.contains(formatName);
    if (!selected || !beverageInfo(category, product, false, formatName))
        return false;
    auto& record = productRecord(category, product, formatName);
    (second ? record.price2 : record.price1) = value;
    return true;
}

} // namespace kavor
