#pragma once

#include "interaction/PendingRun.h"

#include <QObject>
#include <QString>
#include <QVariantMap>

#include <optional>

namespace kavor {

class AppLifecycle;
class AppSingleton;
class AuthManager;
class BackgroundOrderSync;
class BackgroundTasks;
class LocalNotifications;
class NotificationCenter;
class PushRegistration;
class ServiceOperations;
class SessionStore;
class UserDefaults;
struct LoginParameters;

// The entry of the application: decides the first screen, keeps the session across the moments of the
// application's life, and reacts to a custom URL and to notifications. Which screen stands is told by
// rootSet; the window shows it.
class AppDelegate : public QObject {
    Q_OBJECT
public:
    // The root screens; their numbers are those of resetRoot.
    enum class RootKind {
        MainNavigation = 0,  // "MainNavigationControllerIdentifier", the dashboard
        LoginNavigation = 1, // "LoginNavigationControllerIdentifier"
        Launch = 2,          // "LaunchViewControllerIdentifier"
        AllOrders = 3,       // "AllOrdersControllerIdentifier"
    };
    Q_ENUM(RootKind)

    // Everything outlives the delegate.
    struct Services {
        AppSingleton& session;
        SessionStore& sessions;
        ServiceOperations& network;
        AuthManager& auth;
        UserDefaults& defaults;
        NotificationCenter& notifications;
        LocalNotifications& localNotifications;
        PushRegistration& push;
        BackgroundTasks& tasks;
        BackgroundOrderSync& sync;
    };

    static constexpr char gcmMessageIDKey[] = "gcm.message_id";
    static constexpr char gcmPayload[] = "aps";
    static constexpr int badgeSoundAndAlert = 7;

    explicit AppDelegate(const Services& services, QObject* parent = nullptr);
    // Reacts to these moments from now on.
    void follow(AppLifecycle& lifecycle);

    void didFinishLaunching();
    // Decides the first screen.
    void loadIntoInitialViewController();

    // The user waits no longer for the automatic login: as if it had failed, and its answer changes nothing.
    void leaveAutomaticLogin();

    void didEnterBackground();
    void willEnterForeground();
    void willTerminate();

    // "kavor://...?login=...&token=...". Answers true.
    bool openUrl(const QString& url);

    // What a notification does while the application is in front: always badge, sound and alert.
    [[nodiscard]] static int willPresentNotification() { return badgeSoundAndAlert; }
    void didReceiveNotificationResponse(const QString& action, const QVariantMap& userInfo);

    // Makes a screen the root; the former one leaves in a transition.
    void setRoot(RootKind kind);
    // Makes a screen the root of a new window, without a transition.
    void resetRoot(RootKind kind);
    [[nodiscard]] std::optional<RootKind> root() const { return root_; }

signals:
    void rootSet(kavor::AppDelegate::RootKind kind, bool inTransition);

private:
    void logInAutomatically(const LoginParameters& parameters);
    void fallBackToRestoredSession();
    void setUpNotifications();

    Services services_;
    std::optional<RootKind> root_;
    PendingRun automaticLogin_;
};

} // namespace kavor
