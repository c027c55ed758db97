#include "shell/screens/RootController.h"

#include "device/LocalNotifications.h"
#include "interaction/AlertPresenter.h"
#include "interaction/QtText.h"
#include "session/AppSingleton.h"
#include "shell/WelcomeOptions.h"
#include "shell/screens/LaunchViewController.h"
#include "shell/screens/Screens.h"

#include <QQuickWindow>

#include <utility>

namespace kavor {

RootController::RootController(Services services, QObject* parent)
    : QObject(parent)
    , services_(std::move(services))
    , presses_(services_.welcome.clock) {
    connect(&screens_, &ScreenStack::rowsInserted, &presses_, &PressGuard::screenChanged);
    connect(&screens_, &ScreenStack::rowsRemoved, &presses_, &PressGuard::screenChanged);
    viewChanged_ = services_.welcome.notifications.observe(
        notification::viewChanged, [this](const NotificationInfo&) { presses_.screenChanged(); });
    connect(&screens_, &ScreenStack::rootClosed, this, &RootController::leaveRoot);
    connect(&services_.application, &AppDelegate::rootSet, this, &RootController::setRoot);
    connect(&services_.notifications, &LocalNotifications::bannerWanted, this,
            [this](int number, const QString& title, const QString& body) {
                banners_.push_back({number, title, body});
                if (banners_.size() == 1)
                    emit bannerShown(title, body);
            });
}

void RootController::setWindow(QQuickWindow* window, bool animated) {
    window_ = window;
    animated_ = animated;
    presses_.watch(window);
}

QObject* RootController::alerts() const {
    return &services_.alerts;
}

void RootController::setRoot(AppDelegate::RootKind kind, bool inTransition) {
    if (inTransition)
        takeSnapshot();
    screens_.replaceAll(makeRoot(kind));
}

void RootController::takeSnapshot() {
    if (!animated_ || !window_ || !window_->isExposed())
        return;
    snapshot_ = window_->grabWindow();
    emit snapshotChanged();
}

void RootController::snapshotDone() {
    if (snapshot_.isNull())
        return;
    snapshot_ = {};
    emit snapshotChanged();
}

Screen RootController::makeRoot(AppDelegate::RootKind kind) {
    switch (kind) {
    case AppDelegate::RootKind::MainNavigation:
        return makeWelcome();
    case AppDelegate::RootKind::LoginNavigation:
        return makeLogin();
    case AppDelegate::RootKind::AllOrders:
        return services_.sections(fromUtf8(transition::allOrders), screens_);
    case AppDelegate::RootKind::Launch:
        break;
    }
    return {screenView("LaunchView"), new LaunchViewController(services_.application, this)};
}

Screen RootController::makeLogin() {
    login_ = new LoginViewController(services_.login, this);
    connect(login_, &LoginViewController::showUserApplications, this, &RootController::showUserApplications);
    connect(login_, &LoginViewController::urlLoginBegins, this, &RootController::cutToLogin);
    return {screenView("LoginView"), login_};
}

Screen RootController::makeWelcome() {
    welcome_ = new WelcomeViewController(services_.welcome, this);
    connect(welcome_, &WelcomeViewController::transitionPerformed, this, &RootController::openSection);
    connect(welcome_, &WelcomeViewController::dismissWelcomeView, this, [this] {
        if (login_)
            login_->unwindToLoginView();
    });
    return {screenView("WelcomeView"), welcome_};
}

// From the orders that a notification made the root.
void RootController::leaveRoot() {
    const bool hasSession = services_.welcome.session.loginResult.has_value();
    services_.application.setRoot(hasSession ? AppDelegate::RootKind::MainNavigation
                                             : AppDelegate::RootKind::LoginNavigation);
}

void RootController::showUserApplications() {
    const Screen dashboard = makeWelcome();
    welcome_->downloadApplicationInformation = true;
    screens_.push(dashboard);
    login_->viewWillDisappear();
}

// Whoever was logged in leaves first: two dashboards above each other would both send what is asked of one.
void RootController::cutToLogin() {
    if (!screens_.top() || screens_.top()->controller == login_)
        return;
    if (welcome_)
        welcome_->cancelUpdateAction();
    if (screens_.removeAbove(login_))
        login_->unwindToLoginView();
}

void RootController::openSection(const QString& transition) {
    screens_.push(services_.sections(transition, screens_));
}

void RootController::bannerTapped() {
    if (!banners_.empty())
        services_.notifications.respondToBanner(banners_.front().number,
                                                QLatin1String(notification_action::open));
}

void RootController::bannerGone() {
    if (banners_.empty())
        return;
    banners_.pop_front();
    if (!banners_.empty())
        emit bannerShown(banners_.front().title, banners_.front().body);
}

} // namespace kavor
