#include "activations/screens/ActivationRoad.h"

#include "base/StopProcess.h"
#include "base/json/Json.h"
#include "interaction/QtText.h"

namespace kavor {

namespace {

OrderTexts activationTexts() {
    OrderTexts texts;
    texts.incompleteTitle = QStringLiteral("Atención");
    return texts;
}

} // namespace

ActivationRoad::ActivationRoad(const OrderRoadServices& services, const ActivationForm& form,
                               const ActivationInformation& activation,
                               const std::vector<ActivationInformation::Item>& items)
    : OrderRoadOf(services, activationTexts())
    , network_(services.network)
    , form_(form)
    , activation_(activation)
    , items_(items) {}

ActivationRoad::~ActivationRoad() = default;

std::vector<std::string> ActivationRoad::missing() const {
    return activationErrors(orderToSend(), activation_.attributesList);
}

QStringList ActivationRoad::lacks() const {
    QStringList sentences;
    for (const std::string& each : missing())
        sentences << fromUtf8(each);
    return sentences;
}

ActivationOrder ActivationRoad::make(OrderRequestType) const {
    return makeActivationOrder(form_, activation_, items_);
}

void ActivationRoad::post(const ActivationOrder& order, Completion<Answer> done, const QByteArray& key) {
    network_.activationOrder(order, std::move(done), key);
}

SendContent ActivationRoad::contentOf(OrderRequestType type, const ActivationOrder& order) const {
    const auto text = json::encode(order);
    if (!text)
        stopProcess("document of an activation to send: " + text.error().text());
    return {type, *text};
}

std::string ActivationRoad::content() const {
    return contentOf(OrderRequestType::sendToPrint, orderToSend()).text();
}

UnansweredSends& ActivationRoad::unansweredSends() {
    return ActivationMemory::shared().unansweredSends;
}

OrderAnswer ActivationRoad::read(const Answer& answer) const {
    return {answer.urlOrder.has_value(), std::nullopt, {}};
}

void ActivationRoad::takeSent(const Answer& answer) {
    count(answer, ActivationMemory::shared().counted.erase(content()) == 0);
}

void ActivationRoad::takenWithoutPlace(const Answer& answer) {
    count(answer, ActivationMemory::shared().counted.insert(content()).second);
}

void ActivationRoad::count(const Answer& answer, bool isNewOrder) {
    ActivationMemory::shared().quotas.count(activation_, answer, isNewOrder);
    emit taken(answer, isNewOrder);
}

} // namespace kavor
