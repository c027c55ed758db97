#pragma once

#include "orders/services/FiledOrderRoad.h"
#include "textile/TextileIntermediateData.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kavor {

// The road of an order of clothing: to print, to a preview, to a file and into the cloud, or offline into the
// outbox. No synchronisation is planned for it.
class TextileRoad : public FiledOrderRoad<SaveTextileOrder, SaveTextileOrderResponse, KeptTextileOrder> {
public:
    // The services and the files outlive the road.
    TextileRoad(const OrderRoadServices& services, const OrderDiskManager& orders,
                std::shared_ptr<TextileIntermediateData> draft);
    ~TextileRoad() override;

protected:
    using Order = SaveTextileOrder;
    using Answer = SaveTextileOrderResponse;

    [[nodiscard]] std::vector<std::string> missing() const override;
    [[nodiscard]] std::optional<QUrl> sentTo() const override;
    [[nodiscard]] Order make(OrderRequestType type) const override;
    void post(const Order& order, Completion<Answer> done, const QByteArray& key) override;
    [[nodiscard]] SendContent contentOf(OrderRequestType type, const Order& order) const override;
    [[nodiscard]] UnansweredSends& unansweredSends() override { return draft_->unansweredSends; }
    void keepSafe() override;
    [[nodiscard]] OrderAnswer read(const Answer& answer) const override;
    void takeSent(const Answer& answer) override;
    [[nodiscard]] KeptTextileOrder keep(Order order, const UnansweredSends& unanswered) const override;
    [[nodiscard]] std::optional<std::string>& fileName() override { return draft_->filename; }
    void takeSaved(const Answer& answer) override;
    void beginAnotherOrder() override;
    [[nodiscard]] std::optional<std::string> outboxFile() const override { return draft_->outboxFile; }
    void noteKeptLocally(const std::string& plainName) override;
    void noteUploaded(const std::string& plainName) override;
    [[nodiscard]] bool asksToOverwrite(const std::string& plainName) override;

private:
    void removeFilesOfSent();

    ServiceOperations& network_;
    const OrderDiskManager& orders_;
    std::shared_ptr<TextileIntermediateData> draft_;
};

} // namespace kavor
