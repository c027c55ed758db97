#include "promotions/PromotionGallery.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace kavor {

namespace {

using Promotion = Posters::Promotion;

PromotionTuple tupleOf(const Promotion& promotion, const Promotion::Language* language) {
    return {promotion.id,
            promotion.classificationIdentifier,
            language ? &language->image : nullptr,
            promotion.brandId,
            promotion.brandName,
            promotion.title,
            promotion.typeName,
            promotion.languages,
            promotion.supports,
            promotion.attributes,
            promotion.showMenuOnline,
            language};
}

const Promotion::Language* defaultLanguage(const Promotion& promotion) {
    const auto found = std::ranges::find(promotion.languages, true, &Promotion::Language::isDefault);
    if (found != promotion.languages.end())
        return &*found;
    return promotion.languages.empty() ? nullptr : &promotion.languages.front();
}

template <class Record>
std::vector<const Record*> byPosition(const std::vector<Record>& records) {
    std::vector<const Record*> sorted;
    sorted.reserve(records.size());
    for (const Record& record : records)
        sorted.push_back(&record);
    std::ranges::stable_sort(sorted, {}, &Record::position);
    return sorted;
}

} // namespace

PromotionTuple promotionTuple(const Promotion& promotion) {
    return tupleOf(promotion, defaultLanguage(promotion));
}

PromotionTuple promotionTuple(const Promotion& promotion, std::optional<Int> languageId) {
    const auto found = std::ranges::find(promotion.languages, languageId,
                                         [](const auto& language) { return std::optional(language.id); });
    return found == promotion.languages.end() ? promotionTuple(promotion) : tupleOf(promotion, &*found);
}

PromotionGallery::PromotionGallery(std::shared_ptr<const Catalogue> catalogue, const Posters& posters)
    : catalogue_(std::move(catalogue))
    , sorted_(byPosition(posters.promotions))
    , classifications_(byPosition(posters.classifications)) {}

PromotionGallery PromotionGallery::ofSection(const std::shared_ptr<const Catalogue>& catalogue) {
    const auto& posters = catalogue->information().promotion;
    if (!posters)
        return {};
    PromotionGallery gallery(catalogue, *posters);
    for (const Promotion* promotion : gallery.sorted_) {
        const auto* first = defaultLanguage(*promotion);
        if (first)
            gallery.unfilteredPromotions_.push_back(tupleOf(*promotion, first));
        for (const Promotion::Language& language : promotion->languages) {
            if (&language != first)
                gallery.unfilteredPromotions_.push_back(tupleOf(*promotion, &language));
        }
    }
    gallery.listBrands();
    return gallery;
}

PromotionGallery PromotionGallery::ofMenu(const std::shared_ptr<const Catalogue>& catalogue,
                                          const MenuPromotionRequest& request) {
    const auto& brochures = catalogue->information().brochures;
    if (!brochures)
        return {};
    std::unordered_set<Int> attached(request.promotionSelectIds.begin(), request.promotionSelectIds.end());
    if (request.menuPromotion)
        attached.erase(request.menuPromotion->promotionId);
    const auto language =
        request.languageSelected ? std::optional(request.languageSelected->id) : std::nullopt;
    PromotionGallery gallery(catalogue, brochures->promotions);
    for (const Promotion* promotion : gallery.sorted_) {
        if (promotion->showMenuOnline && !attached.contains(promotion->id))
            gallery.unfilteredPromotions_.push_back(promotionTuple(*promotion, language));
    }
    gallery.listBrands();
    return gallery;
}

std::optional<PromotionTuple> PromotionGallery::ofMenuPromotion(const Catalogue& catalogue, Int promotionId,
                                                                std::optional<Int> languageId) {
    const auto& brochures = catalogue.information().brochures;
    if (!brochures)
        return std::nullopt;
    const auto& promotions = brochures->promotions.promotions;
    const auto found = std::ranges::find(promotions, promotionId, &Promotion::id);
    return found == promotions.end() ? std::nullopt : std::optional(promotionTuple(*found, languageId));
}

void PromotionGallery::listBrands() {
    std::unordered_set<Int> known;
    for (const PromotionTuple& each : unfilteredPromotions_) {
        const Product* brand = catalogue_->product(each.brandId);
        if (brand && known.insert(each.brandId).second)
            brandList_.push_back(brand);
    }
    std::ranges::sort(brandList_, {},
                      [this](const Product* brand) { return catalogue_->productIndex(brand->id); });
}

std::vector<std::size_t> PromotionGallery::visiblePromotions(std::optional<Int> classification,
                                                             std::optional<Int> brand) const {
    std::vector<std::size_t> visible;
    for (std::size_t place = 0; place < unfilteredPromotions_.size(); ++place) {
        const PromotionTuple& each = unfilteredPromotions_[place];
        if ((!classification || each.classificationIdentifier == classification) &&
            (!brand || each.brandId == *brand))
            visible.push_back(place);
    }
    return visible;
}

} // namespace kavor
