#pragma once

#include <QDateTime>
#include <QObject>
#include <QPointer>

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <utility>

class QTimer;

namespace kavor {

// The time of day and every wait. Main thread only.
class Clock {
public:
    using TimerId = quint64;

    virtual ~Clock() = default;
    [[nodiscard]] virtual QDateTime now() const = 0;
    // Runs the callback once after the given time, unless cancelled or its context (when not null) is gone.
    virtual TimerId after(std::chrono::milliseconds delay, QObject* context,
                          std::function<void()> callback) = 0;
    // Cancelling a timer that has run or never was is no fault.
    virtual void cancel(TimerId timer) = 0;
};

// The device's clock; its timers need a running event loop.
class SystemClock : public Clock {
public:
    SystemClock();
    ~SystemClock() override;
    [[nodiscard]] QDateTime now() const override;
    TimerId after(std::chrono::milliseconds delay, QObject* context, std::function<void()> callback) override;
    void cancel(TimerId timer) override;

private:
    std::map<TimerId, std::unique_ptr<QTimer>> timers_;
    TimerId last_ = 0;
};

// A clock that stands still until it is turned.
class ManualClock : public Clock {
public:
    explicit ManualClock(const QDateTime& start = QDateTime(QDate(2024, 5, 6), QTime(7, 8, 9)));
    [[nodiscard]] QDateTime now() const override;
    TimerId after(std::chrono::milliseconds delay, QObject* context, std::function<void()> callback) override;
    void cancel(TimerId timer) override;

    // Lets time pass and runs what falls due on the way, in the order of its due times.
    void advance(std::chrono::milliseconds time);
    // How many waits stand, those of a gone context not counted.
    [[nodiscard]] int pending() const;
    // The time to the next wait; zero without one.
    [[nodiscard]] std::chrono::milliseconds untilNext() const;

private:
    struct Entry {
        TimerId id = 0;
        bool bound = false;
        QPointer<QObject> context;
        std::function<void()> callback;
    };

    QDateTime start_;
    std::chrono::milliseconds elapsed_{0};
    std::multimap<std::chrono::milliseconds, Entry> entries_;
    TimerId last_ = 0;
};

} // namespace kavor
