#include "device/LocalNotifications.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QMetaObject>

namespace kavor {

namespace {

const QString service = QStringLiteral("org.freedesktop.Notifications");
const QString path = QStringLiteral("/org/freedesktop/Notifications");
constexpr uint dismissedByUser = 2;
constexpr int answerLimit = 2000;

} // namespace

DesktopNotifications::DesktopNotifications(QObject* parent)
    : LocalNotifications(parent) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    connected_ = bus.connect(service, path, service, QStringLiteral("ActionInvoked"), this,
                             SLOT(actionInvoked(uint, QString))) &&
                 bus.connect(service, path, service, QStringLiteral("NotificationClosed"), this,
                             SLOT(notificationClosed(uint, uint)));
}

void DesktopNotifications::requestAuthorization(std::function<void(bool)> callback) {
    QMetaObject::invokeMethod(
        this, [callback = std::move(callback)] { callback(true); }, Qt::QueuedConnection);
}

void DesktopNotifications::registerCategory(const QString& category,
                                            const QList<NotificationAction>& actions) {
    categories_[category] = actions;
}

void DesktopNotifications::post(const LocalNotification& notification) {
    if (!connected_) {
        showBanner(notification);
        return;
    }
    QStringList actions{QLatin1String(notification_action::open), QStringLiteral("Abrir")};
    for (const NotificationAction& action : categories_.value(notification.category))
        actions << action.identifier << action.title;
    auto call = QDBusMessage::createMethodCall(service, path, service, QStringLiteral("Notify"));
    call << QStringLiteral("Kavor") << uint(0) << QStringLiteral("kavor") << notification.title
         << notification.body.toHtmlEscaped() << actions << QVariantMap() << int(-1);
    auto* watcher =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call, answerLimit), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, notification](QDBusPendingCallWatcher* done) { posted(done, notification); });
}

void DesktopNotifications::posted(QDBusPendingCallWatcher* call, const LocalNotification& notification) {
    const QDBusPendingReply<uint> reply = *call;
    call->deleteLater();
    if (reply.isError())
        showBanner(notification);
    else
        shown_[reply.value()] = notification.userInfo;
}

void DesktopNotifications::showBanner(const LocalNotification& notification) {
    banners_[++lastBanner_] = notification.userInfo;
    emit bannerWanted(lastBanner_, notification.title, notification.body);
}

void DesktopNotifications::respondToBanner(int banner, const QString& actionIdentifier) {
    if (banners_.contains(banner))
        emit tapped(actionIdentifier, banners_.take(banner));
}

// The service tells every client of every notification; only our own count.
void DesktopNotifications::actionInvoked(uint id, const QString& action) {
    if (shown_.contains(id))
        emit tapped(action, shown_.take(id));
}

void DesktopNotifications::notificationClosed(uint id, uint reason) {
    if (!shown_.contains(id))
        return;
    const QVariantMap userInfo = shown_.take(id);
    if (reason == dismissedByUser)
        emit tapped(QLatin1String(notification_action::dismiss), userInfo);
}

} // namespace kavor
