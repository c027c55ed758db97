#include "promotions/UnfinishedPromotion.h"

namespace kavor {

namespace {

std::string kindName(Int promotionId) {
    return "promotion" + std::to_string(promotionId);
}

} // namespace

UnfinishedPromotion::UnfinishedPromotion()
    : UnfinishedWork(state_file::promotionDraft) {}

UnfinishedPromotion& UnfinishedPromotion::shared() {
    static UnfinishedPromotion instance;
    return instance;
}

std::string UnfinishedPromotion::kindOf(const PromotionDraft& draft) const {
    return kindName(draft.promotionId);
}

std::shared_ptr<PromotionDraft> UnfinishedPromotion::open(Int promotionId) {
    current_ = std::make_shared<PromotionDraft>();
    current_->promotionId = promotionId;
    bringBack(kindName(promotionId), [this](const PromotionDraft& kept) {
        *current_ = kept;
        return holdsWork(kept);
    });
    return current_;
}

void UnfinishedPromotion::keep(const PromotionDraft& draft) {
    if (&draft != current_.get())
        return;
    if (holdsWork(draft))
        write(draft);
    else
        removeAll();
}

void UnfinishedPromotion::sent(const PromotionDraft& draft) {
    if (&draft == current_.get())
        removeAll();
}

} // namespace kavor
