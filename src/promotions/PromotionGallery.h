#pragma once

#include "catalogue/Catalogue.h"
#include "promotions/MenuPromotionRequest.h"
#include "promotions/PromotionTuple.h"

#include <memory>
#include <optional>
#include <vector>

namespace kavor {

// The promotions on offer, and what they are narrowed by. Without posters in the catalogue it is empty.
class PromotionGallery {
public:
    PromotionGallery() = default;
    // For orders on their own: every promotion by position, a picture for each of its languages, the default
    // one first.
    static PromotionGallery ofSection(const std::shared_ptr<const Catalogue>& catalogue);
    // For a menu: the promotions that an online menu shows and this one has not, one picture each, in the
    // menu's language where there is one. The promotion that is being edited is among them.
    static PromotionGallery ofMenu(const std::shared_ptr<const Catalogue>& catalogue,
                                   const MenuPromotionRequest& request);
    // The promotion that a menu names, as it is edited; none when it left the catalogue.
    static std::optional<PromotionTuple> ofMenuPromotion(const Catalogue& catalogue, Int promotionId,
                                                         std::optional<Int> languageId);

    [[nodiscard]] const std::vector<PromotionTuple>& unfilteredPromotions() const {
        return unfilteredPromotions_;
    }
    // By position.
    [[nodiscard]] const std::vector<const Posters::Classification*>& classifications() const {
        return classifications_;
    }
    // The brands that have a promotion, as the catalogue lists them.
    [[nodiscard]] const std::vector<const Product*>& brandList() const { return brandList_; }
    // The places among all promotions of those that match; no number matches all.
    [[nodiscard]] std::vector<std::size_t> visiblePromotions(std::optional<Int> classification,
                                                             std::optional<Int> brand) const;

private:
    PromotionGallery(std::shared_ptr<const Catalogue> catalogue, const Posters& posters);
    void listBrands();

    std::shared_ptr<const Catalogue> catalogue_; // what the tuples name
    std::vector<const Posters::Promotion*> sorted_;
    std::vector<PromotionTuple> unfilteredPromotions_;
    std::vector<const Posters::Classification*> classifications_;
    std::vector<const Product*> brandList_;
};

} // namespace kavor
