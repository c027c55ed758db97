#include "base/json/Json.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/engine/OrderToEdit.h"
#include "brochures/wizard/BrochureMenuViewController.h"
#include "interaction/AlertPresenter.h"
#include "kavor/KavorApplication.h"
#include "session/AppSingleton.h"
#include "tour/PrintedPdf.h"
#include "tour/Tour.h"
#include "tour/TourSupport.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cstdio>

// The part of the tour that orders a brochure of every kind, with all that the kind has.
namespace kavor {

namespace {

using Menu = BrochureMenuViewController;

BrochureIntermediateData& draft() {
    return *BrochureIntermediateData::temporalBrochure();
}

std::string documentText(const SaveBrochuresOrder& order) {
    return json::encodePretty(order).value_or("");
}

// The first line in which two documents differ.
QString difference(const std::string& one, const std::string& other) {
    const auto [a, b] = std::ranges::mismatch(one, other);
    const auto near = [](const std::string& text, std::size_t at) {
        const std::size_t from = at < 200 ? 0 : at - 200;
        return QString::fromStdString(text.substr(from, 400));
    };
    const auto at = std::size_t(a - one.begin());
    return QStringLiteral("sent:\n%1\nmade again:\n%2").arg(near(one, at), near(other, at));
}

} // namespace

void Tour::orderEveryKind() {
    wanted_ = {QStringLiteral("bebidas"), QStringLiteral("banderin-de-marca")};
    for (const ApplicationType type :
         {ApplicationType::orderFlyer, ApplicationType::orderDrink, ApplicationType::orderFood,
          ApplicationType::orderChalkboard, ApplicationType::orderMantel, ApplicationType::orderVideo,
          ApplicationType::encarte, ApplicationType::orderWineA4, ApplicationType::orderWineOrder,
          ApplicationType::orderBeer}) {
        orderKind(static_cast<int>(type));
        std::printf("  %s: bien\n", std::string(label(type)).c_str());
        std::fflush(stdout);
    }
    // No tile opens these two: a menu of theirs that lies in the cloud is opened from the list of orders.
    for (const BrochureType type : {BrochureType::digital, BrochureType::pennant}) {
        orderFromTheCloud(type);
        std::printf("  %s: bien\n", std::string(label(type)).c_str());
        std::fflush(stdout);
    }
    must(printedOrders().size() == 12,
         QStringLiteral("twelve orders at the server, not %1").arg(printedOrders().size()));
}

void Tour::orderFromTheCloud(BrochureType type) {
    touch_->tap(QStringLiteral("allOrdersButton"));
    touch_->await(QStringLiteral("sentOrdersTable|copyOrderButton"));
    QString row;
    for (const auto& order :
         QJsonDocument::fromJson(server_->get(QStringLiteral("/demo/orders?all=1"))).array()) {
        const QJsonObject record = order.toObject();
        if (record[QLatin1String("type")].toInt() == static_cast<int>(type) &&
            record[QLatin1String("cloud")].toBool())
            row = cloudRow(record);
    }
    must(!row.isEmpty(), QStringLiteral("a menu of the kind in the cloud"));
    touch_->tap(row + QStringLiteral("|editButton"));
    dismissAlert(QStringLiteral("Atención"), QStringLiteral("¿Deseas editar el pedido"), 1);
    touch_->await(QStringLiteral("menuEntry%1").arg(static_cast<int>(Menu::Send)));
    touch_->settle();
    openStep(Menu::Send);
    sendKind();
    leaveTheOrders();
    touch_->await(QStringLiteral("welcomeView"));
}

void Tour::chooseBlackboard() {
    const Brochures& brochures = AppSingleton::shared().catalogue().brochures();
    touch_->tap(QStringLiteral("orientationElement%1").arg(brochures.blackboardFormats.front().id));
    chooseFirst(QStringLiteral("blackboardTypePicker"));
    touch_->waitUntil(QStringLiteral("a chalkboard"), [] {
        return draft().currentBlackboardFormat() != nullptr && draft().currentBlackboardType() != nullptr;
    });
}

bool Tour::hasStep(int menuEntry) const {
    return touch_->isShown(QStringLiteral("menuEntry%1").arg(menuEntry));
}

// One order of a kind, with every step that it has.
void Tour::orderKind(int applicationType) {
    openSection(applicationType);
    touch_->tap(QStringLiteral("menuEntry0"));
    dismissAlert(QStringLiteral("Atención"), QStringLiteral("¿Desea borrar todos los datos"), 1);
    touch_->type(QStringLiteral("tevoTextField"), QStringLiteral("B0011"));
    touch_->tap(QStringLiteral("searchTEVOCode"));
    touch_->waitUntil(QStringLiteral("the bar of the code"), [] {
        return draft().customerInformation && !draft().customerInformation->name.empty();
    });
    chooseFirst(QStringLiteral("firstLanguagePicker"));
    const BrochureType kind = *AppSingleton::shared().brochureType();
    auto brands = static_cast<std::size_t>(draft().minimumBrands(1));
    if (kind == BrochureType::chalkboard) {
        chooseBlackboard();
        brands =
            static_cast<std::size_t>(draft().currentBlackboardFormat()->numberOfSelectableBrands.front());
    }
    openStep(Menu::Products);
    selectBrands(AppSingleton::shared().catalogue().brochureType(kind)->applicationFather,
                 std::max<std::size_t>(brands, 1), 1);
    openStep(Menu::Prices);
    dismissAlert(QStringLiteral("Atención"), QStringLiteral("Recuerda que has de marcar"));
    chooseStyle();
    visitExtras();
    openStep(Menu::Send);
    const bool throughADraft = hasStep(Menu::Drinks);
    if (throughADraft)
        keepAndReopen();
    sendKind();
    if (throughADraft)
        leaveTheOrders();
    touch_->await(QStringLiteral("welcomeView"));
}

// The draft goes to the disk and the cloud, and its work is gone on with from the list of orders.
void Tour::keepAndReopen() {
    const QString name = QStringLiteral("Bebidas de ") + QString::number(printedOrders().size());
    touch_->tap(QStringLiteral("saveOrderAction"));
    touch_->waitUntil(QStringLiteral("the question for a name"),
                      [&] { return application_->alerts().hasTextField(); });
    touch_->type(QStringLiteral("alertTextField"), name);
    touch_->tap(QStringLiteral("alertButton0"));
    dismissAlert(QStringLiteral("Pedido guardado"), QStringLiteral("sincronizado"));
    touch_->tap(QStringLiteral("backButton"));
    touch_->await(QStringLiteral("welcomeView"));
    touch_->tap(QStringLiteral("allOrdersButton"));
    touch_->tap(savedRow(QStringLiteral("draft"), name, QStringLiteral("editButton")));
    dismissAlert(QStringLiteral("Atención"), QStringLiteral("¿Deseas editar el pedido"), 1);
    touch_->await(QStringLiteral("menuEntry%1").arg(static_cast<int>(Menu::Send)));
    touch_->settle();
    openStep(Menu::Send);
}

void Tour::leaveTheOrders() {
    touch_->await(QStringLiteral("sentOrdersTable|copyOrderButton"));
    touch_->tap(QStringLiteral("backButton"));
}

// From the send step; the wizard is closed afterwards.
void Tour::sendKind() {
    touch_->tap(QStringLiteral("makeOrderButton"));
    touch_->waitUntil(QStringLiteral("an alert"), [&] { return application_->alerts().isVisible(); });
    if (application_->alerts().title() == QStringLiteral("¿Los precios son correctos?"))
        touch_->tap(QStringLiteral("alertButton1"));
    dismissAlert(QStringLiteral("Éxito"), QString());
    checkKind();
    touch_->tap(QStringLiteral("backButton"));
}

void Tour::visitExtras() {
    if (hasStep(Menu::Drinks))
        chooseDrinks();
    if (hasStep(Menu::OrderSheet))
        chooseOrderSheet();
    if (hasStep(Menu::Promotions))
        attachPromotion();
    if (hasStep(Menu::Pennant))
        hangPennants();
    if (hasStep(Menu::PennantBrand))
        choosePennantBrand();
}

// What the server printed of the kind that is in work.
QJsonObject Tour::orderOfKind() const {
    const QJsonArray orders = printedOrders();
    const auto kind = static_cast<int>(*AppSingleton::shared().brochureType());
    const auto found = std::ranges::find_if(orders, [kind](const QJsonValue& order) {
        return order[QLatin1String("body")][QLatin1String("menu")][QLatin1String("order_type")].toInt() ==
               kind;
    });
    must(found != orders.end(), QStringLiteral("the order of the kind"));
    return (*found).toObject();
}

// The body that the server got is whole, comes back as it was, and its PDF says what was chosen.
void Tour::checkKind() {
    const QJsonObject order = orderOfKind();
    const QByteArray body = QJsonDocument(order[QLatin1String("body")].toObject()).toJson();
    const BrochureType kind = *AppSingleton::shared().brochureType();
    const QString name = QString::fromUtf8(label(kind)).toLower().replace(QLatin1Char(' '), QLatin1Char('-'));
    const QString base =
        QStringLiteral("%1/%2-%3").arg(options_.folder).arg(static_cast<int>(kind)).arg(name);
    writeFile(base + QStringLiteral(".json"), body);
    const auto received = json::decode<SaveBrochuresOrder>(body.toStdString());
    must(received.has_value(), QString::fromStdString(received ? "" : received.error().text()));
    if (hasStep(Menu::Drinks))
        checkDrinks(order);
    must(!hasStep(Menu::OrderSheet) || received->menu.orderSheetIdentifier, QStringLiteral("an order sheet"));
    must(!hasStep(Menu::Promotions) ||
             received->menu.promotions.value_or(std::vector<MenuPromotion>()).size() == 1,
         QStringLiteral("a promotion"));

    BrochureIntermediateData again;
    again.brochureTypeParameters = draft().brochureTypeParameters;
    loadToGoOn(again, *received);
    must(again.validationErrors().empty(), again.validationErrors().empty()
                                               ? QString()
                                               : QString::fromStdString(again.validationErrors().front()));
    // On its way back an order loses the name of its file (and who prints it, which none of these says).
    SaveBrochuresOrder sent = *received;
    sent.filename.reset();
    const SaveBrochuresOrder made = again.makeOrder(OrderRequestType::sendToPrint, true);
    must(sent == made, QStringLiteral("the order comes back as it was; ") +
                           difference(documentText(sent), documentText(made)));

    const QByteArray pdf = server_->get(order[QLatin1String("url_pdf")].toString());
    writeFile(base + QStringLiteral(".pdf"), pdf);
    checkPdf(PrintedPdf(pdf), *received);
}

void Tour::checkPdf(const PrintedPdf& pdf, const SaveBrochuresOrder& order) const {
    const Catalogue& catalogue = AppSingleton::shared().catalogue();
    must(pdf.pages() >= 3, QStringLiteral("a cover, what is inside, and the back"));
    pdf.mustSay(order.menu.customer.name);
    for (const auto& brand : order.menu.beerBrands)
        pdf.mustSay(catalogue.product(*brand.brand)->name);
    if (hasStep(Menu::Drinks)) {
        for (const char* words : {"Batidos de la casa", "Batido de fresa", "3,80"})
            pdf.mustSay(QString::fromUtf8(words));
    }
    if (order.menu.promotions && !order.menu.promotions->empty()) {
        const MenuPromotion& promotion = order.menu.promotions->front();
        pdf.mustSay(QStringLiteral("Promociones"));
        pdf.mustSay(*promotion.promotionName);
        pdf.mustSay(promotion.attributes.front().value);
    }
    if (hasStep(Menu::Pennant))
        pdf.mustSay(QStringLiteral("Banderines"));
    if (order.menu.pennantBrandId)
        pdf.mustSay(draft().currentPennantBrand()->name);
}

} // namespace kavor
