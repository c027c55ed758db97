#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/wizard/BrochureMenuViewController.h"
#include "tour/Tour.h"

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
    touch_->waitUntil(QStringLiteral("the pennant of a brand, or the word that there is none"), [this] {
        return draft().currentPennantBrand() || touch_->isShown(QStringLiteral("without_pennant"));
    });
    shot(QStringLiteral("banderin-de-marca"));
}

} // namespace kavor
