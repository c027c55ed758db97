#include "device/Background.h"

#include <QSemaphore>
#include <QThread>

#include <gtest/gtest.h>

namespace kavor {
namespace {

TEST(BegunWork, IsTakenOnceDoneElsewhereOrHereWhenEveryThreadIsBusy) {
    const BackgroundWorkEnd end;
    std::atomic<int> runs = 0;
    const auto where = [&runs] {
        ++runs;
        return QThread::currentThread();
    };
    QSemaphore free;
    QSemaphore busy;
    const int threads = QThreadPool::globalInstance()->maxThreadCount();
    for (int i = 0; i < threads; ++i)
        startInPool(*QThreadPool::globalInstance(), [&] {
            busy.release();
            free.acquire();
        });
    busy.acquire(threads);
    BegunWork<QThread*> waiting(where);
    EXPECT_EQ(waiting.take(), QThread::currentThread());
    free.release(threads);

    QSemaphore begun;
    BegunWork<QThread*> elsewhere([&] {
        begun.release();
        return where();
    });
    begun.acquire();
    EXPECT_NE(elsewhere.take(), QThread::currentThread());
    QThreadPool::globalInstance()->waitForDone();
    EXPECT_EQ(runs, 2);
}

} // namespace
} // namespace kavor
