#include "interaction/PressGuard.h"

#include "device/Clock.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointingDevice>

#include <gtest/gtest.h>

#include <vector>

namespace kavor {
namespace {

using namespace std::chrono_literals;

// Stands for a window: keeps what reaches it.
class Receiver : public QObject {
public:
    std::vector<QEvent::Type> got;
    bool event(QEvent* event) override {
        got.push_back(event->type());
        return true;
    }
};

class PressGuardTest : public ::testing::Test {
protected:
    PressGuardTest() {
        guard.setInterval(400ms);
        guard.watch(&window);
        window.got.clear();
    }
    // A click whose press comes at this moment of the platform's time; whether it reaches the window.
    bool clickArrives(quint64 at) {
        window.got.clear();
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseMove, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, {5, 5}, {5, 5}, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
            event.setTimestamp(at++);
            QCoreApplication::sendEvent(&window, &event);
        }
        EXPECT_TRUE(window.got.empty() || window.got.size() == 3)
            << "a press is swallowed whole or not at all";
        return !window.got.empty();
    }
    bool keyArrives(QEvent::Type type, int key, bool repeat = false) {
        window.got.clear();
        QKeyEvent event(type, key, Qt::NoModifier, QString(), repeat);
        QCoreApplication::sendEvent(&window, &event);
        return !window.got.empty();
    }

    ManualClock clock;
    Receiver window;
    PressGuard guard{clock};
};

TEST_F(PressGuardTest, TheSecondHalfOfADoublePressGoesNowhere) {
    EXPECT_TRUE(clickArrives(1000));
    guard.screenChanged();
    EXPECT_FALSE(window.property(PressGuard::takesPresses).toBool());
    EXPECT_FALSE(clickArrives(1200));
    clock.advance(400ms);
    EXPECT_TRUE(window.property(PressGuard::takesPresses).toBool());
    EXPECT_TRUE(clickArrives(1500));
    guard.screenChanged();
    clock.advance(1s); // the window was busy for as long, and what was pressed meanwhile comes only now
    EXPECT_FALSE(clickArrives(1700));
    EXPECT_TRUE(clickArrives(2000));
}

TEST_F(PressGuardTest, AHeldKeyDoesNotGoOnPressingOnTheNewScreenAndTypingIsNotHeldBack) {
    EXPECT_TRUE(keyArrives(QEvent::KeyPress, Qt::Key_Return));
    guard.screenChanged();
    clock.advance(5s); // for as long as it is held
    EXPECT_FALSE(keyArrives(QEvent::KeyPress, Qt::Key_Return, true));
    EXPECT_TRUE(keyArrives(QEvent::KeyRelease, Qt::Key_Return));
    EXPECT_TRUE(keyArrives(QEvent::KeyPress, Qt::Key_Return)) << "pressed anew";
    EXPECT_TRUE(keyArrives(QEvent::KeyRelease, Qt::Key_Return));
    guard.screenChanged();
    for (const int key : {int(Qt::Key_A), int(Qt::Key_Space), int(Qt::Key_Tab)})
        EXPECT_TRUE(keyArrives(QEvent::KeyPress, key)) << key;
    EXPECT_TRUE(keyArrives(QEvent::KeyPress, Qt::Key_A, true));
}

} // namespace
} // namespace kavor
