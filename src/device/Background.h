#pragma once

#include <QObject>
#include <QPointer>
#include <QRunnable>
#include <QThreadPool>

#include <memory>
#include <utility>

#ifdef __SANITIZE_THREAD__
#include <sanitizer/tsan_interface.h>
#endif

namespace kavor {

// Work on its way into a pool. Qt's pool puts what the two threads do in order, by locks that a thread
// sanitizer cannot see; it is told here, so that what it still reports is a fault.
template <typename Work>
class PoolWork final : public QRunnable {
public:
    explicit PoolWork(Work work)
        : work_(std::move(work)) {
#ifdef __SANITIZE_THREAD__
        __tsan_release(this);
#endif
    }
    void run() override {
#ifdef __SANITIZE_THREAD__
        __tsan_acquire(this);
#endif
        work_();
    }

private:
    Work work_;
};

// Runs work in a thread of the pool.
template <typename Work>
void startInPool(QThreadPool& pool, Work work) {
    pool.start(new PoolWork<Work>(std::move(work)));
}

// Runs work in the thread pool and hands its result to a callback in the thread of the context, which must
// not be null. A context that is gone by then gets nothing.
template <typename Work, typename Callback>
void runInBackground(QObject* context, Work work, Callback callback,
                     QThreadPool* pool = QThreadPool::globalInstance()) {
    // The relay lives in the caller's thread and outlives the work; only it looks at the context.
    auto* relay = new QObject;
    relay->moveToThread(context->thread());
    startInPool(*pool, [relay, guard = QPointer<QObject>(context), work = std::move(work),
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

// Declared after what such work reads, and before whoever begins it: nothing is taken from under work that
// still runs, nor is a file left half done when the client ends.
class BackgroundWorkEnd {
public:
    BackgroundWorkEnd() = default;
    BackgroundWorkEnd(const BackgroundWorkEnd&) = delete;
    BackgroundWorkEnd& operator=(const BackgroundWorkEnd&) = delete;
    ~BackgroundWorkEnd() { QThreadPool::globalInstance()->waitForDone(); }
};

} // namespace kavor
