#pragma once

#include "promotions/PromotionDraft.h"
#include "session/UnfinishedWork.h"

#include <memory>

namespace kavor {

// The unfinished order of a promotion, the state file "promotionDraft". Each promotion has one of its own,
// set aside as "promotionDraft.promotion12" (its number) while another one is in work.
class UnfinishedPromotion : public UnfinishedWork<PromotionDraft> {
public:
    static UnfinishedPromotion& shared();

    // The draft of a promotion: the unfinished one, or a new one. From now on it is the one in work.
    std::shared_ptr<PromotionDraft> open(Int promotionId);
    // The draft has changed: keeps it, or removes its copy where it holds nothing that anybody would miss.
    void keep(const PromotionDraft& draft);
    // The server has the order.
    void sent(const PromotionDraft& draft);

protected:
    [[nodiscard]] std::shared_ptr<const PromotionDraft> current() const override { return current_; }
    [[nodiscard]] std::optional<PromotionDraft> recordOf(const PromotionDraft& draft) const override {
        return draft;
    }
    [[nodiscard]] std::string kindOf(const PromotionDraft& draft) const override;
    [[nodiscard]] std::string broughtBack() const override {
        return "Se ha recuperado la promoción en curso";
    }

private:
    UnfinishedPromotion();

    std::shared_ptr<PromotionDraft> current_;
};

} // namespace kavor
