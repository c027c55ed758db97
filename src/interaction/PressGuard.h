#pragma once

#include "base/NotificationCenter.h"

#include <QObject>
#include <QPointer>

#include <chrono>

class QInputEvent;
class QKeyEvent;

namespace kavor {

class Clock;

namespace notification {
// Another view took the place of the one that was pressed, inside of a screen.
inline constexpr std::string_view viewChanged = "ViewChanged";
} // namespace notification

// Keeps the second half of a double press from the screen that the first half opened: for the double-click
// time after a change of screen a window takes no press, and a key that is held down over the change repeats
// into nothing. Typing is never held back.
class PressGuard : public QObject {
    Q_OBJECT
public:
    // The property of a window that says whether it takes presses; absent before the first change.
    static constexpr char takesPresses[] = "takesPresses";

    // The clock outlives the guard.
    explicit PressGuard(Clock& clock, QObject* parent = nullptr);
    ~PressGuard() override;

    // The double-click time of the platform; zero guards nothing.
    void setInterval(std::chrono::milliseconds interval) { interval_ = interval; }
    void watch(QObject* window);
    void screenChanged();

    bool eventFilter(QObject* window, QEvent* event) override;

private:
    bool swallowsPress(const QInputEvent& press);
    bool swallowsRelease();
    bool swallowsKey(const QKeyEvent& event);
    void setShut(bool shut);

    Clock& clock_;
    std::chrono::milliseconds interval_{0};
    QPointer<QObject> window_;
    bool shut_ = false;
    quint64 timer_ = 0;
    quint64 lastPointer_ = 0; // the time of the pointer's last event, as the platform tells it
    quint64 changedAt_ = 0;   // the same for the last event before the change
    bool swallowing_ = false; // the rest of a press that was swallowed
    int held_ = 0;            // the key that acts as a press and is down
    int muted_ = 0;           // that key, when it is held over a change
};

} // namespace kavor
