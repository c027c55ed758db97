#include "interaction/AlertPresenter.h"
#include "kavor/KavorApplication.h"
#include "tour/PrintedPdf.h"
#include "tour/Tour.h"
#include "tour/TourSupport.h"

#include <QDate>
#include <QDirIterator>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

// The part of the tour that orders parties.
namespace kavor {

namespace {

constexpr int activationsSection = 9;
constexpr int notice = 10; // of the party at the tap, in days

const QString availability = QStringLiteral("Disponibilidad de fiesta");
const QString bar = QStringLiteral("Bar El Remanso");

QDate firstDay() {
    return QDate::currentDate().addDays(notice);
}

QString monthOf(const QDate& day) {
    QString month = QLocale(QLocale::Spanish, QLocale::Spain).standaloneMonthName(day.month());
    month[0] = month[0].toUpper();
    return QStringLiteral("%1 de %2").arg(month).arg(day.year());
}

QJsonObject lastParty(const DemoServerProcess& server) {
    const QJsonArray orders = QJsonDocument::fromJson(server.get(QStringLiteral("/demo/orders"))).array();
    QJsonObject last;
    for (const auto& order : orders) {
        const QJsonObject record = order.toObject();
        if (record[QLatin1String("kind")] == QLatin1String("activation") &&
            record[QLatin1String("id")].toInteger() > last[QLatin1String("id")].toInteger())
            last = record;
    }
    must(!last.isEmpty(), QStringLiteral("an activation at the server"));
    return last;
}

QJsonObject eventOf(const QJsonObject& order) {
    return order[QLatin1String("body")][QLatin1String("activation")].toObject();
}

} // namespace

void Tour::tapPartyDay(const QDate& day) {
    touch_->await(QStringLiteral("monthTitle"));
    for (int months = 0; months < 12; ++months) {
        const QString shown = touch_->text(QStringLiteral("monthTitle"));
        if (shown == monthOf(day))
            break;
        QDate month = QDate::currentDate();
        while (monthOf(month) != shown)
            month = month.addMonths(1);
        touch_->tap(day < month ? QStringLiteral("formerMonth") : QStringLiteral("nextMonth"));
    }
    touch_->tap(QStringLiteral("partyDay%1").arg(day.day()));
}

void Tour::choosePartyHours(int from, int to) {
    for (const auto& [button, hour] : {std::pair{QStringLiteral("startTimeButton"), from},
                                       std::pair{QStringLiteral("endTimeButton"), to}}) {
        touch_->tap(button);
        touch_->tap(QStringLiteral("hour%1").arg(hour));
        touch_->tap(QStringLiteral("hourSheetSelect"));
        touch_->awaitGone(QStringLiteral("hourSheetSelect"));
    }
}

// Back from the elements or from a form with something in it, which is asked.
void Tour::leaveParty(const QString& view) {
    touch_->tap(QStringLiteral("backButton"));
    dismissAlert(QStringLiteral("Atención"), QStringLiteral("perderá la información"), 1);
    touch_->await(view);
}

void Tour::choosePartyOfBrand() {
    openSection(activationsSection);
    touch_->await(QStringLiteral("brand1"));
    shot(QStringLiteral("marcas"));
    touch_->tap(QStringLiteral("brand1"));
    touch_->await(QStringLiteral("activation1"));
    touch_->awaitGone(QStringLiteral("veilView"));
    touch_->tap(QStringLiteral("nextButton"));
    dismissAlert(QStringLiteral("Atención"), QStringLiteral("Selecciona una de las activaciones."));
    touch_->tap(QStringLiteral("activation1"));
    shot(QStringLiteral("activaciones"));
    touch_->tap(QStringLiteral("nextButton"));
}

void Tour::chooseElements() {
    touch_->await(QStringLiteral("item1"));
    shot(QStringLiteral("elementos"));
    touch_->tap(QStringLiteral("item0"));
    dismissAlert(QStringLiteral("Información"), QStringLiteral("es obligatorio"));
    touch_->tap(QStringLiteral("item1"));
    touch_->tap(QStringLiteral("detailLink"));
    touch_->await(QStringLiteral("webView"));
    shot(QStringLiteral("detalles"));
    touch_->tap(QStringLiteral("dismissPreview"));
    touch_->await(QStringLiteral("nextButton"));
    touch_->tap(QStringLiteral("nextButton"));
    touch_->await(QStringLiteral("partyMonth"));
    shot(QStringLiteral("formulario-vacio"));
}

void Tour::tryPartyDays() {
    tapPartyDay(QDate::currentDate());
    dismissAlert(availability, QStringLiteral("anterior a la actual"));
    tapPartyDay(firstDay().addDays(-1));
    dismissAlert(availability, QStringLiteral("Los días previos para solicitar una fiesta son 10"));
    tapPartyDay(firstDay());
    must(!application_->alerts().isVisible(), QStringLiteral("the day of the notice is taken"));
}

void Tour::tryIncompleteParty() {
    touch_->tap(QStringLiteral("sendButton"));
    dismissAlert(QStringLiteral("Atención"),
                 QStringLiteral("No hay seleccionada ninguna hora de inicio.\nNo hay seleccionada ninguna "
                                "hora de finalización.\nNo has introducido el nombre del "
                                "establecimiento.\nNo has introducido ninguna ubicación.\nEl campo"));
    choosePartyHours(23, 20);
    dismissAlert(QStringLiteral("Atención"), QStringLiteral("ha de ser anterior"));
}

void Tour::fillParty() {
    touch_->tap(QStringLiteral("startTimeButton"));
    shot(QStringLiteral("hora"));
    touch_->tap(QStringLiteral("hourSheetCancel"));
    touch_->awaitGone(QStringLiteral("hourSheetSelect"));
    choosePartyHours(19, 23);
    touch_->type(QStringLiteral("attribute0"), QStringLiteral("Ana Robles"));
    touch_->type(QStringLiteral("attribute1"), QStringLiteral("muchas"));
    touch_->key(Qt::Key_Return);
    dismissAlert(QStringLiteral("Atención"), QStringLiteral("El formato para este campo es un número"));
    touch_->type(QStringLiteral("attribute1"), QStringLiteral("120"));
    touch_->type(QStringLiteral("attribute2"), QStringLiteral("2,5"));
    touch_->type(QStringLiteral("establishmentNameTextField"), bar);
    touch_->type(QStringLiteral("tevoTextField"), QStringLiteral("77"));
    touch_->type(QStringLiteral("contactNameTextField"), QStringLiteral("Ana Robles"));
    touch_->type(QStringLiteral("contactTelephoneTextField"), QStringLiteral("600123123"));
    touch_->tap(QStringLiteral("locationRow"));
    touch_->type(QStringLiteral("alertTextField"), QStringLiteral("Calle Mayor 12, Madrid"));
    touch_->tap(QStringLiteral("alertButton0"));
    touch_->await(QStringLiteral("alertChoice0"));
    shot(QStringLiteral("direcciones"));
    touch_->tap(QStringLiteral("alertChoice0"));
    touch_->type(QStringLiteral("comment"), QStringLiteral("El equipo de sonido llega a las seis."));
    shot(QStringLiteral("formulario"));
}

void Tour::sendParty() {
    touch_->tap(QStringLiteral("sendButton"));
    touch_->await(QStringLiteral("summarySend"));
    shot(QStringLiteral("resumen"));
    touch_->tap(QStringLiteral("summarySend"));
    touch_->waitUntil(QStringLiteral("the question of the tie"), [&] {
        return application_->alerts().title() == QStringLiteral("Pedido realizado con éxito");
    });
    shot(QStringLiteral("asociar"));
    const QJsonObject order = lastParty(*server_);
    const QJsonObject event = eventOf(order);
    must(event[QLatin1String("date_event")].toString() == firstDay().toString(QStringLiteral("dd-MM-yyyy")),
         QStringLiteral("the day of the order"));
    must(event[QLatin1String("items")].toArray().size() == 2, QStringLiteral("two elements"));
    must(QJsonDocument(event).toJson().contains("\"2.5\""), QStringLiteral("the price with a point"));
    const QByteArray content = server_->get(order[QLatin1String("url_pdf")].toString());
    writeFile(options_.folder + QStringLiteral("/activacion.pdf"), content);
    const PrintedPdf pdf(content);
    for (const QString& part :
         {bar, QStringLiteral("De 19:00 a 23:00"), QStringLiteral("Agencia Farolillo Norte"),
          QStringLiteral("Vasos serigrafiados"), QStringLiteral("2 de 4 realizadas"),
          QStringLiteral("Ana Robles")})
        pdf.mustSay(part);
}

void Tour::tieParty() {
    const qint64 first = lastParty(*server_)[QLatin1String("id")].toInteger();
    dismissAlert(QStringLiteral("Pedido realizado con éxito"), QStringLiteral("¿Desea asociar"), 1);
    const QString tie = QStringLiteral("Asociada al pedido %1").arg(first);
    touch_->waitUntil(tie, [&] { return touch_->text(QStringLiteral("tieText")) == tie; });
    must(touch_->text(QStringLiteral("startTimeButtonText")) == QLatin1String("-"),
         QStringLiteral("the hours are cleared"));
    shot(QStringLiteral("asociada"));
    choosePartyHours(17, 18);
    touch_->tap(QStringLiteral("sendButton"));
    touch_->tap(QStringLiteral("summarySend"));
    touch_->waitUntil(QStringLiteral("the second order"), [&] {
        return application_->alerts().title() == QStringLiteral("Pedido realizado con éxito");
    });
    const QJsonObject order = lastParty(*server_);
    must(eventOf(order)[QLatin1String("activation_relation_id")].toInteger() == first,
         QStringLiteral("the orders are tied"));
    PrintedPdf(server_->get(order[QLatin1String("url_pdf")].toString())).mustSay(tie);
}

// A further one, of another activation, on the same day.
void Tour::changeTiedParty() {
    dismissAlert(QStringLiteral("Pedido realizado con éxito"), QStringLiteral("¿Desea asociar"), 1);
    touch_->tap(QStringLiteral("changeActivation"));
    touch_->await(QStringLiteral("activation3"));
    touch_->awaitGone(QStringLiteral("veilView"));
    touch_->tap(QStringLiteral("activation3"));
    touch_->tap(QStringLiteral("nextButton"));
    touch_->await(QStringLiteral("item0"));
    touch_->tap(QStringLiteral("nextButton"));
    touch_->await(QStringLiteral("partyMonth"));
    must(touch_->text(QStringLiteral("locationString")) != QString(), QStringLiteral("the place stays"));
    choosePartyHours(15, 16);
    touch_->type(QStringLiteral("attribute0"), QStringLiteral("Ana Robles"));
    touch_->type(QStringLiteral("attribute2"), QStringLiteral("3"));
    touch_->tap(QStringLiteral("sendButton"));
    touch_->tap(QStringLiteral("summarySend"));
    dismissAlert(QStringLiteral("Pedido realizado con éxito"), QStringLiteral("¿Desea asociar"), 0);
    dismissAlert(QString(), QStringLiteral("Pedido realizado correctamente."));
    touch_->await(QStringLiteral("addToCalendar"));
    shot(QStringLiteral("realizado"));
    touch_->tap(QStringLiteral("backButton"));
    touch_->await(QStringLiteral("item0"));
    leaveParty(QStringLiteral("activation3"));
    touch_->tap(QStringLiteral("backButton"));
    dismissAlert(QStringLiteral("Atención"), QStringLiteral("perderá la información"), 1);
    touch_->await(QStringLiteral("brand3"));
}

// The last that the quota allows says so; afterwards the board and the elements do.
void Tour::orderLastOfQuota() {
    touch_->tap(QStringLiteral("brand3"));
    touch_->await(QStringLiteral("activation7"));
    touch_->awaitGone(QStringLiteral("veilView"));
    touch_->tap(QStringLiteral("activation7"));
    touch_->tap(QStringLiteral("nextButton"));
    touch_->await(QStringLiteral("item0"));
    touch_->tap(QStringLiteral("nextButton"));
    tapPartyDay(firstDay().addDays(20));
    choosePartyHours(21, 23);
    touch_->type(QStringLiteral("attribute0"), QStringLiteral("Ana Robles"));
    touch_->type(QStringLiteral("attribute2"), QStringLiteral("3"));
    touch_->type(QStringLiteral("establishmentNameTextField"), bar);
    touch_->tap(QStringLiteral("earlierPlace0"));
    touch_->tap(QStringLiteral("sendButton"));
    touch_->tap(QStringLiteral("summarySend"));
    dismissAlert(QString(), QStringLiteral("Ya no dispones de cupo"));
    touch_->tap(QStringLiteral("backButton"));
    touch_->await(QStringLiteral("item0"));
    dismissAlert(QStringLiteral("Atención"), QStringLiteral("No dispones de cupo"));
    leaveParty(QStringLiteral("activation7"));
    shot(QStringLiteral("sin-cupo"));
    touch_->tap(QStringLiteral("nextButton"));
    dismissAlert(QStringLiteral("Atención"), QStringLiteral("No dispones de cupo"));
    leaveParty(QStringLiteral("activation7"));
    touch_->tap(QStringLiteral("backButton"));
    touch_->await(QStringLiteral("brand4"));
}

void Tour::openSingleParty() {
    touch_->tap(QStringLiteral("brand4"));
    touch_->await(QStringLiteral("item0"));
    shot(QStringLiteral("una-sola"));
    leaveParty(QStringLiteral("brand4"));
    touch_->tap(QStringLiteral("backButton"));
    touch_->await(QStringLiteral("welcomeView"));
    QDirIterator files(options_.documents, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        must(file.open(QIODevice::ReadOnly) && !file.readAll().contains(bar.toUtf8()),
             QStringLiteral("no file holds the order: ") + file.fileName());
    }
}

} // namespace kavor
