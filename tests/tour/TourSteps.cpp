#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/wizard/BrochureMenuViewController.h"
#include "tour/Tour.h"
#include "tour/TourSupport.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QQuickItem>

// The steps of the wizard that only some kinds of menu have.
namespace kavor {

namespace {

using Menu = BrochureMenuViewController;

BrochureIntermediateData& draft() {
    return *BrochureIntermediateData::temporalBrochure();
}

} // namespace

void Tour::chooseOrderSheet() {
    openStep(Menu::OrderSheet);
    touch_->swipe(QStringLiteral("orderSheetCarousel"), -0.3, 0);
    touch_->waitUntil(QStringLiteral("an order sheet"),
                      [] { return draft().currentOrderSheet() != nullptr; });
    shot(QStringLiteral("comandero"));
}

void Tour::hangPennants() {
    openStep(Menu::Pennant);
    touch_->tap(QStringLiteral("fillPennants"));
    touch_->waitUntil(QStringLiteral("pennants with products"),
                      [] { return !draft().productPennant.empty(); });
    shot(QStringLiteral("banderines"));
}

void Tour::choosePennantBrand() {
    openStep(Menu::PennantBrand);
    touch_->waitUntil(QStringLiteral("the pennant of a brand"),
                      [] { return draft().currentPennantBrand() != nullptr; });
    shot(QStringLiteral("banderin-de-marca"));
}

// A drink of the catalogue in two formats, and one of the user's own with a price.
void Tour::chooseDrinks() {
    openStep(Menu::Drinks);
    touch_->type(QStringLiteral("drinkCategorySearch"), QStringLiteral("combi"));
    touch_->tap(QStringLiteral("drinkCategory0"));
    touch_->type(QStringLiteral("drinkProductSearch"), QStringLiteral("vermut"));
    touch_->tap(QStringLiteral("drinkProduct0"));
    touch_->tap(QStringLiteral("drinkFormat1"));
    touch_->tap(QStringLiteral("drinkCategoryPlus"));
    touch_->type(QStringLiteral("alertTextField"), QStringLiteral("Batidos de la casa"));
    touch_->tap(QStringLiteral("alertButton0"));
    touch_->awaitGone(QStringLiteral("alertTextField"));
    touch_->tap(QStringLiteral("drinkProductPlus"));
    touch_->type(QStringLiteral("alertTextField"), QStringLiteral("Batido de fresa"));
    touch_->tap(QStringLiteral("alertButton0"));
    touch_->awaitGone(QStringLiteral("alertTextField"));
    touch_->type(QStringLiteral("beveragePrice4"), QStringLiteral("3,8"));
    touch_->key(Qt::Key_Tab);
    shot(QStringLiteral("bebidas"));
    must(draft().selectedBeverages.size() == 2, QStringLiteral("two categories of drinks"));
}

// The order that reached the server carries the drinks with their formats and prices.
void Tour::checkDrinks(const QJsonObject& order) {
    const QJsonArray drinks =
        order[QLatin1String("body")][QLatin1String("menu")][QLatin1String("other_drinks")].toArray();
    must(drinks.size() == 2, QStringLiteral("two categories of drinks at the server"));
    const QJsonValue own = drinks[0][QLatin1String("other_products")][0];
    must(own[QLatin1String("product_format_name")].toString() == QStringLiteral("Batido de fresa") &&
             own[QLatin1String("sub_item_prices")][0][QLatin1String("price")].toDouble() == 3.8,
         QStringLiteral("the drink of the user's own and its price"));
    must(drinks[1][QLatin1String("other_products")][0][QLatin1String("sub_item_prices")].toArray().size() ==
             2,
         QStringLiteral("two formats of the catalogue's drink"));
}

// What the bar gives for the attributes of the promotion on show, one of whatever kind each is.
void Tour::fillAttributes(const QString& phrase) {
    touch_->await(QStringLiteral("promotionView"));
    for (int row = 0; row < 5; ++row) {
        const QString cell = QStringLiteral("ttributeCell%1").arg(row);
        if (const QQuickItem* field = touch_->find(QLatin1Char('a') + cell)) {
            const bool isPrice = field->property("inputMethodHints").toInt() != Qt::ImhNone;
            touch_->type(QLatin1Char('a') + cell, isPrice ? QStringLiteral("9,5") : phrase);
        } else if (touch_->isShown(QStringLiteral("pickerA") + cell)) {
            chooseFirst(QStringLiteral("pickerA") + cell, 1);
        }
    }
}

// The first promotion that the gallery offers enters the menu.
void Tour::attachPromotion() {
    openStep(Menu::Promotions);
    const std::size_t before = draft().promotions.size();
    touch_->tap(before == 0 ? QStringLiteral("DraftEmptyCellIdentifierAction")
                            : QStringLiteral("createButton"));
    touch_->tap(QStringLiteral("collectionViewCell0"));
    fillAttributes(QStringLiteral("Con aceitunas de la casa"));
    touch_->tap(QStringLiteral("appendStackview"));
    touch_->await(QStringLiteral("brochurePromotions"));
    must(draft().promotions.size() == before + 1, QStringLiteral("the promotion in the menu"));
}

} // namespace kavor
