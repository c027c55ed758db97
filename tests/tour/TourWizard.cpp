#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/wizard/BrochureMenuViewController.h"
#include "device/ReverseLocationManager.h"
#include "interaction/AlertPresenter.h"
#include "kavor/KavorApplication.h"
#include "tour/PrintedPdf.h"
#include "tour/Tour.h"
#include "tour/TourSupport.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

// The part of the tour beside the menu: margins, recommended prices, promotions in the menu and on their own.
namespace kavor {

namespace {

constexpr int carteleria = 6; // its ApplicationType
constexpr int english = 3;

const QString attention = QStringLiteral("Atención");
const QString barMail = QStringLiteral("barra@cantera.example");
const QString barPhrase = QStringLiteral("Cada jueves, quintos muy fríos");

BrochureIntermediateData& draft() {
    return *BrochureIntermediateData::temporalBrochure();
}

} // namespace

// The calculator over the prices: whatever is tried in it, only the net prices stay.
void Tour::openMargins() {
    const auto menuPrices = draft().brandPrices;
    touch_->tap(QStringLiteral("profitAccountButton"));
    touch_->await(QStringLiteral("profitAccountView"));
    const auto shows = [&](const QString& field, const QString& text) {
        touch_->key(Qt::Key_Tab);
        touch_->waitUntil(field + QStringLiteral(" to show ") + text, [&] {
            return touch_->text(field, "displayText").replace(QChar(0xa0), QLatin1Char(' ')) == text;
        });
    };
    for (const auto& [row, price] : {std::pair(0, "1,10"), std::pair(1, "1,45"), std::pair(2, "0,95")})
        touch_->type(QStringLiteral("netPriceTextField%1").arg(row), QLatin1String(price));
    shows(QStringLiteral("manginPerCentLabel0"), QStringLiteral("60%"));
    touch_->type(QStringLiteral("manginPerCentLabel0"), QStringLiteral("100"));
    shows(QStringLiteral("pvpTextField0"), QStringLiteral("∞ €"));
    touch_->type(QStringLiteral("manginPerCentLabel0"), QStringLiteral("60"));
    shows(QStringLiteral("pvpTextField0"), QStringLiteral("2,75 €"));
    must(!touch_->isShown(QStringLiteral("changedMark0")), QStringLiteral("the price of the menu again"));
    touch_->type(QStringLiteral("manginPerCentLabel1"), QStringLiteral("0%"));
    shows(QStringLiteral("pvpTextField1"), QStringLiteral("1,45 €"));
    touch_->type(QStringLiteral("marginTextField2"), QStringLiteral("-0,25"));
    shows(QStringLiteral("pvpTextField2"), QStringLiteral("0,70 €"));
    shot(QStringLiteral("margen"));
    touch_->tap(QStringLiteral("showToCustomer"));
    touch_->awaitGone(QStringLiteral("netPriceTextField0"));
    shot(QStringLiteral("margen-para-el-cliente"));
    touch_->tap(QStringLiteral("restoreMenuPrices"));
    shows(QStringLiteral("pvpTextField1"), QStringLiteral("3,20 €"));
    touch_->tap(QStringLiteral("backButton"));
    touch_->await(QStringLiteral("brochurePriceSetter"));
    must(draft().brandPrices == menuPrices, QStringLiteral("the prices of the menu as they were"));
    const Int brand = draft().selectedProducts().front()->id;
    must(draft().netPriceOf(draft().selectedBrands.at(brand).front(), brand) == 1.1,
         QStringLiteral("the net price in the draft"));
}

// What others charge: by an address, for the next row at the same place, where the device stands, and without
// a network.
void Tour::askPrices() {
    touch_->tap(QStringLiteral("priceRecommendation0"));
    dismissAlert({}, QStringLiteral("No se puede utilizar la ubicación, está deshabilitada."));
    touch_->waitUntil(QStringLiteral("the question for an address"),
                      [&] { return application_->alerts().hasTextField(); });
    const QString town = QString::fromStdString(draft().customerInformation->placeLocality.value_or(""));
    must(touch_->text(QStringLiteral("alertTextField")).contains(town),
         QStringLiteral("the address starts with the town of the bar"));
    touch_->tap(QStringLiteral("alertButton0"));
    touch_->await(QStringLiteral("alertChoice0"));
    shot(QStringLiteral("direcciones"));
    touch_->tap(QStringLiteral("alertChoice0"));
    touch_->await(QStringLiteral("priceArea3"));
    must(!touch_->isShown(QStringLiteral("keptAnswer")) ||
             touch_->text(QStringLiteral("keptAnswer")).isEmpty(),
         QStringLiteral("an answer of now"));
    shot(QStringLiteral("orientaprecios"));
    touch_->tap(QStringLiteral("backButton"));
    touch_->awaitGone(QStringLiteral("priceAssistantView"));
    touch_->tap(QStringLiteral("priceRecommendation1"));
    touch_->await(QStringLiteral("priceAssistantView"));
    touch_->tap(QStringLiteral("backButton"));
    touch_->awaitGone(QStringLiteral("priceAssistantView"));
    touch_->tap(QStringLiteral("priceRecommendation0"));
    touch_->await(QStringLiteral("priceArea3"));
    application_->setPlace(
        Placemark{QStringLiteral("28013"), QStringLiteral("Madrid"), std::nullopt, std::nullopt});
    touch_->tap(QStringLiteral("changePlace"));
    dismissAlert(QStringLiteral("¿Desea utilizar la siguiente ubicación?"), QStringLiteral("28013, Madrid"));
    touch_->await(QStringLiteral("priceArea3"));
    must(touch_->allTexts().contains(QStringLiteral("Código postal 28013")),
         QStringLiteral("the prices of where the device stands"));
    application_->setPlace(std::nullopt);
    touch_->tap(QStringLiteral("backButton"));
    touch_->awaitGone(QStringLiteral("priceAssistantView"));
    application_->setOffline(true);
    touch_->tap(QStringLiteral("priceRecommendation0"));
    touch_->waitUntil(QStringLiteral("the answer that was kept"), [&] {
        return touch_->isShown(QStringLiteral("keptAnswer")) &&
               touch_->text(QStringLiteral("keptAnswer")).startsWith(QStringLiteral("Sin conexión"));
    });
    shot(QStringLiteral("orientaprecios-sin-red"));
    touch_->tap(QStringLiteral("backButton"));
    touch_->awaitGone(QStringLiteral("priceAssistantView"));
    application_->setOffline(false);
}

// Two promotions enter the menu, one is written anew, one leaves.
void Tour::changePromotions() {
    attachPromotion();
    attachPromotion();
    const auto before = draft().promotions;
    touch_->tap(QStringLiteral("editButton0"));
    touch_->await(QStringLiteral("promotionView"));
    touch_->type(QStringLiteral("attributeCell0"), QStringLiteral("De siete a nueve, en la terraza"));
    shot(QStringLiteral("promocion-de-la-carta"));
    touch_->tap(QStringLiteral("appendStackview"));
    touch_->await(QStringLiteral("brochurePromotions"));
    must(draft().promotions.size() == 2 && draft().promotions[1] == before[1] &&
             draft().promotions[0].attributes.front().value == "De siete a nueve, en la terraza",
         QStringLiteral("the promotion in its place, with its new phrase"));
    shot(QStringLiteral("promociones"));
    touch_->tap(QStringLiteral("deleteButton1"));
    dismissAlert(attention, QStringLiteral("¿Desea eliminar la promoción de la carta?"), 1);
    touch_->awaitGone(QStringLiteral("deleteButton1"));
    must(draft().promotions.size() == 1, QStringLiteral("one promotion stays"));
}

void Tour::fillPromotion() {
    touch_->tap(QStringLiteral("collectionViewCell1")); // the second language of the first promotion
    fillAttributes(barPhrase);
    for (const int format : {0, 1, 2})
        touch_->tap(QStringLiteral("formatCell%1").arg(format));
    shot(QStringLiteral("promocion"));
    touch_->type(QStringLiteral("tevoTextField"), QStringLiteral("B0007"));
    touch_->tap(QStringLiteral("searchTEVOCode"));
    touch_->waitUntil(QStringLiteral("the bar of the code"),
                      [&] { return !touch_->text(QStringLiteral("establishmentNameTextField")).isEmpty(); });
    touch_->tap(QStringLiteral("showMenuSwitch"));
    touch_->tap(QStringLiteral("configureDays"));
    touch_->tap(QStringLiteral("chooseWorkdays"));
    touch_->type(QStringLiteral("emailTextField0"), barMail);
}

// A promotion of its own, in three formats and its second language.
void Tour::orderPromotion() {
    openSection(carteleria);
    touch_->await(QStringLiteral("collectionViewCell1"));
    shot(QStringLiteral("carteleria"));
    fillPromotion();
    shot(QStringLiteral("promocion-vigencia"));
    touch_->tap(QStringLiteral("previewAction"));
    touch_->await(QStringLiteral("webPreview"));
    touch_->waitUntil(QStringLiteral("a page for each format, and the summary"),
                      [&] { return touch_->allTexts().contains(QStringLiteral("1 / 4")); });
    shot(QStringLiteral("promocion-vista-previa"));
    touch_->tap(QStringLiteral("dismissPreview"));
    touch_->awaitGone(QStringLiteral("webPreview"));
    must(server_->get(QStringLiteral("/demo/mails")).trimmed() == "[]",
         QStringLiteral("a preview is mailed to nobody"));
    touch_->tap(QStringLiteral("makeOrderButton"));
    dismissAlert({}, QStringLiteral("Pedido realizado correctamente"));
    touch_->await(QStringLiteral("showSentDocument"));
    shot(QStringLiteral("promocion-pedida"));
    checkPromotion();
    touch_->tap(QStringLiteral("backButton"));
    touch_->await(QStringLiteral("promotionGallery"));
    touch_->tap(QStringLiteral("backButton"));
    touch_->await(QStringLiteral("welcomeView"));
}

// What the server got, what it mailed, and what it printed.
void Tour::checkPromotion() {
    const auto listOf = [&](const char* path) {
        return QJsonDocument::fromJson(server_->get(QLatin1String(path))).array();
    };
    const QJsonArray orders = listOf("/demo/orders");
    const auto isPromotion = [](const QJsonValue& order) {
        return order[QLatin1String("body")][QLatin1String("promotion_id")].toInt() == 1;
    };
    must(std::ranges::count_if(orders, isPromotion) == 1, QStringLiteral("one order of the promotion"));
    const QJsonValue order = *std::ranges::find_if(orders, isPromotion);
    const QJsonValue body = order[QLatin1String("body")];
    const QJsonArray formats = body[QLatin1String("supports")].toArray();
    must(formats.size() == 3 && std::ranges::all_of(formats,
                                                    [](const QJsonValue& format) {
                                                        return format[QLatin1String("language_id")].toInt() ==
                                                               english;
                                                    }),
         QStringLiteral("three formats in the second language"));
    must(body[QLatin1String("attributes")][0][QLatin1String("value")].toString() == barPhrase &&
             body[QLatin1String("attributes")][1][QLatin1String("value")].toString() == QLatin1String("9,5"),
         QStringLiteral("the attributes as they were typed"));
    must(body[QLatin1String("show_promotion_day_5")].toBool() &&
             !body[QLatin1String("show_promotion_day_6")].toBool(true),
         QStringLiteral("the days of the week"));
    const QJsonArray mails = listOf("/demo/mails");
    must(mails.size() == 1 && mails[0][QLatin1String("to")].toString() == barMail &&
             mails[0][QLatin1String("order_id")] == order[QLatin1String("id")],
         QStringLiteral("one mail of the order"));
    const QByteArray content = server_->get(mails[0][QLatin1String("url_pdf")].toString());
    writeFile(options_.folder + QStringLiteral("/promocion.pdf"), content);
    const PrintedPdf pdf(content);
    must(pdf.pages() == 4, QStringLiteral("a page for each format, and the summary"));
    for (const QString& words :
         {barPhrase, QStringLiteral("9,50"), QStringLiteral("Bucket Thursday"), barMail})
        pdf.mustSay(words);
}

} // namespace kavor
