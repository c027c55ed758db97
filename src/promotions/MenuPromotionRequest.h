#pragma once

#include "catalogue/Brochures.h"
#include "documents/MenuPromotion.h"

#include <optional>
#include <vector>

namespace kavor {

// What the gallery of promotions and its form are opened with for a menu: one more promotion for the shared
// draft, or one of its promotions to be edited.
struct MenuPromotionRequest {
    std::optional<Brochures::Language> languageSelected; // the menu's first language
    std::vector<Int> promotionSelectIds;                 // the promotions that the menu has already
    std::optional<MenuPromotion> menuPromotion;          // the one to edit; none adds one
    std::size_t place = 0;                               // of the edited one in the menu's list
};

} // namespace kavor
