#include "brochures/engine/SaveBrochuresOrder.h"
#include "device/Background.h"
#include "device/Clock.h"
#include "interaction/AlertPresenter.h"
#include "orders/OrderDiskManager.h"
#include "orders/screens/AllOrdersManagementViewController.h"
#include "orders/services/OrderSync.h"
#include "session/AppSingleton.h"
#include "shell/screens/Screens.h"
#include "support/DeviceFakes.h"
#include "support/FakeServices.h"
#include "support/TemporaryFolder.h"
#include "support/WaitFor.h"
#include "ui/Ui.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <time.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

// The list of orders with many rows: how long the window's thread is held at most while it opens, is loaded
// anew and is scrolled from one end to the other, with its drawing, which the software does in that thread;
// scrolling also beside a list of few rows.
namespace kavor::bench {

namespace {

constexpr int sentOrders = 5000;
constexpr int drafts = 500;
constexpr int fewOrders = 60;
constexpr int fewDrafts = 20;
constexpr std::size_t logoSize = 120'000; // of the text of a logo in an order

// Measures every step of the window's thread: the time that it works, for other programs take theirs.
class SteppedApplication : public QGuiApplication {
public:
    using QGuiApplication::QGuiApplication;
    bool notify(QObject* receiver, QEvent* event) override {
        const double begin = milliseconds();
        const bool taken = QGuiApplication::notify(receiver, event);
        longest = std::max(longest, milliseconds() - begin);
        return taken;
    }
    double longest = 0; // milliseconds

private:
    static double milliseconds() {
        timespec time{};
        ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
    }
};

class NoSync : public BackgroundOrderSync {
public:
    void startOrderSync() override {}
    void replanBrochureSync() override {}
    void scheduleBrochureSync() override {}
    void handleBrochureSync(const std::shared_ptr<BackgroundTask>&) override {}
};

void writeDrafts(const OrderDiskManager& orders, int count) {
    for (int i = 0; i < count; ++i) {
        SaveBrochuresOrder order;
        order.menu.customer.name = "Bar de la Esquina " + std::to_string(i);
        order.menu.customer.imageLogo = "data:image/png;base64," + std::string(logoSize, 'A');
        order.filename = "Borrador " + std::to_string(i);
        if (i % 2 == 0)
            order.orderIdentifier = i + 1;
        orders.create(order, OrderDiskManager::DirectoryName::draft, *order.filename);
    }
}

// Every second draft is in the cloud too.
OrderList answerOf(int count, int saved) {
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
        order.stateId = i < saved && i % 2 == 0 ? OrderState::cloud : OrderState::delivered;
        order.filename = "Borrador " + std::to_string(i);
        order.token = "0123456789abcdef";
        answer.orders->push_back(std::move(order));
    }
    return answer;
}

// What one list needs beside its orders.
struct Place {
    Place(int sent, int saved)
        : answer(answerOf(sent, saved)) {
        session.setFolders(folder.path(), folder.path() / "caches");
        session.loginResult = LoginResult{};
        session.applicationInformation = std::make_shared<const Catalogue>(ApplicationInformation());
        writeDrafts(orders, saved);
    }
    [[nodiscard]] std::unique_ptr<AllOrdersManagementViewController> open() {
        return std::make_unique<AllOrdersManagementViewController>(
            OrderListServices{session, network, orders, actions, sync, alerts, urls, clock, reachability});
    }

    TemporaryFolder folder;
    AppSingleton& session = AppSingleton::shared();
    OrderDiskManager orders{folder.path()};
    OrderList answer;
    FakeServices network;
    OrderActions actions{network, orders};
    NoSync sync;
    AlertPresenter alerts;
    RecordingUrlOpener urls;
    SystemClock clock;
    FakeReachability reachability;
};

constexpr char windowText[] = R"(
import QtQuick
import Kavor.Ui
AppWindow {
    width: 1024
    height: 768
    visible: true
    function show(view: url, list: QtObject): void { screen.setSource(view, { controller: list }); }
    function clear(): void { screen.source = ""; }
    Loader { id: screen; anchors.fill: parent }
})";

// The client's window, in which one screen after the other comes on show.
class Window {
public:
    explicit Window(SteppedApplication& application)
        : application_(application) {
        registerUi(engine_);
        registerScreens(engine_);
        QQmlComponent component(&engine_);
        component.setData(windowText, QUrl());
        window_.reset(qobject_cast<QQuickWindow*>(component.create()));
        if (!window_ || !waitFor([&] { return window_->isExposed(); }))
            qFatal("the window does not open: %s", qPrintable(component.errorString()));
    }

    // Longest step from the view being asked for to its rows being drawn.
    // The server answers after the rows of the device are drawn, as one that is reached over a network.
    double show(AllOrdersManagementViewController& list, FakeServices& network, const OrderList& answer) {
        return longestOf([&] {
            QMetaObject::invokeMethod(
                this_.get(), [&] { load(list); }, Qt::QueuedConnection);
            waitFor([&] { return list.savedOrders()->count() > 0; }, 60'000);
            nextFrame();
            waitFor([&] { return network.requests.retrieveBrochureOrderList.succeed(answer); });
            waitFor([&] { return !list.veil()->isVisible(); }, 60'000);
            nextFrame();
        });
    }
    // The same while the list on show is loaded anew.
    double again(AllOrdersManagementViewController& list, FakeServices& network, const OrderList& answer) {
        return longestOf([&] {
            QMetaObject::invokeMethod(&list, &AllOrdersManagementViewController::refresh,
                                      Qt::QueuedConnection);
            waitFor([&] { return network.requests.retrieveBrochureOrderList.succeed(answer); });
            waitFor([&] { return !list.veil()->isVisible(); }, 60'000);
            nextFrame();
        });
    }
    void clear() { QMetaObject::invokeMethod(window_.get(), "clear"); }

    // Longest step while a list is pushed from its beginning to its end, a fast flick's way with each frame.
    double scroll(const char* name) {
        auto* list = window_->findChild<QQuickItem*>(QLatin1String(name));
        if (list == nullptr)
            qFatal("no list %s", name);
        const auto place = [list](const char* property) { return list->property(property).toReal(); };
        return longestOf([&] {
            while (!list->property("atYEnd").toBool()) {
                QMetaObject::invokeMethod(
                    this_.get(),
                    [&] {
                        const qreal end = place("originY") + place("contentHeight") + place("bottomMargin") -
                                          place("height");
                        list->setProperty("contentY", std::min(place("contentY") + flickStep, end));
                    },
                    Qt::QueuedConnection);
                nextFrame();
            }
        });
    }

private:
    static constexpr qreal flickStep = 400;

    void load(AllOrdersManagementViewController& list) {
        list.viewWillAppear();
        QMetaObject::invokeMethod(window_.get(), "show", Q_ARG(QUrl, screenView("AllOrdersManagementView")),
                                  Q_ARG(QObject*, &list));
    }
    void nextFrame() {
        bool swapped = false;
        const auto watching = QObject::connect(window_.get(), &QQuickWindow::frameSwapped, this_.get(),
                                               [&] { swapped = true; });
        window_->update();
        waitFor([&] { return swapped; });
        QObject::disconnect(watching);
    }
    double longestOf(const std::function<void()>& work) {
        application_.longest = 0;
        work();
        return application_.longest;
    }

    SteppedApplication& application_;
    std::unique_ptr<QObject> this_ = std::make_unique<QObject>();
    QQmlEngine engine_;
    std::unique_ptr<QQuickWindow> window_;
};

double median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

} // namespace

} // namespace kavor::bench

// order_list_bench ROUNDS: the longest steps, medians of the rounds, as one object of JSON.
int main(int argc, char* argv[]) {
    using namespace kavor;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    bench::SteppedApplication application(argc, argv);
    const int rounds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 5;
    const BackgroundWorkEnd backgroundWork;
    bench::Window window(application);
    std::map<std::string, std::vector<double>> figures;
    const auto run = [&](const std::string& size, int sent, int drafts) {
        bench::Place place(sent, drafts);
        for (int i = 0; i < rounds; ++i) {
            const auto list = place.open();
            figures[size + "opening_ms"].push_back(window.show(*list, place.network, place.answer));
            figures[size + "again_ms"].push_back(window.again(*list, place.network, place.answer));
            figures[size + "saved_scroll_ms"].push_back(window.scroll("savedOrdersTable"));
            figures[size + "sent_scroll_ms"].push_back(window.scroll("sentOrdersTable"));
            if (list->sentOrders()->count() != sent - (drafts + 1) / 2)
                return false;
            window.clear();
        }
        return true;
    };
    if (!run("few_", bench::fewOrders, bench::fewDrafts) || !run("", bench::sentOrders, bench::drafts))
        return 1;
    std::string line;
    for (const auto& [name, values] : figures)
        line += (line.empty() ? "{\"" : ", \"") + name + "\": " + std::to_string(bench::median(values));
    std::printf("%s}\n", line.c_str());
    return 0;
}
