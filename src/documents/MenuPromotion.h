#pragma once

#include "base/Int.h"

#include <optional>
#include <string>
#include <vector>

namespace kavor {

// A poster promotion printed inside the menu.
struct MenuPromotion {
    struct PromotionAttribute {
        Int id = 0;
        std::string value;
        std::optional<Int> valueListId;
        bool operator==(const PromotionAttribute&) const = default;
    };

    std::optional<Int> id;
    Int promotionId = 0;
    std::optional<std::string> promotionName;
    std::optional<std::string> brandName;
    std::vector<PromotionAttribute> attributes;

    bool operator==(const MenuPromotion&) const = default;
};

} // namespace kavor
