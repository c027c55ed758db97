#pragma once

#include "catalogue/Catalogue.h"
#include "documents/Answers.h"
#include "orders/services/OrderRoad.h"
#include "promotions/PromotionDraft.h"

#include <memory>
#include <optional>
#include <string>

namespace kavor {

// The road of a promotion on its own: to print or to a preview, never without a network. The draft stays as
// it is, and its unfinished copy goes once the server has the order.
class PromotionRoad : public OrderRoadOf<PromotionOrder, GenericOrderResponse> {
public:
    // What the server said of the last order that it took.
    struct SentOrder {
        std::optional<Int> identifier;
        std::optional<QUrl> document;
    };

    // The services outlive the road; the promotion belongs to the catalogue.
    PromotionRoad(const OrderRoadServices& services, std::shared_ptr<PromotionDraft> draft,
                  std::shared_ptr<const Catalogue> catalogue, const PromotionTuple& promotion);
    ~PromotionRoad() override;

    // The draft has changed.
    void keep();
    [[nodiscard]] const std::optional<SentOrder>& sentOrder() const { return sentOrder_; }
    // Whether the server has the very order that the draft makes.
    [[nodiscard]] bool isSentAsItStands() const {
        return sentContent_ && *sentContent_ == contentToPrint().text();
    }

protected:
    using Answer = GenericOrderResponse;

    [[nodiscard]] std::vector<std::string> missing() const override;
    [[nodiscard]] PromotionOrder make(OrderRequestType type) const override;
    void post(const PromotionOrder& order, Completion<Answer> done, const QByteArray& key) override;
    [[nodiscard]] SendContent contentOf(OrderRequestType type, const PromotionOrder& order) const override;
    [[nodiscard]] UnansweredSends& unansweredSends() override { return draft_->unansweredSends; }
    void keepSafe() override { keep(); }
    [[nodiscard]] OrderAnswer read(const Answer& answer) const override;
    void takeSent(const Answer& answer) override;
    void tellSent(const OrderAnswer& answer) override;

private:
    [[nodiscard]] SendContent contentToPrint() const;

    ServiceOperations& network_;
    std::shared_ptr<PromotionDraft> draft_;
    std::shared_ptr<const Catalogue> catalogue_;
    PromotionTuple promotion_;
    std::optional<std::string> sentContent_; // of the order that the server took last
    std::optional<SentOrder> sentOrder_;
};

} // namespace kavor
