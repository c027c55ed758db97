#pragma once

#include "brochures/engine/BrochureIntermediateData.h"

#include <map>
#include <string>
#include <vector>

namespace kavor {

class Catalogue;

// The drinks of the catalogue as the lists of the step offer them, by position, prepared once: a product that
// the catalogue lists once per format is one entry.
class DrinkStock {
public:
    using Beverage = BrochureIntermediateData::BeverageIdentifier;

    // An entry with its name as a search compares it.
    struct Entry {
        Beverage beverage;
        std::string folded;
    };
    struct CategoryWithProducts {
        Entry category;
        std::vector<Entry> products;
    };
    // A format of a product; the name of a record without one is empty.
    struct Format {
        std::string name;
        std::optional<double> price;
    };

    DrinkStock() = default;
    explicit DrinkStock(const Catalogue& catalogue);

    [[nodiscard]] const std::vector<CategoryWithProducts>& allCategoriesWithProductsFromServer() const {
        return allCategoriesWithProductsFromServer_;
    }
    // Null for a category that the catalogue doesn't have.
    [[nodiscard]] const CategoryWithProducts* category(Int category) const;
    [[nodiscard]] const Entry* product(Int category, Int product) const;
    // The formats of a product in all its categories; empty for one that the catalogue doesn't have.
    [[nodiscard]] const std::vector<Format>& formatsOf(Int product) const;
    // Every format name of the catalogue, each once.
    [[nodiscard]] const std::vector<std::string>& formatNames() const { return formatNames_; }

private:
    std::vector<CategoryWithProducts> allCategoriesWithProductsFromServer_;
    std::map<Int, std::size_t> places_;
    std::map<Int, std::vector<Format>> formats_;
    std::vector<std::string> formatNames_;
};

} // namespace kavor
