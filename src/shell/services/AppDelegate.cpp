#include "shell/services/AppDelegate.h"

#include "base/Log.h"
#include "base/NotificationCenter.h"
#include "catalogue/URLParser.h"
#include "device/AppLifecycle.h"
#include "device/BackgroundTasks.h"
#include "device/LocalNotifications.h"
#include "device/PushRegistration.h"
#include "device/UserDefaults.h"
#include "network/ServiceOperations.h"
#include "orders/services/OrderSync.h"
#include "session/AppSingleton.h"
#include "session/services/AuthManager.h"
#include "session/services/SessionStore.h"

#include <string>

namespace kavor {

namespace {

// "orderId", when the notification carries it as an integer.
std::optional<qint64> orderIdIn(const QVariantMap& userInfo) {
    const QVariant value = userInfo.value(QStringLiteral("orderId"));
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return value.toLongLong();
    default:
        return std::nullopt;
    }
}

std::string wordFor(const QString& action) {
    if (action == QLatin1String(notification_action::dismiss))
        return "Dismiss Action";
    if (action == QLatin1String(notification_action::open))
        return "Open Action";
    if (action == QLatin1String("Snooze") || action == QLatin1String("Delete"))
        return action.toStdString();
    return "default";
}

} // namespace

AppDelegate::AppDelegate(const Services& services, QObject* parent)
    : QObject(parent)
    , services_(services) {}

void AppDelegate::follow(AppLifecycle& lifecycle) {
    connect(&lifecycle, &AppLifecycle::enteredBackground, this, &AppDelegate::didEnterBackground);
    connect(&lifecycle, &AppLifecycle::enteringForeground, this, &AppDelegate::willEnterForeground);
    connect(&lifecycle, &AppLifecycle::willTerminate, this, &AppDelegate::willTerminate);
}

void AppDelegate::didFinishLaunching() {
    services_.sessions.restoreSession();
    loadIntoInitialViewController();
    services_.tasks.registerHandler(
        QLatin1String(BackgroundOrderSync::taskIdentifier),
        [this](const std::shared_ptr<BackgroundTask>& task) { services_.sync.handleBrochureSync(task); });
    setUpNotifications();
}

void AppDelegate::setUpNotifications() {
    connect(&services_.push, &PushRegistration::tokenReceived, this, [this](const QString& token) {
        logLine("Firebase registration token: " + token.toStdString(), LogLevel::Note);
        services_.session.fcmToken = token.toStdString();
    });
    connect(&services_.push, &PushRegistration::failed, this, [](const QString& description) {
        logLine("Unable to register for remote notifications: " + description.toStdString());
    });
    connect(&services_.localNotifications, &LocalNotifications::tapped, this,
            &AppDelegate::didReceiveNotificationResponse);
    services_.localNotifications.requestAuthorization([](bool) {});
    services_.push.registerForRemoteNotifications();
}

void AppDelegate::loadIntoInitialViewController() {
    const auto stored = services_.defaults.boolean(QLatin1String(default_key::loadIntoInitialViewController))
                            ? services_.auth.readCredentials()
                            : std::nullopt;
    if (!stored) {
        services_.defaults.setBoolean(QLatin1String(default_key::loadIntoInitialViewController), false);
        setRoot(RootKind::LoginNavigation);
        return;
    }
    services_.network.setAccessToken(QString::fromStdString(stored->token));
    services_.session.storedAccount = stored->account;
    if (services_.network.isReachable())
        logInAutomatically({QString::fromStdString(stored->account), QString::fromStdString(stored->password),
                            std::nullopt});
    else
        fallBackToRestoredSession();
}

void AppDelegate::logInAutomatically(const LoginParameters& parameters) {
    setRoot(RootKind::Launch);
    // Read and without effect, on purpose: nothing writes this key.
    [[maybe_unused]] const bool ignored =
        services_.defaults.boolean(QLatin1String(default_key::needToDownloadServerInformationWhenOnline));
    const auto loggedIn = [this](const LoginResult& answer) {
        // The access token stays as it was read from the store; only the login form takes the answer's. It is
        // meant.
        automaticLogin_.end();
        services_.session.loginResult = answer;
        setRoot(RootKind::MainNavigation);
        services_.notifications.post(notification::needToUpdateResources);
    };
    services_.network.login(parameters, {automaticLogin_.begin(), loggedIn,
                                         [this](const RequestFailure&) { leaveAutomaticLogin(); }});
}

void AppDelegate::leaveAutomaticLogin() {
    if (!automaticLogin_.isUnderWay())
        return;
    automaticLogin_.end();
    fallBackToRestoredSession();
}

void AppDelegate::fallBackToRestoredSession() {
    setRoot(services_.sessions.restoreSession() ? RootKind::MainNavigation : RootKind::LoginNavigation);
}

void AppDelegate::didEnterBackground() {
    // Fatal without a session, also at the login screen. It is meant.
    services_.sessions.storeSession();
    services_.tasks.cancelAll();
    services_.sync.scheduleBrochureSync();
}

void AppDelegate::willTerminate() {
    services_.sessions.storeSession();
}

void AppDelegate::willEnterForeground() {
    if (!services_.sessions.restoreSession())
        setRoot(RootKind::LoginNavigation);
}

bool AppDelegate::openUrl(const QString& url) {
    const URLParser parser(url.toStdString());
    services_.session.autoLoginUser = parser.value("login");
    services_.session.autoLoginToken = parser.value("token");
    services_.notifications.post(notification::urlSchemeOpened);
    return true;
}

void AppDelegate::didReceiveNotificationResponse(const QString& action, const QVariantMap& userInfo) {
    logLine("Notification response: " + action.toStdString(), LogLevel::Note);
    if (!orderIdIn(userInfo)) {
        logLine(wordFor(action), LogLevel::Note);
        return;
    }
    if (action != QLatin1String(notification_action::open))
        return;
    services_.notifications.post(notification::reloadOrders);
    resetRoot(RootKind::AllOrders);
}

void AppDelegate::setRoot(RootKind kind) {
    const bool inTransition = root_.has_value();
    root_ = kind;
    emit rootSet(kind, inTransition);
}

void AppDelegate::resetRoot(RootKind kind) {
    root_ = kind;
    emit rootSet(kind, false);
}

} // namespace kavor
