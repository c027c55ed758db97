#include "device/Clock.h"

#include "device/BackgroundTasks.h"
#include "support/DeviceFakes.h"
#include "support/WaitFor.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace kavor {
namespace {

using namespace std::chrono_literals;

TEST(ManualClock, RunsWaitsInTheOrderOfTheirDueTimes) {
    ManualClock clock;
    const QDateTime start = clock.now();
    std::vector<std::pair<char, qint64>> ran;
    const auto note = [&](char name) { ran.emplace_back(name, start.msecsTo(clock.now())); };
    auto context = std::make_unique<QObject>();
    clock.after(300ms, nullptr, [&] { note('c'); });
    clock.after(100ms, nullptr, [&] {
        note('a');
        clock.after(50ms, nullptr, [&] { note('b'); });
    });
    clock.after(200ms, context.get(), [&] { note('x'); });
    const auto cancelled = clock.after(10ms, nullptr, [&] { note('y'); });
    clock.cancel(cancelled);
    context.reset();
    EXPECT_EQ(clock.pending(), 2);
    clock.advance(299ms);
    EXPECT_EQ(ran, (std::vector<std::pair<char, qint64>>{{'a', 100}, {'b', 150}}));
    EXPECT_EQ(clock.untilNext(), 1ms);
    clock.advance(1ms);
    EXPECT_EQ(ran.back(), (std::pair<char, qint64>{'c', 300}));
    EXPECT_EQ(clock.pending(), 0);
}

TEST(SystemClock, RunsAWaitOnceUnlessItWasCancelledOrLostItsContext) {
    SystemClock clock;
    auto context = std::make_unique<QObject>();
    int wrong = 0;
    int right = 0;
    const auto cancelled = clock.after(1ms, nullptr, [&] { ++wrong; });
    clock.after(1ms, context.get(), [&] { ++wrong; });
    clock.after(5ms, nullptr, [&] {
        ++right;
        clock.after(1ms, nullptr, [&] { ++right; });
    });
    clock.cancel(cancelled);
    context.reset();
    EXPECT_TRUE(waitFor([&] { return right == 2; }));
    EXPECT_EQ(wrong, 0);
}

class TimerBackgroundTasksTest : public testing::Test {
protected:
    TimerBackgroundTasksTest() {
        tasks.registerHandler(id,
                              [this](const std::shared_ptr<BackgroundTask>& task) { runs.push_back(task); });
    }

    const QString id = "com.Kavor.brochures";
    ManualClock clock;
    FakeReachability network;
    TimerBackgroundTasks tasks{clock, network, {10min, 1min, 0s, 30s}};
    std::vector<std::shared_ptr<BackgroundTask>> runs;
};

TEST_F(TimerBackgroundTasksTest, StartsARunAtItsEarliestMomentOnceTheNetworkIsThere) {
    network.set(false);
    EXPECT_FALSE(tasks.submit({id, true, 1s}));
    clock.advance(5s);
    EXPECT_EQ(runs.size(), 0U);
    network.set(true);
    EXPECT_EQ(runs.size(), 1U);
    network.set(false);
    network.set(true);
    EXPECT_EQ(runs.size(), 1U);
}

TEST_F(TimerBackgroundTasksTest, KeepsAnIntervalBetweenRunsAndOnePendingRequest) {
    tasks.submit({id, false, 1s});
    tasks.submit({id, false, 1s});
    clock.advance(1s);
    ASSERT_EQ(runs.size(), 1U);
    tasks.submit({id, false, 1s});
    runs[0]->complete(true);
    clock.advance(9min);
    EXPECT_EQ(runs.size(), 1U);
    clock.advance(1min);
    EXPECT_EQ(runs.size(), 2U);
}

TEST_F(TimerBackgroundTasksTest, ExpiresARunThatTakesTooLongAndStartsNoOtherMeanwhile) {
    bool expired = false;
    tasks.submit({id, false, 0s});
    clock.advance(0s);
    ASSERT_EQ(runs.size(), 1U);
    runs[0]->setExpirationHandler([&] {
        expired = true;
        runs[0]->complete(false);
    });
    clock.advance(59s);
    EXPECT_FALSE(runs[0]->isComplete());
    clock.advance(1s);
    EXPECT_TRUE(expired);
    EXPECT_TRUE(runs[0]->isComplete());
}

// Whoever asks for a run may be sending the same order at that moment.
TEST_F(TimerBackgroundTasksTest, WaitsAfterARequestAndAtAClosedGate) {
    TimerBackgroundTasks patient(clock, network, {10min, 1min, 4min, 30s});
    patient.registerHandler(id,
                            [this](const std::shared_ptr<BackgroundTask>& task) { runs.push_back(task); });
    bool open = false;
    patient.setGate([&open] { return open; });
    patient.submit({id, true, 1s});
    network.set(false);
    network.set(true);
    clock.advance(4min);
    EXPECT_EQ(runs.size(), 0U) << "the gate is closed";
    open = true;
    clock.advance(29s);
    EXPECT_EQ(runs.size(), 0U);
    clock.advance(1s);
    EXPECT_EQ(runs.size(), 1U);
    runs[0]->complete(true);
    patient.submit({id, true, 1s});
    clock.advance(10min - 1s);
    EXPECT_EQ(runs.size(), 1U);
    clock.advance(1min);
    EXPECT_EQ(runs.size(), 2U);
}

TEST_F(TimerBackgroundTasksTest, DropsCancelledRequestsAndRefusesUnknownIdentifiers) {
    tasks.submit({id, false, 1s});
    tasks.cancelAll();
    clock.advance(1h);
    EXPECT_EQ(runs.size(), 0U);
    EXPECT_TRUE(tasks.submit({"unknown", false, 1s}).has_value());
}

} // namespace
} // namespace kavor
