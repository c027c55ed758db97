#include "device/Clock.h"

#include "device/BackgroundTasks.h"
#include "support/DeviceFakes.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace kavor {
namespace {

using namespace std::chrono_literals;

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
