#include "orders/screens/ClaimOrderViewController.h"

#include "documents/Answers.h"
#include "interaction/AlertPresenter.h"
#include "interaction/QtText.h"

namespace kavor {

ClaimOrderViewController::ClaimOrderViewController(const OrderMessageServices& services, Int orderId,
                                                   const QString& customerName, QObject* parent)
    : MessageFormController({services.network, services.alerts, services.urls, services.reachability},
                            ownMessages(services).claims[orderId],
                            QStringLiteral("Es posible que la reclamación ya se haya enviado."), parent)
    , orderId_(orderId)
    , customerName_(customerName) {}

ClaimOrderViewController::~ClaimOrderViewController() = default;

void ClaimOrderViewController::sendClaimAction() {
    if (isSending() || isDone())
        return;
    if (isTextBlank()) {
        services().alerts.inform(QStringLiteral("Atencion"), // spelt so on purpose
                                 QStringLiteral("Has de informar de un comentario."));
        return;
    }
    send<MessageResponse>(
        "claim/" + std::to_string(orderId_) + '/' + text().toStdString(),
        [this](const Completion<MessageResponse>& done, const QByteArray& key) {
            services().network.claimOrder(orderId_, text(), done, key);
        },
        [this](const MessageResponse& answer) {
            emptyText();
            emit claimed(orderId_);
            tellAndLeave(QStringLiteral("Reclamación"), fromUtf8(answer.msg));
        });
}

QString ClaimOrderViewController::titleLabel() const {
    return QStringLiteral("Nueva reclamación sobre el pedido %1 - ").arg(orderId_) + customerName_;
}

} // namespace kavor
