#include "base/json/Json.h"
#include "orders/services/FiledOrderRoad.h"
#include "support/Alerts.h"
#include "support/DeviceFakes.h"
#include "support/FakeServices.h"
#include "support/TemporaryFolder.h"
#include "support/WaitFor.h"

#include <gtest/gtest.h>

namespace kavor {
namespace {

using Directory = OrderDiskManager::DirectoryName;

// A section whose orders are files: a shirt with a text on it.
struct ShirtDraft {
    std::string text;
    std::optional<Int> orderIdentifier;
    std::optional<std::string> fileName;
    std::optional<QUrl> sentTo;
    UnansweredSends unansweredSends;
    UnansweredSends safe; // of those, what outlives the process
};

class ShirtRoad : public FiledOrderRoad<SaveTextileOrder, SaveTextileOrderResponse> {
public:
    ShirtRoad(const OrderRoadServices& services, const OrderDiskManager& orders, ShirtDraft& draft)
        : FiledOrderRoad(services, orders, textsOfShirts())
        , draft_(draft)
        , network_(services.network) {}

    std::vector<QByteArray> keys; // under which orders went out
    std::vector<bool> keyWasSafe; // when they did

protected:
    using Order = SaveTextileOrder;
    using Answer = SaveTextileOrderResponse;

    static OrderTexts textsOfShirts() {
        OrderTexts texts;
        texts.warningsTitle = QStringLiteral("¿Seguro?");
        texts.queued = QStringLiteral("En borradores: \"%1\"");
        texts.notWrittenTitle = QStringLiteral("Guardar pedido.");
        texts.notWritten = QStringLiteral("No se ha podido guardar su pedido.");
        texts.notUpdated = QStringLiteral("No se ha podido actualizar el pedido guardado.");
        return texts;
    }
    std::vector<std::string> missing() const override {
        return draft_.text.empty() ? std::vector<std::string>{"Falta el texto", "Falta la talla"}
                                   : std::vector<std::string>();
    }
    std::vector<std::string> warnings() const override {
        return draft_.text == "?" ? std::vector<std::string>{"Texto raro"} : std::vector<std::string>();
    }
    std::optional<QUrl> sentTo() const override { return draft_.sentTo; }
    Order make(OrderRequestType type) const override {
        Order order;
        order.save = type;
        order.orderInformation.message = draft_.text;
        order.orderIdentifier = draft_.orderIdentifier;
        order.filename = draft_.fileName;
        return order;
    }
    void post(const Order& order, Completion<Answer> done, const QByteArray& key) override {
        keys.push_back(key);
        keyWasSafe.push_back(std::ranges::any_of(
            draft_.safe, [&](const UnansweredSend& send) { return send.key == key.toStdString(); }));
        network_.createTextileOrder(order, std::move(done), key);
    }
    SendContent contentOf(OrderRequestType type, const Order& order) const override {
        Order bare = order;
        bare.orderIdentifier.reset();
        bare.filename.reset();
        return {type, *json::encode(bare)};
    }
    UnansweredSends& unansweredSends() override { return draft_.unansweredSends; }
    void keepSafe() override { draft_.safe = draft_.unansweredSends; }
    OrderAnswer read(const Answer& answer) const override {
        const auto url = [](const std::optional<Url>& each) {
            return each ? std::optional(QUrl(QString::fromStdString(each->text))) : std::nullopt;
        };
        return {answer.urlOrder.has_value(), url(answer.urlPDF),
                QStringLiteral("Pedido realizado correctamente.")};
    }
    void takeSent(const Answer& answer) override {
        draft_.sentTo = QUrl(QString::fromStdString(answer.urlOrder->text));
    }
    Order keep(Order order, const UnansweredSends&) const override { return order; }
    std::optional<std::string>& fileName() override { return draft_.fileName; }
    void takeSaved(const Answer& answer) override { draft_.orderIdentifier = answer.orderId; }
    void beginAnotherOrder() override { draft_.sentTo.reset(); }
    bool asksToOverwrite(const std::string& name) override { return draft_.fileName != name; }

private:
    ShirtDraft& draft_;
    ServiceOperations& network_;
};

// A section without files, whose answer says nothing of where the order is.
class PosterRoad : public OrderRoadOf<PromotionOrder, GenericOrderResponse> {
public:
    explicit PosterRoad(const OrderRoadServices& services)
        : OrderRoadOf(services, textsOfPosters())
        , network_(services.network) {}

protected:
    static OrderTexts textsOfPosters() {
        OrderTexts texts;
        texts.failedTitle.print = QStringLiteral("El pedido no se puede generar");
        texts.sentTitle.clear();
        return texts;
    }
    std::vector<std::string> missing() const override { return {}; }
    PromotionOrder make(OrderRequestType type) const override {
        PromotionOrder order;
        order.save = type == OrderRequestType::sendToPrint;
        return order;
    }
    void post(const PromotionOrder& order, Completion<GenericOrderResponse> done,
              const QByteArray&) override {
        network_.promotionOrderSend(order, std::move(done));
    }
    SendContent contentOf(OrderRequestType type, const PromotionOrder& order) const override {
        return {type, *json::encode(order)};
    }
    UnansweredSends& unansweredSends() override { return sends_; }
    void keepSafe() override {}
    OrderAnswer read(const GenericOrderResponse&) const override {
        return {true, std::nullopt, QStringLiteral("Pedido realizado correctamente")};
    }
    void takeSent(const GenericOrderResponse&) override {}

private:
    ServiceOperations& network_;
    UnansweredSends sends_;
};

class OrderRoadTest : public ::testing::Test {
protected:
    TemporaryFolder folder;
    FakeServices network;
    AlertPresenter alerts;
    RecordingUrlOpener urls;
    OrderDiskManager orders{folder.path()};
    BackgroundWorkEnd backgroundWork;
    ShirtDraft draft{"Bar Olmo", {}, {}, {}, {}, {}};
    ShirtRoad road{{network, alerts, urls}, orders, draft};
    QUrl document;
    bool veil = false;
    NotificationCenter::Subscription observer = NotificationCenter::shared().observe(
        notification::visibilityVeilView,
        [this](const NotificationInfo& info) { veil = std::get<bool>(info.at("show")); });

    void SetUp() override {
        QObject::connect(&road, &OrderRoad::documentReady, [this](const QUrl& url) { document = url; });
    }
    auto& requests() { return network.requests.createTextileOrder; }
    bool press(const char* button, const QString& typed = {}) {
        return kavor::press(alerts, QString::fromUtf8(button), typed);
    }
    // What is told next, once the veil is gone.
    std::string told() {
        EXPECT_TRUE(waitFor([this] { return alerts.isVisible() && !veil; }));
        std::string text = shown(alerts);
        press("Aceptar");
        return text;
    }
    void saveAs(const char* name) {
        road.saveAs();
        EXPECT_TRUE(press("Guardar", QString::fromUtf8(name)));
    }
    [[nodiscard]] std::optional<SaveTextileOrder> file(const char* name) const {
        return orders.retrieve<SaveTextileOrder>(name, Directory::draft);
    }
};

TEST_F(OrderRoadTest, WhatIsMissingStopsAnOrderAndADoubtIsAskedAbout) {
    QStringList missing;
    QObject::connect(&road, &OrderRoad::checked, [&](const QStringList& sentences) { missing = sentences; });
    draft.text.clear();
    road.sendToPrint();
    EXPECT_EQ(told(), "Pedido incompleto | Falta el texto\nFalta la talla");
    EXPECT_EQ(missing.size(), 2);
    draft.text = "?";
    road.preview();
    EXPECT_TRUE(missing.isEmpty());
    EXPECT_EQ(shown(alerts), "¿Seguro? | Texto raro");
    press("Corregir");
    EXPECT_TRUE(requests().calls.empty());
    road.preview();
    press("Continuar");
    EXPECT_EQ(std::get<0>(requests().calls.at(0)).save, OrderRequestType::sendPreview);
    draft.text.clear();
    saveAs("a medias"); // an unfinished draft may be kept
    EXPECT_TRUE(waitFor([&] { return requests().calls.size() == 2; }));
}

TEST_F(OrderRoadTest, AnAnswerEndsAsItsRequestSays) {
    SaveTextileOrderResponse answer;
    road.sendToPrint();
    EXPECT_TRUE(veil);
    requests().succeed(answer);
    EXPECT_EQ(told(), "Error | No hay url para ver el pedido realizado. Contacte con soporte.");
    road.preview();
    requests().succeed(answer);
    EXPECT_EQ(told(), "Error | No hay url que previsualizar. Contacte con soporte.");
    road.preview();
    requests().fail(failureWith({"motivo"}));
    EXPECT_EQ(told(), "El pedido no se puede previsualizar | motivo");
    answer.urlPDF = Url{"http://server.example/a.pdf"};
    road.preview();
    requests().succeed(answer);
    EXPECT_EQ(document, QUrl("http://server.example/a.pdf"));
    answer.urlOrder = Url{"http://server.example/order/1"};
    road.sendToPrint();
    requests().succeed(answer);
    EXPECT_EQ(told(), "Éxito | Pedido realizado correctamente.");
    const auto sent = requests().calls.size();
    road.sendToPrint(); // shows the order and sends nothing
    EXPECT_EQ(urls.opened, QStringList{"http://server.example/order/1"});
    EXPECT_EQ(requests().calls.size(), sent);
}

TEST_F(OrderRoadTest, AKeyIsSafeBeforeItsRequestAndKeptUntilAnAnswerComes) {
    road.sendToPrint();
    requests().fail(lostAnswer());
    road.sendToPrint();
    NotificationCenter::shared().post(notification::veilViewLeft); // the late answer is not heard
    EXPECT_FALSE(veil);
    SaveTextileOrderResponse answer;
    answer.urlOrder = Url{"http://server.example/order/1"};
    requests().succeed(answer);
    EXPECT_FALSE(draft.sentTo);
    road.sendToPrint();
    requests().succeed({}); // taken, but nobody says where it is
    road.sendToPrint();
    EXPECT_EQ(std::set<QByteArray>(road.keys.begin(), road.keys.end()).size(), 1U);
    requests().fail(failureWith({"no"}));
    EXPECT_TRUE(draft.safe.empty());
    road.sendToPrint();
    EXPECT_NE(road.keys.back(), road.keys.front());
    EXPECT_EQ(road.keyWasSafe, std::vector<bool>(road.keys.size(), true));
}

TEST_F(OrderRoadTest, OfflineEachOrderWaitsOnceInTheOutboxAndIsStillItselfWhenTheNetworkIsBack) {
    network.reachable = false;
    const auto tap = [&](const char* text) {
        draft.text = text;
        road.sendToPrint();
        return told();
    };
    EXPECT_EQ(tap("uno"), "Sin conexión a internet. | En borradores: \"Sin enviar\"");
    EXPECT_EQ(tap("dos"), "Sin conexión a internet. | En borradores: \"Sin enviar(1)\"");
    EXPECT_EQ(tap("uno"), "Sin conexión a internet. | Su pedido ya está en borradores con el nombre \"Sin "
                          "enviar\", pendiente de envío.");
    EXPECT_EQ(orders.list<SaveTextileOrder>(Directory::outbox).size(), 2U);
    road.preview();
    EXPECT_EQ(told(), "Error | No hay conexión a internet.");
    EXPECT_TRUE(requests().calls.empty());
    network.reachable = true;
    road.sendToPrint();
    const auto kept = orders.retrieve<SaveTextileOrder>("Sin enviar.zvo", Directory::outbox);
    const auto moment = orders.moment<SaveTextileOrder>("Sin enviar.zvo", Directory::outbox);
    EXPECT_EQ(road.keys.back(), send_intent::keyOfFile(*kept, Directory::outbox, "Sin enviar.zvo", *moment));
}

TEST_F(OrderRoadTest, ADraftIsKeptUnderANameThatCanBeAFileAndThenInTheCloud) {
    saveAs("terraza 1/2");
    EXPECT_EQ(told(), "Atención | El nombre no puede llevar el signo \"/\".");
    EXPECT_EQ(alerts.current()->textField->initialText, "terraza 1/2");
    press("Guardar", "   ");
    EXPECT_EQ(told(), "Atención | El nombre no puede estar vacío.");
    press("Guardar", " camisetas ");
    EXPECT_TRUE(veil);
    ASSERT_TRUE(waitFor([&] { return requests().waiting() == 1; }));
    EXPECT_EQ(draft.fileName, "camisetas");
    EXPECT_EQ(file("camisetas.zvo")->orderInformation.message, "Bar Olmo");
    SaveTextileOrderResponse answer;
    answer.orderId = 41;
    requests().succeed(answer);
    EXPECT_EQ(told(), "Pedido guardado | El pedido se encuentra guardado en local y sincronizado");
    EXPECT_TRUE(waitFor([&] { return file("camisetas.zvo")->orderIdentifier == 41; }));
    network.reachable = false;
    saveAs("camisetas");
    EXPECT_EQ(told(), "Guardado sólo localmente | Su pedido se encuentra guardado en local, pero no se ha "
                      "podido sincronizar.");
}

TEST_F(OrderRoadTest, AFileIsWrittenOverWhenTheUserOrItsSectionSaysSo) {
    SaveTextileOrder other;
    other.orderInformation.message = "ajeno";
    ASSERT_TRUE(orders.create(other, Directory::draft, "ajeno"));
    const auto text = [&](const char* name) { return file(name)->orderInformation.message; };
    saveAs("ajeno");
    EXPECT_EQ(shown(alerts), "Atención | Ya existe un archivo con ese nombre. ¿desea sobrescribirlo?");
    press("No");
    EXPECT_FALSE(draft.fileName);
    EXPECT_EQ(text("ajeno.zvo"), "ajeno");
    saveAs("ajeno");
    press("Sí");
    EXPECT_TRUE(waitFor([&] { return requests().fail(failureWith({"motivo"})); }));
    EXPECT_EQ(told(), "El pedido no se puede sincronizar | motivo");
    EXPECT_EQ(text("ajeno.zvo"), "Bar Olmo");
    draft.text = "Bar Pino";
    saveAs("ajeno"); // the draft's own by now
    EXPECT_TRUE(waitFor([&] { return requests().fail(failureWith({"motivo"})); }));
    EXPECT_EQ(text("ajeno.zvo"), "Bar Pino");
}

TEST_F(OrderRoadTest, AFileThatCannotBeWrittenLeavesTheDraftItsFormerName) {
    draft.fileName = "camisetas";
    std::filesystem::remove_all(folder / "orders");
    saveAs("otra");
    EXPECT_EQ(told(), "Guardar pedido. | No se ha podido guardar su pedido.");
    EXPECT_EQ(draft.fileName, "camisetas");
    saveAs("camisetas");
    EXPECT_EQ(told(), "Guardar pedido. | No se ha podido actualizar el pedido guardado.");
    network.reachable = false;
    road.sendToPrint();
    EXPECT_EQ(told(), "Sin conexión a internet. | Su pedido no se ha podido guardar");
    EXPECT_TRUE(requests().calls.empty());
}

TEST_F(OrderRoadTest, AnOrderThatWasSentIsKeptAsAnotherOneOnlyIfTheUserSaysSo) {
    int others = 0;
    QObject::connect(&road, &OrderRoad::anotherOrderBegun, [&] { ++others; });
    draft.sentTo = QUrl("http://server.example/order/1");
    road.saveAs();
    EXPECT_EQ(shown(alerts), "Atención | Este pedido ya se ha realizado. ¿Desea hacer otro a partir de él?");
    press("No");
    EXPECT_FALSE(alerts.isVisible());
    EXPECT_EQ(others, 0);
    road.saveAs();
    press("Sí");
    EXPECT_FALSE(draft.sentTo);
    EXPECT_EQ(others, 1);
    EXPECT_EQ(alerts.title(), "Guardar como");
}

TEST_F(OrderRoadTest, ARecordWithoutFilesNeedsTheNetworkAndIsSentWhenItsSectionSaysSo) {
    PosterRoad posters({network, alerts, urls});
    auto& sends = network.requests.promotionOrderSend;
    network.reachable = false;
    posters.sendToPrint();
    EXPECT_EQ(told(), "Error | No hay conexión a internet.");
    network.reachable = true;
    posters.sendToPrint();
    sends.fail(failureWith({"motivo"}));
    EXPECT_EQ(told(), "El pedido no se puede generar | motivo");
    posters.sendToPrint();
    EXPECT_TRUE(std::get<0>(sends.calls.back()).save);
    sends.succeed({});
    EXPECT_EQ(told(), " | Pedido realizado correctamente");
    posters.sendToPrint(); // the form stays open, and the next one is an order of its own
    EXPECT_EQ(sends.calls.size(), 3U);
}

} // namespace
} // namespace kavor
