#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/wizard/WizardFixture.h"
#include "orders/DraftsWithChanges.h"
#include "orders/screens/AllOrdersManagementViewController.h"

namespace kavor {
namespace {

using Directory = OrderDiskManager::DirectoryName;

class PlannedSync : public BackgroundOrderSync {
public:
    int planned = 0;
    void startOrderSync() override {}
    void replanBrochureSync() override { ++planned; }
    void scheduleBrochureSync() override {}
    void handleBrochureSync(const std::shared_ptr<BackgroundTask>&) override {}
};

class AllOrders : public WizardTest {
protected:
    PlannedSync planned;
    OrderActions actions{network, orders};
    int wizards = 0;
    std::vector<Int> claims;
    std::unique_ptr<AllOrdersManagementViewController> screen;

    void TearDown() override {
        screen.reset();
        WizardTest::TearDown();
    }

    auto& lists() { return network.requests.retrieveBrochureOrderList; }
    void draft(const std::string& name, std::optional<Int> id = {}, Directory directory = Directory::draft,
               BrochureType type = BrochureType::beer) {
        KeptOrder order;
        order.save =
            directory == Directory::draft ? OrderRequestType::saveCloud : OrderRequestType::sendToPrint;
        order.menu.orderType = type;
        order.menu.customer.name = "Local de " + name;
        order.filename = name;
        order.orderIdentifier = id;
        ASSERT_TRUE(orders.create(order, directory, name));
    }
    static OrderList::Order server(Int id, OrderState state, const std::string& name) {
        OrderList::Order order;
        order.id = id;
        order.stateId = state;
        order.state = "Estado";
        order.filename = name;
        order.pdv = "Bar de " + name;
        return order;
    }
    static OrderList answerWith(std::vector<OrderList::Order> list) {
        OrderList answer;
        answer.summary = {"12", "3", std::nullopt};
        answer.orders = std::move(list);
        return answer;
    }

    void open() {
        screen = std::make_unique<AllOrdersManagementViewController>(
            OrderListServices{session, network, orders, actions, planned, alerts, urls, clock, reachability});
        screen->setWays({[this] { ++wizards; },
                         [this](const OrderList::Order& order) { claims.push_back(order.id); },
                         {}});
        screen->viewWillAppear();
    }
    // Opens the list and lets the server answer.
    void openWith(const OrderList& answer) {
        open();
        answerList(answer);
        waitForRows();
    }
    void answerList(const OrderList& answer) {
        ASSERT_TRUE(waitFor([&] { return lists().succeed(answer); }));
    }
    void waitForRows() {
        ASSERT_TRUE(waitFor([&] { return !screen->veil()->isVisible(); }));
    }
    [[nodiscard]] const OrderListFilter& asked(std::size_t call) {
        return std::get<0>(lists().calls.at(call));
    }

    [[nodiscard]] std::vector<std::string> saved() const {
        std::vector<std::string> lines;
        for (const auto& row : screen->savedOrders()->rows())
            lines.push_back(row.name.toStdString() + " " + std::string(label(row.syncState)) + " " +
                            row.number.toStdString() + (row.hasChanges ? " *" : ""));
        std::ranges::sort(lines);
        return lines;
    }
    [[nodiscard]] static QString keyOf(const std::string& name, const char* folderName = "draft") {
        return QStringLiteral("brochure/%1/%2").arg(QLatin1String(folderName), QString::fromStdString(name));
    }
};

using Lines = std::vector<std::string>;

TEST_F(AllOrders, WithoutANetworkOnlyTheDevicesRowsStandAndNothingIsAsked) {
    network.reachable = false;
    draft("Olmo. Terraza");
    open();
    ASSERT_TRUE(waitFor([&] { return alerts.isVisible(); }));
    EXPECT_EQ(alert(), "Atención | Sólo se muestran pedidos guardados localmente.");
    ASSERT_TRUE(waitFor([&] { return screen->savedOrders()->count() == 1; }));
    EXPECT_EQ(saved(), (Lines{"Olmo Guardado local -"}));
    EXPECT_TRUE(lists().calls.empty());
    EXPECT_EQ(planned.planned, 1);
    EXPECT_FALSE(screen->isSentShown());
    press(QStringLiteral("Aceptar"));
    screen->withoutConfirmAction();
    EXPECT_EQ(alert(), "Error | No hay conexión a internet.");
}

TEST_F(AllOrders, TheServersAnswerJoinsTheFourStatesAndAFailureLeavesTheDevicesRows) {
    draft("Local");
    draft("Ambos", 41);
    draft("Fuera", {}, Directory::outbox);
    openWith(answerWith({server(41, OrderState::cloud, "Ambos"), server(42, OrderState::cloud, "Nube"),
                         server(43, OrderState::inProcess, "Impresa")}));
    const Lines joined{"Ambos Sincronizado 41", "Fuera Pendiente de envío -", "Local Guardado local -",
                       "Nube En la nube 42"};
    EXPECT_EQ(saved(), joined);
    EXPECT_EQ(screen->sentOrders()->count(), 1);
    EXPECT_EQ(screen->realizedNumberLabel() + screen->withoutConfirmNumberLabel() +
                  screen->withoutCobrixCodeLabel(),
              QStringLiteral("123-"));
    EXPECT_EQ(screen->sendAllText(), QStringLiteral("Enviar todos (1)"));
    EXPECT_EQ(std::tuple(asked(0).sinConfirmar, asked(0).sinCompletar, asked(0).currentYear, asked(0).cloud),
              std::tuple(0, 0, 0, true));

    screen->refresh();
    ASSERT_TRUE(waitFor([&] { return lists().waiting() == 1; }));
    EXPECT_EQ(saved(), joined) << "nothing flickers while it is loaded anew";
    lists().fail(failureWith({QStringLiteral("Roto.")}, 500));
    EXPECT_EQ(alert(), "Incidencia | Error");
    ASSERT_TRUE(waitFor([&] { return screen->savedOrders()->count() == 3; }));
    EXPECT_EQ(saved(),
              (Lines{"Ambos Guardado local 41", "Fuera Pendiente de envío -", "Local Guardado local -"}));
    EXPECT_EQ(screen->sentOrders()->count(), 0);
    press(QStringLiteral("Intentar de nuevo"));
    answerList(answerWith({}));
    waitForRows();
    EXPECT_FALSE(screen->age().isEmpty());
}

TEST_F(AllOrders, WhoWorksOnLocallyHearsNothingOfALateAnswer) {
    draft("Local");
    open();
    ASSERT_TRUE(waitFor([&] { return lists().waiting() == 1; }));
    screen->veil()->leave();
    EXPECT_FALSE(screen->veil()->isVisible());
    lists().succeed(answerWith({server(42, OrderState::cloud, "Nube")}));
    ASSERT_TRUE(waitFor([&] { return screen->savedOrders()->count() == 1; }));
    EXPECT_FALSE(alerts.isVisible());
    EXPECT_TRUE(screen->age().isEmpty());
}

TEST_F(AllOrders, SearchAndQuickFiltersAskTheServerAndSayHowTheyFailed) {
    openWith(answerWith({server(43, OrderState::sent, "Impresa")}));
    screen->editLocalNameSearch(QStringLiteral("olmo"));
    screen->searchToFilterAction();
    answerList(answerWith({server(44, OrderState::sent, "Olmo")}));
    waitForRows();
    EXPECT_EQ(asked(1).pdv, QStringLiteral("olmo"));
    EXPECT_EQ(screen->filters().size(), 1);

    struct Filter {
        void (AllOrdersManagementViewController::*run)();
        std::optional<Int> OrderListFilter::*parameter;
        QStringList buttons;
    };
    using Screen = AllOrdersManagementViewController;
    const QString local = QStringLiteral("Trabajar en local");
    const QString again = QStringLiteral("Intentar de nuevo");
    for (const Filter& filter :
         {Filter{&Screen::withoutConfirmAction, &OrderListFilter::sinConfirmar, {local, again}},
          Filter{&Screen::withoutCompleteAction,
                 &OrderListFilter::sinCompletar,
                 {again, QStringLiteral("Borrar sólo en local")}},
          Filter{&Screen::withoutFilterAction, &OrderListFilter::currentYear, {again, local}}}) {
        ((*screen).*filter.run)();
        const auto& sent = asked(lists().calls.size() - 1);
        EXPECT_EQ(sent.*filter.parameter, 1);
        EXPECT_EQ(int(sent.sinConfirmar.has_value()) + int(sent.sinCompletar.has_value()) +
                      int(sent.currentYear.has_value()),
                  1);
        EXPECT_TRUE(sent.pdv.isEmpty() && !sent.cloud);
        lists().fail(failureWith({QStringLiteral("Hoy no.")}));
        EXPECT_EQ(alert(), "Incidencia | Hoy no.");
        QStringList captions;
        for (const auto& button : alerts.current()->buttons)
            captions << button.text;
        EXPECT_EQ(captions, filter.buttons);
        press(again);
        lists().succeed(answerWith({server(50, OrderState::cloud, "x"), server(51, OrderState::sent, "y")}));
        waitForRows();
        EXPECT_EQ(screen->sentOrders()->count(), 2) << "in any state";
        EXPECT_EQ(screen->filters().size(), 2) << "the search stays";
    }
    screen->removeFilter(QStringLiteral("pdv"));
    EXPECT_TRUE(asked(lists().calls.size() - 1).pdv.isEmpty());
}

TEST_F(AllOrders, EditingASyncedOrderOpensTheServersCopyUnderTheNameOfTheRow) {
    draft("Ambos", 41);
    openWith(answerWith({server(41, OrderState::cloud, "otro nombre")}));
    BrochureIntermediateData::temporalBrochure()->fileName = "en curso";
    screen->editAction(keyOf("Ambos"));
    EXPECT_EQ(alert(), "Atención | ¿Deseas editar el pedido \"Ambos\"? (Si en estos momentos estás tramitado "
                       "otro pedido es importante “Guardar” ya que sus datos se perderían al editar éste.)");
    press(QStringLiteral("No"));
    screen->editAction(keyOf("Ambos"));
    press(QStringLiteral("Sí"));
    network.requests.retrieveBrochureOrder.fail(failureWith({}, 500));
    EXPECT_EQ(alert(), "Incidencia | El pedido no se puede cargar de servidor");
    press(QStringLiteral("Aceptar"));
    EXPECT_EQ(WizardTest::draft().fileName, "en curso") << "the draft in work gives way to an order at hand";
    EXPECT_EQ(wizards, 0);

    screen->editAction(keyOf("Ambos"));
    press(QStringLiteral("Sí"));
    RetrieveBrochureOrderListResponse answer;
    answer.orderInformation.id = 41;
    answer.customerInformation.name = "Bar del servidor";
    network.requests.retrieveBrochureOrder.succeed(answer);
    EXPECT_EQ(wizards, 1);
    EXPECT_EQ(session.brochureType(), BrochureType::beer);
    EXPECT_EQ(session.actualApplicationType, ApplicationType::orderBeer);
    EXPECT_EQ(WizardTest::draft().fileName, "Ambos");
    EXPECT_EQ(WizardTest::draft().orderIdentifier, 41);
    EXPECT_EQ(WizardTest::draft().sourceIdentifier, 41);
    EXPECT_EQ(WizardTest::draft().customerInformation->name, "Bar del servidor");
}

TEST_F(AllOrders, ADraftWithChangesThatNeverWentUpIsOpenedAsTheUserChooses) {
    draft("Ambos", 41);
    DraftsWithChanges::shared().add("Ambos");
    openWith(answerWith({server(41, OrderState::cloud, "Ambos")}));
    EXPECT_EQ(saved(), (Lines{"Ambos Sincronizado 41 *"}));
    screen->editAction(keyOf("Ambos"));
    press(QStringLiteral("Sí"));
    EXPECT_EQ(alert(), "Atención | ¿Qué versión quieres abrir?");
    press(QStringLiteral("La del dispositivo"));
    ASSERT_TRUE(waitFor([&] { return wizards == 1; }));
    EXPECT_EQ(WizardTest::draft().customerInformation->name, "Local de Ambos");
    EXPECT_TRUE(network.requests.retrieveBrochureOrder.calls.empty());
    DraftsWithChanges::shared().remove("Ambos");
}

TEST_F(AllOrders, ARefusedOrderIsCorrectedInTheWizardAndOneThatWasSentIsGone) {
    draft("Fuera", {}, Directory::outbox);
    openWith(answerWith({}));
    screen->sendAction(keyOf("Fuera", "outbox"));
    ASSERT_TRUE(waitFor([&] {
        return network.requests.saveOrder.fail(failureWith({QStringLiteral("Falta el teléfono.")}, 422));
    }));
    ASSERT_TRUE(waitFor([&] { return alerts.isVisible(); }));
    EXPECT_EQ(alert(), "Incidencia | El pedido no se puede realizar");
    ASSERT_TRUE(waitFor([&] { return !screen->savedOrders()->rows().front().refusal.isEmpty(); }));
    press(QStringLiteral("Editar pedido"));
    ASSERT_TRUE(waitFor([&] { return wizards == 1; }));
    EXPECT_EQ(WizardTest::draft().outboxFile, "Fuera");

    screen->viewWillAppear();
    answerList(answerWith({}));
    waitForRows();
    screen->sendAction(keyOf("Fuera", "outbox"));
    ASSERT_TRUE(waitFor([&] { return network.requests.saveOrder.succeed({}); }));
    ASSERT_TRUE(waitFor([&] { return alerts.isVisible(); }));
    EXPECT_EQ(alert(), "Enviado | Pedido realizado correctamente.");
    answerList(answerWith({}));
    waitForRows();
    EXPECT_EQ(screen->savedOrders()->count(), 0);
}

TEST_F(AllOrders, AScreenThatClosesWhileAnOrderIsSentLeavesNoFileBehind) {
    draft("Fuera", {}, Directory::outbox);
    openWith(answerWith({}));
    screen->sendAction(keyOf("Fuera", "outbox"));
    ASSERT_TRUE(waitFor([&] { return network.requests.saveOrder.waiting() == 1; }));
    screen.reset();
    network.requests.saveOrder.succeed({});
    ASSERT_TRUE(waitFor([&] { return alerts.isVisible(); }));
    EXPECT_EQ(alert(), "Enviado | Pedido realizado correctamente.");
    EXPECT_TRUE(orders.list<KeptOrder>(Directory::outbox).empty());
}

TEST_F(AllOrders, DeletingASyncedOrderTakesTheFileInAnyCaseAndRepeatsTheCloudAlone) {
    draft("Ambos", 41);
    openWith(answerWith({server(41, OrderState::cloud, "Ambos")}));
    screen->deleteOrder(keyOf("Ambos"));
    EXPECT_EQ(alert(), "Atención | ¿Desea eliminar el pedido en borrador?");
    press(QStringLiteral("Borrar"));
    ASSERT_TRUE(waitFor([&] { return !orders.exists<KeptOrder>("Ambos", Directory::draft); }));
    auto& deletes = network.requests.deleteOrder;
    deletes.fail(failureWith({QStringLiteral("No.")}, 500));
    EXPECT_EQ(alert(), "Incidencia | Error");
    press(QStringLiteral("Intentar de nuevo"));
    EXPECT_EQ(deletes.calls, (std::vector<std::tuple<Int, ApplicationType>>{
                                 {41, ApplicationType::orderBeer}, {41, ApplicationType::orderBeer}}));
    deletes.succeed({});
    EXPECT_EQ(alert(), "Atención | El borrador se ha eliminado en cloud.");
    EXPECT_TRUE(screen->undoText().isEmpty()) << "what the server forgot does not come back";
    answerList(answerWith({}));
    waitForRows();
    EXPECT_EQ(screen->savedOrders()->count(), 0);
}

TEST_F(AllOrders, ADraftOfTheDeviceAloneCanBeBroughtBackForEightSeconds) {
    draft("Olmo");
    openWith(answerWith({}));
    const auto remove = [&] {
        screen->deleteOrder(keyOf("Olmo"));
        press(QStringLiteral("Borrar"));
        ASSERT_TRUE(waitFor([&] { return screen->savedOrders()->count() == 0; }));
    };
    remove();
    EXPECT_EQ(screen->undoText(), QStringLiteral("Se ha borrado «Olmo»"));
    screen->undoDelete();
    ASSERT_TRUE(waitFor([&] { return screen->savedOrders()->count() == 1; }));
    remove();
    clock.advance(OrderRowActions::undoTime);
    EXPECT_TRUE(screen->undoText().isEmpty());
    screen->undoDelete();
    EXPECT_FALSE(orders.exists<KeptOrder>("Olmo", Directory::draft));
}

TEST_F(AllOrders, ACopyTellsWhatLeftTheCatalogueAndLeavesTheDraftInWorkAlone) {
    openWith(answerWith({server(43, OrderState::sent, "Impresa")}));
    WizardTest::draft().fileName = "en curso";
    screen->copyOrder(43);
    EXPECT_EQ(alerts.current()->textField->initialText, QStringLiteral("Impresa"));
    press(QStringLiteral("Guardar"), QStringLiteral("a/b"));
    EXPECT_EQ(alert(), "Copiar pedido. | No se ha podido copiar el pedido en local.");
    press(QStringLiteral("Aceptar"));

    screen->copyOrder(43);
    press(QStringLiteral("Guardar"), QStringLiteral("Copia"));
    RetrieveBrochureOrderListResponse answer;
    auto& brand = answer.orderInformation.beerList.brands.emplace_back();
    brand.id = 999;
    brand.name = "Vieja";
    brand.category = Product::Category();
    network.requests.retrieveBrochureOrder.succeed(answer);
    ASSERT_TRUE(waitFor([&] { return alerts.isVisible(); }));
    EXPECT_EQ(alert(), "Copiar pedido. | Su pedido ha sido copiado en local.\n"
                       "1 producto ya no está en el catálogo: Vieja");
    EXPECT_EQ(WizardTest::draft().fileName, "en curso");
    EXPECT_TRUE(orders.exists<KeptOrder>("Copia", Directory::draft));
}

TEST_F(AllOrders, WithoutACatalogueOrAKindOfItNothingOpens) {
    draft("Digital", {}, Directory::draft, BrochureType::digital);
    draft("Ambos", 41);
    openWith(answerWith({}));
    screen->editAction(keyOf("Digital"));
    press(QStringLiteral("Sí"));
    EXPECT_EQ(alert(), "Atención | Este tipo de pedido ya no está en el catálogo.");
    press(QStringLiteral("Aceptar"));
    session.applicationInformation.reset();
    screen->editAction(keyOf("Ambos"));
    press(QStringLiteral("Sí"));
    EXPECT_EQ(alert(), "Atención | Es necesario actualizar el catálogo.");
    EXPECT_EQ(wizards, 0);
}

TEST_F(AllOrders, ASentOrderIsLookedAtClaimedAndTakesTheServersWordOnItsQrMaterial) {
    OrderList::Order order = server(43, OrderState::sent, "Impresa");
    order.canDemandQr = true;
    order.note = "Llegará el martes.";
    openWith(answerWith({order}));
    screen->openSheet(43);
    EXPECT_EQ(screen->sheet()[QStringLiteral("note")], QStringLiteral("Llegará el martes."));
    screen->previewURLAction(43);
    EXPECT_EQ(alert(), "No existe enlace para este pedido. | Póngase en contacto con soporte.");
    screen->claimOrder(43);
    EXPECT_EQ(claims, std::vector<Int>{43});
    screen->qrDemanded(43, false, OrderState::tradeAuthorization, "Autorización");
    EXPECT_FALSE(screen->sentOrders()->rows().front().canDemandQr);
    EXPECT_EQ(screen->sentOrders()->rows().front().state, QStringLiteral("Autorización"));
}

} // namespace
} // namespace kavor
