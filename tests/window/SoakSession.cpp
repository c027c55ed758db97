#include "window/SoakSession.h"

#include "base/NotificationCenter.h"
#include "interaction/AlertPresenter.h"
#include "kavor/KavorApplication.h"
#include "shell/screens/RootController.h"
#include "support/TouchDriver.h"
#include "support/WindowWatch.h"

#include <QFontDatabase>
#include <QQuickWindow>
#include <QTest>

#include <array>
#include <cstdio>

namespace kavor {

namespace {

constexpr std::array sizes{QSize(1024, 768), QSize(768, 1024), QSize(390, 844)};
constexpr std::array sections{1, 2, 5, 19}; // menus of beer and drinks, a chalkboard, wines
constexpr std::array steps{2, 5, 8, 1};     // products, style, send, configuration

void must(bool good, const QString& what) {
    if (!good)
        throw TouchFailure(what.toStdString());
}

class Session {
public:
    explicit Session(const SoakTask& task)
        : task_(task) {}

    void start(bool offline) {
        KavorOptions options;
        options.configuration = task_.configuration.toStdString();
        options.documents = (task_.folder + QStringLiteral("/documents")).toStdString();
        options.caches = (task_.folder + QStringLiteral("/caches")).toStdString();
        options.size = sizes[0];
        options.offline = offline;
        auto configuration = KavorApplication::loadConfiguration(options);
        must(configuration.has_value(), QStringLiteral("the configuration"));
        ends_ = NotificationCenter::shared().observe(notification::updatingResourcesDidEnd,
                                                     [this](const NotificationInfo&) { ++refreshesEnded_; });
        application_ = std::make_unique<KavorApplication>(options, std::move(*configuration));
        must(application_->start(), QStringLiteral("the window opens"));
        watch_ = std::make_unique<WindowWatch>(*window());
        touch_ = std::make_unique<TouchDriver>(*window());
        touch_->setTimeout(60'000);
        must(QTest::qWaitForWindowExposed(window(), 20'000), QStringLiteral("the window shows"));
    }

    void logIn() {
        touch_->type(QStringLiteral("emailTextField"), task_.account);
        touch_->type(QStringLiteral("passwordTextField"), task_.password);
        touch_->tap(QStringLiteral("rememberPasswordSwitch"));
        touch_->tap(QStringLiteral("loginButton"));
    }

    // Until the dashboard takes touches.
    void reachDashboard(bool refreshes) {
        if (refreshes)
            touch_->waitUntil(QStringLiteral("the refresh of the start"),
                              [&] { return refreshesEnded_ > 0; });
        touch_->await(QStringLiteral("welcomeView"));
        dismissNotifications();
    }

    void lookAround(int number) {
        openSection(number);
        for (int i = 0; i < 3; ++i) {
            touch_->tap(QStringLiteral("menuEntry%1").arg(steps[std::size_t(number + i) % steps.size()]));
            dismissAlert();
            turn(number + i + 1);
        }
        leaveSection();
    }

    // One refresh with a screen open over the dashboard, or on it, and the window turned while it runs.
    void refresh(int number) {
        const int ended = refreshesEnded_;
        const bool inSection = number % 3 == 1;
        if (inSection) {
            openSection(number / 3);
            NotificationCenter::shared().post(notification::needToUpdateResources);
            touch_->tap(QStringLiteral("menuEntry%1").arg(steps[std::size_t(number / 3) % steps.size()]));
        } else {
            dismissNotifications();
            touch_->tap(QStringLiteral("updateInfoappButton"));
        }
        turn(number);
        if (inSection)
            leaveSection();
        touch_->waitUntil(QStringLiteral("the end of refresh %1").arg(number + 1),
                          [&] { return refreshesEnded_ > ended; });
        turn(number + 1);
    }

    void close() {
        window()->close();
        must(QTest::qWaitFor([&] { return !window()->isVisible(); }), QStringLiteral("the window closes"));
    }

    // Until so many frames were drawn, turning the window so that there is something to draw.
    void drawFrames(int number) {
        const int from = watch_->frames();
        for (int i = 0; watch_->frames() - from < number; ++i) {
            must(i < 1000, QStringLiteral("the window draws"));
            turn(i);
            QTest::qWait(10);
        }
    }

    void turn(int number) { window()->resize(sizes[std::size_t(number) % sizes.size()]); }
    void check() const {
        must(watch_->hasThreadOfItsOwn(), QStringLiteral("a thread of its own draws the window"));
        must(watch_->fontChanges() == 0,
             QStringLiteral("the font database stays (it changed %1 times)").arg(watch_->fontChanges()));
    }

private:
    [[nodiscard]] QQuickWindow* window() const { return application_->window(); }

    void openSection(int number) {
        dismissNotifications();
        touch_->tap(QStringLiteral("welcomeButton%1").arg(sections[std::size_t(number) % sections.size()]));
        touch_->await(QStringLiteral("brochureMenu"));
    }
    void leaveSection() {
        dismissAlert();
        touch_->tap(QStringLiteral("backButton"));
        touch_->await(QStringLiteral("welcomeView"));
    }
    void dismissAlert() {
        touch_->settle();
        if (application_->alerts().isVisible())
            touch_->tap(QStringLiteral("alertButton0"));
    }
    // The panel slides in after each refresh.
    void dismissNotifications() {
        touch_->settle();
        if (!application_->root().welcome()->areNotificationsShown())
            return;
        touch_->tap(QStringLiteral("dismissNotificationsButton"));
        touch_->awaitGone(QStringLiteral("notificationsFrameView"));
    }

    const SoakTask& task_;
    int refreshesEnded_ = 0;
    NotificationCenter::Subscription ends_;
    std::unique_ptr<KavorApplication> application_;
    std::unique_ptr<WindowWatch> watch_;
    std::unique_ptr<TouchDriver> touch_;
};

// A start as users make it: the first logs in, every fifth has no network, every third is closed while the
// refresh of the start runs.
void playStart(Session& session, int number) {
    const bool offline = number % 5 == 4;
    session.start(offline);
    if (number == 0)
        session.logIn();
    if (number % 3 == 2) {
        session.drawFrames(10);
    } else {
        session.reachDashboard(!offline);
        session.lookAround(number);
    }
    session.check();
    session.close();
}

void playRefreshes(Session& session, int number) {
    const auto fonts = [] { return QFontDatabase::families().size(); };
    session.start(false);
    session.reachDashboard(true);
    const auto before = fonts();
    for (int i = 0; i < number; ++i)
        session.refresh(i);
    session.check();
    must(fonts() == before, QStringLiteral("%1 fonts, and %2 before").arg(fonts()).arg(before));
    std::printf("%d refreshes, %d fonts before and after\n", number, int(before));
    session.close();
}

} // namespace

int playSoakSession(const SoakTask& task) {
    try {
        Session session(task);
        if (task.refreshes > 0)
            playRefreshes(session, task.refreshes);
        else
            playStart(session, task.start);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 1;
    }
    return 0;
}

} // namespace kavor
