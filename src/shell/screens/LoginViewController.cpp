#include "shell/screens/LoginViewController.h"

#include "base/StopProcess.h"
#include "device/UserDefaults.h"
#include "interaction/AlertPresenter.h"
#include "interaction/OpenLink.h"
#include "interaction/Questions.h"
#include "network/ServiceOperations.h"
#include "session/AppSingleton.h"
#include "session/services/AuthManager.h"
#include "shell/screens/ShellTexts.h"

#include <utility>

namespace kavor {

LoginViewController::LoginViewController(const Services& services, QObject* parent)
    : QObject(parent)
    , services_(services) {
    veil_.setText(QStringLiteral("Iniciando sesión"));
    connect(&veil_, &VeilState::left, this, &LoginViewController::cancelLoginAction);
    prefill();
    urlSchemeOpened_ = services_.notifications.observe(notification::urlSchemeOpened,
                                                       [this](const NotificationInfo&) { loginWithToken(); });
}

QString LoginViewController::versionLabel() const {
    return versionText(services_.session);
}

void LoginViewController::prefill() {
    const auto item = services_.auth.readCredentials();
    if (!item)
        return;
    rememberPassword_ = true;
    retrievedCredentials_ = {item->account, item->password};
    email_ = QString::fromStdString(item->account);
    password_ = QString::fromStdString(item->password);
}

void LoginViewController::setEmail(const QString& email) {
    if (std::exchange(email_, email) != email)
        emit fieldsChanged();
}

void LoginViewController::setPassword(const QString& password) {
    if (std::exchange(password_, password) != password)
        emit fieldsChanged();
}

void LoginViewController::setLoginEnabled(bool enabled) {
    if (std::exchange(loginEnabled_, enabled) != enabled)
        emit loginEnabledChanged();
}

void LoginViewController::loginAction() {
    emit passwordResigned();
    if (email_.isEmpty() || password_.isEmpty() || !loginEnabled_)
        return;
    setLoginEnabled(false);
    performLogin(email_, password_, std::nullopt);
}

void LoginViewController::loginWithToken() {
    const auto& user = services_.session.autoLoginUser;
    const auto& token = services_.session.autoLoginToken;
    if (!user || !token)
        return;
    if (services_.network.isReachable())
        emit urlLoginBegins();
    const QString name = QString::fromStdString(*user);
    if (name != email_)
        setPassword({}); // it was typed for somebody else
    setEmail(name);
    performLogin(email_, std::nullopt, QString::fromStdString(*token));
}

void LoginViewController::performLogin(const QString& login, const std::optional<QString>& password,
                                       const std::optional<QString>& token) {
    if (!services_.network.isReachable()) {
        setLoginEnabled(true);
        informOffline(services_.alerts);
        return;
    }
    setLoggingIn(true);
    passwordUsed_ = password.has_value();
    QObject* context = login_.begin();
    const auto failed = [this](const RequestFailure& failure) {
        login_.end();
        setLoginEnabled(true);
        showRequestFailure(
            {services_.alerts, services_.urls}, [this] { setLoggingIn(false); }, failure, true,
            QStringLiteral("Incidencia"));
        // The presenter leaves the veil alone when an update is asked for; nothing runs behind it any more.
        setLoggingIn(false);
    };
    services_.network.login({login, password, token},
                            {context, [this](const LoginResult& result) { loginSucceeded(result); }, failed});
}

void LoginViewController::loginSucceeded(const LoginResult& result) {
    if (!result.token)
        stopProcess("token in the login answer");
    login_.end();
    setLoggingIn(false);
    services_.network.setAccessToken(QString::fromStdString(*result.token));
    rememberCredentials();
    services_.defaults.setBoolean(QLatin1String(default_key::loadIntoInitialViewController), true);
    services_.session.userEmail = email_.toStdString();
    services_.session.userPassword = password_.toStdString();
    services_.session.loginResult = result;
    emit showUserApplications();
}

void LoginViewController::cancelLoginAction() {
    if (!login_.isUnderWay())
        return;
    login_.end();
    setLoginEnabled(true);
    setLoggingIn(false);
}

void LoginViewController::rememberCredentials() {
    if (!rememberPassword_)
        return; // nothing is deleted here
    const std::string account = email_.toStdString();
    // Logged in by a token, the same user keeps the remembered password: it repairs an expired session.
    if (!passwordUsed_ && retrievedCredentials_ && retrievedCredentials_->account == account)
        return;
    const std::string password = password_.toStdString();
    const std::string token = services_.network.accessToken().toStdString();
    if (!retrievedCredentials_) {
        services_.auth.addCredentials(account, password, token);
        return;
    }
    // Unchanged, the item keeps its old token; a 401 repairs it.
    if (retrievedCredentials_->account != account || retrievedCredentials_->password != password)
        services_.auth.updateCredentials(account, password, token);
}

void LoginViewController::rememberPasswordSwitchValueChangedAction(bool on) {
    if (std::exchange(rememberPassword_, on) == on)
        return;
    emit rememberPasswordChanged();
    if (on)
        return;
    setEmail({});
    setPassword({});
    retrievedCredentials_.reset();
    services_.auth.deleteCredentials();
}

void LoginViewController::resetPasswordAction() {
    openLink(services_.urls, services_.alerts, services_.network.forgotPasswordUrl());
}

// The same action as for a forgotten password, on purpose.
void LoginViewController::activateUserAction() {
    resetPasswordAction();
}

void LoginViewController::unwindToLoginView() {
    services_.network.setAccessToken({});
    services_.session.userEmail.reset();
    services_.session.userPassword.reset();
    setPassword({});
}

void LoginViewController::viewWillDisappear() {
    setLoginEnabled(true);
}

} // namespace kavor
