#pragma once

#include "base/NotificationCenter.h"
#include "interaction/PendingRun.h"
#include "network/ShowRequestFailure.h"
#include "screens/ScreenController.h"
#include "screens/VeilState.h"
#include "shell/services/OrderUploadManager.h"

#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <vector>

namespace kavor {

class AppDelegate;
class AppSingleton;
class AuthManager;
class CatalogueUpdate;
class Clock;
class DispatchGroup;
class OrderDiskManager;
class Reachability;

// The hub after login: one button for each kind of order that the user's rights allow, the refresh of rights
// and catalogue, the server's notifications, and the diagnostic upload of the device's orders.
class WelcomeViewController : public kavor::ScreenController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(kavor::VeilState* progressVeil READ progressVeil CONSTANT)
    Q_PROPERTY(QString versionLabel READ versionLabel CONSTANT)
    Q_PROPERTY(QString loginImage READ loginImage CONSTANT)
    // Each entry: {identifier, label, image}.
    Q_PROPERTY(QVariantList welcomeButtons READ welcomeButtons NOTIFY welcomeButtonsChanged)
    Q_PROPERTY(bool notificationsShown READ areNotificationsShown NOTIFY notificationsChanged)
    Q_PROPERTY(QString notificationsTitle READ notificationsTitle NOTIFY notificationsChanged)
    // Each entry: {title, description, image}; the last two may be empty.
    Q_PROPERTY(QVariantList notificationsList READ notificationsList NOTIFY notificationsChanged)
    Q_PROPERTY(bool offline READ isOffline NOTIFY offlineChanged)
    Q_PROPERTY(QString user READ user CONSTANT)
    Q_PROPERTY(QString catalogueAge READ catalogueAge NOTIFY catalogueAgeChanged)
    Q_PROPERTY(QString unsentOrders READ unsentOrders NOTIFY unsentOrdersChanged)

public:
    // Everything outlives the screen.
    struct Services {
        AppSingleton& session;
        AppDelegate& application;
        ServiceOperations& network;
        AuthManager& auth;
        CatalogueUpdate& catalogue;
        NotificationCenter& notifications;
        OrderDiskManager& orders;
        AlertPresenter& alerts;
        UrlOpener& urls;
        Clock& clock;
        Reachability& reachability;
    };

    explicit WelcomeViewController(const Services& services, QObject* parent = nullptr);
    ~WelcomeViewController() override;

    // Whether the catalogue is to be downloaded when the screen appears: after the login form.
    bool downloadApplicationInformation = false;

    void viewWillAppear() override;

    [[nodiscard]] VeilState* progressVeil() { return &progressVeil_; }
    [[nodiscard]] bool isProgressVeilShown() const { return progressVeil_.isVisible(); }
    [[nodiscard]] QString progressMessage() const { return progressVeil_.text(); }
    [[nodiscard]] double progress() const { return progressVeil_.progress(); }
    [[nodiscard]] QString versionLabel() const;
    [[nodiscard]] QString loginImage() const { return loginImage_; }
    [[nodiscard]] QVariantList welcomeButtons() const { return welcomeButtons_; }
    [[nodiscard]] bool areNotificationsShown() const { return notificationsShown_; }
    [[nodiscard]] QString notificationsTitle() const;
    [[nodiscard]] QVariantList notificationsList() const { return notificationsList_; }
    [[nodiscard]] bool isOffline() const;
    [[nodiscard]] QString user() const;
    [[nodiscard]] QString catalogueAge() const { return catalogueAge_; }
    [[nodiscard]] QString unsentOrders() const { return unsentOrders_; }

    Q_INVOKABLE int columns(int total, bool landscape) const;
    // The tile that a key of the keyboard leads to from another one (-1: from none); -1 when it leads
    // nowhere.
    Q_INVOKABLE int tileAfter(int index, int key, int columns) const;
    Q_INVOKABLE void openSection(int identifier);
    // A tool of the bar, by the name of its entry; one that is not there yet does nothing.
    Q_INVOKABLE void openTool(const QString& name);
    Q_INVOKABLE void updateInfoapp();
    // Leaves the refresh under way; what was under way changes nothing any more.
    void cancelUpdateAction();
    Q_INVOKABLE void logout();
    Q_INVOKABLE void dismissNotificationsAction();

signals:
    void progressChanged();
    void welcomeButtonsChanged();
    void notificationsChanged();
    void offlineChanged();
    void catalogueAgeChanged();
    void unsentOrdersChanged();
    // A section was entered; the name of the way to its screen.
    void transitionPerformed(const QString& name);
    // The way back to the login screen.
    void dismissWelcomeView();

private:
    using NamedOrders = std::vector<OrderUploadManager::NamedOrder>;

    void observe();
    void onMainQueue(std::function<void()> work);
    void updateUserInformation();
    void beginRun();
    // What hears only as long as the refresh is waited for.
    [[nodiscard]] QObject* waiting() { return run_.isUnderWay() ? run_.context() : this; }
    void fetchCatalogue();
    void catalogueFetchFailed(const RequestFailure& failure);
    void refreshNotifications();
    void rebuildButtons();
    void tryToUploadOrders();
    void uploadOrders(NamedOrders orders, const std::shared_ptr<DispatchGroup>& group);
    void updateOrderSendingProgress(const NotificationInfo& info);
    void confirmedLogout();
    void refreshCatalogueAge();
    void countUnsentOrders();
    void setProgress(double progress, const QString& message);
    void showVeil(bool shown);

    Services services_;
    std::vector<NotificationCenter::Subscription> subscriptions_;
    NotificationCenter::Subscription uploadProgress_;
    std::shared_ptr<DispatchGroup> uploadDispatchGroup_;
    std::unique_ptr<OrderUploadManager> uploadManager_;
    PendingRun run_;
    VeilState progressVeil_;
    QString loginImage_;
    QVariantList welcomeButtons_;
    bool notificationsShown_ = false;
    QVariantList notificationsList_;
    QString catalogueAge_;
    QString unsentOrders_;
    quint64 ageTimer_ = 0;
};

} // namespace kavor
