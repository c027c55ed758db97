#pragma once

#include "brochures/engine/SaveBrochuresOrder.h"
#include "orders/services/FiledOrderRoad.h"

#include <memory>

namespace kavor {

class BrochureIntermediateData;
class OrderSync;
struct WizardServices;

// The road of a brochure: to print, to a preview, or kept under a name and in the cloud.
class BrochureRoad : public FiledOrderRoad<SaveBrochuresOrder, SaveBrochuresOrderResponse, KeptOrder> {
public:
    // The services outlive the road.
    BrochureRoad(const WizardServices& services, std::shared_ptr<BrochureIntermediateData> draft);
    ~BrochureRoad() override;

protected:
    using Order = SaveBrochuresOrder;
    using Answer = SaveBrochuresOrderResponse;

    [[nodiscard]] std::vector<std::string> missing() const override;
    [[nodiscard]] std::vector<std::string> warnings() const override;
    [[nodiscard]] std::optional<QUrl> sentTo() const override;
    void planSync() override;
    [[nodiscard]] Order make(OrderRequestType type) const override;
    void post(const Order& order, Completion<Answer> done, const QByteArray& key) override;
    [[nodiscard]] SendContent contentOf(OrderRequestType type, const Order& order) const override;
    [[nodiscard]] UnansweredSends& unansweredSends() override;
    void keepSafe() override;
    [[nodiscard]] OrderAnswer read(const Answer& answer) const override;
    void takeSent(const Answer& answer) override;
    [[nodiscard]] KeptOrder keep(Order order, const UnansweredSends& unanswered) const override;
    [[nodiscard]] std::optional<std::string>& fileName() override;
    [[nodiscard]] std::optional<std::string> outboxFile() const override;
    void noteKeptLocally(const std::string& plainName) override;
    void noteUploaded(const std::string& plainName) override;
    void takeSaved(const Answer& answer) override;
    void beginAnotherOrder() override;

private:
    void removeFilesOfSent(const SaveBrochuresOrder& sent);

    ServiceOperations& network_;
    const OrderDiskManager& orders_;
    OrderSync& sync_;
    std::shared_ptr<BrochureIntermediateData> draft_;
};

} // namespace kavor
