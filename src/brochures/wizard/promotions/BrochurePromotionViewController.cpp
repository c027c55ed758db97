#include "brochures/wizard/promotions/BrochurePromotionViewController.h"

#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/engine/MenuPromotions.h"
#include "brochures/wizard/StepSupport.h"
#include "catalogue/Catalogue.h"
#include "interaction/Questions.h"
#include "promotions/PromotionTuple.h"
#include "screens/ResourceImages.h"
#include "session/AppSingleton.h"

#include <algorithm>
#include <utility>

namespace kavor {

BrochurePromotionViewController::BrochurePromotionViewController(const WizardStepContext& context,
                                                                 QObject* parent)
    : WizardStepViewController(parent)
    , context_(context) {}

QUrl BrochurePromotionViewController::view() const {
    return stepView(QStringLiteral("BrochurePromotionView.qml"));
}

// Also what comes after the form, which has written into the draft by then.
void BrochurePromotionViewController::viewWillAppear() {
    context_.readCatalogue();
    reload();
    if (std::exchange(AppSingleton::shared().appendPromotionToMenu, false))
        autosave(context_.draft);
}

void BrochurePromotionViewController::reload() {
    const auto language = languageSelected();
    listPromotionsTable_.show(context_.draft->promotions, [&](MenuPromotionRow& row) {
        const Posters::Promotion* promotion = promotionOf(row.promotion.promotionId);
        row.known = promotion != nullptr;
        const HashedResource* picture =
            promotion
                ? promotionTuple(*promotion, language ? std::optional(language->id) : std::nullopt).image
                : nullptr;
        if (picture)
            row.image = resourceImageUrl(*picture);
    });
}

void BrochurePromotionViewController::createButton() {
    MenuPromotionRequest request;
    request.languageSelected = languageSelected();
    request.promotionSelectIds = promotionSelectIds();
    emit promotionsRequested(request);
}

void BrochurePromotionViewController::editButton(int row) {
    const MenuPromotionRow* edited = listPromotionsTable_.at(row);
    if (!edited || !edited->known)
        return;
    emit promotionsRequested({languageSelected(), promotionSelectIds(), edited->promotion, std::size_t(row)});
}

void BrochurePromotionViewController::deleteButton(int row) {
    const MenuPromotionRow* chosen = listPromotionsTable_.at(row);
    if (!chosen)
        return;
    ask(context_.services.alerts, this, QStringLiteral("Atención"),
        QStringLiteral("¿Desea eliminar la promoción de la carta?"),
        {{QStringLiteral("Cancelar"), AlertButton::Role::Cancel, {}},
         {QStringLiteral("Borrar"), AlertButton::Role::Destructive,
          [this, promotion = chosen->promotion] { remove(promotion); }}});
}

void BrochurePromotionViewController::remove(const MenuPromotion& promotion) {
    if (!MenuPromotions::shared().remove(context_.draft, promotion))
        return;
    reload();
    autosave(context_.draft);
}

std::vector<Int> BrochurePromotionViewController::promotionSelectIds() const {
    std::vector<Int> ids;
    for (const MenuPromotion& promotion : context_.draft->promotions)
        ids.push_back(promotion.promotionId);
    return ids;
}

// The first language of the menu; none while none is chosen.
std::optional<Brochures::Language> BrochurePromotionViewController::languageSelected() const {
    const auto languages = context_.draft->currentLanguages();
    const Brochures::Language* main = languages ? context_.catalogue->language(languages->main) : nullptr;
    return main ? std::optional(*main) : std::nullopt;
}

const Posters::Promotion* BrochurePromotionViewController::promotionOf(Int id) const {
    const auto& all = context_.catalogue->brochures().promotions.promotions;
    const auto found = std::ranges::find(all, id, &Posters::Promotion::id);
    return found == all.end() ? nullptr : &*found;
}

} // namespace kavor
