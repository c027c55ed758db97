#include "ShellFixture.h"
#include "support/LogCapture.h"

namespace kavor {

namespace {

using RootKind = AppDelegate::RootKind;

struct Launch {
    enum Login { NoLogin, LoginSucceeds, LoginFails };
    static constexpr unsigned flag = 1, credential = 2, rightsOnDisk = 4, catalogueOnDisk = 8;
    static constexpr unsigned remembered = flag | credential, disk = rightsOnDisk | catalogueOnDisk;

    const char* name;
    unsigned there; // at the start
    bool reachable;
    Login login;
    std::vector<RootKind> roots;
    [[nodiscard]] bool has(unsigned what) const { return (there & what) != 0; }
};

class ALaunch : public ShellTest, public ::testing::WithParamInterface<Launch> {};

using L = Launch;
constexpr auto form = RootKind::LoginNavigation, dashboard = RootKind::MainNavigation;
const std::vector<Launch> launches{
    {"first start", 0, true, L::NoLogin, {form}},
    {"logged out", L::credential | L::disk, true, L::NoLogin, {form}},
    {"not remembered", L::flag | L::disk, true, L::NoLogin, {form}},
    {"offline", L::remembered | L::disk, false, L::NoLogin, {dashboard}},
    {"offline without catalogue", L::remembered | L::rightsOnDisk, false, L::NoLogin, {form}},
    {"offline without rights", L::remembered | L::catalogueOnDisk, false, L::NoLogin, {form}},
    {"online", L::remembered, true, L::LoginSucceeds, {RootKind::Launch, dashboard}},
    {"refused", L::remembered | L::disk, true, L::LoginFails, {RootKind::Launch, dashboard}},
    {"refused, empty", L::remembered | L::rightsOnDisk, true, L::LoginFails, {RootKind::Launch, form}},
};

} // namespace

TEST_P(ALaunch, DecidesTheFirstScreen) {
    const Launch& launch = GetParam();
    SCOPED_TRACE(launch.name);
    if (launch.has(L::credential))
        remember();
    defaults.setBoolean(QLatin1String(default_key::loadIntoInitialViewController), launch.has(L::flag));
    network.reachable = launch.reachable;
    if (launch.has(L::rightsOnDisk))
        storeRights(rights("stored"));
    if (launch.has(L::catalogueOnDisk))
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
    EXPECT_EQ(loadsItself(), launch.has(L::flag) && launch.has(L::credential));
    EXPECT_FALSE(alerts.isVisible());
    tasks.run(QStringLiteral("com.Kavor.brochures"), [](bool) {});
    EXPECT_EQ(sync.runs, 1);
    if (launch.login == Launch::LoginSucceeds)
        EXPECT_EQ(session.loginResult->msg, "answered");
    else
        EXPECT_EQ(session.loginResult.has_value(), launch.has(L::rightsOnDisk));
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

TEST_F(ShellTest, OnlyATapOnAnOrdersNotificationLeadsToTheOrders) {
    struct Response {
        QString action;
        QVariantMap info;
        bool leads;
    };
    const QString id = QStringLiteral("orderId");
    const std::vector<Response> responses{
        {QStringLiteral("default"), {{id, 7}}, true},
        {QStringLiteral("default"), {{id, qlonglong(7)}}, true},
        {QStringLiteral("dismiss"), {{id, 7}}, false},
        {QStringLiteral("default"), {{id, QStringLiteral("7")}}, false},
        {QStringLiteral("default"), {{id, 7.5}}, false},
        {QStringLiteral("dismiss"), {}, false},
        {QStringLiteral("show"), {}, false},
    };
    int reloads = 0;
    const auto subscription =
        notifications.observe(notification::reloadOrders, [&](const NotificationInfo&) { ++reloads; });
    for (const Response& response : responses) {
        SCOPED_TRACE(response.action.toStdString());
        roots.clear();
        reloads = 0;
        application.didReceiveNotificationResponse(response.action, response.info);
        EXPECT_EQ(roots.size(), response.leads ? 1U : 0U);
        EXPECT_EQ(reloads, response.leads ? 1 : 0);
    }
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
