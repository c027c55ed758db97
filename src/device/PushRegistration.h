#pragma once

#include <QObject>
#include <QString>

#include <optional>

namespace kavor {

// The device's registration for remote notifications. Registering ends in one of the two signals.
class PushRegistration : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;
    virtual void registerForRemoteNotifications() = 0;
    [[nodiscard]] virtual std::optional<QString> token() const = 0;

signals:
    void tokenReceived(const QString& token);
    void failed(const QString& description);
};

// A device without a push service: registering always fails.
class NoPushRegistration : public PushRegistration {
    Q_OBJECT
public:
    using PushRegistration::PushRegistration;
    void registerForRemoteNotifications() override;
    [[nodiscard]] std::optional<QString> token() const override { return std::nullopt; }
};

} // namespace kavor
