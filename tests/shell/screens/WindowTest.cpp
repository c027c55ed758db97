#include "ShellFixture.h"
#include "device/LocalNotifications.h"
#include "screens/ResourceImages.h"
#include "shell/screens/RootController.h"
#include "shell/screens/Screens.h"
#include "support/TouchDriver.h"
#include "ui/Ui.h"

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

namespace kavor {

namespace {

// The real screens of the shell in a window.
class Window : public ShellTest {
protected:
    Window() {
        session.loginResult = rights();
        session.applicationInformation = catalogueWith();
        registerUi(engine);
        registerScreens(engine);
        engine.addImageProvider(QStringLiteral("resource"), new ResourceImageProvider(images));
        engine.setInitialProperties({{QStringLiteral("root"), QVariant::fromValue(&root)}});
        engine.load(screenView(QStringLiteral("MainWindow")));
        window = qobject_cast<QQuickWindow*>(engine.rootObjects().value(0));
        root.setWindow(window, false);
        window->resize(1024, 768);
        window->show();
        window->requestActivate();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window));
        driver = std::make_unique<TouchDriver>(*window);
    }

    // The name of the item with the focus, or of its nearest named parent.
    [[nodiscard]] QString focus() const {
        for (const QQuickItem* item = window->activeFocusItem(); item; item = item->parentItem()) {
            if (!item->objectName().isEmpty())
                return item->objectName();
        }
        return {};
    }
    [[nodiscard]] bool isFocusInside(const QString& name) const {
        const QQuickItem* item = window->activeFocusItem();
        while (item && item->objectName() != name)
            item = item->parentItem();
        return item != nullptr;
    }
    [[nodiscard]] bool isShown(const char* name) const { return driver->isShown(QLatin1String(name)); }
    void key(Qt::Key key) { QTest::keyClick(window, key); }
    void click(const char* name) {
        const QQuickItem* item = driver->await(QLatin1String(name));
        const QPointF middle = item->mapToScene({item->width() / 2, item->height() / 2});
        QTest::mouseClick(window, Qt::LeftButton, {}, middle.toPoint());
    }

    DesktopNotifications banners;
    RootController root{
        {application, alerts, banners, loginServices(), welcomeServices(), [](const QString&, ScreenStack&) {
             return Screen{QUrl::fromLocalFile(QStringLiteral(KAVOR_TEST_DATA "/section.qml")),
                           new ScreenController};
         }}};
    QQmlApplicationEngine engine;
    QQuickWindow* window = nullptr;
    std::unique_ptr<TouchDriver> driver;
};

} // namespace

TEST_F(Window, TheNotificationsPanelIsDrawnWhenItIsShownAndHoldsTheKeyboardUntilEscape) {
    application.setRoot(Root::MainNavigation);
    for (const QSize size : {QSize(768, 1024), QSize(1024, 768)}) {
        EXPECT_FALSE(isShown("notificationsFrameView")) << size.width();
        window->resize(size);
        QCoreApplication::processEvents();
        EXPECT_FALSE(isShown("notificationsFrameView")) << size.width() << ": a turn moves nothing";
    }
    session.loginResult->notifications = std::vector<UserNotification>{{"Aviso", std::nullopt, std::nullopt}};
    catalogue.start();
    network.requests.appInformation.succeed(catalogueWith());
    driver->await(QStringLiteral("notificationsFrameView"));
    const auto frameIsOff = [&] { // by so many pixels from its place
        const QQuickItem* frame = driver->find(QStringLiteral("notificationsFrameView"));
        return frame->y() + frame->height() / 2 - frame->parentItem()->height() / 2;
    };
    ASSERT_TRUE(waitFor([&] { return std::abs(frameIsOff()) < 0.1; }));
    window->resize(768, 1024);
    ASSERT_TRUE(waitFor([&] { return driver->find(QStringLiteral("notificationsView"))->height() == 1024; }));
    EXPECT_LT(std::abs(frameIsOff()), 1) << "a turn does not slide it";
    for (const Qt::Key each : {Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Backtab}) {
        EXPECT_TRUE(isFocusInside(QStringLiteral("notificationsView")));
        key(each);
    }
    key(Qt::Key_Escape);
    EXPECT_FALSE(root.welcome()->areNotificationsShown());
    EXPECT_TRUE(waitFor([&] { return !isShown("notificationsFrameView"); }));
    EXPECT_FALSE(isFocusInside(QStringLiteral("notificationsView")));
}

TEST_F(Window, TheLoginFormStartsInItsFirstEmptyField) {
    application.setRoot(Root::LoginNavigation);
    EXPECT_EQ(focus(), u"emailTextField");
    remember();
    application.setRoot(Root::LoginNavigation);
    EXPECT_EQ(focus(), u"loginButton") << "nothing is missing";
    root.login()->unwindToLoginView();
    EXPECT_EQ(focus(), u"passwordTextField");
}

TEST_F(Window, ARefusedLoginLeavesTheKeyboardInTheForm) {
    remember();
    application.setRoot(Root::LoginNavigation);
    key(Qt::Key_Return);
    driver->await(QStringLiteral("veilView"));
    network.requests.login.fail(failureWith({QStringLiteral("no")}));
    ASSERT_TRUE(waitFor([&] { return focus() == u"alertButton0"; }));
    key(Qt::Key_Return);
    driver->awaitGone(QStringLiteral("alertButton0"));
    EXPECT_TRUE(waitFor([&] { return focus() == u"loginButton"; }));
}

TEST_F(Window, TheAutomaticLoginIsLeftByItsButton) {
    remember();
    storeRights(rights());
    storeCatalogue();
    application.loadIntoInitialViewController();
    QQuickItem* launch = driver->await(QStringLiteral("launchView"));
    EXPECT_FALSE(isShown("wayOut"));
    launch->findChild<QObject*>(QStringLiteral("wayOut"))->setProperty("patience", 1);
    click("wayOut");
    driver->await(QStringLiteral("welcomeView"));
}

TEST_F(Window, TheTilesAnswerToArrowsAndADoublePressOpensOneOfThem) {
    session.loginResult->showBeerBrochures = session.loginResult->showFoodBrochures =
        session.loginResult->showTextile = true;
    root.setDoublePressInterval(std::chrono::milliseconds(400));
    application.setRoot(Root::MainNavigation);
    clock.advance(std::chrono::seconds(1));
    key(Qt::Key_Down);
    key(Qt::Key_Right);
    EXPECT_EQ(focus(), u"welcomeButton3");
    click("welcomeButton3");
    ASSERT_EQ(root.screens()->rowCount(), 2);
    driver->await(QStringLiteral("backButton"));
    click("backButton"); // the second half of the press
    EXPECT_EQ(root.screens()->rowCount(), 2);
    clock.advance(std::chrono::milliseconds(400));
    click("backButton");
    EXPECT_EQ(root.screens()->rowCount(), 1);
}

} // namespace kavor
