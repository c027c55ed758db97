#pragma once

#include <QObject>
#include <QPointer>
#include <QThreadPool>

#include <memory>
#include <utility>

namespace kavor {

// Runs work in the thread pool and hands its result to a callback in the thread of the context, which must
// not be null. A context that is gone by then gets nothing.
template <typename Work, typename Callback>
void runInBackground(QObject* context, Work work, Callback callback,
                     QThreadPool* pool = QThreadPool::globalInstance()) {
    // The relay lives in the caller's thread and outlives the work; only it looks at the context.
    auto* relay = new QObject;
    relay->moveToThread(context->thread());
    pool->start([relay, guard = QPointer<QObject>(context), work = std::move(work),
                 callback = std::move(callback)]() mutable {
        auto result = std::make_shared<decltype(work())>(work());
        QMetaObject::invokeMethod(
            relay,
            [relay, guard, result, callback = std::move(callback)]() mutable {
                relay->deleteLater();
                if (guard)
                    callback(std::move(*result));
            },
            Qt::QueuedConnection);
    });
}

} // namespace kavor
