#pragma once

#include "documents/Answers.h"
#include "orders/services/OrderRoad.h"
#include "sellingsheets/SellingSheetOrder.h"

#include <memory>
#include <string>

namespace kavor {

class Catalogue;
class OrderDiskManager;

// The road of a selling sheet: a stored draft to the server, or any sheet to a preview, never without a
// network. A draft goes under a key made of its file's name and what it holds, so that it is ordered once
// however often an answer is lost, also by a later process. Its file goes once the server has it.
class SellingSheetRoad : public OrderRoadOf<SellingSheetOrder, GenericOrderResponse> {
    Q_OBJECT
public:
    // The services and the store outlive the road.
    SellingSheetRoad(const OrderRoadServices& services, OrderDiskManager& orders,
                     std::shared_ptr<const Catalogue> catalogue);
    ~SellingSheetRoad() override;

    void sendDraft(const SellingSheetOrder& order, const std::string& plainName);
    // Of a sheet that is still in work: it has to be complete.
    void previewDraft(const SellingSheetOrder& order, const std::string& plainName);
    // Of one that the server has taken.
    void previewSent(const SellingSheetOrder& order);

protected:
    using Answer = GenericOrderResponse;

    [[nodiscard]] std::vector<std::string> missing() const override;
    [[nodiscard]] SellingSheetOrder make(OrderRequestType type) const override;
    void post(const SellingSheetOrder& order, Completion<Answer> done, const QByteArray& key) override;
    [[nodiscard]] SendContent contentOf(OrderRequestType type, const SellingSheetOrder& order) const override;
    [[nodiscard]] UnansweredSends& unansweredSends() override { return sends_; }
    void keepSafe() override {}
    [[nodiscard]] OrderAnswer read(const Answer& answer) const override;
    void takeSent(const Answer& answer) override;
    void tellSent(const OrderAnswer& answer) override;

private:
    void take(const SellingSheetOrder& order, const std::string& name, OrderRequestType type);

    ServiceOperations& network_;
    OrderDiskManager& orders_;
    std::shared_ptr<const Catalogue> catalogue_;
    SellingSheetOrder order_;
    std::string plainName_; // of the draft's file
    bool isChecked_ = true;
    bool fileStays_ = false;
    UnansweredSends sends_;
};

} // namespace kavor
