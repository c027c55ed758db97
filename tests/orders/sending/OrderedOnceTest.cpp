#include "base/AtomicFile.h"
#include "brochures/engine/RetrieveBrochureOrderListResponse.h"
#include "brochures/engine/RetrievedOrder.h"
#include "brochures/wizard/WizardFixture.h"
#include "brochures/wizard/send/BrochureSendViewController.h"
#include "kavorctl/RunCommand.h"
#include "network/NetworkManager.h"
#include "orders/OrderList.h"
#include "orders/services/OrderActions.h"
#include "session/services/AuthManager.h"
#include "tour/DemoServerProcess.h"

#include <QEventLoop>
#include <QJsonArray>
#include <QJsonDocument>
#include <QNetworkAccessManager>
#include <QNetworkReply>

#include <iostream>
#include <sstream>

namespace kavor {
namespace {

// The demonstration server with one beer menu of its history as the order at hand.
class OrderedOnceTest : public WizardTest {
protected:
    DemoServerProcess server{QString::fromStdString(folder.path().string())};
    MemoryKeychain keychain;
    MemoryUserDefaults defaults;
    std::optional<AuthManager> auth;
    std::optional<NetworkManager> manager;
    SaveBrochuresOrder order;
    Int sentOrder = 0; // its number in the history

    void SetUp() override {
        WizardTest::SetUp();
        qputenv("KAVOR_KEYCHAIN", "file"); // of the commands
        session.version = "1.0";
        const auto configuration = NetworkConfiguration::load(server.configurationFile().toStdString());
        ASSERT_TRUE(configuration);
        auth.emplace(keychain, defaults, configuration->urls.baseURLPro);
        manager.emplace(*configuration, NetworkManager::Collaborators{*auth, reachability, clock});
        const auto rights = await<LoginResult>([&](const auto& done) {
            manager->login({server.account(), server.password(), std::nullopt}, done);
        });
        manager->setAccessToken(QString::fromStdString(rights.token.value_or("")));
        session.loginResult = rights;
        session.applicationInformation =
            await<std::shared_ptr<const Catalogue>>([&](const auto& done) { manager->appInformation(done); });
        order = orderOfHistory();
    }

    void TearDown() override {
        qunsetenv("KAVOR_KEYCHAIN");
        WizardTest::TearDown();
    }

    // The answer of the server, which has to be a good one.
    template <class Response, class Start>
    Response await(Start start) {
        std::optional<Response> response;
        bool failed = false;
        start(Completion<Response>(
            nullptr, [&](const Response& answer) { response = answer; },
            [&](const RequestFailure&) { failed = true; }));
        EXPECT_TRUE(waitFor([&] { return response || failed; }));
        EXPECT_TRUE(response);
        return response.value_or(Response());
    }

    SaveBrochuresOrder orderOfHistory() {
        const auto list = await<OrderList>([&](const auto& done) {
            manager->retrieveBrochureOrderList({{}, {}, {}, 0, 0, 0, true}, done);
        });
        for (const auto& row : list.orders.value_or(std::vector<OrderList::Order>())) {
            if (row.typeId != BrochureType::beer || row.stateId == OrderState::cloud)
                continue;
            auto found = orderOf(row.id, await<RetrieveBrochureOrderListResponse>([&](const auto& done) {
                                     manager->retrieveBrochureOrder(row.id, done);
                                 }));
            found.orderIdentifier.reset();
            sentOrder = row.id;
            return found;
        }
        ADD_FAILURE() << "no beer menu in the history";
        return {};
    }

    // The server takes the next order, and its answer is lost.
    void loseTheNextAnswer() const {
        QNetworkAccessManager connection;
        QNetworkRequest request(QUrl(server.url() + QStringLiteral("/demo/faults")));
        request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/json"));
        QNetworkReply* reply = connection.post(
            request,
            R"({"path": "/api/orders", "method": "POST", "fault": "close", "after": true, "times": 1})");
        QEventLoop loop;
        QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
        loop.exec();
        EXPECT_EQ(reply->error(), QNetworkReply::NoError) << reply->readAll().toStdString();
    }
    // A command over a documents folder of its own.
    [[nodiscard]] kavor::Outcome online(std::vector<std::string> arguments) const {
        arguments.insert(arguments.end(), {"--configuration", server.configurationFile().toStdString(),
                                           "--documents", folder / "ctl", "--caches", folder / "ctl-caches"});
        return kavorctl(arguments);
    }
    void logInByCommand() {
        std::istringstream typed(server.password().toStdString() + "\n");
        auto* const terminal = std::cin.rdbuf(typed.rdbuf());
        EXPECT_EQ(online({"login", server.account().toStdString()}).status, ctl::fine);
        std::cin.rdbuf(terminal);
    }
    [[nodiscard]] qsizetype placedOrders() const {
        return QJsonDocument::fromJson(server.get(QStringLiteral("/demo/orders"))).array().size();
    }
};

TEST_F(OrderedOnceTest, BySendingAgainAfterALostAnswerAlsoInAnotherProcess) {
    const WizardServices online{*manager, orders,     sessions, sync,         alerts,   urls,
                                clock,    downloader, photos,   reachability, &location};
    const auto open = [&] {
        auto step = std::make_unique<BrochureSendViewController>(online, nullptr);
        step->viewDidLoad();
        step->viewWillAppear();
        return step;
    };
    const auto tap = [&](BrochureSendViewController& step) {
        step.sendOrderAction();
        press("Continuar"); // with prices that look too high
        EXPECT_TRUE(waitFor([&] { return alerts.isVisible(); }));
        const std::string title = alerts.title().toStdString();
        press("Aceptar");
        return title;
    };
    draft().loadOrder(order);
    const auto asTheStepsLeaveIt = [] {
        draft().brochureTypeParameters = parametersOf(BrochureType::beer);
        draft().selectedNumberOfBrochures = {20, std::nullopt};
    };
    asTheStepsLeaveIt();
    ASSERT_EQ(draft().validationErrors(), std::vector<std::string>());

    loseTheNextAnswer();
    EXPECT_EQ(tap(*open()), "El pedido no se puede realizar");
    EXPECT_EQ(placedOrders(), 1);
    loseTheNextAnswer();
    EXPECT_EQ(tap(*open()), "El pedido no se puede realizar");

    TemporalBrochure::shared().flush();
    BrochureIntermediateData::replaceTemporalBrochure();
    ASSERT_TRUE(TemporalBrochure::shared().restoreDraft());
    asTheStepsLeaveIt();
    const auto step = open();
    EXPECT_EQ(tap(*step), "Éxito");
    EXPECT_TRUE(step->isOrderSent());
    EXPECT_EQ(placedOrders(), 1);
}

TEST_F(OrderedOnceTest, OutOfTheOutboxWhateverBreaksOffAndOneIsCorrectedMeanwhile) {
    constexpr auto outbox = OrderDiskManager::DirectoryName::outbox;
    const auto queue = [&](const std::string& name, std::optional<Int> style) {
        KeptOrder kept{order};
        kept.menu.customer.name = "Bar " + name;
        if (style)
            kept.menu.style = style;
        EXPECT_TRUE(orders.exists<KeptOrder>(name, outbox) ? orders.update(kept, name + ".zvo", outbox)
                                                           : orders.create(kept, outbox, name));
    };
    queue("A", std::nullopt);
    queue("B", 999'999); // the server refuses it
    queue("C", std::nullopt);
    const auto waiting = [&] {
        std::vector<OrderFile> files;
        for (const auto& file : orders.list<KeptOrder>(outbox))
            files.push_back({OrderFile::Kind::Brochure, outbox, OrderDiskManager::plainName(file.fileName)});
        std::ranges::sort(files);
        return files;
    };
    // Each time as a client that was started anew.
    const auto sendAll = [&] {
        OrderActions actions(*manager, orders);
        std::optional<OrderActions::SentAll> result;
        actions.sendAll(
            waiting(), [](int) {}, [&](const OrderActions::SentAll& all) { result = all; });
        EXPECT_TRUE(waitFor([&] { return result.has_value(); }));
        return std::pair(result->sent, result->failed);
    };
    const auto path = folder.path() / "orders/outbox_orders/SaveBrochuresOrder/A.zvo";
    const std::string bytes = contentOf(path);
    const auto written = std::filesystem::last_write_time(path);

    loseTheNextAnswer();
    EXPECT_EQ(sendAll(), std::pair(1, 2));
    EXPECT_EQ(placedOrders(), 2);
    EXPECT_EQ(sendAll(), std::pair(1, 1)) << "the lost one is told now";
    EXPECT_EQ(placedOrders(), 2);
    queue("B", order.menu.style);
    EXPECT_EQ(sendAll(), std::pair(1, 0));
    EXPECT_EQ(placedOrders(), 3);

    // Killed between the answer and the file, or the folder could not be written.
    put(path, bytes);
    std::filesystem::last_write_time(path, written);
    EXPECT_EQ(sendAll(), std::pair(1, 0));
    EXPECT_EQ(placedOrders(), 3);
    EXPECT_TRUE(waiting().empty());
}

TEST_F(OrderedOnceTest, ByTheCommandThatIsRepeatedUnderTheNameOfItsIntent) {
    folder.put("order.json", json::encodePretty(order).value());
    const auto print = [&](const std::string& intent) {
        return online({"order", "send", folder / "order.json", "--save", "print", "--intent", intent});
    };
    logInByCommand();

    loseTheNextAnswer();
    EXPECT_EQ(print("carta de julio").status, ctl::requestFailed);
    EXPECT_EQ(placedOrders(), 1);
    const kavor::Outcome again = print("carta de julio");
    EXPECT_EQ(again.status, ctl::fine) << again.err;
    EXPECT_NE(again.out.find("\"url_order\""), std::string::npos) << again.out;
    EXPECT_EQ(placedOrders(), 1);
    EXPECT_EQ(print("carta de agosto").status, ctl::fine);
    EXPECT_EQ(placedOrders(), 2);
}

TEST_F(OrderedOnceTest, ACopyOfASentOrderGoesToTheCloudOnceAndIsNeverPrinted) {
    const auto brochures = [&](bool cloud) {
        const auto all = QJsonDocument::fromJson(server.get(QStringLiteral("/demo/orders?all=1"))).array();
        return std::ranges::count_if(all, [cloud](const auto& each) {
            return each[QLatin1String("kind")] == QLatin1String("brochure") &&
                   each[QLatin1String("cloud")].toBool() == cloud;
        });
    };
    logInByCommand();
    const auto printed = brochures(false);
    const auto kept = brochures(true);
    const std::string original = std::to_string(sentOrder);
    ASSERT_EQ(online({"orders", "copy", original, "Copia"}).out, "Su pedido ha sido copiado en local.\n");
    EXPECT_EQ(online({"orders", "copy", original, "Copia"}).status, ctl::unreadableInput);

    loseTheNextAnswer();
    EXPECT_EQ(online({"sync"}).status, ctl::requestFailed);
    const kavor::Outcome run = online({"sync"});
    EXPECT_EQ(run.out, "Pedido guardado: Su pedido Copia se ha sincronizado.\n") << run.err;
    EXPECT_EQ(online({"sync"}).out, "") << "nothing is left to do";
    EXPECT_EQ(brochures(false), printed);
    EXPECT_EQ(brochures(true), kept + 1);

    const OrderDiskManager files(folder.path() / "ctl", OrderDiskManager::Opening::AsItStands);
    const auto copy = files.retrieve<SaveBrochuresOrder>("Copia.zvo", OrderDiskManager::DirectoryName::draft);
    ASSERT_TRUE(copy);
    EXPECT_EQ(copy->save, OrderRequestType::saveCloud);
    EXPECT_EQ(copy->sourceIdentifier, sentOrder);
    EXPECT_NE(copy->orderIdentifier.value_or(sentOrder), sentOrder);
}

} // namespace
} // namespace kavor
