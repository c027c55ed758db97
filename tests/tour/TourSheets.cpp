#include "interaction/AlertPresenter.h"
#include "kavor/KavorApplication.h"
#include "tour/PrintedPdf.h"
#include "tour/Tour.h"
#include "tour/TourSupport.h"

#include <QJsonDocument>

#include <algorithm>

// The part of the tour that makes leaflets: selling sheets, from the list to the paper.
namespace kavor {

namespace {

constexpr int sellingSheets = 7; // the application type
const QString drafts = QStringLiteral("draftSheets");
const QString sent = QStringLiteral("sentSheets");

QString rowOf(const QJsonArray& orders, const QString& name, const QString& part) {
    for (const auto& order : orders) {
        if (order[QLatin1String("filename")].toString() == name)
            return QStringLiteral("sheet%1|%2").arg(order[QLatin1String("id")].toInteger()).arg(part);
    }
    throw TouchFailure("no sheet of the name " + name.toStdString());
}

} // namespace

QJsonArray Tour::serverSheets() const {
    QJsonArray sheets;
    for (const auto& order :
         QJsonDocument::fromJson(server_->get(QStringLiteral("/demo/orders?all=1"))).array()) {
        if (order[QLatin1String("kind")].toString() == QLatin1String("sheet"))
            sheets.append(order);
    }
    return sheets;
}

// On a small screen the list shows one of its sections at a time.
void Tour::showSheets(bool ofServer) {
    const QString tab = ofServer ? QStringLiteral("sentTab") : QStringLiteral("draftsTab");
    if (touch_->isShown(tab))
        touch_->tap(tab);
}

// Drafts without a network, then what the server has.
void Tour::listSheets() {
    application_->setOffline(true);
    openSection(sellingSheets);
    dismissAlert(QStringLiteral("Error"), QStringLiteral("No hay conexión a internet."));
    shot(QStringLiteral("hojas-sin-conexion"));
    application_->setOffline(false);
    touch_->tap(QStringLiteral("refreshSheets"));
    touch_->await(sent + QStringLiteral("List|copySheet"));
    touch_->waitUntil(QStringLiteral("a sheet in force and one that is not"), [&] {
        const QString texts = touch_->allTexts();
        return texts.contains(QStringLiteral("vigente")) && texts.contains(QStringLiteral("caducada"));
    });
    shot(QStringLiteral("hojas"));
}

// The one without a document is made one; the copy of the one with a logo takes it along.
void Tour::previewAndCopySheets() {
    const QJsonArray sheets = serverSheets();
    touch_->tap(rowOf(sheets, QStringLiteral("Fiestas del barrio"), QStringLiteral("previewSheet")));
    touch_->await(QStringLiteral("webPreview"));
    touch_->waitUntil(QStringLiteral("its page"),
                      [&] { return touch_->allTexts().contains(QStringLiteral("1 / 1")); });
    touch_->tap(QStringLiteral("dismissPreview"));
    touch_->awaitGone(QStringLiteral("webPreview"));
    touch_->tap(rowOf(sheets, QStringLiteral("Terraza de verano"), QStringLiteral("copySheet")));
    touch_->await(drafts + QStringLiteral("List|sendSheet"));
    must(touch_->allTexts().contains(QStringLiteral("Terraza de verano (copia)")), touch_->allTexts());
    touch_->tap(drafts + QStringLiteral("List|nameLabel"));
    touch_->await(QStringLiteral("imageLogo"));
    touch_->tap(QStringLiteral("backButton"));
    touch_->await(QStringLiteral("sellingSheetList"));
}

void Tour::writeSheet() {
    touch_->tap(QStringLiteral("newSheet"));
    touch_->await(QStringLiteral("sheetDataView"));
    touch_->tap(QStringLiteral("saveSheetAction"));
    dismissAlert(QStringLiteral("Error"), QStringLiteral("El título está vacío."));
    touch_->type(QStringLiteral("sheetNameTextField"), QStringLiteral("Terraza de Bar Haro"));
    touch_->type(QStringLiteral("titleTextField"), QStringLiteral("Verano en Haro"));
    touch_->type(QStringLiteral("subtitleTextField"), QStringLiteral("Del barril a la mesa"));
    touch_->type(QStringLiteral("freeTextField"), QStringLiteral("Hasta fin de existencias"));
    touch_->type(QStringLiteral("emailTextField1"), QStringLiteral("haro@kavor.example"));
    touch_->tap(QStringLiteral("taxesIncludedWarningSwitch"));
    for (const QString& button : {QStringLiteral("startingDate"), QStringLiteral("endingDate")}) {
        touch_->tap(button);
        touch_->await(button + QStringLiteral("SheetMonth"));
        if (button == QLatin1String("endingDate"))
            touch_->key(Qt::Key_PageDown);
        touch_->tap(button + QStringLiteral("SheetDone"));
        touch_->awaitGone(button + QStringLiteral("SheetMonth"));
    }
    shot(QStringLiteral("hoja-datos"));
}

// Three wrong values, a module of two products, and the same again.
void Tour::addModules() {
    touch_->tap(QStringLiteral("modulesAction"));
    touch_->await(QStringLiteral("sheetModulesView"));
    shot(QStringLiteral("hoja-sin-modulos"));
    touch_->tap(QStringLiteral("newModuleAction"));
    touch_->await(QStringLiteral("sheetModuleView"));
    touch_->tap(QStringLiteral("secondaryBottleSwitch"));
    touch_->type(QStringLiteral("primaryProductBoxes"), QStringLiteral("0"));
    touch_->type(QStringLiteral("secondaryProductBoxes"), QStringLiteral("dos"));
    touch_->tap(QStringLiteral("saveModule"));
    dismissAlert(
        QStringLiteral("Información"),
        QStringLiteral("El número de cajas primario no es correcto.\nEl número de cajas secundario no "
                       "es correcto.\nEl precio del módulo no es correcto."));
    touch_->type(QStringLiteral("primaryProductBoxes"), QStringLiteral("2"));
    touch_->type(QStringLiteral("secondaryProductBoxes"), QStringLiteral("1"));
    touch_->tap(QStringLiteral("secondaryProductBrandsThumbnail1"));
    touch_->type(QStringLiteral("modulePrice"), QStringLiteral("74,9"));
    touch_->type(QStringLiteral("moduleReferenceTextField"), QStringLiteral("HV-7"));
    must(touch_->text(QStringLiteral("pricePerBottleTextField")) != QLatin1String("-"),
         QStringLiteral("the price of a bottle"));
    shot(QStringLiteral("hoja-modulo"));
    touch_->tap(QStringLiteral("saveModule"));
    touch_->await(QStringLiteral("singleModule0"));
    touch_->tap(QStringLiteral("singleModule0|duplicateModule"));
    touch_->await(QStringLiteral("singleModule1"));
    touch_->tap(QStringLiteral("singleModule1|duplicateModule"));
    touch_->await(QStringLiteral("singleModule2"));
    touch_->tap(QStringLiteral("singleModule2|removeModule"));
    dismissAlert(QStringLiteral("Atención"), QStringLiteral("¿Desea eliminar el módulo?"), 1);
    touch_->awaitGone(QStringLiteral("singleModule2"));
    shot(QStringLiteral("hoja-modulos"));
    touch_->tap(QStringLiteral("modulesDone"));
    touch_->await(QStringLiteral("modulesAction"));
}

// What was in work comes back by itself, with all that was entered.
void Tour::findSheetAgain() {
    openSection(sellingSheets);
    touch_->await(QStringLiteral("sheetDataView"));
    touch_->waitUntil(QStringLiteral("the word of its return"), [&] {
        return touch_->allTexts().contains(QStringLiteral("Se ha recuperado la hoja en curso"));
    });
    must(touch_->text(QStringLiteral("titleTextField")) == QLatin1String("Verano en Haro"),
         touch_->allTexts());
    must(touch_->allTexts().contains(QStringLiteral("2 módulos")), touch_->allTexts());
    touch_->tap(QStringLiteral("saveSheetAction"));
    touch_->await(drafts + QStringLiteral("List|sendSheet"));
    must(touch_->allTexts().contains(QStringLiteral("Terraza de Bar Haro")), touch_->allTexts());
}

void Tour::previewSheet() {
    touch_->tap(QStringLiteral("previewSheetAction"));
    touch_->await(QStringLiteral("webPreview"));
    touch_->waitUntil(QStringLiteral("both modules on one page"),
                      [&] { return touch_->allTexts().contains(QStringLiteral("1 / 1")); });
    shot(QStringLiteral("hoja-vista-previa"));
    touch_->tap(QStringLiteral("dismissPreview"));
    touch_->awaitGone(QStringLiteral("webPreview"));
    must(server_->get(QStringLiteral("/demo/mails")).trimmed() == "[]",
         QStringLiteral("a preview is mailed to nobody"));
}

// A refusal leaves the draft, a lost answer makes no second sheet.
void Tour::sendSheet() {
    const auto before = serverSheets().size();
    const auto fault = [&](const char* kind) {
        server_->post(QStringLiteral("/demo/faults"), QByteArray(kind));
    };
    fault(R"({"path": "/api/sheets", "fault": "status", "status": 422,
              "body": {"errors": {"date_to": ["La fecha no es válida."]}}})");
    touch_->tap(QStringLiteral("sendSheetAction"));
    dismissAlert(QStringLiteral("El pedido no se puede realizar"), {});
    touch_->await(QStringLiteral("sellingSheetList"));
    must(serverSheets().size() == before, QStringLiteral("no sheet was made"));
    fault(R"({"path": "/api/sheets", "fault": "close", "after": true})");
    touch_->tap(drafts + QStringLiteral("List|sendSheet"));
    dismissAlert(QStringLiteral("El pedido no se puede realizar"), {});
    touch_->tap(drafts + QStringLiteral("List|sendSheet"));
    touch_->waitUntil(QStringLiteral("the word of the server"),
                      [&] { return application_->alerts().isVisible(); });
    shot(QStringLiteral("hoja-enviada"));
    dismissAlert(QStringLiteral("Éxito"), QStringLiteral("Pedido realizado correctamente."));
    must(serverSheets().size() == before + 1, QStringLiteral("one sheet, however often it was sent"));
    touch_->waitUntil(QStringLiteral("the sheet among those that were sent"), [&] {
        showSheets(true);
        return touch_->allTexts().contains(QStringLiteral("Terraza de Bar Haro"));
    });
    shot(QStringLiteral("hojas-realizadas"));
    checkSheet();
}

// What was mailed, and what it says on paper.
void Tour::checkSheet() {
    const QJsonArray mails = QJsonDocument::fromJson(server_->get(QStringLiteral("/demo/mails"))).array();
    must(mails.size() == 1 && mails[0][QLatin1String("to")].toString() == QLatin1String("haro@kavor.example"),
         QStringLiteral("one mail of the sheet"));
    const QByteArray content = server_->get(mails[0][QLatin1String("url_pdf")].toString());
    writeFile(options_.folder + QStringLiteral("/hoja.pdf"), content);
    const PrintedPdf pdf(content);
    for (const char* words : {"Verano en Haro", "Del barril a la mesa", "74,90", "por botella", "HV-7",
                              "Impuestos incluidos", "Hasta fin de existencias"})
        pdf.mustSay(QString::fromUtf8(words));
}

// A server that fails deletes nothing, and a second try does.
void Tour::deleteSheets() {
    const QString row =
        rowOf(serverSheets(), QStringLiteral("Barra de invierno"), QStringLiteral("deleteSheet"));
    const auto before = serverSheets().size();
    showSheets(true);
    server_->post(
        QStringLiteral("/demo/faults"),
        R"({"path": "/api/sheets/delete", "fault": "status", "status": 500, "body": {"msg": "No"}})");
    touch_->tap(row);
    dismissAlert({}, QStringLiteral("¿Desea eliminar el pedido enviado?"), 1);
    dismissAlert(QStringLiteral("Incidencia"),
                 QStringLiteral("No se ha podido cancelar el pedido en servidor."), 1);
    dismissAlert({}, QStringLiteral("Pedido cancelado correctamente"));
    must(serverSheets().size() == before - 1, QStringLiteral("one sheet less at the server"));
    showSheets(false);
    touch_->tap(drafts + QStringLiteral("List|deleteSheet"));
    dismissAlert({}, QStringLiteral("¿Desea eliminar el borrador?"), 1);
    touch_->await(drafts + QStringLiteral("Empty"));
    touch_->tap(QStringLiteral("backButton"));
    touch_->await(QStringLiteral("welcomeView"));
}

} // namespace kavor
