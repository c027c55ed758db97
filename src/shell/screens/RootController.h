#pragma once

#include "base/NotificationCenter.h"
#include "interaction/PressGuard.h"
#include "screens/ScreenStack.h"
#include "shell/screens/LoginViewController.h"
#include "shell/screens/WelcomeViewController.h"
#include "shell/services/AppDelegate.h"

#include <QImage>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

#include <chrono>
#include <deque>
#include <functional>

class QQuickWindow;

namespace kavor {

class DesktopNotifications;

// Puts the application's root screen into the window, and the screens that are opened from there on top of
// it.
class RootController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QAbstractItemModel* screens READ screens CONSTANT)
    Q_PROPERTY(QObject* alerts READ alerts CONSTANT)
    // The window as it was before the root changed, while the transition runs.
    Q_PROPERTY(QVariant snapshot READ snapshot NOTIFY snapshotChanged)

public:
    // Makes the screen that a transition leads to. It may open further ones on the stack.
    using SectionFactory = std::function<Screen(const QString& transition, ScreenStack& screens)>;

    struct Services {
        AppDelegate& application;
        AlertPresenter& alerts;
        DesktopNotifications& notifications;
        LoginViewController::Services login;
        WelcomeViewController::Services welcome;
        SectionFactory sections;
    };
    explicit RootController(Services services, QObject* parent = nullptr);

    // The window whose picture a transition shows; without one, or without animation, roots change at once.
    void setWindow(QQuickWindow* window, bool animated);

    // The platform's time between the halves of a double press; zero until it is told.
    void setDoublePressInterval(std::chrono::milliseconds interval) { presses_.setInterval(interval); }

    [[nodiscard]] QAbstractItemModel* screens() { return &screens_; }
    [[nodiscard]] QObject* alerts() const;
    [[nodiscard]] QVariant snapshot() const { return snapshot_; }
    [[nodiscard]] WelcomeViewController* welcome() const { return welcome_; }
    [[nodiscard]] LoginViewController* login() const { return login_; }

    Q_INVOKABLE void snapshotDone();
    Q_INVOKABLE void bannerTapped();
    Q_INVOKABLE void bannerGone();
    Q_INVOKABLE void reportWindowClosed() { emit windowClosed(); }

signals:
    void snapshotChanged();
    void bannerShown(const QString& title, const QString& body);
    void windowClosed();

private:
    struct Banner {
        int number = 0;
        QString title;
        QString body;
    };

    void setRoot(AppDelegate::RootKind kind, bool inTransition);
    [[nodiscard]] Screen makeRoot(AppDelegate::RootKind kind);
    [[nodiscard]] Screen makeLogin();
    [[nodiscard]] Screen makeWelcome();
    void showUserApplications();
    void cutToLogin();
    void openSection(const QString& transition);
    void leaveRoot();
    void takeSnapshot();

    Services services_;
    PressGuard presses_;
    NotificationCenter::Subscription viewChanged_;
    ScreenStack screens_;
    QPointer<QQuickWindow> window_;
    QPointer<WelcomeViewController> welcome_;
    QPointer<LoginViewController> login_;
    std::deque<Banner> banners_;
    QImage snapshot_;
    bool animated_ = false;
};

} // namespace kavor
