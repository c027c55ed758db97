#include "ShellFixture.h"
#include "support/LogCapture.h"

namespace kavor {

namespace {

using RootKind = AppDelegate::RootKind;

struct Launch {
    const char* name;
    bool flag;
    bool credential;
    bool reachable;
    bool rightsOnDisk;
    bool catalogueOnDisk;
    enum { NoLogin, LoginSucceeds, LoginFails } login;
    std::vector<RootKind> roots;
};

class ALaunch : public ShellTest, public ::testing::WithParamInterface<Launch> {};

const std::vector<Launch> launches{
    {"first start", false, false, true, false, false, Launch::NoLogin, {RootKind::LoginNavigation}},
    {"logged out", false, true, true, true, true, Launch::NoLogin, {RootKind::LoginNavigation}},
    {"not remembered", true, false, true, true, true, Launch::NoLogin, {RootKind::LoginNavigation}},
    {"offline", true, true, false, true, true, Launch::NoLogin, {RootKind::MainNavigation}},
    {"offline without catalogue",
     true,
     true,
     false,
     true,
     false,
     Launch::NoLogin,
     {RootKind::LoginNavigation}},
    {"offline without rights", true, true, false, false, true, Launch::NoLogin, {RootKind::LoginNavigation}},
    {"online",
     true,
     true,
     true,
     false,
     false,
     Launch::LoginSucceeds,
     {RootKind::Launch, RootKind::MainNavigation}},
    {"online, refused",
     true,
     true,
     true,
     true,
     true,
     Launch::LoginFails,
     {RootKind::Launch, RootKind::MainNavigation}},
    {"online, refused, empty",
     true,
     true,
     true,
     true,
     false,
     Launch::LoginFails,
     {RootKind::Launch, RootKind::LoginNavigation}},
};

} // namespace

TEST_P(ALaunch, DecidesTheFirstScreen) {
    const Launch& launch = GetParam();
    SCOPED_TRACE(launch.name);
    if (launch.credential)
        remember();
    defaults.setBoolean(QLatin1String(default_key::loadIntoInitialViewController), launch.flag);
    network.reachable = launch.reachable;
    if (launch.rightsOnDisk)
        storeRights(rights("stored"));
    if (launch.catalogueOnDisk)
        storeCatalogue();
    int refreshes = 0;
    const auto refresh = notifications.observe(notification::needToUpdateResources,
                                               [&](const NotificationInfo&) { ++refreshes; });

    application.didFinishLaunching();

    if (launch.login == Launch::NoLogin) {
        EXPECT_TRUE(network.requests.login.calls.empty());
    } else {
        ASSERT_EQ(network.requests.login.calls.size(), 1U);
        const auto& [parameters] = network.requests.login.calls[0];
        EXPECT_EQ(parameters.login, u"ana");
        EXPECT_EQ(parameters.password, QStringLiteral("secret"));
        EXPECT_FALSE(parameters.token);
        launch.login == Launch::LoginSucceeds
            ? network.requests.login.succeed(rights("answered"))
            : network.requests.login.fail(failureWith({QStringLiteral("no")}));
        EXPECT_EQ(network.token, u"stored") << "only the login form takes the answer's token";
    }
    EXPECT_EQ(roots, launch.roots);
    EXPECT_EQ(refreshes, launch.login == Launch::LoginSucceeds ? 1 : 0);
    EXPECT_EQ(loadsItself(), launch.flag && launch.credential);
    EXPECT_FALSE(alerts.isVisible());
    tasks.run(QStringLiteral("com.Kavor.brochures"), [](bool) {});
    EXPECT_EQ(sync.runs, 1);
    if (launch.login == Launch::LoginSucceeds)
        EXPECT_EQ(session.loginResult->msg, "answered");
    else
        EXPECT_EQ(session.loginResult.has_value(), launch.rightsOnDisk);
}

INSTANTIATE_TEST_SUITE_P(Table, ALaunch, ::testing::ValuesIn(launches));

TEST_F(ShellTest, TheBackgroundKeepsTheSessionAndPlansARun) {
    session.loginResult = rights("kept");
    session.applicationInformation = catalogueWith();
    tasks.pending[QStringLiteral("another")] = {};

    application.didEnterBackground();
    EXPECT_TRUE(tasks.pending.empty()) << "all pending requests are cancelled";
    EXPECT_EQ(sync.scheduled, 1);

    session.loginResult = rights("in memory only");
    application.willEnterForeground();
    EXPECT_EQ(session.loginResult->msg, "kept");
    EXPECT_TRUE(session.applicationInformation);
    EXPECT_TRUE(roots.empty());

    std::filesystem::remove(folder / "ZQAPPLICATIONINFORMATION");
    application.willEnterForeground();
    EXPECT_EQ(roots, std::vector{Root::LoginNavigation});
    EXPECT_FALSE(session.applicationInformation);
}

TEST_F(ShellTest, StoppingWithoutASessionStopsTheProcess) {
    const auto stops = ::testing::ExitedWithCode(70);
    EXPECT_EXIT(application.willTerminate(), stops, "applicationInformation");
    EXPECT_EXIT(
        {
            session.applicationInformation = catalogueWith();
            application.didEnterBackground();
        },
        stops, "loginResult");
    EXPECT_NE(contentOf(folder / "ZQAPPLICATIONINFORMATION"), "") << "the catalogue was written before";
}

TEST_F(ShellTest, AnOpenedUrlReplacesBothValues) {
    int opened = 0;
    const auto subscription =
        notifications.observe(notification::urlSchemeOpened, [&](const NotificationInfo&) { ++opened; });
    EXPECT_TRUE(application.openUrl(QStringLiteral("kavor://login?login=ana&token=t1")));
    EXPECT_EQ(session.autoLoginUser, "ana");
    EXPECT_EQ(session.autoLoginToken, "t1");
    EXPECT_TRUE(application.openUrl(QStringLiteral("kavor://login?login=eva")));
    EXPECT_EQ(session.autoLoginUser, "eva");
    EXPECT_FALSE(session.autoLoginToken);
    EXPECT_EQ(opened, 2);
}

TEST_F(ShellTest, OnlyATapOnAnOrdersNotificationLeadsToTheOrders) {
    struct Response {
        QString action;
        QVariantMap info;
        bool leads;
        const char* word; // what the log says, nothing for none
    };
    const QString id = QStringLiteral("orderId");
    const std::vector<Response> responses{
        {QStringLiteral("default"), {{id, 7}}, true, nullptr},
        {QStringLiteral("default"), {{id, qlonglong(7)}}, true, nullptr},
        {QStringLiteral("dismiss"), {{id, 7}}, false, nullptr},
        {QStringLiteral("default"), {{id, QStringLiteral("7")}}, false, "Open Action"},
        {QStringLiteral("default"), {{id, 7.5}}, false, "Open Action"},
        {QStringLiteral("dismiss"), {}, false, "Dismiss Action"},
        {QStringLiteral("Snooze"), {}, false, "Snooze"},
        {QStringLiteral("Delete"), {}, false, "Delete"},
        {QStringLiteral("show"), {}, false, "default"},
    };
    int reloads = 0;
    const auto subscription =
        notifications.observe(notification::reloadOrders, [&](const NotificationInfo&) { ++reloads; });
    for (const Response& response : responses) {
        SCOPED_TRACE(response.action.toStdString());
        roots.clear();
        reloads = 0;
        const LogCapture log;
        application.didReceiveNotificationResponse(response.action, response.info);
        EXPECT_EQ(roots.size(), response.leads ? 1U : 0U);
        EXPECT_EQ(reloads, response.leads ? 1 : 0);
        EXPECT_TRUE(!response.word || log.contains(response.word));
    }
    EXPECT_EQ(AppDelegate::willPresentNotification(), 7);
}

TEST_F(ShellTest, ALaterStoreWinsAndAReadingSeesIt) {
    session.applicationInformation = catalogueWith();
    for (int i = 0; i < 20; ++i) {
        session.loginResult = rights("version " + std::to_string(i));
        sessions.storeInBackground();
    }
    session.loginResult = rights("never stored");
    EXPECT_TRUE(sessions.restoreSession());
    EXPECT_EQ(session.loginResult->msg, "version 19");

    // An unchanged file gives the catalogue that is known; a file that another hand changed is read again.
    const auto known = session.applicationInformation;
    EXPECT_TRUE(sessions.restoreSession());
    EXPECT_EQ(session.applicationInformation, known);
    put(folder / "ZQAPPLICATIONINFORMATION", "{\"broken\":");
    EXPECT_FALSE(sessions.restoreSession());
    EXPECT_FALSE(session.applicationInformation);
}

TEST_F(ShellTest, AStateFileThatCannotBeWrittenIsIgnored) {
    session.applicationInformation = catalogueWith();
    session.loginResult = rights();
    std::filesystem::create_directories(folder / "ZQLOGINRESULT/in the way");
    const LogCapture log;
    application.willTerminate();
    EXPECT_EQ(log.lines().size(), 1U);
    EXPECT_NE(contentOf(folder / "ZQAPPLICATIONINFORMATION"), "");
}

TEST_F(ShellTest, AnAutomaticLoginThatIsLeftEndsAsOneThatFailed) {
    for (const bool stored : {true, false}) {
        roots.clear();
        remember();
        if (stored) {
            storeRights(rights("stored"));
            storeCatalogue();
        } else {
            std::filesystem::remove_all(folder.path() / state_file::loginResult);
        }
        application.loadIntoInitialViewController();
        application.leaveAutomaticLogin();
        const auto expected =
            std::vector{Root::Launch, stored ? Root::MainNavigation : Root::LoginNavigation};
        EXPECT_EQ(roots, expected);
        network.requests.login.succeed(rights("late"));
        application.leaveAutomaticLogin(); // once is enough
        EXPECT_EQ(roots, expected);
        EXPECT_EQ(session.loginResult.has_value(), stored);
        EXPECT_FALSE(session.loginResult && session.loginResult->msg == "late");
    }
}

} // namespace kavor
