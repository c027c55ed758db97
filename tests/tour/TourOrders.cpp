#include "catalogue/Catalogue.h"
#include "interaction/AlertPresenter.h"
#include "kavor/KavorApplication.h"
#include "session/AppSingleton.h"
#include "shell/services/AppDelegate.h"
#include "tour/Tour.h"
#include "tour/TourSupport.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRegularExpression>

// The part of the tour that follows what became of the orders.
namespace kavor {

namespace {

const QString attention = QStringLiteral("Atención");

} // namespace

QString Tour::savedRow(const QString& folder, const QString& name, const QString& part) {
    const QString row = QStringLiteral("savedOrderbrochure/%1/%2").arg(folder, name);
    return part.isEmpty() ? row : row + QLatin1Char('|') + part;
}

QJsonArray Tour::printedOrders() const {
    QJsonArray printed;
    for (const auto& order : QJsonDocument::fromJson(server_->get(QStringLiteral("/demo/orders"))).array()) {
        if (order.toObject()[QLatin1String("body")].toObject()[QLatin1String("save")].toInt() == 1)
            printed.append(order);
    }
    return printed;
}

// Only what is on the device, and nothing is asked of the server.
void Tour::showOrdersOffline() {
    touch_->tap(QStringLiteral("unsentOrders"));
    dismissAlert(attention, QStringLiteral("Sólo se muestran pedidos guardados localmente."));
    touch_->await(savedRow(QStringLiteral("outbox"), QStringLiteral("Sin enviar")));
    must(!touch_->isShown(QStringLiteral("sentOrdersTable|copyOrderButton")),
         QStringLiteral("no order of the server is listed"));
    shot(QStringLiteral("pedidos-sin-conexion"));
    touch_->tap(QStringLiteral("openHelp"));
    touch_->await(QStringLiteral("syncHelpView"));
    shot(QStringLiteral("ayuda-estados"));
    touch_->tap(QStringLiteral("hideNotifications"));
    touch_->awaitGone(QStringLiteral("syncHelpView"));
}

// The network is back: a line says what waits, and the server's orders join.
void Tour::showOrders() {
    application_->setOffline(false);
    touch_->await(QStringLiteral("noticeSendAll"));
    touch_->tap(QStringLiteral("refreshOrders"));
    touch_->await(QStringLiteral("sentOrdersTable|copyOrderButton"));
    touch_->awaitGone(QStringLiteral("veloView"));
    shot(QStringLiteral("pedidos"));
    touch_->type(QStringLiteral("localNameSearch"), QStringLiteral("zzz"));
    touch_->tap(QStringLiteral("searchButton"));
    touch_->await(QStringLiteral("filterpdv"));
    touch_->waitUntil(QStringLiteral("an empty answer"), [&] {
        return !touch_->isShown(QStringLiteral("sentOrdersTable|copyOrderButton")) &&
               touch_->allTexts().contains(QStringLiteral("No hay pedidos enviados con este filtro."));
    });
    shot(QStringLiteral("busqueda-vacia"));
    touch_->tap(QStringLiteral("filterpdv"));
    touch_->await(QStringLiteral("sentOrdersTable|copyOrderButton"));
    touch_->tap(QStringLiteral("withoutConfirmButton"));
    touch_->await(QStringLiteral("filterquick"));
    touch_->tap(QStringLiteral("filterquick"));
    touch_->awaitGone(QStringLiteral("filterquick"));
}

// The row of an order in the cloud, as the server has it.
QString Tour::cloudRow(const QJsonObject& record) {
    return QStringLiteral("savedOrderbrochure %1 #%2")
        .arg(record[QLatin1String("type")].toInt())
        .arg(record[QLatin1String("id")].toInteger());
}

// An order that is only in the cloud is opened, kept under its name and stands in both places afterwards.
void Tour::editCloudOrder() {
    const QString name = QStringLiteral("Bar. La Nube");
    QString row;
    touch_->waitUntil(QStringLiteral("the cloud order"), [&] {
        for (const auto& order :
             QJsonDocument::fromJson(server_->get(QStringLiteral("/demo/orders?all=1"))).array()) {
            const QJsonObject record = order.toObject();
            if (record[QLatin1String("filename")].toString() == name)
                row = cloudRow(record);
        }
        return !row.isEmpty();
    });
    const QString count = touch_->text(QStringLiteral("savedCount"));
    touch_->tap(row + QStringLiteral("|editButton"));
    dismissAlert(attention, QStringLiteral("¿Deseas editar el pedido"), 1);
    touch_->await(QStringLiteral("menuEntry8"));
    touch_->settle();
    if (application_->alerts().isVisible()) // what left the catalogue
        touch_->tap(QStringLiteral("alertButton0"));
    openStep(8);
    shot(QStringLiteral("pedido-de-la-nube"));
    touch_->tap(QStringLiteral("saveOrderAction"));
    dismissAlert(QStringLiteral("Guardar como"), {});
    dismissAlert(QStringLiteral("Pedido guardado"), QStringLiteral("sincronizado"));
    touch_->tap(QStringLiteral("backButton"));
    touch_->await(savedRow(QStringLiteral("draft"), name, QStringLiteral("editButton")));
    touch_->waitUntil(QStringLiteral("the order in both places"),
                      [&] { return touch_->allTexts().contains(QStringLiteral("Sincronizado")); });
    touch_->awaitGone(QStringLiteral("veloView"));
    must(touch_->text(QStringLiteral("savedCount")) == count, QStringLiteral("one order is one row"));
}

// A copy is a draft of the device; deleted, it comes back as it was.
void Tour::copyAndDelete() {
    touch_->tap(QStringLiteral("sentOrdersTable|copyOrderButton"));
    touch_->waitUntil(QStringLiteral("the question for a name"),
                      [&] { return application_->alerts().hasTextField(); });
    touch_->type(QStringLiteral("alertTextField"), QStringLiteral("Copia para el martes"));
    touch_->tap(QStringLiteral("alertButton0"));
    dismissAlert(QStringLiteral("Copiar pedido."), QStringLiteral("Su pedido ha sido copiado en local."));
    const QString copy = savedRow(QStringLiteral("draft"), QStringLiteral("Copia para el martes"));
    touch_->await(copy);
    shot(QStringLiteral("cuatro-estados"));
    touch_->tap(copy + QStringLiteral("|deleteButton"));
    dismissAlert(attention, QStringLiteral("¿Desea eliminar el pedido en borrador?"), 1);
    touch_->awaitGone(copy);
    shot(QStringLiteral("deshacer"));
    touch_->tap(QStringLiteral("undoDelete"));
    touch_->await(copy);
}

// What was ordered without a network is ordered once.
void Tour::sendWaiting() {
    const auto before = printedOrders().size();
    touch_->tap(QStringLiteral("noticeSendAll"));
    dismissAlert(QStringLiteral("Enviado"), QStringLiteral("Pedido realizado correctamente."));
    touch_->awaitGone(savedRow(QStringLiteral("outbox"), QStringLiteral("Sin enviar")));
    must(printedOrders().size() == before + 1, QStringLiteral("one order more at the server"));
}

void Tour::claimAndDemand() {
    touch_->awaitGone(QStringLiteral("veloView"));
    touch_->tap(QStringLiteral("sentOrdersTable|orderTypeLabel"));
    touch_->await(QStringLiteral("sheetClaim"));
    shot(QStringLiteral("pedido-enviado"));
    touch_->tap(QStringLiteral("sheetClaim"));
    touch_->await(QStringLiteral("claimOrderView"));
    touch_->type(QStringLiteral("commentText"), QStringLiteral("Las cartas han llegado dobladas."));
    shot(QStringLiteral("reclamacion"));
    touch_->tap(QStringLiteral("sendClaimButton"));
    dismissAlert(QStringLiteral("Reclamación"), QStringLiteral("reclamación"));
    touch_->await(QStringLiteral("allOrdersView"));
    touch_->awaitGone(QStringLiteral("veloView"));
    touch_->tap(QStringLiteral("sentOrdersTable|demandQrOrderButton"));
    touch_->await(QStringLiteral("demandBrandQrView"));
    chooseFirst(QStringLiteral("brandQrQuantityTablePicker"), 1);
    shot(QStringLiteral("material-qr"));
    touch_->tap(QStringLiteral("sendDemandButton"));
    dismissAlert(QStringLiteral("Material QR"), {});
    const Int wanted =
        AppSingleton::shared().catalogue().information().validations.lstMenuQrTableQuantity.front();
    must(QString::fromUtf8(server_->get(QStringLiteral("/demo/requests")))
             .contains(QRegularExpression(QStringLiteral("\"quantity_qr\": ?\"?%1\\b").arg(wanted))),
         QStringLiteral("the quantity on the wire"));
    touch_->await(QStringLiteral("allOrdersView"));
    touch_->awaitGone(QStringLiteral("veloView"));
    touch_->tap(QStringLiteral("backButton"));
    touch_->await(QStringLiteral("welcomeView"));
}

void Tour::showTutorials() {
    touch_->tap(QStringLiteral("tutorialsButton"));
    touch_->await(QStringLiteral("film0"));
    shot(QStringLiteral("tutoriales"));
    touch_->tap(QStringLiteral("film0"));
    touch_->await(QStringLiteral("filmPanel"));
    touch_->waitUntil(QStringLiteral("the film to run"), [&] {
        return touch_->isShown(QStringLiteral("filmTime")) &&
               touch_->text(QStringLiteral("filmTime")).startsWith(QStringLiteral("0:01"));
    });
    touch_->tap(QStringLiteral("playFilm"));
    shot(QStringLiteral("pelicula"));
    touch_->tap(QStringLiteral("backButton"));
    touch_->tap(QStringLiteral("backButton"));
    touch_->await(QStringLiteral("welcomeView"));
}

// ---- The corners of the list

// Nothing on the device and no network: the word, and no request.
void Tour::openEmptyList() {
    application_->setOffline(true);
    touch_->tap(QStringLiteral("allOrdersButton"));
    dismissAlert(attention, QStringLiteral("Sólo se muestran pedidos guardados localmente."));
    touch_->await(QStringLiteral("savedOrdersTableEmpty"));
    shot(QStringLiteral("lista-vacia"));
    must(!server_->get(QStringLiteral("/demo/requests")).contains("/api/orders/list"),
         QStringLiteral("nothing was asked"));
    application_->setOffline(false);
    touch_->tap(QStringLiteral("refreshOrders"));
    touch_->await(QStringLiteral("sentOrdersTable|copyOrderButton"));
    touch_->awaitGone(QStringLiteral("veloView"));
}

// The search and each quick filter fail once and are tried again.
void Tour::failFilters() {
    const auto fail = [&] {
        server_->post(QStringLiteral("/demo/faults"),
                      R"({"path": "/api/orders/list", "fault": "status", "status": 500,
                          "body": {"msg": "El servicio no responde. Inténtalo de nuevo."}})");
    };
    const auto lists = [&] {
        return server_->get(QStringLiteral("/demo/requests")).count("/api/orders/list");
    };
    struct Filter {
        const char* button;
        int again; // the place of "Intentar de nuevo" in its alert
    };
    for (const Filter& filter : {Filter{"searchButton", 1},
                                 {"withoutConfirmButton", 1},
                                 {"withoutCompleteButton", 0},
                                 {"withoutFilterButton", 0}}) {
        const bool isSearch = QLatin1String(filter.button) == QLatin1String("searchButton");
        if (isSearch)
            touch_->type(QStringLiteral("localNameSearch"), QStringLiteral("bar"));
        fail();
        touch_->tap(QLatin1String(filter.button));
        touch_->waitUntil(QStringLiteral("the failure"), [&] { return application_->alerts().isVisible(); });
        if (QLatin1String(filter.button) == QLatin1String("withoutCompleteButton"))
            shot(QStringLiteral("filtro-fallido"));
        dismissAlert(QStringLiteral("Incidencia"), {}, filter.again);
        touch_->await(isSearch ? QStringLiteral("filterpdv") : QStringLiteral("filterquick"));
        touch_->awaitGone(QStringLiteral("veloView"));
        const auto asked = lists();
        touch_->tap(isSearch ? QStringLiteral("filterpdv") : QStringLiteral("filterquick"));
        touch_->awaitGone(isSearch ? QStringLiteral("filterpdv") : QStringLiteral("filterquick"));
        touch_->waitUntil(QStringLiteral("the whole list again"), [&] { return lists() > asked; });
        touch_->awaitGone(QStringLiteral("veloView"));
    }
}

// What the server no longer lists is on the device alone; the next answer joins it again.
void Tour::keepInBothPlaces() {
    server_->post(QStringLiteral("/demo/next-list"), R"({"resumen": {}, "pedidos": []})");
    touch_->tap(QStringLiteral("refreshOrders"));
    touch_->waitUntil(QStringLiteral("the order on the device alone"),
                      [&] { return touch_->text(QStringLiteral("savedCount")) == QLatin1String("1"); });
    must(touch_->allTexts().contains(QStringLiteral("Guardado local")), touch_->allTexts());
    touch_->awaitGone(QStringLiteral("veloView"));
    touch_->tap(QStringLiteral("refreshOrders"));
    touch_->waitUntil(QStringLiteral("the order in both places"),
                      [&] { return touch_->allTexts().contains(QStringLiteral("Sincronizado")); });
    touch_->awaitGone(QStringLiteral("veloView"));
}

// Opens a draft of the device in the wizard, and comes back to its row.
void Tour::editFromTheDevice(const QString& name) {
    touch_->tap(savedRow(QStringLiteral("draft"), name, QStringLiteral("editButton")));
    dismissAlert(attention, QStringLiteral("¿Deseas editar el pedido"), 1);
    touch_->await(QStringLiteral("menuEntry8"));
    touch_->settle();
    if (application_->alerts().isVisible()) // what left the catalogue
        touch_->tap(QStringLiteral("alertButton0"));
    touch_->tap(QStringLiteral("backButton"));
    touch_->await(savedRow(QStringLiteral("draft"), name));
    touch_->awaitGone(QStringLiteral("veloView"));
}

// A draft that the server has in an older version asks which one is meant.
void Tour::changeOffline() {
    const QString name = QStringLiteral("Bar. La Nube");
    const QString edit = savedRow(QStringLiteral("draft"), name, QStringLiteral("editButton"));
    touch_->tap(edit);
    dismissAlert(attention, QStringLiteral("¿Deseas editar el pedido"), 1);
    touch_->await(QStringLiteral("menuEntry8"));
    touch_->settle();
    if (application_->alerts().isVisible())
        touch_->tap(QStringLiteral("alertButton0"));
    application_->setOffline(true);
    touch_->type(QStringLiteral("contactNameTextField"), QStringLiteral("Berta Sin Red"));
    openStep(8);
    touch_->tap(QStringLiteral("saveOrderAction"));
    dismissAlert(QStringLiteral("Guardar como"), {});
    dismissAlert(attention, QStringLiteral("Ya existe un archivo con ese nombre."), 1);
    dismissAlert(QStringLiteral("Guardado sólo localmente"), {});
    touch_->tap(QStringLiteral("backButton"));
    dismissAlert(attention, QStringLiteral("Sólo se muestran pedidos guardados localmente."));
    // The upload that waits for the network fails.
    server_->post(QStringLiteral("/demo/faults"),
                  R"({"path": "/api/orders", "fault": "status", "status": 500, "times": 1})");
    application_->setOffline(false);
    touch_->tap(QStringLiteral("refreshOrders"));
    touch_->await(savedRow(QStringLiteral("draft"), name, QStringLiteral("changesMark")));
    touch_->awaitGone(QStringLiteral("veloView"));
    shot(QStringLiteral("cambios-sin-subir"));
    touch_->tap(edit);
    dismissAlert(attention, QStringLiteral("¿Deseas editar el pedido"), 1);
    const QString question = QStringLiteral("¿Qué versión quieres abrir?");
    touch_->waitUntil(question, [&] { return application_->alerts().text() == question; });
    shot(QStringLiteral("que-version"));
    dismissAlert(attention, question, 1);
    touch_->await(QStringLiteral("contactNameTextField"));
    must(touch_->text(QStringLiteral("contactNameTextField")) == QStringLiteral("Berta Sin Red"),
         QStringLiteral("the version of the device"));
    touch_->settle();
    if (application_->alerts().isVisible())
        touch_->tap(QStringLiteral("alertButton0"));
    touch_->tap(QStringLiteral("backButton"));
    touch_->await(edit);
    touch_->awaitGone(QStringLiteral("veloView"));
}

// A draft of the device comes back byte for byte; one in both places goes from both.
void Tour::deleteAndBringBack() {
    const auto folder =
        AppSingleton::shared().documentsFolder() / "orders" / "draft_orders" / "SaveBrochuresOrder";
    const auto contentOf = [&](const char* name) {
        QFile file(QString::fromStdString((folder / name).string()));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    copyAndDelete();
    editFromTheDevice(QStringLiteral("Copia para el martes"));
    const QByteArray copy = contentOf("Copia para el martes.zvo");
    const QString row = savedRow(QStringLiteral("draft"), QStringLiteral("Copia para el martes"));
    touch_->tap(row + QStringLiteral("|deleteButton"));
    dismissAlert(attention, QStringLiteral("¿Desea eliminar"), 1);
    touch_->awaitGone(row);
    must(contentOf("Copia para el martes.zvo").isEmpty(), QStringLiteral("the file is gone"));
    touch_->tap(QStringLiteral("undoDelete"));
    touch_->await(row);
    must(!copy.isEmpty() && contentOf("Copia para el martes.zvo") == copy,
         QStringLiteral("the file is back as it was"));

    touch_->tap(
        savedRow(QStringLiteral("draft"), QStringLiteral("Bar. La Nube"), QStringLiteral("deleteButton")));
    dismissAlert(attention, QStringLiteral("¿Desea eliminar"), 1);
    dismissAlert(attention, QStringLiteral("El borrador se ha eliminado en cloud."));
    touch_->awaitGone(QStringLiteral("veloView"));
    must(contentOf("Bar. La Nube.zvo").isEmpty(), QStringLiteral("the file is gone"));
    must(printedOrders().isEmpty(), QStringLiteral("nothing was printed"));
}

// A notification with a wizard open leads to the list, and the menu in work is still there afterwards.
void Tour::tapNotification() {
    touch_->tap(QStringLiteral("backButton"));
    openBeerMenu();
    touch_->type(QStringLiteral("establishmentNameTextField"), QStringLiteral("Bar del Aviso"));
    application_->delegate().didReceiveNotificationResponse(
        QStringLiteral("default"), {{QStringLiteral("orderId"), QVariant::fromValue<qlonglong>(1)}});
    touch_->await(QStringLiteral("allOrdersView"));
    touch_->await(QStringLiteral("sentOrdersTable|copyOrderButton"));
    touch_->awaitGone(QStringLiteral("veloView"));
    touch_->tap(QStringLiteral("backButton"));
    touch_->await(QStringLiteral("welcomeView"));
    openBeerMenu();
    must(touch_->text(QStringLiteral("establishmentNameTextField")) == QStringLiteral("Bar del Aviso"),
         QStringLiteral("the menu in work is still there"));
}

} // namespace kavor
