#include "FakeWallet.h"
#include "device/Clock.h"
#include "device/Reachability.h"
#include "device/UserDefaults.h"
#include "device/keychain/FileKeychain.h"
#include "device/keychain/SystemKeychain.h"
#include "support/DeviceFakes.h"
#include "support/TemporaryFolder.h"
#include "support/WaitFor.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <vector>

// What each version of a device interface keeps, those of the tests included.
namespace kavor {
namespace {

using namespace std::chrono_literals;

// A version of an interface; `make` answers null where this machine does not have it. What keeps its content
// reads it again when it is made a second time over the same folder.
template <class Interface>
struct Version {
    const char* name;
    std::function<std::unique_ptr<Interface>(const TemporaryFolder&)> make;
    bool keeps = false;
    friend std::ostream& operator<<(std::ostream& out, const Version& version) { return out << version.name; }
};

template <class Interface>
class EveryVersion : public testing::TestWithParam<Version<Interface>> {
protected:
    const TemporaryFolder folder;
    std::unique_ptr<Interface> made = this->GetParam().make(folder);

    void SetUp() override {
        if (!made)
            GTEST_SKIP() << "this machine does not have it";
    }
    // The next process.
    void makeAgain() {
        made.reset();
        made = this->GetParam().make(folder);
        ASSERT_TRUE(made);
    }
};

const auto nameOf = [](const auto& each) { return std::string(each.param.name); };

using EveryKeychain = EveryVersion<KeychainStore>;

TEST_P(EveryKeychain, HoldsOneItemPerServer) {
    const KeychainKey key{"internetPassword", "https://bar.example/"};
    const KeychainKey other{"internetPassword", "https://other.example/"};
    const std::string bytes("\0\xff{\"password\"", 13);
    EXPECT_EQ(made->readOne(key), std::nullopt);
    EXPECT_EQ(made->update({key, "ana", "x"}), KeychainStatus::NotFound);
    EXPECT_EQ(made->remove(key), KeychainStatus::NotFound);
    EXPECT_EQ(made->add({key, "ana", bytes}), KeychainStatus::Success);
    EXPECT_EQ(made->add({key, "eva", "y"}), KeychainStatus::Duplicate);
    EXPECT_EQ(made->add({other, std::nullopt, ""}), KeychainStatus::Success);
    EXPECT_EQ(made->readOne(key), (KeychainItem{key, "ana", bytes}));
    EXPECT_EQ(made->readOne(other), (KeychainItem{other, std::nullopt, ""}));
    EXPECT_EQ(made->update({key, "eva", "z"}), KeychainStatus::Success);
    EXPECT_EQ(made->readOne(key), (KeychainItem{key, "eva", "z"}));
    EXPECT_EQ(made->remove(key), KeychainStatus::Success);
    EXPECT_EQ(made->readOne(key), std::nullopt);
    EXPECT_TRUE(made->readOne(other).has_value());
    if (!GetParam().keeps)
        return;
    made->add({key, "ana", bytes});
    makeAgain();
    EXPECT_EQ(made->readOne(key), (KeychainItem{key, "ana", bytes}));
    EXPECT_EQ(made->readOne(other), (KeychainItem{other, std::nullopt, ""}));
}

const Version<KeychainStore> keychains[] = {
    {"InMemory", [](const auto&) { return std::make_unique<MemoryKeychain>(); }},
    {"InAFile", [](const auto& folder) { return std::make_unique<FileKeychain>(folder / "keychain/items"); },
     true},
};
INSTANTIATE_TEST_SUITE_P(Keychains, EveryKeychain, testing::ValuesIn(keychains), nameOf);
// The desktop's, over a wallet of the test: nobody's secrets are touched.
const Version<KeychainStore> systemKeychain{
    "OfTheSystem",
    [](const auto& folder) -> std::unique_ptr<KeychainStore> {
        return FakeWallet::isThere() ? SystemKeychain::open(QString::fromStdString(folder.path()), 4s)
                                     : nullptr;
    },
    true};
INSTANTIATE_TEST_SUITE_P(OnABus, EveryKeychain, testing::Values(systemKeychain), nameOf);

using EveryUserDefaults = EveryVersion<UserDefaults>;

TEST_P(EveryUserDefaults, HoldsValuesOfThreeTypesAndTakesNoneForAnother) {
    constexpr qint64 large = (qint64(1) << 53) + 1;
    EXPECT_FALSE(made->boolean("flag"));
    EXPECT_EQ(made->integer("width"), std::nullopt);
    EXPECT_EQ(made->string("name"), std::nullopt);
    made->setBoolean("flag", true);
    made->setInteger("width", 1024);
    made->setInteger("moment", large);
    made->setInteger("nothing", 0);
    made->setString("name", "Peña");
    made->setString("empty", "");
    made->setString("gone", "x");
    made->remove("gone");
    made->remove("never there");
    made->setString("changed", "x");
    made->setInteger("changed", -1);
    for (const bool again : {false, true}) {
        if (again && GetParam().keeps)
            makeAgain();
        EXPECT_TRUE(made->boolean("flag"));
        EXPECT_EQ(made->integer("width"), 1024);
        EXPECT_EQ(made->integer("moment"), large);
        EXPECT_EQ(made->integer("nothing"), 0);
        EXPECT_EQ(made->string("name"), "Peña");
        EXPECT_EQ(made->string("empty"), "");
        EXPECT_EQ(made->string("gone"), std::nullopt);
        EXPECT_EQ(made->string("changed"), std::nullopt);
        EXPECT_EQ(made->integer("changed"), -1);
        EXPECT_EQ(made->string("width"), std::nullopt);
        EXPECT_EQ(made->integer("name"), std::nullopt);
        EXPECT_EQ(made->integer("flag"), std::nullopt);
        EXPECT_FALSE(made->boolean("name"));
        EXPECT_FALSE(made->boolean("width"));
    }
}

const Version<UserDefaults> defaults[] = {
    {"InMemory", [](const auto&) { return std::make_unique<MemoryUserDefaults>(); }},
    {"InAFile",
     [](const auto& folder) { return std::make_unique<FileUserDefaults>(folder / "sub/defaults.json"); },
     true},
};
INSTANTIATE_TEST_SUITE_P(Defaults, EveryUserDefaults, testing::ValuesIn(defaults), nameOf);

// Lets the time of a clock pass until the condition holds.
bool passUntil(Clock& clock, const std::function<bool()>& condition) {
    auto* manual = dynamic_cast<ManualClock*>(&clock);
    if (manual == nullptr)
        return waitFor(condition);
    for (int i = 0; i < 1000 && !condition(); ++i)
        manual->advance(1ms);
    return condition();
}

using EveryClock = EveryVersion<Clock>;

TEST_P(EveryClock, RunsWaitsOnceInTheOrderOfTheirDueTimesAndNeverInsideTheCall) {
    std::string ran;
    const QDateTime start = made->now();
    std::vector<qint64> times;
    const auto note = [&](char name) {
        ran += name;
        times.push_back(start.msecsTo(made->now()));
    };
    made->after(60ms, nullptr, [&] { note('d'); });
    made->after(20ms, nullptr, [&] {
        note('b');
        made->after(0ms, nullptr, [&] { note('c'); });
        EXPECT_EQ(ran, "ab");
    });
    made->after(0ms, nullptr, [&] { note('a'); });
    EXPECT_EQ(ran, "");
    ASSERT_TRUE(passUntil(*made, [&] { return ran.size() == 4; }));
    EXPECT_EQ(ran, "abcd");
    EXPECT_TRUE(std::ranges::is_sorted(times));
    EXPECT_GE(times[1], 19); // a clock of the device may be set meanwhile, but not here
    EXPECT_GE(times[3], 59);
}

TEST_P(EveryClock, RunsNothingThatWasCancelledOrLostItsContext) {
    std::string ran;
    Clock::TimerId self = 0;
    Clock::TimerId later = 0;
    auto context = std::make_unique<QObject>();
    auto closing = std::make_unique<QObject>();
    QObject alive;
    const auto cancelled = made->after(1ms, nullptr, [&] { ran += 'x'; });
    made->after(1ms, context.get(), [&] { ran += 'x'; });
    made->after(30ms, closing.get(), [&] { ran += 'x'; });
    later = made->after(30ms, nullptr, [&] { ran += 'x'; });
    self = made->after(5ms, &alive, [&] {
        ran += 'a';
        closing.reset();
        made->cancel(self);
        made->cancel(later);
        made->cancel(cancelled);
        made->cancel(4711);
    });
    made->after(60ms, nullptr, [&] { ran += 'b'; });
    made->cancel(cancelled);
    context.reset();
    ASSERT_TRUE(passUntil(*made, [&] { return ran.ends_with('b'); }));
    made->cancel(self);
    EXPECT_EQ(ran, "ab");
}

const Version<Clock> clocks[] = {
    {"Manual", [](const auto&) { return std::make_unique<ManualClock>(); }},
    {"OfTheSystem", [](const auto&) { return std::make_unique<SystemClock>(); }},
};
INSTANTIATE_TEST_SUITE_P(Clocks, EveryClock, testing::ValuesIn(clocks), nameOf);

// A version whose network can be taken away.
struct Switchable {
    std::unique_ptr<Reachability> network;
    std::function<void(bool)> set;
};

template <class Network, void (Network::*set)(bool), bool sense>
std::unique_ptr<Switchable> switchable() {
    auto network = std::make_unique<Network>();
    auto* raw = network.get();
    return std::make_unique<Switchable>(
        Switchable{std::move(network), [raw](bool on) { (raw->*set)(on == sense); }});
}

using EveryReachability = EveryVersion<Switchable>;

TEST_P(EveryReachability, TellsEachChangeOnceWithTheNewStateInPlace) {
    if (!made->network->isReachable())
        GTEST_SKIP() << "this machine is offline";
    std::vector<bool> told;
    QObject::connect(made->network.get(), &Reachability::changed,
                     [&] { told.push_back(made->network->isReachable()); });
    for (const bool on : {true, false, false, true, true})
        made->set(on);
    EXPECT_EQ(told, (std::vector<bool>{false, true}));
}

const Version<Switchable> networks[] = {
    {"InMemory", [](const auto&) { return switchable<FakeReachability, &FakeReachability::set, true>(); }},
    {"OfTheSystem",
     [](const auto&) { return switchable<QtReachability, &QtReachability::setForcedOffline, false>(); }},
};
INSTANTIATE_TEST_SUITE_P(Networks, EveryReachability, testing::ValuesIn(networks), nameOf);

} // namespace
} // namespace kavor
