#include "device/AppLifecycle.h"
#include "device/LocalNotifications.h"
#include "device/PhotoPicker.h"
#include "device/ReverseLocationManager.h"
#include "device/UrlOpener.h"
#include "interaction/AlertPresenter.h"
#include "support/DeviceFakes.h"
#include "support/TemporaryFolder.h"
#include "support/WaitFor.h"

#include <QBuffer>
#include <QDBusConnection>
#include <QGuiApplication>
#include <QTimer>

#include <gtest/gtest.h>

#include <csignal>

namespace kavor {
namespace {

TEST(QtAppLifecycle, TakesOnlySuspensionForTheBackground) {
    QtAppLifecycle lifecycle;
    QStringList seen;
    QObject::connect(&lifecycle, &AppLifecycle::enteredBackground, [&] { seen << "background"; });
    QObject::connect(&lifecycle, &AppLifecycle::enteringForeground, [&] { seen << "foreground"; });
    for (const auto state :
         {Qt::ApplicationActive, Qt::ApplicationInactive, Qt::ApplicationHidden, Qt::ApplicationSuspended,
          Qt::ApplicationSuspended, Qt::ApplicationInactive, Qt::ApplicationActive, Qt::ApplicationSuspended})
        emit qGuiApp->applicationStateChanged(state);
    EXPECT_EQ(seen, (QStringList{"background", "foreground", "background"}));
}

TEST(QtAppLifecycle, TellsTheEndOnceAndLeavesTheEventLoopOnASignal) {
    for (const int signal : {SIGTERM, SIGINT}) {
        QtAppLifecycle lifecycle;
        int ends = 0;
        QObject::connect(&lifecycle, &AppLifecycle::willTerminate, [&] { ++ends; });
        QTimer::singleShot(0, [signal] { std::raise(signal); });
        QTimer::singleShot(10'000, qApp, [] { QCoreApplication::exit(1); });
        EXPECT_EQ(QCoreApplication::exec(), 0);
        lifecycle.reportWindowClosed();
        EXPECT_EQ(ends, 1);
    }
}

// A JPEG file's content whose camera says how it was held.
QByteArray turnedJpeg(const QSize& size, char orientation) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPEG");
    QByteArray note = QByteArray::fromHex("ffe10022" // an Exif segment with the one entry 0x0112
                                          "457869660000"
                                          "4d4d002a00000008"
                                          "0001"
                                          "01120003000000010001"
                                          "0000"
                                          "00000000");
    note[29] = orientation;
    return jpeg.insert(2, note);
}

TEST(ReadPhoto, ReadsAPictureUprightAndRefusesWhatIsNone) {
    const TemporaryFolder folder;
    QImage image(6, 3, QImage::Format_RGB32);
    image.fill(Qt::red);
    image.save(QString::fromStdString(folder / "photo.png"));
    image.scaled(3000, 1500).save(QString::fromStdString(folder / "large.png"));
    put(folder / "turned.jpg", turnedJpeg({60, 30}, 6).toStdString());
    put(folder / "lying.png", turnedJpeg({60, 30}, 1).toStdString());
    put(folder / "text.png", "no picture");
    put(folder / "heavy.png", "");
    std::filesystem::resize_file(folder / "heavy.png", std::uintmax_t(largestPhotoFile) + 1);
    const auto sizeOf = [&](const char* name) {
        const auto photo = readPhoto(QString::fromStdString(folder / name));
        return photo ? photo->size() : QSize();
    };
    EXPECT_EQ(sizeOf("photo.png"), QSize(6, 3));
    EXPECT_EQ(sizeOf("large.png"), QSize(2048, 1024));
    EXPECT_EQ(sizeOf("turned.jpg"), QSize(30, 60));
    EXPECT_EQ(sizeOf("lying.png"), QSize(60, 30)); // a JPEG, whatever its name says
    EXPECT_EQ(readPhoto(QString::fromStdString(folder / "text.png")).error(), PhotoFault::unreadable);
    EXPECT_EQ(readPhoto(QString::fromStdString(folder / "heavy.png")).error(), PhotoFault::tooLarge);
    EXPECT_EQ(readPhoto("/nowhere.png").error(), PhotoFault::unreadable);
    EXPECT_TRUE(photoNameFilters().contains("*.png"));
    EXPECT_TRUE(photoNameFilters().contains("*.jpg"));
}

TEST(ReverseLocationManager, TellsWhyThereIsNoPlace) {
    FakeLocationService location;
    NoReverseGeocoder geocoder;
    ReverseLocationManager manager(location, geocoder);
    QStringList errors;
    manager.onReverseHandler = [&](const auto&, const auto& failure) { errors << failure.value_or(""); };
    location.answer = {std::nullopt, "denied"};
    EXPECT_TRUE(manager.start());
    EXPECT_EQ(errors, QStringList("denied"));
    location.answer = {Coordinate{1, 2}, std::nullopt};
    EXPECT_TRUE(manager.start());
    EXPECT_TRUE(waitFor([&] { return errors.size() == 2; }));
    EXPECT_NE(errors.last(), "");
}

TEST(SystemUrlOpener, RefusesFilesAndPrograms) {
    SystemUrlOpener opener;
    for (const char* address : {"file:///etc/passwd", "/bin/sh", "javascript:alert(1)", "", "no url"})
        EXPECT_FALSE(opener.openExternally(address)) << address;
}

TEST(AlertPresenter, ShowsOneAlertAtATimeAndNeverAnswersAClosedScreen) {
    AlertPresenter presenter;
    auto screen = std::make_unique<QObject>();
    QStringList answers;
    presenter.inform("uno", "", nullptr, [&] { answers << "uno"; });
    presenter.inform("dos", "", screen.get(), [&] { answers << "dos"; });
    presenter.inform("tres", "", nullptr, [&] { answers << "tres"; });
    EXPECT_EQ(presenter.title(), "uno");
    screen.reset();
    presenter.answerButton(5);
    presenter.answerButton(0);
    EXPECT_EQ(presenter.title(), "tres");
    presenter.answerButton(0);
    EXPECT_EQ(answers, (QStringList{"uno", "tres"}));
    EXPECT_FALSE(presenter.isVisible());
}

// A notification service that remembers and can tap.
class FakeNotificationService : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")
public:
    QStringList bodies;
    QStringList offered;

public slots:
    uint Notify(const QString&, uint, const QString&, const QString&, const QString& body,
                const QStringList& actions, const QVariantMap&, int) {
        bodies << body;
        offered = actions;
        return uint(bodies.size());
    }

signals:
    void ActionInvoked(uint id, const QString& action);
    void NotificationClosed(uint id, uint reason);
};

struct Tap {
    QString action;
    QVariantMap userInfo;
};

TEST(OnABus, NotificationsGiveBackTheirUserInformationWhenTapped) {
    QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "the desktop");
    if (!bus.isConnected())
        GTEST_SKIP() << "there is no session bus";
    std::vector<Tap> taps;
    DesktopNotifications notifications;
    QObject::connect(&notifications, &LocalNotifications::tapped,
                     [&](const QString& action, const QVariantMap& info) {
                         taps.push_back({action, info});
                     });
    int banner = 0;
    QObject::connect(&notifications, &LocalNotifications::bannerWanted, [&](int id) { banner = id; });
    notifications.post({"Borrador Encolado", "sin servicio", {{"orderId", 3}}, {}});
    ASSERT_TRUE(waitFor([&] { return banner != 0; }));
    notifications.respondToBanner(banner, notification_action::open);
    notifications.respondToBanner(banner, notification_action::open);

    FakeNotificationService service;
    ASSERT_TRUE(bus.registerObject("/org/freedesktop/Notifications", &service,
                                   QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals));
    ASSERT_TRUE(bus.registerService("org.freedesktop.Notifications"));
    notifications.registerCategory("orderBrochureResponse", {{"show", "Ver pedido"}});
    notifications.post({"Pedido guardado", "<Su> pedido", {{"orderId", 7}}, "orderBrochureResponse"});
    notifications.post({"Pedido guardado", "otro", {{"orderId", 8}}, {}});
    ASSERT_TRUE(waitFor([&] { return service.bodies.size() == 2; }));
    EXPECT_EQ(service.bodies.first(), "&lt;Su&gt; pedido");
    EXPECT_EQ(service.offered, (QStringList{"default", "Abrir"}));
    // On the bus, the signals come after the answers to the posts.
    emit service.ActionInvoked(1, "show");
    emit service.NotificationClosed(1, 2);
    emit service.ActionInvoked(99, "default");
    emit service.NotificationClosed(2, 2);
    ASSERT_TRUE(waitFor([&] { return taps.size() == 3; }));
    EXPECT_EQ(taps[0].userInfo.value("orderId"), 3);
    EXPECT_EQ(taps[1].action, "show");
    EXPECT_EQ(taps[1].userInfo.value("orderId"), 7);
    EXPECT_EQ(taps[2].action, "dismiss");
    EXPECT_EQ(taps[2].userInfo.value("orderId"), 8);
}

} // namespace
} // namespace kavor

#include "PlatformTest.moc"
