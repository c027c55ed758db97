#include "brochures/engine/MenuPromotions.h"

#include "brochures/engine/BrochureIntermediateData.h"

#include <algorithm>

namespace kavor {

using Draft = std::shared_ptr<BrochureIntermediateData>;

MenuPromotions& MenuPromotions::shared() {
    static MenuPromotions instance;
    return instance;
}

void MenuPromotions::attach(const Draft& draft, const MenuPromotion& promotion,
                            const PromotionValidity& validity, const std::optional<MenuPromotion>& edited,
                            std::size_t place) {
    auto& all = draft->promotions;
    auto replaced = edited && place < all.size() && all[place] == *edited
                        ? all.begin() + std::ptrdiff_t(place)
                        : std::find_if(all.begin(), all.end(),
                                       [&](const MenuPromotion& each) { return edited && each == *edited; });
    if (edited)
        forget(draft, *edited);
    if (replaced == all.end())
        all.push_back(promotion);
    else
        *replaced = promotion;
    kept_.push_back({ownerOf(draft), promotion, validity});
}

bool MenuPromotions::remove(const Draft& draft, const MenuPromotion& promotion) {
    const auto found = std::ranges::find(draft->promotions, promotion);
    if (found == draft->promotions.end())
        return false;
    forget(draft, promotion);
    draft->promotions.erase(found);
    return true;
}

std::optional<PromotionValidity> MenuPromotions::validityOf(const Draft& draft,
                                                            const MenuPromotion& promotion) const {
    const auto found =
        std::ranges::find_if(kept_, [&](const Kept& kept) { return isOf(kept, draft, promotion); });
    return found == kept_.end() ? std::nullopt : std::optional(found->validity);
}

MenuPromotions::Owner MenuPromotions::ownerOf(const Draft& draft) {
    const auto& bar = draft->customerInformation;
    return {draft, draft->openedAs, bar ? bar->tevo.value_or("") + '\n' + bar->name : std::string()};
}

bool MenuPromotions::isOf(const Kept& kept, const Draft& draft, const MenuPromotion& promotion) {
    if (kept.promotion != promotion)
        return false;
    if (const auto owner = kept.owner.draft.lock())
        return owner == draft;
    const Owner now = ownerOf(draft);
    return kept.owner.kind == now.kind && kept.owner.bar == now.bar;
}

void MenuPromotions::forget(const Draft& draft, const MenuPromotion& promotion) {
    std::erase_if(kept_, [&](const Kept& kept) { return isOf(kept, draft, promotion); });
}

} // namespace kavor
