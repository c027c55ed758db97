#include "textile/screens/TextileCart.h"

#include "device/Clock.h"
#include "interaction/AlertPresenter.h"
#include "interaction/Questions.h"

#include <algorithm>
#include <utility>

namespace kavor {

namespace {

UInt minimumUnits() {
    const Int minimum = TextileArticles::current().textile().validations.minimumOrderAmount;
    return minimum < 1 ? 0 : UInt(minimum);
}

} // namespace

TextileCart::TextileCart(TextileDesk& desk, QObject* parent)
    : QObject(parent)
    , desk_(desk) {
    reload();
    connect(&desk_, &TextileDesk::changed, this, &TextileCart::reload);
}

TextileCart::~TextileCart() {
    desk_.services().clock.cancel(undoTimer_);
}

void TextileCart::reload() {
    lines_.show(desk_.cartRows());
    emit changed();
}

void TextileCart::askToDelete(const QString& key) {
    if (desk_.cartLine(key))
        ask(desk_.services().alerts, this, QStringLiteral("Atención"),
            QStringLiteral("¿Desea borrar el ítem?"), {no(), yesDestroy([this, key] { deleteLine(key); })});
}

void TextileCart::deleteLine(const QString& key) {
    const auto* found = desk_.cartLine(key);
    if (!found)
        return;
    const auto& order = desk_.draft().order;
    Removed removed{*found, std::size_t(found - order.data()),
                    TextileDesk::garmentName(found->item.formatIdentifier, found->item.genderIdentifier)};
    bool isGone = true;
    desk_.change([&](TextileIntermediateData& draft) {
        for (const auto& [size, quantity] : removed.line.sizes) {
            const auto* article = TextileArticles::current().article(removed.line.item, size);
            isGone = article && draft.addToCart(*article, 0) && isGone;
        }
    });
    if (!isGone)
        return desk_.services().alerts.inform(
            QStringLiteral("Error"), QStringLiteral("No se ha podido borrar el ítem deseado."), this);
    endUndo();
    removed_ = std::move(removed);
    undoTimer_ = desk_.services().clock.after(undoTime, this, [this] { endUndo(); });
    emit undoChanged();
}

// A line that was put together anew meanwhile stays as it is.
void TextileCart::undoDelete() {
    if (!removed_)
        return;
    const Removed removed = *removed_;
    endUndo();
    desk_.change([&removed](TextileIntermediateData& draft) {
        if (draft.cartLine(removed.line.item))
            return;
        const auto place = std::min(removed.place, draft.order.size());
        draft.order.insert(draft.order.begin() + std::ptrdiff_t(place), removed.line);
    });
}

void TextileCart::endUndo() {
    desk_.services().clock.cancel(std::exchange(undoTimer_, 0));
    if (std::exchange(removed_, std::nullopt))
        emit undoChanged();
}

void TextileCart::helpAction() {
    desk_.services().alerts.inform(QStringLiteral("Atención"),
                                   QStringLiteral("Deslice hacia arriba para eliminar el elemento."), this);
}

QString TextileCart::summary() const {
    return QStringLiteral("Referencias: %1 unidades: %2")
        .arg(desk_.draft().order.size())
        .arg(TextileDesk::number(desk_.draft().totalUnits()));
}

bool TextileCart::isEnough() const {
    return desk_.draft().totalUnits() >= minimumUnits();
}

double TextileCart::share() const {
    return isEnough() ? 1 : double(desk_.draft().totalUnits()) / double(minimumUnits());
}

QString TextileCart::minimumText() const {
    if (minimumUnits() == 0)
        return {};
    if (isEnough())
        return QStringLiteral("Pedido mínimo de %1 alcanzado").arg(TextileDesk::number(minimumUnits()));
    const UInt missing = minimumUnits() - desk_.draft().totalUnits();
    return (missing == 1 ? QStringLiteral("Falta %1") : QStringLiteral("Faltan %1"))
               .arg(TextileDesk::number(missing)) +
           QStringLiteral(" para el mínimo de %1").arg(TextileDesk::number(minimumUnits()));
}

QString TextileCart::undoText() const {
    return removed_ ? QStringLiteral("Se ha quitado «%1»").arg(removed_->name) : QString();
}

} // namespace kavor
