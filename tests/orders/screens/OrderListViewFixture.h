#pragma once

#include "device/Background.h"
#include "device/Clock.h"
#include "interaction/AlertPresenter.h"
#include "orders/OrderDiskManager.h"
#include "orders/screens/AllOrdersManagementViewController.h"
#include "orders/services/OrderSync.h"
#include "session/AppSingleton.h"
#include "shell/screens/Screens.h"
#include "support/Alerts.h"
#include "support/CatalogueBuilder.h"
#include "support/DeviceFakes.h"
#include "support/FakeServices.h"
#include "support/TemporaryFolder.h"
#include "ui/UiScene.h"

#include <QTest>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace kavor {

// The real view of the order list in a window, with the server and the device played by the test.
class OrderListViewTest : public ::testing::Test {
protected:
    using DirectoryName = OrderDiskManager::DirectoryName;
    static constexpr QSize tablet{1024, 768}, upright{768, 1024}, phone{390, 844};

    class NoSync : public BackgroundOrderSync {
    public:
        void startOrderSync() override {}
        void replanBrochureSync() override {}
        void scheduleBrochureSync() override {}
        void handleBrochureSync(const std::shared_ptr<BackgroundTask>&) override {}
    };

    TemporaryFolder folder;
    AppSingleton& session = openSession(folder);
    FakeServices network;
    AlertPresenter alerts;
    RecordingUrlOpener urls;
    ManualClock clock;
    FakeReachability reachability;
    OrderDiskManager orders{folder.path()};
    BackgroundWorkEnd backgroundWork;
    OrderActions actions{network, orders};
    NoSync sync;
    std::vector<Int> claimed;
    std::vector<Int> demanded;
    OrderList answer;
    std::unique_ptr<AllOrdersManagementViewController> list;
    std::unique_ptr<UiScene> scene;

    void SetUp() override {
        session.loginResult = LoginResult{};
        session.applicationInformation = CatalogueBuilder().take();
    }
    void TearDown() override {
        scene.reset();
        list.reset();
        session.applicationInformation.reset();
    }

    void draft(const std::string& name, DirectoryName directory = DirectoryName::draft) {
        SaveBrochuresOrder order;
        order.menu.orderType = BrochureType::beer;
        ASSERT_TRUE(orders.create(order, directory, name));
    }
    OrderList::Order& sent(Int id, const std::string& pointOfSale = "Bar Sol") {
        OrderList::Order order;
        order.id = id;
        order.type = "Carta de Cervezas";
        order.typeId = BrochureType::beer;
        order.state = "En proceso";
        order.stateId = OrderState::inProcess;
        order.pdv = pointOfSale;
        order.date = *LocalDateTime::parse("06-05-2024 07:08:09");
        if (!answer.orders)
            answer.orders.emplace();
        return answer.orders->emplace_back(order);
    }
    // The first load, up to its answer.
    void open(QSize size) {
        network.requests.retrieveBrochureOrderList.always(answer);
        list = std::make_unique<AllOrdersManagementViewController>(
            OrderListServices{session, network, orders, actions, sync, alerts, urls, clock, reachability});
        list->setWays({[] {}, [this](const OrderList::Order& order) { claimed.push_back(order.id); },
                       [this](const OrderList::Order& order) { demanded.push_back(order.id); }});
        QQmlEngine registering;
        registerScreens(registering); // for the whole process
        scene = std::make_unique<UiScene>(
            QStringLiteral(
                "function keepFocus() { // as the client's window does\n"
                "    if (!activeFocusItem || activeFocusItem === contentItem) screen.forceActiveFocus()\n"
                "}\n"
                "onActiveFocusItemChanged: Qt.callLater(keepFocus)\n"
                "Loader { id: screen; anchors.fill: parent\n"
                "    onLoaded: { item.focus = true; forceActiveFocus() }\n"
                "    Component.onCompleted: setSource(\"%1\", { controller: list }) }\n"
                "AlertHost { anchors.fill: parent; presenter: alerts }")
                .arg(screenView("AllOrdersManagementView").toString()),
            size,
            QHash<QString, QObject*>{{QStringLiteral("list"), list.get()},
                                     {QStringLiteral("alerts"), &alerts}});
        ASSERT_TRUE(loads([this] { list->viewWillAppear(); }));
    }
    // Whether this asks the server once, and the answer came on show.
    [[nodiscard]] bool loads(const std::function<void()>& act) const {
        const std::size_t before = requests();
        act();
        return UiScene::waitFor([&] { return requests() > before && !list->veil()->isVisible(); }) &&
               requests() == before + 1;
    }
    // Whether the left list comes to show so many rows, laid out.
    [[nodiscard]] bool showsDrafts(int count) const {
        const bool shown = UiScene::waitFor([&] { return list->savedOrders()->count() == count; });
        scene->window()->grabWindow();
        return shown;
    }
    [[nodiscard]] std::size_t requests() const {
        return network.requests.retrieveBrochureOrderList.calls.size();
    }
    // An item inside a row.
    [[nodiscard]] QQuickItem* inRow(const QString& row, const QString& name) const {
        QQuickItem* cell = scene->item(row);
        auto* found = cell ? cell->findChild<QQuickItem*>(name) : nullptr;
        return found && found->isVisible() ? found : nullptr;
    }
    void clickInRow(const QString& row, const QString& name) const {
        const QQuickItem* item = inRow(row, name);
        ASSERT_NE(item, nullptr) << name.toStdString() << " in " << row.toStdString();
        const QPointF middle = item->mapToScene({item->width() / 2, item->height() / 2});
        QTest::mouseClick(scene->window(), Qt::LeftButton, {}, middle.toPoint());
    }
    // Pulls the list on show down by so many pixels.
    void pull(int distance) const {
        const QPoint from(195, 450);
        QTest::mousePress(scene->window(), Qt::LeftButton, {}, from);
        for (int moved = 0; moved <= distance; moved += 10) {
            QTest::mouseMove(scene->window(), from + QPoint(0, moved));
            scene->window()->grabWindow();
        }
        QTest::mouseRelease(scene->window(), Qt::LeftButton, {}, from + QPoint(0, distance));
    }

private:
    static AppSingleton& openSession(const TemporaryFolder& folder) {
        AppSingleton::shared().setFolders(folder.path(), folder / "caches");
        return AppSingleton::shared();
    }
};

} // namespace kavor
