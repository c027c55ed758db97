#pragma once

#include <QObject>
#include <QPointer>
#include <QRunnable>
#include <QThreadPool>

#include <atomic>
#include <future>
#include <memory>
#include <utility>

#ifdef __SANITIZE_THREAD__
#include <sanitizer/tsan_interface.h>
#endif

namespace kavor {

// Something goes from one thread to another. Qt puts what the two do in order, by locks that a thread
// sanitizer cannot see; it is told here, so that what it still reports is a fault.
inline void handOver([[maybe_unused]] void* what) {
#ifdef __SANITIZE_THREAD__
    __tsan_release(what);
#endif
}
inline void takeOver([[maybe_unused]] void* what) {
#ifdef __SANITIZE_THREAD__
    __tsan_acquire(what);
#endif
}

// Work on its way into a pool.
template <typename Work>
class PoolWork final : public QRunnable {
public:
    explicit PoolWork(Work work)
        : work_(std::move(work)) {
        handOver(this);
    }
    void run() override {
        takeOver(this);
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
        handOver(relay);
        QMetaObject::invokeMethod(
            relay,
            [relay, guard, result, callback = std::move(callback)]() mutable {
                takeOver(relay);
                relay->deleteLater();
                if (guard)
                    callback(std::move(*result));
            },
            Qt::QueuedConnection);
    });
}

// Work that was begun in the thread pool and whose result is taken where it is needed. Taking it waits for
// the work, or does it when no thread has come to it yet.
template <typename Result>
class BegunWork {
public:
    BegunWork() = default;
    template <typename Work>
    explicit BegunWork(Work work)
        : task_(std::make_shared<Task>(std::move(work))) {
        startInPool(*QThreadPool::globalInstance(), [task = task_] { task->runOnce(); });
    }
    // Once.
    [[nodiscard]] Result take() {
        const std::shared_ptr<Task> task = std::move(task_);
        task->runOnce();
        return task->work.get_future().get();
    }

private:
    struct Task {
        template <typename Work>
        explicit Task(Work toDo)
            : work(std::move(toDo)) {}
        void runOnce() {
            if (!isBegun.exchange(true))
                work();
        }
        std::packaged_task<Result()> work;
        std::atomic<bool> isBegun{false};
    };

    std::shared_ptr<Task> task_;
};

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
