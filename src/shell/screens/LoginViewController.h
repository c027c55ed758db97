#pragma once

#include "base/NotificationCenter.h"
#include "interaction/PendingRun.h"
#include "network/ShowRequestFailure.h"
#include "screens/VeilState.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <optional>
#include <string>

namespace kavor {

class AppSingleton;
class AuthManager;
class UserDefaults;
struct LoginResult;

// The login form and the one credential that the device may remember.
class LoginViewController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(QString email READ email WRITE setEmail NOTIFY fieldsChanged)
    Q_PROPERTY(QString password READ password WRITE setPassword NOTIFY fieldsChanged)
    Q_PROPERTY(bool rememberPassword READ rememberPassword NOTIFY rememberPasswordChanged)
    Q_PROPERTY(bool loginEnabled READ isLoginEnabled NOTIFY loginEnabledChanged)
    Q_PROPERTY(kavor::VeilState* veil READ veil CONSTANT)
    Q_PROPERTY(QString versionLabel READ versionLabel CONSTANT)

public:
    // Everything outlives the screen.
    struct Services {
        AppSingleton& session;
        ServiceOperations& network;
        AuthManager& auth;
        UserDefaults& defaults;
        NotificationCenter& notifications;
        AlertPresenter& alerts;
        UrlOpener& urls;
    };

    explicit LoginViewController(const Services& services, QObject* parent = nullptr);

    [[nodiscard]] QString email() const { return email_; }
    [[nodiscard]] QString password() const { return password_; }
    [[nodiscard]] bool rememberPassword() const { return rememberPassword_; }
    [[nodiscard]] bool isLoginEnabled() const { return loginEnabled_; }
    [[nodiscard]] VeilState* veil() { return &veil_; }
    [[nodiscard]] bool isVeilShown() const { return veil_.isVisible(); }
    [[nodiscard]] QString versionLabel() const;
    void setEmail(const QString& email);
    void setPassword(const QString& password);

    Q_INVOKABLE void loginAction();
    // Leaves the login under way; its answer changes nothing any more.
    void cancelLoginAction();
    Q_INVOKABLE void rememberPasswordSwitchValueChangedAction(bool on);
    Q_INVOKABLE void resetPasswordAction();
    Q_INVOKABLE void activateUserAction();
    // The way back from the dashboard.
    void unwindToLoginView();
    void viewWillDisappear();

signals:
    void fieldsChanged();
    void rememberPasswordChanged();
    void loginEnabledChanged();
    // The password field gives up the focus.
    void passwordResigned();
    // A login by an opened address starts now; the form is to be on show.
    void urlLoginBegins();
    // The way to the dashboard, which then downloads the catalogue at once.
    void showUserApplications();

private:
    struct Retrieved {
        std::string account;
        std::string password;
    };

    void prefill();
    void loginWithToken();
    void performLogin(const QString& login, const std::optional<QString>& password,
                      const std::optional<QString>& token);
    void loginSucceeded(const LoginResult& result);
    void rememberCredentials();
    void setLoginEnabled(bool enabled);
    void setLoggingIn(bool running) { veil_.setVisible(running, running); }

    Services services_;
    NotificationCenter::Subscription urlSchemeOpened_;
    QString email_;
    QString password_;
    bool rememberPassword_ = false;
    bool loginEnabled_ = true;
    VeilState veil_;
    bool passwordUsed_ = false; // by the last login
    PendingRun login_;
    std::optional<Retrieved> retrievedCredentials_;
};

} // namespace kavor
