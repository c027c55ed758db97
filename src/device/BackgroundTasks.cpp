#include "device/BackgroundTasks.h"

#include "device/Clock.h"
#include "device/Reachability.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace kavor {

BackgroundTask::BackgroundTask(QString identifier, std::function<void(bool)> completed)
    : identifier_(std::move(identifier))
    , completed_(std::move(completed)) {}

void BackgroundTask::complete(bool success) {
    if (const auto completed = std::exchange(completed_, {}))
        completed(success);
}

void BackgroundTask::expire() {
    if (isComplete())
        return;
    if (const auto handler = expiration_)
        handler();
    complete(false); // a run whose handler forgot to complete it must not stay for ever
}

TimerBackgroundTasks::TimerBackgroundTasks(Clock& clock, Reachability& reachability, Pace pace,
                                           QObject* parent)
    : QObject(parent)
    , clock_(clock)
    , reachability_(reachability)
    , pace_(pace) {
    connect(&reachability_, &Reachability::changed, this, [this] {
        std::vector<QString> identifiers;
        for (const auto& [identifier, pending] : pending_)
            identifiers.push_back(identifier);
        for (const QString& identifier : identifiers)
            startIfPossible(identifier);
    });
}

void TimerBackgroundTasks::registerHandler(const QString& identifier, Handler handler) {
    handlers_[identifier] = std::move(handler);
}

std::optional<QString> TimerBackgroundTasks::submit(const BackgroundRequest& request) {
    if (!handlers_.contains(request.identifier))
        return QStringLiteral("no handler is registered for ") + request.identifier;
    cancel(request.identifier);
    auto delay = std::max(request.earliestBegin, pace_.afterRequest);
    if (const auto last = lastRun_.find(request.identifier); last != lastRun_.end()) {
        // A clock that was set back must not postpone the next run by as much.
        const std::chrono::milliseconds since(clock_.now().toMSecsSinceEpoch() - last->second);
        delay = std::max(delay, pace_.betweenRuns - std::max(since, std::chrono::milliseconds(0)));
    }
    const quint64 timer =
        clock_.after(delay, this, [this, identifier = request.identifier] { becomeDue(identifier); });
    pending_[request.identifier] = {request, timer, false};
    return std::nullopt;
}

void TimerBackgroundTasks::cancel(const QString& identifier) {
    const auto found = pending_.find(identifier);
    if (found == pending_.end())
        return;
    clock_.cancel(found->second.timer);
    pending_.erase(found);
}

void TimerBackgroundTasks::cancelAll() {
    while (!pending_.empty())
        cancel(QString(pending_.begin()->first));
}

void TimerBackgroundTasks::becomeDue(const QString& identifier) {
    pending_.at(identifier).due = true;
    startIfPossible(identifier);
}

void TimerBackgroundTasks::startIfPossible(const QString& identifier) {
    const auto found = pending_.find(identifier);
    if (found == pending_.end() || !found->second.due || running_.contains(identifier))
        return;
    if (found->second.request.needsNetwork && !reachability_.isReachable())
        return;
    if (gate_ && !gate_()) {
        clock_.cancel(found->second.timer);
        found->second.timer = clock_.after(pace_.atGate, this, [this, identifier] { becomeDue(identifier); });
        return;
    }
    clock_.cancel(found->second.timer);
    pending_.erase(found);
    start(identifier);
}

void TimerBackgroundTasks::start(const QString& identifier) {
    lastRun_[identifier] = clock_.now().toMSecsSinceEpoch();
    const QPointer<TimerBackgroundTasks> guard(this);
    auto task = std::make_shared<BackgroundTask>(identifier, [guard, identifier](bool) {
        if (!guard)
            return;
        guard->running_.erase(identifier);
        guard->startIfPossible(identifier);
    });
    running_[identifier] = task;
    clock_.after(pace_.budget, this, [weak = std::weak_ptr(task)] {
        if (const auto expired = weak.lock())
            expired->expire();
    });
    handlers_.at(identifier)(task);
}

} // namespace kavor
