#include "promotions/screens/PromotionStyleSelectorViewController.h"

#include "device/Reachability.h"
#include "promotions/screens/PromotionViewController.h"
#include "screens/ResourceImages.h"
#include "session/AppSingleton.h"

#include <utility>

namespace kavor {

namespace {

QVariantMap entryOf(const QString& source, const QString& text) {
    return {{QStringLiteral("source"), source}, {QStringLiteral("text"), text}};
}

} // namespace

PromotionStyleSelectorViewController::PromotionStyleSelectorViewController(
    const PromotionServices& services, std::optional<MenuPromotionUse> use, QObject* parent)
    : ScreenController(parent)
    , services_(services)
    , catalogue_(AppSingleton::shared().applicationInformation)
    , use_(std::move(use)) {
    if (catalogue_)
        visiblePromotions_.setGallery(use_ ? PromotionGallery::ofMenu(catalogue_, use_->request)
                                           : PromotionGallery::ofSection(catalogue_),
                                      !use_);
    fillCarousels();
    connect(&services_.reachability, &Reachability::changed, this,
            &PromotionStyleSelectorViewController::offlineChanged);
}

PromotionStyleSelectorViewController::~PromotionStyleSelectorViewController() = default;

void PromotionStyleSelectorViewController::fillCarousels() {
    const PromotionGallery& gallery = visiblePromotions_.gallery();
    for (const Posters::Classification* each : gallery.classifications())
        classifications_.append(each->identifier, fromUtf8(each->name));
    brandList_ << entryOf({}, brands_.names().first()); // "todaslasmarcas"
    for (const Product* each : gallery.brandList()) {
        brands_.append(each->id, fromUtf8(each->name));
        brandList_ << entryOf(resourceImageUrl(each->image), fromUtf8(each->name));
    }
}

void PromotionStyleSelectorViewController::carouselCurrentItemIndexDidChange(Carousel carousel, int index) {
    const bool brands = carousel == Carousel::Brands;
    int& current = brands ? brand_ : classification_;
    if (index == current || !(brands ? brands_ : classifications_).has(index))
        return;
    current = index;
    filter();
}

void PromotionStyleSelectorViewController::removeFilters() {
    classification_ = brand_ = 0;
    filter();
}

void PromotionStyleSelectorViewController::filter() {
    visiblePromotions_.filter(classifications_.idAt(classification_), brands_.idAt(brand_));
    emit filterChanged();
}

void PromotionStyleSelectorViewController::choosePromotion(int row) {
    const PromotionTuple* chosen = visiblePromotions_.at(row);
    if (!chosen || std::exchange(covered_, true))
        return;
    auto* form = new PromotionViewController(services_, catalogue_, *chosen, use_);
    connect(form, &PromotionViewController::attached, this, &ScreenController::closed);
    emit screenRequested({PromotionViewController::view(), form});
}

QString PromotionStyleSelectorViewController::titleLabel() const {
    const auto& section = AppSingleton::shared().actualSection;
    const auto* type = section ? std::get_if<PromotionType>(&section->value) : nullptr;
    if (type && *type == PromotionType::carteleria)
        return QStringLiteral("Cartelería promocional");
    if (type && *type == PromotionType::carteleriaVino)
        return QStringLiteral("Carteleria vinos");
    return QStringLiteral("Promociones");
}

QString PromotionStyleSelectorViewController::kavorLabel() const {
    return use_ ? QStringLiteral("Volver") : QStringLiteral("Inicio");
}

QString PromotionStyleSelectorViewController::countText() const {
    const int shown = visiblePromotions_.count();
    const int all = int(visiblePromotions_.gallery().unfilteredPromotions().size());
    const QString word = all == 1 ? QStringLiteral(" promoción") : QStringLiteral(" promociones");
    return (shown == all ? QString::number(all) : QStringLiteral("%1 de %2").arg(shown).arg(all)) + word;
}

PromotionStyleSelectorViewController::Emptiness PromotionStyleSelectorViewController::emptiness() const {
    if (visiblePromotions_.count() > 0)
        return {};
    if (!visiblePromotions_.gallery().unfilteredPromotions().empty())
        return {QStringLiteral("Ninguna promoción con estos filtros"),
                QStringLiteral("Prueba con otra clasificación o con otra marca."),
                QStringLiteral("Quitar filtros")};
    if (use_ && !use_->request.promotionSelectIds.empty())
        return {QStringLiteral("No quedan promociones"),
                QStringLiteral("La carta ya tiene todas las que ofrece el catálogo."),
                {}};
    return {
        QStringLiteral("No hay promociones"), QStringLiteral("El catálogo no tiene ninguna por ahora."), {}};
}

bool PromotionStyleSelectorViewController::isOffline() const {
    return !services_.reachability.isReachable();
}

} // namespace kavor
