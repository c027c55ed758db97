#include "ShellFixture.h"

namespace kavor {

namespace {

class Login : public ShellTest {
protected:
    struct Stored {
        std::string account, password, token;
        bool operator==(const Stored&) const = default;
    };
    [[nodiscard]] std::optional<Stored> stored() const {
        const auto item = auth.readCredentials();
        return item ? std::optional(Stored{item->account, item->password, item->token}) : std::nullopt;
    }
    void type(LoginViewController& login, const char* email, const char* password) {
        login.setEmail(QString::fromUtf8(email));
        login.setPassword(QString::fromUtf8(password));
    }
};

} // namespace

TEST_F(Login, OpensWithWhatTheDeviceRemembers) {
    const LoginViewController empty(loginServices());
    EXPECT_EQ(empty.versionLabel(), u"v 1.2.3.45");
    EXPECT_FALSE(empty.rememberPassword());
    remember();
    const LoginViewController filled(loginServices());
    EXPECT_TRUE(filled.rememberPassword());
    EXPECT_EQ(filled.email(), u"ana");
    EXPECT_EQ(filled.password(), u"secret");
}

TEST_F(Login, RemembersByTheSwitchAndTheTypedValues) {
    struct Case {
        const char* name;
        bool remembered; // an item "ana"/"secret" with the token "stored" before
        bool switchOn;
        const char* email;
        const char* password;
        std::optional<Stored> after;
        int writes;
    };
    const std::vector<Case> cases{
        {"off", false, false, "ana", "secret", std::nullopt, 0},
        {"new item", false, true, "ana", "secret", Stored{"ana", "secret", "fresh"}, 1},
        {"same again keeps the old token", true, true, "ana", "secret", Stored{"ana", "secret", "stored"}, 0},
        {"another password", true, true, "ana", "other", Stored{"ana", "other", "fresh"}, 1},
        {"another user", true, true, "eva", "secret", Stored{"eva", "secret", "fresh"}, 1},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.name);
        auth.deleteCredentials();
        if (each.remembered)
            remember();
        LoginViewController login(loginServices());
        login.rememberPasswordSwitchValueChangedAction(each.switchOn);
        int dashboards = 0;
        QObject::connect(&login, &LoginViewController::showUserApplications, &login, [&] { ++dashboards; });
        keychain.writes = 0;
        type(login, each.email, each.password);
        login.loginAction();
        EXPECT_FALSE(login.isLoginEnabled());
        ASSERT_TRUE(network.requests.login.succeed(rights("in")));

        EXPECT_EQ(dashboards, 1);
        EXPECT_EQ(stored(), each.after);
        EXPECT_EQ(keychain.writes, each.writes);
        EXPECT_TRUE(loadsItself()) << "also when nothing is remembered";
        EXPECT_EQ(network.token, u"fresh");
        EXPECT_EQ(session.userEmail, each.email);
        EXPECT_EQ(session.userPassword, each.password);
        EXPECT_EQ(session.loginResult->msg, "in");
        login.viewWillDisappear();
        EXPECT_TRUE(login.isLoginEnabled());
    }
}

TEST_F(Login, TurningTheSwitchOffForgetsAtOnce) {
    remember();
    LoginViewController login(loginServices());
    login.rememberPasswordSwitchValueChangedAction(false);
    EXPECT_FALSE(stored());
    EXPECT_EQ(login.email() + login.password(), u"");
    EXPECT_FALSE(loadsItself());
}

TEST_F(Login, SendsNothingWithAnEmptyFieldOrWithoutNetwork) {
    LoginViewController login(loginServices());
    type(login, "ana", "");
    login.loginAction();
    type(login, "", "secret");
    login.loginAction();
    EXPECT_FALSE(alerts.isVisible());
    EXPECT_TRUE(login.isLoginEnabled());

    type(login, "ana", "secret");
    network.reachable = false;
    login.loginAction();
    answer(QStringLiteral("Error"), QStringLiteral("No hay conexión a internet."));
    EXPECT_TRUE(login.isLoginEnabled());
    EXPECT_TRUE(network.requests.login.calls.empty());
}

TEST_F(Login, TellsTheFirstMessageOfARefusal) {
    LoginViewController login(loginServices());
    type(login, "ana", "wrong");
    login.loginAction();
    EXPECT_TRUE(login.isVeilShown());
    network.requests.login.fail(
        failureWith({QStringLiteral("Contraseña errónea"), QStringLiteral("second")}, 422));
    answer(QStringLiteral("Incidencia"), QStringLiteral("Contraseña errónea"));
    EXPECT_TRUE(login.isLoginEnabled());
    EXPECT_FALSE(login.isVeilShown());
    EXPECT_EQ(login.password(), u"wrong");
    EXPECT_FALSE(session.loginResult);
}

TEST_F(Login, AUrlLogsInWithItsToken) {
    LoginViewController login(loginServices());
    session.autoLoginToken = "stale"; // of an address before
    application.openUrl(QStringLiteral("kavor://open?login=eva"));
    EXPECT_EQ(login.email(), u"");
    EXPECT_FALSE(session.autoLoginToken);
    application.openUrl(QStringLiteral("kavor://open?login=eva&token=once"));
    EXPECT_EQ(login.email(), u"eva");
    ASSERT_EQ(network.requests.login.calls.size(), 1U);
    const auto& [parameters] = network.requests.login.calls[0];
    EXPECT_EQ(parameters.login, u"eva");
    EXPECT_FALSE(parameters.password);
    EXPECT_EQ(parameters.token, QStringLiteral("once"));
    EXPECT_TRUE(login.isLoginEnabled()) << "this way leaves the button alone";
}

TEST_F(Login, AnAnswerToALoginThatWasLeftChangesNothing) {
    LoginViewController login(loginServices());
    int dashboards = 0;
    QObject::connect(&login, &LoginViewController::showUserApplications, &login, [&] { ++dashboards; });
    type(login, "ana", "secret");
    login.rememberPasswordSwitchValueChangedAction(true);
    for (const bool accepted : {true, false}) {
        login.loginAction();
        login.cancelLoginAction();
        EXPECT_FALSE(login.isVeilShown());
        EXPECT_TRUE(login.isLoginEnabled());
        if (accepted)
            network.requests.login.succeed(rights());
        else
            network.requests.login.fail(failureWith({QStringLiteral("no")}));
        EXPECT_FALSE(session.loginResult || session.userEmail);
        EXPECT_EQ(network.token, u"");
        EXPECT_EQ(keychain.writes, 0);
        EXPECT_FALSE(loadsItself());
        EXPECT_FALSE(alerts.isVisible());
    }
    EXPECT_EQ(dashboards, 0);
    login.loginAction();
    network.requests.login.succeed(rights());
    EXPECT_EQ(dashboards, 1);
}

TEST_F(Login, ALoginByTokenKeepsTheRememberedPasswordOfTheSameUser) {
    for (const auto& [url, after] :
         {std::pair("kavor://open?login=ana&token=once", Stored{"ana", "secret", "stored"}),
          std::pair("kavor://open?login=eva&token=once", Stored{"eva", "", "fresh"})}) {
        remember();
        LoginViewController login(loginServices());
        login.setPassword({}); // as on the way back from the dashboard
        application.openUrl(QLatin1String(url));
        ASSERT_TRUE(network.requests.login.succeed(rights()));
        EXPECT_EQ(stored(), after);
    }
}

TEST_F(Login, ALinkThatCannotBeOpenedIsToldWithItsAddress) {
    urls.opens = false;
    LoginViewController login(loginServices());
    login.resetPasswordAction();
    answer(QStringLiteral("Atención"),
           QStringLiteral("No se ha podido abrir el enlace:\nhttp://server.example/forgotten"));
    RequestFailure outdated = failureWith({}, 505);
    outdated.error.updateNeeded = {QStringLiteral("nueva"), QUrl(QStringLiteral("http://new.example"))};
    type(login, "ana", "secret");
    login.loginAction();
    network.requests.login.fail(outdated);
    answer(QStringLiteral("Atención"), QStringLiteral("nueva"), 1);
    answer(QStringLiteral("Atención"),
           QStringLiteral("No se ha podido abrir el enlace:\nhttp://new.example"));
    EXPECT_FALSE(login.isVeilShown()) << "the user can go on";
}

} // namespace kavor
