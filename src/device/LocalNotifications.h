#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <QVariantMap>

#include <functional>

class QDBusPendingCallWatcher;

namespace kavor {

namespace notification_action {
inline constexpr char open[] = "default";    // the notification itself was tapped
inline constexpr char dismiss[] = "dismiss"; // the user put it away
} // namespace notification_action

struct NotificationAction {
    QString identifier;
    QString title;
};

struct LocalNotification {
    QString title;
    QString body;
    QVariantMap userInfo; // what a tap gives back, types kept
    QString category;     // names registered actions; empty for none
};

// Notifications of this device to its user.
class LocalNotifications : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;
    // Asks the user where the platform wants that; the callback gets whether notifications may be shown.
    virtual void requestAuthorization(std::function<void(bool)> callback) = 0;
    [[nodiscard]] virtual bool isAuthorized() const = 0;
    // Shows a notification at once. A delay is its sender's business.
    virtual void post(const LocalNotification& notification) = 0;
    // The actions that notifications of a category offer besides opening.
    virtual void registerCategory(const QString& category, const QList<NotificationAction>& actions) = 0;

signals:
    // The user's response: notification_action::open, notification_action::dismiss or a registered action.
    void tapped(const QString& actionIdentifier, const QVariantMap& userInfo);
    // The platform cannot show it: the window shows a banner and calls respondToBanner.
    void bannerWanted(int banner, const QString& title, const QString& body);
};

// The desktop's notification service; where none answers, a banner in the window.
class DesktopNotifications : public LocalNotifications {
    Q_OBJECT
public:
    explicit DesktopNotifications(QObject* parent = nullptr);
    void requestAuthorization(std::function<void(bool)> callback) override;
    [[nodiscard]] bool isAuthorized() const override { return true; }
    void post(const LocalNotification& notification) override;
    void registerCategory(const QString& category, const QList<NotificationAction>& actions) override;

    // The user's response to a banner.
    Q_INVOKABLE void respondToBanner(int banner, const QString& actionIdentifier);

private slots:
    void actionInvoked(uint id, const QString& action);
    void notificationClosed(uint id, uint reason);

private:
    void showBanner(const LocalNotification& notification);
    void posted(QDBusPendingCallWatcher* call, const LocalNotification& notification);

    bool connected_ = false;
    QHash<uint, QVariantMap> shown_;
    QHash<int, QVariantMap> banners_;
    QHash<QString, QList<NotificationAction>> categories_;
    int lastBanner_ = 0;
};

} // namespace kavor
