#pragma once

#include "catalogue/ApplicationInformation.h"

#include <optional>
#include <string>

namespace kavor {

// A brand that the user added by hand: the customer's own. In the catalogue it is a product with a negative
// id and this property, so everything else treats it like any brand.
struct OwnBrand {
    static constexpr Int property = 4;

    ApplicationFather family = ApplicationFather::orderBeer;
    std::string name;
    std::optional<std::string> description; // never empty
    std::optional<Int> segment;
    std::optional<Int> typology;
    std::optional<Int> taste;
    std::optional<Int> subTypology;
    std::optional<Int> age;

    bool operator==(const OwnBrand&) const = default;

    // Whether a product of the catalogue is one.
    static bool is(const Product& product);
    // What was entered for such a product.
    static OwnBrand of(const Product& product);
    // The product under a negative id, with the formats that the product types of the family give.
    [[nodiscard]] Product product(const Brochures& brochures, Int id) const;
};

} // namespace kavor
