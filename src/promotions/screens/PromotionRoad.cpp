#include "promotions/screens/PromotionRoad.h"

#include "base/StopProcess.h"
#include "base/json/Json.h"
#include "interaction/QtText.h"
#include "interaction/Questions.h"
#include "network/FailureMapping.h"
#include "orders/services/SendIntent.h"
#include "promotions/UnfinishedPromotion.h"
#include "session/AppSingleton.h"

#include <utility>

namespace kavor {

namespace {

OrderTexts promotionTexts() {
    OrderTexts texts;
    texts.incompleteTitle = QStringLiteral("Atención");
    texts.failedTitle.print = QStringLiteral("El pedido no se puede generar");
    return texts;
}

} // namespace

PromotionRoad::PromotionRoad(const OrderRoadServices& services, std::shared_ptr<PromotionDraft> draft,
                             std::shared_ptr<const Catalogue> catalogue, const PromotionTuple& promotion)
    : OrderRoadOf(services, promotionTexts())
    , network_(services.network)
    , draft_(std::move(draft))
    , catalogue_(std::move(catalogue))
    , promotion_(promotion) {}

PromotionRoad::~PromotionRoad() = default;

// What was ordered does not come back, unless it was ordered once more and nobody has answered.
void PromotionRoad::keep() {
    if (isSentAsItStands() && !send_intent::keyOf(draft_->unansweredSends, contentToPrint()))
        UnfinishedPromotion::shared().sent(*draft_);
    else
        UnfinishedPromotion::shared().keep(*draft_);
}

std::vector<std::string> PromotionRoad::missing() const {
    const auto& login = AppSingleton::shared().loginResult;
    return promotionErrors(make(OrderRequestType::sendToPrint), promotion_.attributes,
                           login && login->customerCodeRequired.value_or(false));
}

PromotionOrder PromotionRoad::make(OrderRequestType type) const {
    return makePromotionOrder(*draft_, promotion_, catalogue_->information().attributesTypes, type);
}

void PromotionRoad::post(const PromotionOrder& order, Completion<Answer> done, const QByteArray& key) {
    done.success = [taken = done.success, refused = done.failure](const Answer& answer) {
        if (const auto refusal = refusalIn(answer))
            refused(*refusal);
        else
            taken(answer);
    };
    network_.promotionOrderSend(order, std::move(done), key);
}

SendContent PromotionRoad::contentOf(OrderRequestType type, const PromotionOrder& order) const {
    PromotionOrder bare = order;
    bare.customer.id.reset();
    const auto text = json::encode(bare);
    if (!text)
        stopProcess("document of a promotion to send: " + text.error().text());
    return {type, *text};
}

SendContent PromotionRoad::contentToPrint() const {
    return contentOf(OrderRequestType::sendToPrint, make(OrderRequestType::sendToPrint));
}

OrderAnswer PromotionRoad::read(const Answer& answer) const {
    return {true, answer.PDFURL ? std::optional(QUrl(fromUtf8(answer.PDFURL->text))) : std::nullopt,
            QStringLiteral("Pedido realizado correctamente")};
}

void PromotionRoad::takeSent(const Answer& answer) {
    sentContent_ = contentToPrint().text();
    sentOrder_ = {answer.orderIdentifier, read(answer).document};
    keep();
}

void PromotionRoad::tellSent(const OrderAnswer& answer) {
    ask(alerts(), this, {}, answer.message, {{QStringLiteral("Ok"), AlertButton::Role::Cancel, {}}});
}

} // namespace kavor
