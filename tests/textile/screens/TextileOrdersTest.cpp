#include "orders/screens/AllOrdersManagementViewController.h"
#include "orders/services/OrderActions.h"
#include "orders/services/OrderSync.h"
#include "textile/screens/TextileScreensFixture.h"

#include <QThreadPool>

#include <gmock/gmock.h>

namespace kavor {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class PlannedNothing : public BackgroundOrderSync {
public:
    void startOrderSync() override {}
    void replanBrochureSync() override {}
    void scheduleBrochureSync() override {}
    void handleBrochureSync(const std::shared_ptr<BackgroundTask>&) override {}
};

// Orders of clothing in the list of orders, and what the section makes of them.
class TextileOrders : public TextileScreens {
protected:
    PlannedNothing sync;
    OrderActions actions{network, orders};
    std::unique_ptr<AllOrdersManagementViewController> list;

    void TearDown() override {
        list.reset();
        TextileScreens::TearDown();
    }
    auto& lists() { return network.requests.retrieveBrochureOrderList; }
    // Opens the list; the server has these orders of clothing in its cloud.
    void openList(const std::vector<OrderList::OrderTextile>& cloud = {}) {
        menu.reset();
        list = std::make_unique<AllOrdersManagementViewController>(
            OrderListServices{session, network, orders, actions, sync, alerts, urls, clock, reachability});
        list->setWays({{}, {}, {}, [this] { open(Menu::Opening::OrderToEdit); }});
        list->viewWillAppear();
        OrderList answer;
        answer.textileOrders = cloud;
        ASSERT_TRUE(waitFor([&] { return !network.reachable || lists().succeed(answer); }));
        ASSERT_TRUE(waitFor([&] { return !list->veil()->isVisible(); }));
    }
    static OrderList::OrderTextile cloud(Int id, const char* name) {
        OrderList::OrderTextile order;
        order.id = id;
        order.applicationType = ApplicationType::textil;
        order.stateId = OrderState::cloud;
        order.filename = name;
        return order;
    }
    std::vector<std::string> rows() const {
        std::vector<std::string> lines;
        for (const auto& row : list->savedOrders()->rows())
            lines.push_back(row.name.toStdString() + " " + std::string(label(row.syncState)) +
                            (row.hasChanges ? " *" : ""));
        std::ranges::sort(lines);
        return lines;
    }
    void edit(const char* key) {
        list->editAction(QString::fromUtf8(key));
        EXPECT_TRUE(press("Sí"));
    }
    std::string listTold() {
        EXPECT_TRUE(waitFor([this] { return alerts.isVisible() && !list->veil()->isVisible(); }));
        std::string text = shown(alerts);
        alerts.answerButton(0);
        return text;
    }
};

TEST_F(TextileOrders, TwoOfflinePrintsWaitInTheListAndItSendsBothUnderTheirOwnKeys) {
    openFilled();
    saveAs("Sol");
    ASSERT_TRUE(waitFor([&] { return sends().succeed(answer(12)); }));
    told();
    network.reachable = false;
    sending().makeOrderOnServerAction();
    told();
    configuration().editCustomText("Luna");
    sending().makeOrderOnServerAction();
    told();
    network.reachable = true;
    openList();
    EXPECT_THAT(rows(), ElementsAre("Sin enviar Pendiente de envío", "Sin enviar(1) Pendiente de envío",
                                    "Sol Guardado local"));
    list->sendAction(QStringLiteral("textile/outbox/Sin enviar"));
    ASSERT_TRUE(waitFor([&] { return sends().fail(lostAnswer()); }));
    EXPECT_TRUE(waitFor([&] { return alerts.isVisible(); }));
    kavor::press(alerts, QStringLiteral("Cancelar"));
    list->sendAction(QStringLiteral("textile/outbox/Sin enviar"));
    ASSERT_TRUE(waitFor([&] { return sends().succeed(answer(12, "http://server.example/12")); }));
    EXPECT_EQ(listTold(), "Enviado | Pedido realizado correctamente.");
    EXPECT_EQ(keyOf(1), keyOf(2)) << "a lost answer and a second tap are one order";
    EXPECT_FALSE(orders.exists<SaveTextileOrder>("Sol", Directory::draft)) << "its draft was that very order";
    ASSERT_TRUE(waitFor([&] { return lists().succeed({}); }));
    ASSERT_TRUE(waitFor([&] { return list->savedOrders()->count() == 1; }));

    // The other one is sent from the section, where it was made: it is the order of the file.
    enterTextile(builder);
    open();
    sending().makeOrderOnServerAction();
    const QByteArray fromSection = keyOf(3);
    sends().fail(lostAnswer());
    told();
    list->sendAction(QStringLiteral("textile/outbox/Sin enviar(1)"));
    ASSERT_TRUE(waitFor([&] { return sends().waiting() == 1; }));
    EXPECT_EQ(sent(4).orderInformation.message, "Luna");
    EXPECT_EQ(keyOf(4), fromSection);
    EXPECT_NE(keyOf(4), keyOf(1));
}

TEST_F(TextileOrders, AWaitingOrderIsEditedAndSentInsteadOfItsFile) {
    openFilled();
    network.reachable = false;
    sending().makeOrderOnServerAction();
    told();
    network.reachable = true;
    openList();
    UnfinishedTextile::shared().beginAnew();
    edit("textile/outbox/Sin enviar");
    ASSERT_TRUE(waitFor([&] { return menu != nullptr; }));
    EXPECT_EQ(draft().totalUnits(), 6U);
    EXPECT_FALSE(draft().filename);
    configuration().editCustomText("Luna");
    sending().makeOrderOnServerAction();
    ASSERT_TRUE(waitFor([&] { return sends().waiting() == 1; }));
    EXPECT_EQ(file("Sin enviar", Directory::outbox)->orderInformation.message, "Luna")
        << "what the list would send is the same order";
    sends().succeed(answer(12, "http://server.example/12"));
    EXPECT_EQ(told(), "Éxito | Pedido realizado correctamente.");
    QThreadPool::globalInstance()->waitForDone();
    EXPECT_THAT(orders.list<SaveTextileOrder>(Directory::outbox), IsEmpty());
}

TEST_F(TextileOrders, ADraftIsEditedUnderTheNameOfItsFileAndSavedBack) {
    SaveTextileOrder order;
    order.orderInformation.message = "Sol";
    order.orderInformation.applicationType = ApplicationType::textilWine;
    order.orderInformation.orderLines = {{130, 4}, {777, 1}};
    order.filename = "otro nombre";
    ASSERT_TRUE(orders.create(order, Directory::draft, "Sol"));
    openList();
    edit("textile/draft/Sol");
    EXPECT_EQ(told(), "Atención | Algunos artículos del pedido ya no están en el catálogo y se han quitado.");
    EXPECT_EQ(menu->title(), "Textil Vino");
    EXPECT_EQ(draft().filename, "Sol");
    EXPECT_EQ(draft().totalUnits(), 4U);
    saveAs("Sol");
    ASSERT_TRUE(waitFor([&] { return sends().succeed(answer(12)); }));
    told();
    EXPECT_TRUE(waitFor([&] { return file("Sol")->orderIdentifier == 12; }));
    EXPECT_EQ(sent(0).orderInformation.applicationType, ApplicationType::textilWine);
}

TEST_F(TextileOrders, AnOrderOfTheCloudIsEditedAsTheServerHasItUnlessTheDeviceHasChanges) {
    SaveTextileOrder order;
    order.orderIdentifier = 12;
    order.orderInformation.message = "Sol";
    ASSERT_TRUE(orders.create(order, Directory::draft, "Sol"));
    openList({cloud(12, "Sol"), cloud(13, "Nube")});
    EXPECT_THAT(rows(), ElementsAre("Nube En la nube", "Sol Sincronizado"));
    edit("textile/draft/Sol");
    network.requests.retrieveTextileOrder.fail(failureWith({}, 500));
    EXPECT_EQ(listTold(), "Incidencia | El pedido no se puede cargar de servidor");
    edit("textile/draft/Sol");
    RetrieveTextileOrderResponse answered;
    answered.orderInformation.id = 12;
    answered.orderInformation.message = "Del servidor";
    answered.orderInformation.filename = "otro nombre";
    network.requests.retrieveTextileOrder.succeed(answered);
    ASSERT_TRUE(menu);
    EXPECT_EQ(draft().customizedText, "Del servidor");
    EXPECT_EQ(draft().filename, "Sol");

    // A change that could only be kept here is not lost behind the server's copy.
    configuration().editCustomText("Luna");
    network.reachable = false;
    saveAs("Sol");
    told();
    network.reachable = true;
    openList({cloud(12, "Sol")});
    EXPECT_THAT(rows(), ElementsAre("Sol Sincronizado *"));
    edit("textile/draft/Sol");
    EXPECT_EQ(shown(alerts), "Atención | ¿Qué versión quieres abrir?");
    press("La del dispositivo");
    ASSERT_TRUE(waitFor([&] { return menu != nullptr; }));
    EXPECT_EQ(draft().customizedText, "Luna");
    saveAs("Sol");
    ASSERT_TRUE(waitFor([&] { return sends().succeed(answer(12)); }));
    told();
    openList({cloud(12, "Sol")});
    EXPECT_THAT(rows(), ElementsAre("Sol Sincronizado"));
}

} // namespace
} // namespace kavor
