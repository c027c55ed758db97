#pragma once

#include "orders/screens/OrderMessageServices.h"
#include "screens/messages/MessageFormController.h"

#include <QString>

namespace kavor {

// A claim about a sent order. What is not sent is there again when the user comes back to the order.
class ClaimOrderViewController : public kavor::MessageFormController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the order list")
    Q_PROPERTY(QString titleLabel READ titleLabel CONSTANT)

public:
    ClaimOrderViewController(const OrderMessageServices& services, Int orderId, const QString& customerName,
                             QObject* parent = nullptr);
    ~ClaimOrderViewController() override;

    Q_INVOKABLE void sendClaimAction();
    Q_INVOKABLE void sendAction() override { sendClaimAction(); }

    [[nodiscard]] QString titleLabel() const;

signals:
    // The server took the claim; the screen stays until the user has read so.
    void claimed(qint64 orderId);

private:
    Int orderId_;
    QString customerName_;
};

} // namespace kavor
