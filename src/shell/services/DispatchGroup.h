#pragma once

#include <QMetaObject>
#include <QObject>
#include <QPointer>

#include <functional>
#include <utility>

namespace kavor {

// Waits for a number of jobs: when each that entered has left, the notification runs on the context's thread,
// later than the last leave. Main thread only.
class DispatchGroup {
public:
    void enter() { ++inside_; }
    void leave() {
        --inside_;
        finishIfEmpty();
    }
    // Runs once, also when nobody is inside; dropped with its context.
    void notify(QObject* context, std::function<void()> callback) {
        context_ = context;
        callback_ = std::move(callback);
        finishIfEmpty();
    }

private:
    void finishIfEmpty() {
        if (inside_ > 0 || !callback_)
            return;
        if (context_)
            QMetaObject::invokeMethod(context_.data(), std::exchange(callback_, {}), Qt::QueuedConnection);
    }

    int inside_ = 0;
    QPointer<QObject> context_;
    std::function<void()> callback_;
};

} // namespace kavor
