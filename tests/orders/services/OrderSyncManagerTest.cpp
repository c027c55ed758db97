#include "orders/services/OrderSyncManager.h"

#include "base/NotificationCenter.h"
#include "base/StopProcess.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/engine/TemporalBrochure.h"
#include "device/Clock.h"
#include "orders/OrderDiskManager.h"
#include "orders/services/SendIntent.h"
#include "session/AppSingleton.h"
#include "support/CatalogueBuilder.h"
#include "support/DeviceFakes.h"
#include "support/FakeServices.h"
#include "support/TemporaryFolder.h"
#include "support/WaitFor.h"

#include <gtest/gtest.h>

namespace kavor {
namespace {

using DirectoryName = OrderDiskManager::DirectoryName;

class OrderSyncManagerTest : public ::testing::Test {
protected:
    void SetUp() override {
        auto& session = AppSingleton::shared();
        session.setFolders(folder.path(), folder.path() / "caches");
        session.applicationInformation = CatalogueBuilder().take();
        session.actualSection = SectionIdentifier::brochure(BrochureType::beer);
        BrochureIntermediateData::replaceTemporalBrochure();
        tasks.registerHandler(QLatin1String(OrderSyncManager::taskIdentifier),
                              [this](const auto& task) { manager.handleBrochureSync(task); });
    }

    void draft(const std::string& name, std::optional<Int> identifier = std::nullopt) {
        SaveBrochuresOrder order;
        order.filename = name;
        order.orderIdentifier = identifier;
        ASSERT_TRUE(orders.create(order, DirectoryName::draft, name));
    }
    std::optional<Int> storedIdentifier(const std::string& name) {
        return orders.retrieve<SaveBrochuresOrder>(name + ".zvo", DirectoryName::draft)->orderIdentifier;
    }
    void run() {
        manager.handleBrochureSync(std::make_shared<BackgroundTask>(QString(), [](bool) {}));
    }
    void saveInFront() {
        const auto calls = services.requests.saveOrder.calls.size();
        manager.startOrderSync();
        ASSERT_TRUE(waitFor([&] { return services.requests.saveOrder.calls.size() > calls; }));
    }
    static SaveBrochuresOrderResponse stored(Int id) {
        SaveBrochuresOrderResponse answer;
        answer.orderId = id;
        return answer;
    }

    TemporaryFolder folder;
    FakeServices services;
    OrderDiskManager orders{folder.path()};
    RecordingNotifications notifications;
    NotificationCenter center;
    ManualBackgroundTasks tasks;
    ManualClock clock;
    QStringList sessions;
    int listShown = 0;
    OrderSyncManager manager{{services, orders, notifications, center, tasks, clock,
                              [this] { sessions << QStringLiteral("background"); },
                              [this] { sessions << QStringLiteral("default"); }, [this] { ++listShown; }}};
};

TEST_F(OrderSyncManagerTest, QueuesTheCurrentDraftTellsTheUserAndStoresItsNumber) {
    draft("Bar Nube");
    BrochureIntermediateData::temporalBrochure()->fileName = "Bar Nube";
    saveInFront();
    EXPECT_EQ(sessions, QStringList{QStringLiteral("background")});
    EXPECT_EQ(std::get<0>(services.requests.saveOrder.calls.back()).save, OrderRequestType::saveCloud);
    EXPECT_TRUE(notifications.posted.empty()) << "a notification comes a second later";
    clock.advance(std::chrono::seconds(1));
    ASSERT_EQ(notifications.posted.size(), 1U);
    EXPECT_EQ(notifications.posted[0].title, QStringLiteral("Borrador Encolado"));
    EXPECT_EQ(
        notifications.posted[0].body,
        QStringLiteral("Su pedido Bar Nube se sincronizará con la nube cuando tenga conexión a internet."));

    services.requests.saveOrder.succeed(stored(77));
    EXPECT_EQ(storedIdentifier("Bar Nube"), 77);
    EXPECT_EQ(BrochureIntermediateData::temporalBrochure()->orderIdentifier, 77);
    EXPECT_EQ(sessions.last(), QStringLiteral("default"));
    clock.advance(std::chrono::seconds(1));
    ASSERT_EQ(notifications.posted.size(), 2U);
    EXPECT_EQ(notifications.posted[1].body, QStringLiteral("Su pedido Bar Nube se ha sincronizado."));
    EXPECT_EQ(notifications.posted[1].category, QLatin1String(OrderSyncManager::notificationCategory));

    bool reloaded = false;
    const auto subscription =
        center.observe(notification::reloadOrders, [&](const auto&) { reloaded = true; });
    emit notifications.tapped(QStringLiteral("show"), {{QStringLiteral("orderId"), QStringLiteral("77")}});
    EXPECT_EQ(listShown, 0) << "an id that is no integer opens nothing";
    emit notifications.tapped(QStringLiteral("show"), notifications.posted[1].userInfo);
    EXPECT_TRUE(reloaded && listShown == 1);
}

TEST_F(OrderSyncManagerTest, GoesBackToTheDefaultSessionOnFailureAndOnExpiry) {
    saveInFront();
    services.requests.saveOrder.fail(failureWith({}));
    EXPECT_EQ(sessions.last(), QStringLiteral("default"));
    saveInFront();
    services.requests.saveOrder.succeed({});
    EXPECT_EQ(sessions.last(), QStringLiteral("background")) << "an answer without a number changes nothing";
    clock.advance(OrderSyncManager::extensionBudget);
    EXPECT_EQ(sessions.last(), QStringLiteral("default"));
}

TEST_F(OrderSyncManagerTest, ASecondUploadTakesTheExtensionOfTheFirst) {
    saveInFront();
    clock.advance(OrderSyncManager::extensionBudget - std::chrono::seconds(1));
    saveInFront();
    clock.advance(OrderSyncManager::extensionBudget - std::chrono::seconds(1));
    EXPECT_FALSE(sessions.contains(QStringLiteral("default"))) << "the first's time is nobody's any more";
    clock.advance(std::chrono::seconds(1));
    EXPECT_EQ(sessions.last(), QStringLiteral("default"));
}

TEST_F(OrderSyncManagerTest, SendsADraftOnceAtATimeAndANewerSaveAsTheSameOrder) {
    draft("Bar Nube");
    BrochureIntermediateData::temporalBrochure()->fileName = "Bar Nube";
    saveInFront();
    const auto& calls = services.requests.saveOrder.calls;
    // A second tap, and a run that finds the file without a number: the first is still on its way.
    for (int i = 0; i < 2; ++i) {
        manager.startOrderSync();
        const auto notices = clock.pending();
        ASSERT_TRUE(waitFor([&] { return clock.pending() > notices; }));
    }
    tasks.run(QLatin1String(OrderSyncManager::taskIdentifier), [](bool) {});
    EXPECT_EQ(calls.size(), 1U);
    services.requests.saveOrder.succeed(stored(7));
    ASSERT_EQ(calls.size(), 2U);
    EXPECT_EQ(std::get<0>(calls.back()).orderIdentifier, 7);
    EXPECT_EQ(sessions.last(), QStringLiteral("background"));
    services.requests.saveOrder.succeed(stored(7));
    EXPECT_EQ(calls.size(), 2U);
    EXPECT_EQ(sessions.last(), QStringLiteral("default"));
    EXPECT_EQ(storedIdentifier("Bar Nube"), 7);
}

TEST_F(OrderSyncManagerTest, ABackgroundRunSendsTwoDraftsThatNeverReachedTheServer) {
    draft("a");
    draft("b");
    draft("c");
    draft("ya en la nube", 5);
    manager.scheduleBrochureSync();
    std::optional<bool> outcome;
    auto task =
        tasks.run(QLatin1String(OrderSyncManager::taskIdentifier), [&](bool success) { outcome = success; });
    EXPECT_TRUE(tasks.pending.contains(QLatin1String(OrderSyncManager::taskIdentifier)))
        << "the next run is planned";
    ASSERT_EQ(services.requests.saveOrder.calls.size(), 2U);
    services.requests.saveOrder.succeed(stored(11));
    services.requests.saveOrder.succeed(stored(12));
    // A run whose last order went through waits for its expiry, by the system's own comparison.
    EXPECT_FALSE(outcome.has_value());
    task->expire();
    EXPECT_EQ(outcome, false);

    tasks.run(QLatin1String(OrderSyncManager::taskIdentifier), [&](bool success) { outcome = success; });
    ASSERT_EQ(services.requests.saveOrder.calls.size(), 3U) << "the third goes in a later run";
    services.requests.saveOrder.fail(failureWith({}));
    EXPECT_EQ(outcome, true) << "a run whose last order failed is over";
}

TEST_F(OrderSyncManagerTest, AnOrderWhoseNumberTheDiskRefusedIsNotSentAgainUntilItIsAnotherOne) {
    draft("Bar Nube");
    const auto file =
        folder.path() / "orders" / "draft_orders" / SaveBrochuresOrder::folderName / "Bar Nube.zvo";
    int refused = 0;
    QObject::connect(&manager, &OrderSyncManager::identifierNotStored, &manager, [&] { ++refused; });
    auto& sent = services.requests.saveOrder.calls;
    run();
    ASSERT_EQ(sent.size(), 1U);
    std::filesystem::rename(file, folder.path() / "kept");
    std::filesystem::create_directories(file / "x"); // refuses the write
    services.requests.saveOrder.succeed(stored(77));
    EXPECT_EQ(refused, 1);
    std::filesystem::remove_all(file);
    std::filesystem::rename(folder.path() / "kept", file);

    run();
    EXPECT_EQ(sent.size(), 1U);
    EXPECT_EQ(storedIdentifier("Bar Nube"), 77);
    std::filesystem::remove(file);
    draft("Bar Nube");
    run();
    EXPECT_EQ(sent.size(), 2U) << "a new draft of the same name";
}

TEST_F(OrderSyncManagerTest, OnlyTheSharedDraftThatIsTheOrderTakesItsNumber) {
    auto& current = *BrochureIntermediateData::temporalBrochure();
    draft("Bar Nube");
    run();
    services.requests.saveOrder.succeed(stored(77));
    EXPECT_FALSE(current.orderIdentifier) << "a new menu";

    draft("Bar Olmo");
    run();
    current.fileName = "Bar Olmo";
    services.requests.saveOrder.succeed(stored(78));
    EXPECT_EQ(current.orderIdentifier, 78);

    current.orderIdentifier.reset();
    draft("Bar Pino");
    current.fileName = "Bar Pino";
    saveInFront();
    current.fileName = "Otro nombre"; // kept as another order meanwhile
    services.requests.saveOrder.succeed(stored(79));
    EXPECT_FALSE(current.orderIdentifier);
    EXPECT_EQ(storedIdentifier("Bar Pino"), 79);
}

TEST_F(OrderSyncManagerTest, TheNumberReachesTheMenuThatComesBackFromItsCopy) {
    struct Case {
        std::function<void()> upload;
        std::string name;
    };
    auto& temporal = TemporalBrochure::shared();
    const auto restored = [&] {
        temporal.flush();
        BrochureIntermediateData::replaceTemporalBrochure(); // as after a restart
        EXPECT_TRUE(temporal.restoreDraft());
        return BrochureIntermediateData::temporalBrochure();
    };
    for (const Case& each :
         {Case{[this] { saveInFront(); }, "Bar Nube"}, Case{[this] { run(); }, "Bar Olmo"}}) {
        BrochureIntermediateData::replaceTemporalBrochure();
        draft(each.name);
        BrochureIntermediateData::temporalBrochure()->fileName = each.name;
        temporal.write(*BrochureIntermediateData::temporalBrochure());
        each.upload();
        const auto menu = restored(); // before the answer
        temporal.write(*menu);
        services.requests.saveOrder.succeed(stored(77));
        EXPECT_EQ(menu->orderIdentifier, 77) << each.name;
        EXPECT_EQ(restored()->orderIdentifier, 77) << each.name;
        temporal.removeAll();
    }
}

TEST_F(OrderSyncManagerTest, ANameThatIsAnotherBarsOrderByNowTakesNoNumber) {
    const auto orderOf = [](const char* bar) {
        SaveBrochuresOrder order;
        order.filename = "carta";
        order.menu.customer.name = bar;
        return order;
    };
    ASSERT_TRUE(orders.create(orderOf("Bar Nube"), DirectoryName::draft, "carta"));
    run();
    ASSERT_TRUE(orders.update(orderOf("Bar Olmo"), "carta.zvo", DirectoryName::draft));
    auto& current = *BrochureIntermediateData::temporalBrochure();
    current.fileName = "carta";
    current.customerInformation = orderOf("Bar Olmo").menu.customer;
    TemporalBrochure::shared().write(current);
    manager.startOrderSync();
    const auto notices = clock.pending();
    ASSERT_TRUE(waitFor([&] { return clock.pending() > notices; }));
    services.requests.saveOrder.succeed(stored(77));
    EXPECT_FALSE(storedIdentifier("carta"));
    EXPECT_FALSE(current.orderIdentifier);
    ASSERT_EQ(services.requests.saveOrder.calls.size(), 2U);
    EXPECT_FALSE(std::get<0>(services.requests.saveOrder.calls.back()).orderIdentifier);
    services.requests.saveOrder.succeed(stored(78));
    EXPECT_EQ(storedIdentifier("carta"), 78);
    EXPECT_EQ(current.orderIdentifier, 78);
    TemporalBrochure::shared().removeAll();
}

TEST_F(OrderSyncManagerTest, AnAnswerChangesOnlyTheNumberInTheFileAsItStandsByThen) {
    draft("Bar Nube");
    const auto save = [&](const std::string& name, std::optional<Int> identifier) {
        SaveBrochuresOrder newer;
        newer.filename = "Bar Nube";
        newer.menu.customer.name = name;
        newer.orderIdentifier = identifier;
        ASSERT_TRUE(orders.update(newer, "Bar Nube.zvo", DirectoryName::draft));
    };
    const auto file = [&] {
        return orders.retrieve<SaveBrochuresOrder>("Bar Nube.zvo", DirectoryName::draft);
    };
    run();
    save("newer", std::nullopt);
    services.requests.saveOrder.succeed(stored(77));
    EXPECT_EQ(file()->menu.customer.name, "newer");
    EXPECT_EQ(file()->orderIdentifier, 77);

    save("newest", std::nullopt);
    run();
    save("newest", 5); // the send step was first
    services.requests.saveOrder.succeed(stored(78));
    EXPECT_EQ(file()->orderIdentifier, 5);

    save("gone", std::nullopt);
    run();
    ASSERT_TRUE(orders.remove<SaveBrochuresOrder>("Bar Nube.zvo", DirectoryName::draft));
    services.requests.saveOrder.succeed(stored(79));
    EXPECT_FALSE(orders.exists<SaveBrochuresOrder>("Bar Nube", DirectoryName::draft));
}

TEST_F(OrderSyncManagerTest, ARunSendsCloudSavesAndStoresTheNumberUnderTheFileThatItRead) {
    SaveBrochuresOrder order;
    order.save = OrderRequestType::sendToPrint; // a copy of an order that was sent
    order.filename = "otro nombre";
    ASSERT_TRUE(orders.create(order, DirectoryName::draft, "copia"));
    run();
    EXPECT_EQ(std::get<0>(services.requests.saveOrder.calls.at(0)).save, OrderRequestType::saveCloud);
    services.requests.saveOrder.succeed(stored(77));
    EXPECT_EQ(storedIdentifier("copia"), 77);
    run();
    EXPECT_EQ(services.requests.saveOrder.calls.size(), 1U);
}

TEST_F(OrderSyncManagerTest, AFileKeepsItsKeyThroughLostAnswersUntilItIsSavedAnew) {
    draft("Bar Nube");
    auto& calls = services.requests.saveOrder.calls;
    for (int i = 0; i < 2; ++i) {
        run();
        services.requests.saveOrder.fail(lostAnswer());
    }
    EXPECT_FALSE(std::get<1>(calls[0]).isEmpty());
    EXPECT_EQ(std::get<1>(calls[1]), std::get<1>(calls[0]));
    const auto file = folder / "orders/draft_orders/SaveBrochuresOrder/Bar Nube.zvo";
    std::filesystem::last_write_time(file, std::filesystem::last_write_time(file) + std::chrono::seconds(1));
    run();
    EXPECT_NE(std::get<1>(calls[2]), std::get<1>(calls[0]));
}

TEST_F(OrderSyncManagerTest, TheUploadOfTheCurrentDraftAndARunOverItsFileAreOneIntent) {
    auto& current = *BrochureIntermediateData::temporalBrochure();
    current.fileName = "Bar Nube";
    const auto order = current.makeOrder(OrderRequestType::saveCloud, false);
    const QByteArray key = send_intent::keyFor(current.unansweredSends, order);
    ASSERT_TRUE(orders.create(current.keptOrder(OrderRequestType::saveCloud, false), DirectoryName::draft,
                              "Bar Nube"));
    saveInFront();
    services.requests.saveOrder.fail(lostAnswer());
    run();
    for (const auto& [sent, sentKey] : services.requests.saveOrder.calls)
        EXPECT_EQ(sentKey, key);
    services.requests.saveOrder.succeed(stored(77));
    EXPECT_FALSE(
        orders.retrieve<KeptOrder>("Bar Nube.zvo", DirectoryName::draft)->unansweredSends.has_value());
}

TEST_F(OrderSyncManagerTest, ARunWithoutDraftsEndsOnlyByExpiryAndABrokenDraftStopsIt) {
    std::optional<bool> outcome;
    auto task =
        tasks.run(QLatin1String(OrderSyncManager::taskIdentifier), [&](bool success) { outcome = success; });
    bool answered = false;
    QObject::connect(&manager, &OrderSyncManager::runAnswered, &manager, [&answered] { answered = true; });
    EXPECT_TRUE(waitFor([&] { return answered; }));
    EXPECT_FALSE(outcome.has_value());
    task->expire();
    EXPECT_EQ(outcome, false);
    put(folder / "orders/draft_orders/SaveBrochuresOrder/rota.zvo", "{");
    EXPECT_EXIT(tasks.run(QLatin1String(OrderSyncManager::taskIdentifier), [](bool) {}),
                ::testing::ExitedWithCode(stoppedExitStatus), "rota.zvo");
}

} // namespace
} // namespace kavor
