#pragma once

#include "catalogue/Enumerations.h"
#include "documents/MenuPromotion.h"
#include "documents/PromotionValidity.h"

#include <memory>
#include <optional>
#include <vector>

namespace kavor {

class BrochureIntermediateData;

// The promotions in a menu, and when each holds: the order document has no place for that, so it is kept
// beside the draft for this run of the program.
class MenuPromotions {
public:
    static MenuPromotions& shared();

    // Takes a promotion into the menu: in the place of the one that was edited, while the draft has it, else
    // at the end.
    void attach(const std::shared_ptr<BrochureIntermediateData>& draft, const MenuPromotion& promotion,
                const PromotionValidity& validity, const std::optional<MenuPromotion>& edited = std::nullopt,
                std::size_t place = 0);
    // Takes this promotion out of the menu; false when it has none like it.
    bool remove(const std::shared_ptr<BrochureIntermediateData>& draft, const MenuPromotion& promotion);
    // What was given with a promotion of the draft, or of the same menu before it was closed and opened
    // again.
    [[nodiscard]] std::optional<PromotionValidity>
    validityOf(const std::shared_ptr<BrochureIntermediateData>& draft, const MenuPromotion& promotion) const;

private:
    // Whose the promotion is: a draft that was closed comes back as another one of the same kind and bar.
    struct Owner {
        std::weak_ptr<BrochureIntermediateData> draft;
        std::optional<BrochureType> kind;
        std::string bar;
    };
    struct Kept {
        Owner owner;
        MenuPromotion promotion;
        PromotionValidity validity;
    };
    static Owner ownerOf(const std::shared_ptr<BrochureIntermediateData>& draft);
    static bool isOf(const Kept& kept, const std::shared_ptr<BrochureIntermediateData>& draft,
                     const MenuPromotion& promotion);
    void forget(const std::shared_ptr<BrochureIntermediateData>& draft, const MenuPromotion& promotion);

    std::vector<Kept> kept_;
};

} // namespace kavor
