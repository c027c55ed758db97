#include "ShellFixture.h"
#include "device/LocalNotifications.h"
#include "shell/screens/RootController.h"

#include <QAbstractItemModelTester>

namespace kavor {

namespace {

// Counts how often it comes on show.
class SeenScreen : public ScreenController {
public:
    int seen = 0;
    void viewWillAppear() override { ++seen; }
};

// The screens on top of each other, without a window.
class Roots : public ShellTest {
protected:
    Roots() {
        session.loginResult = rights();
        session.applicationInformation = catalogueWith();
    }

    // "LoginView WelcomeView": the stack from its foot.
    [[nodiscard]] QString stack() {
        QStringList names;
        for (int row = 0; row < root.screens()->rowCount(); ++row)
            names << root.screens()->index(row, 0).data(ScreenStack::ViewRole).toUrl().fileName().chopped(4);
        return names.join(u' ');
    }

    DesktopNotifications banners;
    std::function<void()> leaveSection;
    RootController root{
        {application, alerts, banners, loginServices(), welcomeServices(),
         [this](const QString& transition, ScreenStack&) {
             auto* controller = new ScreenController;
             leaveSection = [controller] { emit controller->closed(); };
             return Screen{QUrl(QStringLiteral("x:/") + transition + QStringLiteral(".qml")), controller};
         }}};
    QAbstractItemModelTester tester{root.screens(), QAbstractItemModelTester::FailureReportingMode::Fatal};
};

} // namespace

TEST_F(Roots, TheWayFromTheLoginToASectionAndBack) {
    application.didFinishLaunching();
    EXPECT_EQ(stack(), u"LoginView");
    root.login()->setEmail(QStringLiteral("ana"));
    root.login()->setPassword(QStringLiteral("secret"));
    root.login()->rememberPasswordSwitchValueChangedAction(true);
    root.login()->loginAction();
    network.requests.login.succeed(rights());
    EXPECT_EQ(stack(), u"LoginView WelcomeView");
    QCoreApplication::processEvents();
    EXPECT_EQ(network.requests.appInformation.waiting(), 1)
        << "the dashboard downloads the catalogue at once";

    root.welcome()->openSection(1);
    EXPECT_EQ(stack(), u"LoginView WelcomeView showBrochureSegue");
    EXPECT_TRUE(session.actualSection);
    leaveSection();
    EXPECT_EQ(stack(), u"LoginView WelcomeView");
    EXPECT_FALSE(session.actualSection) << "the dashboard appeared again";

    root.welcome()->logout();
    alerts.answerButton(1);
    EXPECT_EQ(stack(), u"LoginView");
    EXPECT_EQ(network.token, u"");
    EXPECT_FALSE(session.userEmail);
    EXPECT_EQ(root.login()->email(), u"ana") << "pre-filled";
    EXPECT_EQ(root.login()->password(), u"");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(root.welcome());
}

TEST(ScreenStack, ASecondTapOnBackDoesNotShowTheScreenBelowOnceMore) {
    ScreenStack stack;
    auto* below = new SeenScreen;
    auto* above = new SeenScreen;
    stack.push({{}, below});
    stack.push({{}, above});
    emit above->closed();
    emit above->closed();
    EXPECT_EQ(stack.rowCount(), 1);
    EXPECT_EQ(below->seen, 2);
}

TEST_F(Roots, TheAutomaticLoginRefreshesTheDashboardItShows) {
    remember();
    application.didFinishLaunching();
    EXPECT_EQ(stack(), u"LaunchView");
    network.requests.login.succeed(rights());
    EXPECT_EQ(stack(), u"WelcomeView");
    QCoreApplication::processEvents();
    EXPECT_EQ(network.requests.userInformation.waiting(), 1);
    EXPECT_TRUE(root.welcome()->isProgressVeilShown());
    EXPECT_EQ(root.welcome()->user(), QString::fromStdString(auth.readCredentials()->account));
}

TEST_F(Roots, TheOrdersOfANotificationLeadBackToWhereASessionBelongs) {
    application.resetRoot(Root::AllOrders);
    EXPECT_EQ(stack(), "AllOrdersControllerIdentifier");
    leaveSection();
    EXPECT_EQ(stack(), u"WelcomeView");
    session.loginResult.reset();
    application.resetRoot(Root::AllOrders);
    leaveSection();
    EXPECT_EQ(stack(), u"LoginView");
}

TEST_F(Roots, BannersShowOneAfterTheOtherAndATapAnswersItsOwn) {
    QStringList shown;
    QList<QVariantMap> tapped;
    QObject::connect(&root, &RootController::bannerShown, &root,
                     [&](const QString& title) { shown << title; });
    QObject::connect(&banners, &LocalNotifications::tapped, &root,
                     [&](const QString&, const QVariantMap& info) { tapped << info; });
    for (const int number : {1, 2})
        emit banners.bannerWanted(number, QString::number(number), {});
    EXPECT_EQ(shown, QStringList("1"));
    root.bannerGone();
    EXPECT_EQ(shown, QStringList({"1", "2"}));
    root.bannerGone();
    root.bannerGone(); // one too many is no fault
    root.bannerTapped();
    EXPECT_TRUE(tapped.isEmpty());
}

TEST_F(Roots, AUrlOverADashboardLeadsBackToTheLoginScreenFirst) {
    application.didFinishLaunching();
    root.login()->setEmail(QStringLiteral("ana"));
    root.login()->setPassword(QStringLiteral("secret"));
    root.login()->loginAction();
    network.requests.login.succeed(rights());
    QCoreApplication::processEvents(); // the dashboard asks for the catalogue
    root.welcome()->openSection(1);
    const auto url = QStringLiteral("kavor://open?login=eva&token=once");

    network.reachable = false;
    application.openUrl(url);
    EXPECT_EQ(stack(), u"LoginView WelcomeView showBrochureSegue") << "nobody is sent away for nothing";
    answer(QStringLiteral("Error"), QStringLiteral("No hay conexión a internet."));

    network.reachable = true;
    application.openUrl(url);
    EXPECT_EQ(stack(), u"LoginView");
    EXPECT_FALSE(session.userEmail);
    const auto before = session.applicationInformation;
    network.requests.appInformation.succeed(catalogueWith());
    EXPECT_EQ(session.applicationInformation, before) << "asked for by the dashboard that went";
    network.requests.login.succeed(rights());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    EXPECT_EQ(stack(), u"LoginView WelcomeView");
    EXPECT_EQ(session.userEmail, "eva");
    EXPECT_EQ(network.requests.appInformation.calls.size(), 2U);
    notifications.post(notification::needToUpdateResources);
    QCoreApplication::processEvents();
    EXPECT_EQ(network.requests.userInformation.calls.size(), 1U);
}

} // namespace kavor
