#include "brochures/wizard/pennant/BrochureOrderPennantViewController.h"

#include "base/AppFormatter.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/wizard/StepSupport.h"
#include "brochures/wizard/StyleCover.h"
#include "catalogue/Catalogue.h"
#include "interaction/Questions.h"
#include "screens/ResourceImages.h"

#include <algorithm>
#include <utility>

namespace kavor {

BrochureOrderPennantViewController::BrochureOrderPennantViewController(const WizardStepContext& context,
                                                                       QObject* parent)
    : WizardStepViewController(parent)
    , context_(context) {
    connect(&detailedCarousel_, &CoverGallery::chosen, this, [this] {
        writeStyle();
        edited();
    });
}

QUrl BrochureOrderPennantViewController::view() const {
    return stepView(QStringLiteral("BrochureOrderPennantView.qml"));
}

void BrochureOrderPennantViewController::viewDidLoad() {
    readStyles();
}

// Styles of another family than the kind's stay out; one without a family suits all.
void BrochureOrderPennantViewController::readStyles() {
    for (const Brochures::Style& style : context_.catalogue->brochures().styles) {
        const bool ofFamily = !style.applicationFather || !context_.type ||
                              *style.applicationFather == context_.type->applicationFather;
        if (style.typeId == static_cast<Int>(BrochureType::pennant) && ofFamily)
            brochureStyles_.push_back(&style);
    }
    std::ranges::stable_sort(brochureStyles_, {}, &Brochures::Style::position);
    std::vector<Cover> covers;
    for (const Brochures::Style* style : brochureStyles_)
        covers.push_back(coverOf(*style));
    detailedCarousel_.setCovers(std::move(covers));
}

void BrochureOrderPennantViewController::viewWillAppear() {
    BrochureIntermediateData& draft = *context_.draft;
    dropDeselectedPennantProducts(draft, *context_.catalogue);
    showInPennantProducts_ = showInPennantProducts(draft, *context_.catalogue);
    rows_ = PickerRows(QStringLiteral("Ninguno"));
    for (const PennantProduct& each : showInPennantProducts_)
        rows_.append(each.format->id, fromUtf8(each.brand->name + " · " + each.format->icon));
    detailedCarousel_.select(
        std::max(detailedCarousel_.covers()->indexOf(draft.selectedStylePennantIdentifier), 0));
    actionwithPennantClick(draft.withPennant);
}

// The working value goes along, so that both say the same.
void BrochureOrderPennantViewController::actionwithPennantClick(bool on) {
    context_.draft->withPennant = on;
    context_.draft->withPennantTmp = on;
    writeStyle();
    edited();
}

void BrochureOrderPennantViewController::actionWithoutPriceClick(bool on) {
    context_.draft->withoutPricePennant = on;
    edited();
}

// The one in the middle is the chosen style, also before anyone moved it; without pennants what was chosen
// stays and travels.
void BrochureOrderPennantViewController::writeStyle() {
    const auto index = std::size_t(detailedCarousel_.current());
    if (context_.draft->withPennant && index < brochureStyles_.size())
        context_.draft->selectedStylePennantIdentifier = brochureStyles_[index]->id;
}

void BrochureOrderPennantViewController::choose(int place, int row) {
    if (place < 0 || place >= pennantProductPlaces || !rows_.has(row))
        return;
    setPennantProduct(*context_.draft, place + 1, rows_.idAt(row));
    edited();
}

void BrochureOrderPennantViewController::fill() {
    if (taken() == 0)
        return fillNow();
    ask(context_.services.alerts, this, QStringLiteral("Atención"),
        QStringLiteral("¿Desea sustituir los productos elegidos por los primeros de la carta?"),
        {{QStringLiteral("No"), AlertButton::Role::Cancel, {}}, yesDestroy([this] { fillNow(); })});
}

void BrochureOrderPennantViewController::fillNow() {
    for (Int position = 1; position <= pennantProductPlaces; ++position)
        setPennantProduct(*context_.draft, position, rows_.idAt(int(position)));
    edited();
}

void BrochureOrderPennantViewController::edited() {
    autosave(context_.draft);
    emit changed();
}

void BrochureOrderPennantViewController::serializeAutoSave() {
    dropDeselectedPennantProducts(*context_.draft, *context_.catalogue);
}

QString BrochureOrderPennantViewController::emptyMessage() const {
    return brochureStyles_.empty() ? QStringLiteral("No hay estilos de banderín para este tipo de carta.")
                                   : QString();
}

bool BrochureOrderPennantViewController::withPennantSwitch() const {
    return context_.draft->withPennant;
}

bool BrochureOrderPennantViewController::withoutPricePennantSwitch() const {
    return context_.draft->withoutPricePennant;
}

bool BrochureOrderPennantViewController::isWithoutPriceOffered() const {
    return context_.parameters().requiredPriceBeer || !context_.draft->withoutPriceBeer;
}

QString BrochureOrderPennantViewController::infoPennantLabel() const {
    return fromUtf8(context_.catalogue->information().validations.pennantHeltext);
}

QVariantList BrochureOrderPennantViewController::pickers() const {
    QVariantList chosen;
    for (Int position = 1; position <= pennantProductPlaces; ++position)
        chosen << std::max(rows_.rowOf(pennantProductAt(*context_.draft, position)), 0);
    return chosen;
}

const PennantProduct* BrochureOrderPennantViewController::productAt(Int position) const {
    const auto format = pennantProductAt(*context_.draft, position);
    const auto found = std::ranges::find_if(
        showInPennantProducts_, [&](const PennantProduct& each) { return each.format->id == format; });
    return found == showInPennantProducts_.end() ? nullptr : &*found;
}

QVariantList BrochureOrderPennantViewController::pennants() const {
    const BrochureIntermediateData& draft = *context_.draft;
    const bool priced = !draft.withoutPricePennant && isWithoutPriceOffered();
    QVariantList result;
    for (Int position = 1; position <= pennantProductPlaces; ++position) {
        const PennantProduct* product = productAt(position);
        QVariantMap pennant{{QStringLiteral("empty"), product == nullptr}};
        if (product) {
            const auto price = draft.priceOf(PriceType::main, product->format->id, product->brand->id);
            const auto& picture =
                product->format->imageThumb ? product->format->imageThumb : product->format->image;
            pennant[QStringLiteral("brand")] = fromUtf8(product->brand->name);
            pennant[QStringLiteral("name")] = fromUtf8(product->format->icon);
            pennant[QStringLiteral("image")] = picture ? resourceImageUrl(*picture) : QString();
            pennant[QStringLiteral("price")] =
                priced && price.value_or(0) != 0 ? fromUtf8(AppFormatter::shared().currencyFormatter(*price))
                                                 : QString();
        }
        result << pennant;
    }
    return result;
}

std::size_t BrochureOrderPennantViewController::taken() const {
    std::size_t count = 0;
    for (Int position = 1; position <= pennantProductPlaces; ++position)
        count += pennantProductAt(*context_.draft, position).has_value() ? 1 : 0;
    return count;
}

QString BrochureOrderPennantViewController::takenLabel() const {
    return QStringLiteral("%1 de %2 banderines con producto").arg(taken()).arg(pennantProductPlaces);
}

} // namespace kavor
