#include "brochures/wizard/drinks/DrinkStock.h"

#include "base/Text.h"
#include "catalogue/Catalogue.h"

#include <algorithm>
#include <set>

namespace kavor {

namespace {

DrinkStock::Entry entryOf(const Brochures::Drink& drink) {
    return {{drink.id, true, drink.name, drink.position, drink.description, {}, {}, {}},
            text::sanitised(drink.name)};
}

// The record that adds the product: its format name is never absent.
DrinkStock::Entry entryOf(const Brochures::Drink::Product& product) {
    return {{product.id, false, product.name, product.position, product.description, product.price1,
             product.price2, product.formatName.value_or("")},
            text::sanitised(product.name)};
}

Int positionOf(const DrinkStock::Entry& entry) {
    return entry.beverage.position;
}

} // namespace

DrinkStock::DrinkStock(const Catalogue& catalogue) {
    std::set<std::string> names;
    for (const Brochures::Drink& drink : catalogue.brochures().drinks) {
        auto& added =
            allCategoriesWithProductsFromServer_.emplace_back(CategoryWithProducts{entryOf(drink), {}});
        std::set<Int> products;
        for (const Brochures::Drink::Product& product : drink.products) {
            if (products.insert(product.id).second)
                added.products.push_back(entryOf(product));
            const std::string format = product.formatName.value_or("");
            auto& formats = formats_[product.id];
            if (std::ranges::find(formats, format, &Format::name) == formats.end())
                formats.push_back({format, product.price1});
            if (!format.empty() && names.insert(format).second)
                formatNames_.push_back(format);
        }
        std::ranges::stable_sort(added.products, {}, positionOf);
    }
    std::ranges::stable_sort(allCategoriesWithProductsFromServer_, {},
                             [](const CategoryWithProducts& each) { return positionOf(each.category); });
    for (std::size_t i = 0; i < allCategoriesWithProductsFromServer_.size(); ++i)
        places_.emplace(allCategoriesWithProductsFromServer_[i].category.beverage.identifier, i);
}

const DrinkStock::CategoryWithProducts* DrinkStock::category(Int category) const {
    const auto found = places_.find(category);
    return found == places_.end() ? nullptr : &allCategoriesWithProductsFromServer_[found->second];
}

const DrinkStock::Entry* DrinkStock::product(Int category, Int product) const {
    const CategoryWithProducts* known = this->category(category);
    if (!known)
        return nullptr;
    const auto found = std::ranges::find(known->products, product,
                                         [](const Entry& each) { return each.beverage.identifier; });
    return found == known->products.end() ? nullptr : &*found;
}

const std::vector<DrinkStock::Format>& DrinkStock::formatsOf(Int product) const {
    static const std::vector<Format> none;
    const auto found = formats_.find(product);
    return found == formats_.end() ? none : found->second;
}

} // namespace kavor
