#include "brochures/engine/SaveBrochuresOrder.h"
#include "device/Background.h"
#include "device/Clock.h"
#include "interaction/AlertPresenter.h"
#include "orders/OrderDiskManager.h"
#include "orders/screens/AllOrdersManagementViewController.h"
#include "orders/services/OrderSync.h"
#include "session/AppSingleton.h"
#include "support/DeviceFakes.h"
#include "support/FakeServices.h"
#include "support/TemporaryFolder.h"
#include "support/WaitFor.h"

#include <QElapsedTimer>
#include <QGuiApplication>

#include <algorithm>
#include <cstdio>

// The list of orders with many rows: how long the window's thread is held at most while it opens, is loaded
// anew and takes in a few changes.
namespace kavor::bench {

namespace {

constexpr int sentOrders = 5000;
constexpr int drafts = 500;
constexpr std::size_t logoSize = 120'000; // of the text of a logo in an order

// Measures every step of the window's thread.
class SteppedApplication : public QGuiApplication {
public:
    using QGuiApplication::QGuiApplication;
    bool notify(QObject* receiver, QEvent* event) override {
        QElapsedTimer timer;
        timer.start();
        const bool taken = QGuiApplication::notify(receiver, event);
        longest = std::max(longest, double(timer.nsecsElapsed()) / 1e6);
        return taken;
    }
    double longest = 0; // milliseconds
};

class NoSync : public BackgroundOrderSync {
public:
    void startOrderSync() override {}
    void replanBrochureSync() override {}
    void scheduleBrochureSync() override {}
    void handleBrochureSync(const std::shared_ptr<BackgroundTask>&) override {}
};

void writeDrafts(const OrderDiskManager& orders) {
    for (int i = 0; i < drafts; ++i) {
        SaveBrochuresOrder order;
        order.menu.customer.name = "Bar de la Esquina " + std::to_string(i);
        order.menu.customer.imageLogo = "data:image/png;base64," + std::string(logoSize, 'A');
        order.filename = "Borrador " + std::to_string(i);
        if (i % 2 == 0)
            order.orderIdentifier = i + 1;
        orders.create(order, OrderDiskManager::DirectoryName::draft, *order.filename);
    }
}

OrderList answerOf(int count) {
    OrderList answer;
    answer.summary = {std::to_string(count), "12", "3"};
    answer.orders.emplace();
    for (int i = 0; i < count; ++i) {
        OrderList::Order order;
        order.id = i + 1;
        order.date = LocalDateTime::fromTime(1'700'000'000 + std::int64_t(i * 7919 % count) * 3600);
        order.type = "Carta de Cervezas";
        order.clientCode = "B" + std::to_string(i % 36);
        order.pdv = "Bar de la Esquina " + std::to_string(i);
        order.state = "Entregado";
        order.stateId = i < drafts && i % 2 == 0 ? OrderState::cloud : OrderState::delivered;
        order.filename = "Borrador " + std::to_string(i);
        order.token = "0123456789abcdef";
        answer.orders->push_back(std::move(order));
    }
    return answer;
}

} // namespace

} // namespace kavor::bench

// order_list_bench ROUNDS: the longest steps, medians of the rounds, as one object of JSON.
int main(int argc, char* argv[]) {
    using namespace kavor;
    bench::SteppedApplication application(argc, argv);
    const int rounds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 5;
    const TemporaryFolder folder;
    AppSingleton& session = AppSingleton::shared();
    session.setFolders(folder.path(), folder.path() / "caches");
    session.loginResult = LoginResult{};
    session.applicationInformation = std::make_shared<const Catalogue>(ApplicationInformation());
    OrderDiskManager orders(folder.path());
    bench::writeDrafts(orders);
    const OrderList answer = bench::answerOf(bench::sentOrders);
    FakeServices network;
    network.requests.retrieveBrochureOrderList.always(answer);
    const BackgroundWorkEnd backgroundWork;
    OrderActions actions(network, orders);
    bench::NoSync sync;
    AlertPresenter alerts;
    RecordingUrlOpener urls;
    SystemClock clock;
    FakeReachability reachability;
    std::vector<double> opening;
    std::vector<double> again;
    for (int i = 0; i < rounds; ++i) {
        AllOrdersManagementViewController list(
            {session, network, orders, actions, sync, alerts, urls, clock, reachability});
        const auto longestOf = [&](const auto& begin) {
            application.longest = 0;
            begin();
            waitFor([&] { return list.savedOrders()->count() > 0 && !list.veil()->isVisible(); }, 60'000);
            return application.longest;
        };
        opening.push_back(longestOf([&] { list.viewWillAppear(); }));
        again.push_back(longestOf([&] {
            list.refresh();
            waitFor([&] { return list.veil()->isVisible(); });
        }));
        if (list.sentOrders()->count() != bench::sentOrders - bench::drafts / 2)
            return 1;
    }
    std::ranges::sort(opening);
    std::ranges::sort(again);
    std::printf("{\"opening_ms\": %.2f, \"again_ms\": %.2f}\n", opening[opening.size() / 2],
                again[again.size() / 2]);
    return 0;
}
