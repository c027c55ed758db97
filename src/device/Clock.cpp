#include "device/Clock.h"

#include <QTimer>

#include <algorithm>

namespace kavor {

SystemClock::SystemClock() = default;
SystemClock::~SystemClock() = default;

QDateTime SystemClock::now() const {
    return QDateTime::currentDateTime();
}

Clock::TimerId SystemClock::after(std::chrono::milliseconds delay, QObject* context,
                                  std::function<void()> callback) {
    const TimerId id = ++last_;
    auto timer = std::make_unique<QTimer>();
    timer->setSingleShot(true);
    timer->setTimerType(Qt::PreciseTimer);
    const auto fire = [this, id, bound = context != nullptr, guard = QPointer<QObject>(context),
                       callback = std::move(callback)] {
        const auto call = callback; // the timer that owns this closure goes first
        const bool wanted = !bound || guard;
        timers_.extract(id).mapped().release()->deleteLater();
        if (wanted)
            call();
    };
    QObject::connect(timer.get(), &QTimer::timeout, timer.get(), fire);
    timer->start(delay);
    timers_[id] = std::move(timer);
    return id;
}

void SystemClock::cancel(TimerId timer) {
    timers_.erase(timer);
}

ManualClock::ManualClock(const QDateTime& start)
    : start_(start) {}

QDateTime ManualClock::now() const {
    return start_.addMSecs(elapsed_.count());
}

Clock::TimerId ManualClock::after(std::chrono::milliseconds delay, QObject* context,
                                  std::function<void()> callback) {
    const TimerId id = ++last_;
    entries_.emplace(elapsed_ + std::max(delay, std::chrono::milliseconds(0)),
                     Entry{id, context != nullptr, context, std::move(callback)});
    return id;
}

void ManualClock::cancel(TimerId timer) {
    std::erase_if(entries_, [timer](const auto& entry) { return entry.second.id == timer; });
}

void ManualClock::advance(std::chrono::milliseconds time) {
    const auto end = elapsed_ + time;
    while (!entries_.empty() && entries_.begin()->first <= end) {
        elapsed_ = std::max(elapsed_, entries_.begin()->first);
        const Entry entry = std::move(entries_.extract(entries_.begin()).mapped());
        if (!entry.bound || entry.context)
            entry.callback();
    }
    elapsed_ = end;
}

int ManualClock::pending() const {
    return int(std::count_if(entries_.begin(), entries_.end(),
                             [](const auto& entry) { return !entry.second.bound || entry.second.context; }));
}

std::chrono::milliseconds ManualClock::untilNext() const {
    for (const auto& [due, entry] : entries_) {
        if (!entry.bound || entry.context)
            return due - elapsed_;
    }
    return std::chrono::milliseconds(0);
}

} // namespace kavor
