#include "orders/services/OrderActions.h"

#include "brochures/engine/BrochureIntermediateData.h"
#include "device/Background.h"
#include "orders/DraftsWithChanges.h"
#include "orders/OrderDiskManager.h"
#include "orders/list/DraftOrderRows.h"
#include "orders/services/SendIntent.h"
#include "session/AppSingleton.h"
#include "support/CatalogueBuilder.h"
#include "support/FakeServices.h"
#include "support/TemporaryFolder.h"
#include "support/WaitFor.h"

#include <gtest/gtest.h>

namespace kavor {
namespace {

using Directory = OrderDiskManager::DirectoryName;
using Sending = OrderActions::Sending;

class OrderActionsTest : public ::testing::Test {
protected:
    TemporaryFolder folder;
    FakeServices network;
    OrderDiskManager orders{folder.path()};
    BackgroundWorkEnd backgroundWork;
    OrderActions actions{network, orders};

    void SetUp() override {
        AppSingleton::shared().setFolders(folder.path(), folder.path() / "caches");
        AppSingleton::shared().applicationInformation = CatalogueBuilder().take();
        BrochureIntermediateData::replaceTemporalBrochure();
    }

    static KeptOrder order(const std::string& bar, const std::optional<std::string>& filename = {}) {
        KeptOrder made;
        made.save = OrderRequestType::sendToPrint;
        made.menu.customer.name = bar;
        made.filename = filename;
        return made;
    }
    OrderFile waiting(const KeptOrder& record, const std::string& name) {
        EXPECT_TRUE(orders.create(record, Directory::outbox, name));
        return {OrderFile::Kind::Brochure, Directory::outbox, name};
    }
    [[nodiscard]] std::filesystem::path pathOf(const OrderFile& file) const {
        return folder.path() / "orders" /
               (file.directory == Directory::draft ? "draft_orders" : "outbox_orders") /
               (file.kind == OrderFile::Kind::Brochure ? "SaveBrochuresOrder" : "SaveTextileOrder") /
               file.fileName();
    }
    auto& sends() { return network.requests.saveOrder; }
    [[nodiscard]] QByteArray keyOfSend(std::size_t send) { return std::get<1>(sends().calls.at(send)); }

    // Runs an action and answers it as the test says, until it calls back.
    template <class Result, class Begin>
    Result resultOf(Begin begin, const std::function<void()>& answer = {}) {
        std::optional<Result> result;
        begin([&](const Result& outcome) { result = outcome; });
        EXPECT_TRUE(waitFor([&] {
            if (answer && !result)
                answer();
            return result.has_value();
        }));
        return *result;
    }
    Sending send(const OrderFile& file, const std::function<void()>& answer) {
        return resultOf<Sending>([&](const auto& done) { actions.send(file, done); }, answer);
    }
};

TEST_F(OrderActionsTest, AnOrderThatWasSentLeavesTheOutboxAndItsUnchangedDraftGoesWithIt) {
    KeptOrder kept = order("Bar Olmo", "Olmo");
    kept.printsMyself = true;
    ASSERT_TRUE(orders.create(order("Bar Olmo", "Olmo"), Directory::draft, "Olmo"));
    ASSERT_TRUE(orders.create(order("Bar Pino", "Pino"), Directory::draft, "Pino"));
    EXPECT_EQ(send(waiting(kept, "Sin enviar"), [&] { sends().succeed({}); }).result, Sending::Result::Sent);
    const auto& sent = std::get<0>(sends().calls.at(0));
    EXPECT_TRUE(sent.printedMyself) << "who prints is part of the order";
    EXPECT_EQ(sent.save, OrderRequestType::sendToPrint);
    EXPECT_TRUE(orders.list<KeptOrder>(Directory::outbox).empty());
    EXPECT_FALSE(actions.draftExists("Olmo"));
    EXPECT_TRUE(actions.draftExists("Pino"));

    // The user went on with the draft, which nobody has sent.
    ASSERT_TRUE(orders.create(order("Bar Pino y terraza", "Pino"), Directory::outbox, "Sin enviar"));
    EXPECT_EQ(send({OrderFile::Kind::Brochure, Directory::outbox, "Sin enviar"}, [&] { sends().succeed({}); })
                  .result,
              Sending::Result::Sent);
    EXPECT_TRUE(actions.draftExists("Pino"));
}

TEST_F(OrderActionsTest, ALostAnswerKeepsTheFileAndTheKeyWhoeverSendsItNext) {
    const OrderFile file = waiting(order("Bar Olmo"), "Sin enviar");
    const Sending lost = send(file, [&] { sends().fail(lostAnswer()); });
    EXPECT_EQ(lost.result, Sending::Result::Failed);
    EXPECT_EQ(actions.refusalOf(file), QStringLiteral("no answer"));
    EXPECT_TRUE(orders.exists<KeptOrder>("Sin enviar", Directory::outbox));

    // Opened in the wizard and sent as it stands, it is the same order.
    DraftOrderRows rows;
    rows.rebuildLocalRows(orders);
    const auto fetched = resultOf<OrderActions::Fetched<OrderToEdit>>([&](const auto& done) {
        actions.fetchToEdit(rows.draftsOrderList().front(), OrderActions::Version::Device, done);
    });
    ASSERT_TRUE(fetched.value);
    EXPECT_EQ(fetched.value->outboxFile, "Sin enviar");
    EXPECT_EQ(send_intent::keyOf(fetched.value->unansweredSends, fetched.value->order), keyOfSend(0));

    // A client that was killed sends it anew.
    OrderActions afterRestart{network, orders};
    const auto again = resultOf<Sending>([&](const auto& done) { afterRestart.send(file, done); },
                                         [&] { sends().succeed({}); });
    EXPECT_EQ(again.result, Sending::Result::Sent);
    EXPECT_EQ(keyOfSend(1), keyOfSend(0));
    EXPECT_EQ(send(file, {}).result, Sending::Result::Gone);
}

TEST_F(OrderActionsTest, ASecondTapWhileAnOrderIsOnItsWaySendsNothing) {
    const OrderFile file = waiting(order("Bar Olmo"), "Sin enviar");
    std::optional<Sending> first;
    actions.send(file, [&](const Sending& sending) { first = sending; });
    EXPECT_TRUE(actions.isBeingSent(file));
    EXPECT_EQ(send(file, {}).result, Sending::Result::UnderWay);
    ASSERT_TRUE(waitFor([&] { return sends().succeed({}) || first; }));
    ASSERT_TRUE(waitFor([&] { return first.has_value(); }));
    EXPECT_EQ(sends().calls.size(), 1U);
    EXPECT_FALSE(actions.isBeingSent(file));
}

TEST_F(OrderActionsTest, SendingAllGoesOnPastARefusedOrderAndSendsClothingToo) {
    SaveTextileOrder textile;
    ASSERT_TRUE(orders.create(textile, Directory::outbox, "Camisetas"));
    const std::vector<OrderFile> files{waiting(order("A"), "A"),
                                       waiting(order("B"), "B"),
                                       {OrderFile::Kind::Textile, Directory::outbox, "Camisetas"}};
    std::vector<int> begun;
    const auto all = resultOf<OrderActions::SentAll>(
        [&](const auto& done) {
            actions.sendAll(files, [&](int number) { begun.push_back(number); }, done);
        },
        [&] {
            if (sends().calls.size() == 1)
                sends().fail(failureWith({QStringLiteral("Falta el teléfono.")}, 422));
            else
                sends().succeed({});
            network.requests.createTextileOrder.succeed({});
        });
    EXPECT_EQ(begun, (std::vector{1, 2, 3}));
    EXPECT_EQ(std::pair(all.sent, all.failed), std::pair(2, 1));
    EXPECT_EQ(actions.refusalOf(files[0]), QStringLiteral("Falta el teléfono."));
    EXPECT_TRUE(std::filesystem::exists(pathOf(files[0])));
    EXPECT_FALSE(std::filesystem::exists(pathOf(files[1])) || std::filesystem::exists(pathOf(files[2])));
    EXPECT_FALSE(std::get<1>(network.requests.createTextileOrder.calls.at(0)).isEmpty());
}

TEST_F(OrderActionsTest, ADeletedFileComesBackAsItWasAndNeverOverAnotherOne) {
    const OrderFile file = waiting(order("Bar Olmo"), "Sin enviar");
    const std::string bytes = contentOf(pathOf(file));
    const auto moment = orders.moment<KeptOrder>(file.fileName(), file.directory);
    const auto run = [&](void (OrderActions::*action)(const OrderFile&, const OrderActions::Then<bool>&)) {
        return resultOf<bool>([&](const auto& done) { (actions.*action)(file, done); });
    };
    EXPECT_TRUE(run(&OrderActions::setAside));
    EXPECT_TRUE(orders.list<KeptOrder>(Directory::outbox).empty());
    EXPECT_TRUE(run(&OrderActions::bringBack));
    EXPECT_EQ(contentOf(pathOf(file)), bytes);
    EXPECT_EQ(orders.moment<KeptOrder>(file.fileName(), file.directory), moment) << "its key is made of it";

    EXPECT_TRUE(run(&OrderActions::setAside));
    ASSERT_TRUE(orders.create(order("Otro"), Directory::outbox, "Sin enviar"));
    EXPECT_FALSE(run(&OrderActions::bringBack));
    EXPECT_NE(contentOf(pathOf(file)), bytes);

    EXPECT_TRUE(run(&OrderActions::setAside));
    const OrderDiskManager afterRestart{folder.path()};
    EXPECT_TRUE(std::filesystem::is_empty(pathOf(file).parent_path())) << "what was deleted does not stay";
}

TEST_F(OrderActionsTest, ACopyIsADraftThatNeverWentToTheServer) {
    RetrieveBrochureOrderListResponse answer;
    answer.orderInformation.id = 41;
    answer.customerInformation.name = "Bar Olmo";
    network.requests.retrieveBrochureOrder.always(answer);
    const auto fetched = resultOf<OrderActions::Fetched<SaveBrochuresOrder>>(
        [&](const auto& done) { actions.fetchCopy(41, done); });
    ASSERT_TRUE(fetched.value);
    DraftsWithChanges::shared().add("Copia");
    const auto store = [&](bool overwrite) {
        return resultOf<bool>(
            [&](const auto& done) { actions.storeCopy(*fetched.value, "Copia", overwrite, done); });
    };
    EXPECT_TRUE(store(false));
    EXPECT_FALSE(store(false)) << "another draft is not written over unasked";
    EXPECT_TRUE(store(true));
    const auto copy = orders.retrieve<KeptOrder>("Copia.zvo", Directory::draft);
    ASSERT_TRUE(copy);
    EXPECT_EQ(copy->save, OrderRequestType::saveCloud);
    EXPECT_EQ(copy->filename, "Copia");
    EXPECT_EQ(copy->sourceIdentifier, 41);
    EXPECT_FALSE(copy->orderIdentifier);
    EXPECT_TRUE(send_intent::keyInFile(*copy)) << "a run and the wizard bring it up as one order";
    EXPECT_TRUE(DraftsWithChanges::shared().names().empty());
}

} // namespace
} // namespace kavor
