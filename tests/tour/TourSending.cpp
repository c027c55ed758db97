#include "brochures/engine/SaveBrochuresOrder.h"
#include "interaction/AlertPresenter.h"
#include "kavor/KavorApplication.h"
#include "orders/OrderDiskManager.h"
#include "robust/OwnMounts.h"
#include "session/AppSingleton.h"
#include "tour/Tour.h"
#include "tour/TourSupport.h"

#include <QJsonObject>

#include <set>

// The part of the tour that sends what was ordered without a network.
namespace kavor {

namespace {

constexpr int configurationEntry = 1;
constexpr int sendEntry = 8;

const QString outbox = QStringLiteral("outbox");
const QString firstFile = QStringLiteral("Sin enviar");

QJsonObject customerOf(const QJsonValue& order) {
    return order[QLatin1String("body")][QLatin1String("menu")][QLatin1String("customer")].toObject();
}

std::filesystem::path outboxFolder() {
    return AppSingleton::shared().documentsFolder() / "orders" / "outbox_orders" / "SaveBrochuresOrder";
}

} // namespace

std::vector<Tour::Step> Tour::sendingSteps() const {
    switch (options_.story) {
    case Story::SendAndDie:
        return {{"inicio", &Tour::start},
                {"clave", &Tour::startWithWrongPassword},
                {"entrada", &Tour::logIn},
                {"panel", &Tour::showDashboard},
                {"sin-red", &Tour::queueOne},
                {"lista", &Tour::openWaiting},
                {"muerte", &Tour::dieBeforeTheAnswer}};
    case Story::ReadOnlyOutbox:
        return {{"inicio", &Tour::startAgain},
                {"lista", &Tour::openWaiting},
                {"solo-lectura", &Tour::sendOutOfReadOnly}};
    default:
        return {
            {"inicio", &Tour::startAgain}, {"lista", &Tour::openWaiting}, {"otra-vez", &Tour::sendOnceMore}};
    }
}

// ---- Three orders, one of which the server refuses

void Tour::sendThree() {
    struct Bar {
        const char* name;
        const char* email;
    };
    constexpr Bar bars[] = {{"Bar La Veleta", "hola@veleta.example"},
                            {"Bar El Candado", "hola.candado.example"}, // cannot be one
                            {"Café del Puerto", "hola@puerto.example"}};
    const auto before = printedOrders().size();
    touch_->tap(QStringLiteral("backButton"));
    openBeerMenu();
    for (const Bar& bar : bars) {
        if (&bar == bars) {
            fillMenuOffline(QString::fromUtf8(bar.name), QString::fromUtf8(bar.email));
        } else { // the same menu for another bar
            openStep(configurationEntry);
            touch_->type(QStringLiteral("establishmentNameTextField"), QString::fromUtf8(bar.name));
            touch_->type(QStringLiteral("contactEmailTextField"), QString::fromUtf8(bar.email));
        }
        orderIntoOutbox();
        touch_->tap(QStringLiteral("alertButton0"));
    }
    touch_->tap(QStringLiteral("backButton"));
    must(printedOrders().size() == before, QStringLiteral("nothing reached the server"));

    openWaiting();
    shot(QStringLiteral("tres-esperan"));
    touch_->tap(QStringLiteral("sendAllButton"));
    dismissAlert(QStringLiteral("Incidencia"), QStringLiteral("Se han enviado 2 de 3 pedidos."));
    touch_->awaitGone(QStringLiteral("veloView"));
    const QString refused = savedRow(outbox, QStringLiteral("Sin enviar(1)"));
    const QString reason = QStringLiteral("«hola.candado.example» no es una dirección de correo.");
    touch_->waitUntil(QStringLiteral("the refusal under its row"), [&] {
        return touch_->isShown(refused + QStringLiteral("|refusal")) &&
               touch_->text(refused + QStringLiteral("|refusal")) == reason;
    });
    must(printedOrders().size() == before + 2, QStringLiteral("two orders at the server"));
    must(!touch_->isShown(savedRow(outbox, firstFile)), QStringLiteral("what was sent left the outbox"));
    shot(QStringLiteral("pedido-rechazado"));

    touch_->tap(refused + QStringLiteral("|sendButton"));
    dismissAlert(QStringLiteral("Incidencia"),
                 QStringLiteral("El pedido no se puede realizar")); // its first button: "Editar pedido"
    touch_->await(QStringLiteral("contactEmailTextField"));
    must(touch_->text(QStringLiteral("establishmentNameTextField")) == QLatin1String(bars[1].name),
         QStringLiteral("the refused order is open"));
    touch_->type(QStringLiteral("contactEmailTextField"), QStringLiteral("hola@candado.example"));
    openStep(sendEntry);
    touch_->tap(QStringLiteral("makeOrderButton"));
    dismissAlert(QStringLiteral("Éxito"), {});
    touch_->tap(QStringLiteral("backButton"));
    touch_->awaitGone(refused);
    touch_->awaitGone(QStringLiteral("veloView"));
    touch_->awaitGone(QStringLiteral("sendAllButton"));

    std::multiset<QString> sent;
    for (const auto& order : printedOrders()) {
        sent.insert(customerOf(order)[QLatin1String("name")].toString());
        must(customerOf(order)[QLatin1String("email")].toString().contains(QLatin1Char('@')),
             QStringLiteral("the corrected one"));
    }
    std::multiset<QString> wanted;
    for (const Bar& bar : bars)
        wanted.insert(QString::fromUtf8(bar.name));
    must(sent == wanted, QStringLiteral("each of the three once at the server"));
}

// ---- One order, and whatever breaks off

void Tour::queueOne() {
    openBeerMenu();
    fillMenuOffline(QStringLiteral("Bar La Cantera Nueva"), QStringLiteral("nuria@cantera.example"));
    orderIntoOutbox();
    touch_->tap(QStringLiteral("alertButton0"));
    touch_->tap(QStringLiteral("backButton"));
}

// The list with what waits, with a network.
void Tour::openWaiting() {
    application_->setOffline(false);
    touch_->tap(QStringLiteral("unsentOrders"));
    touch_->await(savedRow(outbox, firstFile, QStringLiteral("sendButton")));
    touch_->await(QStringLiteral("sentOrdersTable|copyOrderButton"));
    touch_->awaitGone(QStringLiteral("veloView"));
}

// The server has the order, and its answer is still to come.
void Tour::dieBeforeTheAnswer() {
    server_->post(QStringLiteral("/demo/faults"),
                  R"({"path": "/api/orders", "fault": "delay", "after": true, "milliseconds": 3000})");
    touch_->tap(savedRow(outbox, firstFile, QStringLiteral("sendButton")));
    touch_->waitUntil(QStringLiteral("the order at the server"), [&] { return printedOrders().size() == 1; });
    must(!application_->alerts().isVisible(), QStringLiteral("the client does not know"));
}

void Tour::startAgain() {
    openDashboard();
    must(printedOrders().size() == 1, QStringLiteral("the server has the order of the last start"));
}

// Of one who is logged in since the last start.
void Tour::openDashboard() {
    openClient();
    touch_->await(QStringLiteral("notificationsFrameView")); // they come with the catalogue
    touch_->awaitGone(QStringLiteral("progressVeilView"));
    touch_->tap(QStringLiteral("dismissNotificationsButton"));
    touch_->awaitGone(QStringLiteral("notificationsFrameView"));
}

// The answer is lost, it comes the next time, and the file cannot go.
void Tour::sendOutOfReadOnly() {
    must(robust::makeReadOnly(outboxFolder()), QStringLiteral("an outbox that may not be written"));
    const QString send = savedRow(outbox, firstFile, QStringLiteral("sendButton"));
    server_->post(QStringLiteral("/demo/faults"),
                  R"({"path": "/api/orders", "method": "POST", "fault": "close", "after": true})");
    touch_->tap(send);
    dismissAlert(QStringLiteral("Incidencia"), {}, 1);
    must(printedOrders().size() == 1, QStringLiteral("one order after a lost answer"));

    touch_->awaitGone(QStringLiteral("veloView"));
    touch_->tap(send);
    dismissAlert(QStringLiteral("Enviado"), QStringLiteral("pero no se ha podido borrar del dispositivo."));
    touch_->awaitGone(QStringLiteral("veloView"));
    touch_->await(send);
    must(printedOrders().size() == 1, QStringLiteral("one order though its file stays"));
}

void Tour::sendOnceMore() {
    touch_->tap(savedRow(outbox, firstFile, QStringLiteral("sendButton")));
    dismissAlert(QStringLiteral("Enviado"), QStringLiteral("Pedido realizado correctamente."));
    touch_->awaitGone(savedRow(outbox, firstFile));
    must(printedOrders().size() == 1, QStringLiteral("one order at the server"));
    must(std::filesystem::is_empty(outboxFolder()), QStringLiteral("nothing waits any more"));
}

} // namespace kavor
