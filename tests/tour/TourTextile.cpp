#include "interaction/AlertPresenter.h"
#include "kavor/KavorApplication.h"
#include "textile/TextileIntermediateData.h"
#include "tour/Tour.h"
#include "tour/TourSupport.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QQuickItem>

// The part of the tour that orders clothing.
namespace kavor {

namespace {

constexpr int textile = 8; // its ApplicationType
const QString attention = QStringLiteral("Atención");

const TextileIntermediateData& draft() {
    return *TextileIntermediateData::shared();
}

// Places in the section's menu.
constexpr int configurationEntry = 1;
constexpr int garmentsEntry = 2;
constexpr int sendEntry = 3;

} // namespace

void Tour::openTextile() {
    openSection(textile);
    touch_->await(QStringLiteral("textileConfiguration"));
    touch_->tap(QStringLiteral("searchTEVOCode"));
    dismissAlert(attention, QStringLiteral("Debe introducir un código tevo."));
    touch_->type(QStringLiteral("tevoTextField"), QStringLiteral("B0007"));
    touch_->tap(QStringLiteral("searchTEVOCode"));
    touch_->waitUntil(QStringLiteral("the bar of the code"),
                      [] { return draft().customer && draft().customer->name.has_value(); });
    if (!draft().customer->email)
        touch_->type(QStringLiteral("contactEmailTextField"), QStringLiteral("ana@bar.example"));
    if (!draft().customer->telephone)
        touch_->type(QStringLiteral("contactTelephoneTextField"), QStringLiteral("600 000 000"));
    touch_->type(QStringLiteral("customTextTextField"), QStringLiteral("Peña La Higuera"));
    touch_->tap(QStringLiteral("typography1"));
    touch_->waitUntil(QStringLiteral("a typography in the draft"),
                      [] { return draft().typographyIdentifier.has_value(); });
    shot(QStringLiteral("textil-configuracion"));
}

// Each refusal of adding in its turn, then two lines, one of them taken out and brought back.
void Tour::fillTextileCart() {
    openStep(garmentsEntry);
    const auto refused = [this](const char* text) {
        touch_->tap(QStringLiteral("addToCart"));
        dismissAlert(attention, QString::fromUtf8(text));
    };
    refused("No has seleccionado ninguna marca todavía.");
    shot(QStringLiteral("textil-vacio"));
    touch_->tap(QStringLiteral("textileBrand0"));
    refused("No has seleccionado ningún formato todavía.");
    touch_->tap(QStringLiteral("textileFormat0"));
    refused("No has seleccionado ningún color.");
    touch_->tap(QStringLiteral("textileColor0"));
    refused("No hay tallas elegidas.");
    touch_->type(QStringLiteral("sizeFieldM"), QStringLiteral("abc"));
    touch_->tap(QStringLiteral("sizePlusL"));
    must(touch_->text(QStringLiteral("sizeFieldM")) == QLatin1String("0"),
         QStringLiteral("a text that is no number is 0"));
    touch_->type(QStringLiteral("sizeFieldM"), QStringLiteral("5"));
    touch_->tap(QStringLiteral("addToCart"));
    touch_->await(QStringLiteral("cartLine0"));
    shot(QStringLiteral("textil-carrito"));
    touch_->tap(QStringLiteral("textileColor1"));
    touch_->type(QStringLiteral("sizeFieldS"), QStringLiteral("6"));
    touch_->tap(QStringLiteral("addToCart"));
    touch_->await(QStringLiteral("cartLine1"));
    touch_->tap(QStringLiteral("textileBrand1"));
    touch_->tap(QStringLiteral("textileFormat0"));
    touch_->tap(QStringLiteral("textileColor0"));
    touch_->tap(QStringLiteral("sizePlusM"));
    refused("El pedido solamente puede ser de una marca.");
    touch_->swipe(QStringLiteral("cartLine0"), 0, -0.9);
    dismissAlert(attention, QStringLiteral("¿Desea borrar el ítem?"), 1);
    touch_->awaitGone(QStringLiteral("cartLine1"));
    shot(QStringLiteral("textil-deshacer"));
    touch_->tap(QStringLiteral("undoDelete"));
    touch_->await(QStringLiteral("cartLine1"));
    must(draft().totalUnits() == 12, QStringLiteral("twelve units in the cart"));
}

// After a kill the cart, the text and the bar are back, and a word says so.
void Tour::findCartAgain() {
    openSection(textile);
    touch_->waitUntil(QStringLiteral("the word of its return"), [&] {
        return touch_->allTexts().contains(QStringLiteral("Se ha recuperado el pedido de textil en curso"));
    });
    openStep(sendEntry);
    touch_->await(QStringLiteral("sendItem1"));
    must(touch_->allTexts().contains(QStringLiteral("Referencias: 2 unidades: 12")), touch_->allTexts());
    must(draft().customizedText == "Peña La Higuera" && draft().customer->tevo == "B0007",
         QStringLiteral("the text and the bar"));
}

void Tour::previewTextile() {
    openStep(sendEntry);
    touch_->await(QStringLiteral("sendItem1"));
    touch_->await(QStringLiteral("budgetCard"));
    shot(QStringLiteral("textil-enviar"));
    touch_->tap(QStringLiteral("previewOrder"));
    touch_->await(QStringLiteral("webPreview"));
    touch_->waitUntil(QStringLiteral("a page of the document"),
                      [&] { return touch_->allTexts().contains(QStringLiteral("1 / ")); });
    shot(QStringLiteral("textil-vista-previa"));
    touch_->tap(QStringLiteral("dismissPreview"));
    touch_->awaitGone(QStringLiteral("webPreview"));
}

QJsonArray Tour::textileOrders(int save) const {
    QJsonArray found;
    for (const auto& order : QJsonDocument::fromJson(server_->get(QStringLiteral("/demo/orders"))).array()) {
        const QJsonObject body = order.toObject()[QLatin1String("body")].toObject();
        if (body[QLatin1String("order")].toObject().contains(QLatin1String("lines")) &&
            body[QLatin1String("save")].toInt() == save)
            found.append(body);
    }
    return found;
}

// Kept twice, it is one order in the cloud.
void Tour::saveTextileTwice() {
    constexpr int saveCloud = 3;
    for (int times = 0; times < 2; ++times) {
        touch_->tap(QStringLiteral("storeOrderOnDisk"));
        touch_->waitUntil(QStringLiteral("the question for a name"),
                          [&] { return application_->alerts().hasTextField(); });
        touch_->type(QStringLiteral("alertTextField"), QStringLiteral("Camisetas de la peña"));
        touch_->tap(QStringLiteral("alertButton0"));
        dismissAlert(QStringLiteral("Pedido guardado"), QStringLiteral("sincronizado"));
    }
    must(textileOrders(saveCloud).size() == 1, QStringLiteral("one order in the cloud"));
}

// Twice without a network, with another text the second time: the list sends both.
void Tour::printTextileOffline() {
    application_->setOffline(true);
    touch_->tap(QStringLiteral("makeOrderOnServer"));
    dismissAlert(QStringLiteral("Sin conexión a internet."), QStringLiteral("\"Sin enviar\""));
    openStep(configurationEntry);
    touch_->type(QStringLiteral("customTextTextField"), QStringLiteral("Fiestas"));
    openStep(sendEntry);
    touch_->tap(QStringLiteral("makeOrderOnServer"));
    dismissAlert(QStringLiteral("Sin conexión a internet."), QStringLiteral("\"Sin enviar(1)\""));
    shot(QStringLiteral("textil-sin-conexion"));
    touch_->tap(QStringLiteral("backButton"));
    application_->setOffline(false);
    touch_->tap(QStringLiteral("unsentOrders"));
    touch_->await(QStringLiteral("sendAllButton"));
    touch_->awaitGone(QStringLiteral("veloView"));
    shot(QStringLiteral("textil-pedidos"));
    touch_->tap(QStringLiteral("sendAllButton"));
    dismissAlert(QStringLiteral("Enviado"), QStringLiteral("Pedidos realizados correctamente."));
    must(textileOrders(1).size() == 2, QStringLiteral("two printed orders"));
    touch_->awaitGone(QStringLiteral("veloView"));
    touch_->tap(QStringLiteral("backButton"));
}

// The unfinished draft says that it came back; printed, it is done.
void Tour::printTextile() {
    openSection(textile);
    touch_->await(QStringLiteral("textileConfiguration"));
    must(touch_->text(QStringLiteral("customTextTextField|customTextTextField")) == QLatin1String("Fiestas"),
         QStringLiteral("the unfinished text"));
    touch_->type(QStringLiteral("customTextTextField"), QStringLiteral("Bar La Higuera"));
    openStep(sendEntry);
    touch_->tap(QStringLiteral("makeOrderOnServer"));
    dismissAlert(QStringLiteral("Éxito"), QStringLiteral("Pedido realizado correctamente."));
    touch_->await(QStringLiteral("orderSentCard"));
    shot(QStringLiteral("textil-realizado"));
    QJsonObject order;
    for (const auto& printed : textileOrders(1)) {
        const QJsonObject each = printed.toObject()[QLatin1String("order")].toObject();
        if (each[QLatin1String("message")].toString() == QLatin1String("Bar La Higuera"))
            order = each;
    }
    must(order[QLatin1String("lines")].toArray().size() == 3, QStringLiteral("three sizes at the server"));
    touch_->tap(QStringLiteral("backButton"));
    openSection(textile);
    touch_->await(QStringLiteral("textileConfiguration"));
    must(draft().order.empty(), QStringLiteral("a sent order does not come back"));
    touch_->tap(QStringLiteral("backButton"));
}

} // namespace kavor
