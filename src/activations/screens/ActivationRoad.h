#pragma once

#include "activations/ActivationForm.h"
#include "activations/ActivationMemory.h"
#include "orders/services/OrderRoad.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace kavor {

// The road of an activation: to print only, never without a network and never into a file. The key of a send
// that nobody answered stays in the memory of the section.
class ActivationRoad : public OrderRoadOf<ActivationOrder, SaveBrochuresOrderActivationResponse> {
    Q_OBJECT
public:
    using Answer = SaveBrochuresOrderActivationResponse;

    // The services outlive the road, and so do form, activation and elements.
    ActivationRoad(const OrderRoadServices& services, const ActivationForm& form,
                   const ActivationInformation& activation,
                   const std::vector<ActivationInformation::Item>& items);
    ~ActivationRoad() override;

    [[nodiscard]] ActivationOrder orderToSend() const { return make(OrderRequestType::sendToPrint); }
    // The sentences of the check, in their order.
    [[nodiscard]] QStringList lacks() const;
    // Once set, the order was sent and is opened instead of being sent again.
    void setPrevisualitationURL(const std::optional<QUrl>& url) { previsualitationURL_ = url; }
    [[nodiscard]] const std::optional<QUrl>& previsualitationURL() const { return previsualitationURL_; }

signals:
    // The server has the order, and its quota is counted; one that was sent again is no new one.
    void taken(const kavor::ActivationRoad::Answer& answer, bool isNewOrder);

protected:
    [[nodiscard]] std::vector<std::string> missing() const override;
    [[nodiscard]] std::optional<QUrl> sentTo() const override { return previsualitationURL_; }
    [[nodiscard]] ActivationOrder make(OrderRequestType type) const override;
    void post(const ActivationOrder& order, Completion<Answer> done, const QByteArray& key) override;
    [[nodiscard]] SendContent contentOf(OrderRequestType type, const ActivationOrder& order) const override;
    [[nodiscard]] UnansweredSends& unansweredSends() override;
    void keepSafe() override {} // nothing of it is written
    [[nodiscard]] OrderAnswer read(const Answer& answer) const override;
    void takeSent(const Answer& answer) override;
    void tellSent(const OrderAnswer&) override {} // the form does, and asks for a further one
    void takenWithoutPlace(const Answer& answer) override;

private:
    [[nodiscard]] std::string content() const;
    void count(const Answer& answer, bool isNewOrder);

    ServiceOperations& network_;
    const ActivationForm& form_;
    const ActivationInformation& activation_;
    const std::vector<ActivationInformation::Item>& items_;
    std::optional<QUrl> previsualitationURL_;
};

} // namespace kavor
