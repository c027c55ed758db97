#include "orders/screens/AllOrdersManagementViewController.h"

#include "catalogue/Catalogue.h"
#include "device/Clock.h"
#include "device/Reachability.h"
#include "device/UrlOpener.h"
#include "interaction/QtText.h"
#include "interaction/Questions.h"
#include "screens/ElapsedText.h"
#include "session/AppSingleton.h"

#include <algorithm>
#include <array>
#include <utility>

namespace kavor {

namespace {

using QuickFilter = AllOrdersManagementViewController::QuickFilter;

// A quick filter: its request, what is active while it stands, and how its failure may be left. Two of the
// captions stand where one would not look for them; the system has them so.
struct QuickFilterForm {
    QuickFilter which;
    std::optional<Int> OrderListFilter::*parameter;
    const char* chip;
    std::array<const char*, 2> buttons; // of the failure, in their order
};

constexpr char workLocally[] = "Trabajar en local";
constexpr char tryAgain[] = "Intentar de nuevo";

constexpr std::array quickFilters{
    QuickFilterForm{QuickFilter::WithoutConfirm,
                    &OrderListFilter::sinConfirmar,
                    "Sin confirmar",
                    {workLocally, tryAgain}},
    // Nothing is deleted: the button only hides the veil, like the other one.
    QuickFilterForm{QuickFilter::WithoutComplete,
                    &OrderListFilter::sinCompletar,
                    "Sin código",
                    {tryAgain, "Borrar sólo en local"}},
    QuickFilterForm{
        QuickFilter::CurrentYear, &OrderListFilter::currentYear, "Este año", {tryAgain, workLocally}},
};

const QuickFilterForm& formOf(QuickFilter which) {
    return *std::ranges::find(quickFilters, which, &QuickFilterForm::which);
}

QString numberText(const std::optional<std::string>& number) {
    return number ? fromUtf8(*number) : QStringLiteral("-");
}

QVariantMap emptyState(const char* icon, const char* title, const char* text, const char* action = "") {
    return {{QStringLiteral("icon"), QString::fromLatin1(icon)},
            {QStringLiteral("title"), QString::fromUtf8(title)},
            {QStringLiteral("text"), QString::fromUtf8(text)},
            {QStringLiteral("action"), QString::fromUtf8(action)}};
}

QVariantMap chip(const QString& id, const QString& text) {
    return {{QStringLiteral("id"), id}, {QStringLiteral("text"), text}};
}

QString explanationOf(OrderSyncState state) {
    switch (state) {
    case OrderSyncState::synced:
        return QStringLiteral("El pedido está en este dispositivo y también en la nube.");
    case OrderSyncState::savedLocally:
        return QStringLiteral("El pedido sólo está en este dispositivo. Se subirá a la nube cuando haya "
                              "conexión.");
    case OrderSyncState::cloud:
        return QStringLiteral("El pedido está en la nube. Se descarga al editarlo.");
    case OrderSyncState::pendingToSend:
        break;
    }
    return QStringLiteral("El pedido se hizo sin conexión y espera a que lo envíes.");
}

} // namespace

AllOrdersManagementViewController::AllOrdersManagementViewController(const OrderListServices& services,
                                                                     QObject* parent)
    : ScreenController(parent)
    , services_(services)
    , board_(services)
    , actions_(services, board_) {
    connect(&services_.reachability, &Reachability::changed, this,
            &AllOrdersManagementViewController::reachabilityChanged);
    connect(&board_, &OrderListBoard::rowsChanged, this, &AllOrdersManagementViewController::rowsShown);
    connect(&board_, &OrderListBoard::loadChanged, this, &AllOrdersManagementViewController::emptyChanged);
    connect(&board_, &OrderListBoard::answered, this, &AllOrdersManagementViewController::answered);
    connect(&actions_, &OrderRowActions::undoChanged, this, &AllOrdersManagementViewController::undoChanged);
}

AllOrdersManagementViewController::~AllOrdersManagementViewController() = default;

void AllOrdersManagementViewController::setWays(const OrderListWays& ways) {
    ways_ = ways;
    actions_.setWays(ways);
}

void AllOrdersManagementViewController::viewWillAppear() {
    setQuickFilter(QuickFilter::None);
    board_.uncover();
}

void AllOrdersManagementViewController::closeSceneAction() {
    emit closed();
}

void AllOrdersManagementViewController::refresh() {
    setQuickFilter(QuickFilter::None);
    board_.load();
}

void AllOrdersManagementViewController::answered() {
    setQuickFilter(QuickFilter::None);
    answeredAt_ = services_.clock.now().toSecsSinceEpoch();
    refreshAge();
}

void AllOrdersManagementViewController::rowsShown() {
    if (board_.waitingFiles().empty())
        setNotice({});
    emit rowsChanged();
    emit summaryChanged();
    emit emptyChanged();
    emit sheetChanged();
}

// ---- Search and quick filters

void AllOrdersManagementViewController::editOrderIdSearch(const QString& text) {
    typed_.orderId = text;
    emit searchChanged();
}

void AllOrdersManagementViewController::editCobrixSearch(const QString& text) {
    typed_.tevo = text;
    emit searchChanged();
}

void AllOrdersManagementViewController::editLocalNameSearch(const QString& text) {
    typed_.pdv = text;
    emit searchChanged();
}

void AllOrdersManagementViewController::searchToFilterAction() {
    setQuickFilter(QuickFilter::None);
    board_.search(typed_);
    emit filtersChanged();
}

void AllOrdersManagementViewController::removeFilter(const QString& id) {
    if (id == QLatin1String("quick"))
        return refresh();
    for (const auto& [name, caption, term] : searchFields) {
        if (id == QLatin1String(name))
            (typed_.*term).clear();
    }
    emit searchChanged();
    searchToFilterAction();
}

QVariantList AllOrdersManagementViewController::filters() const {
    QVariantList chips;
    if (quickFilter_ != QuickFilter::None)
        chips.append(chip(QStringLiteral("quick"), QString::fromUtf8(formOf(quickFilter_).chip)));
    for (const auto& [name, caption, term] : searchFields) {
        if (!(board_.terms().*term).isEmpty())
            chips.append(chip(QString::fromLatin1(name), QString::fromUtf8(caption) + board_.terms().*term));
    }
    return chips;
}

void AllOrdersManagementViewController::withoutConfirmAction() {
    runQuickFilter(QuickFilter::WithoutConfirm);
}

void AllOrdersManagementViewController::withoutCompleteAction() {
    runQuickFilter(QuickFilter::WithoutComplete);
}

void AllOrdersManagementViewController::withoutFilterAction() {
    runQuickFilter(QuickFilter::CurrentYear);
}

void AllOrdersManagementViewController::runQuickFilter(QuickFilter which) {
    if (isOffline())
        return informOffline(services_.alerts);
    if (!board_.hasSession())
        return board_.tellOldCatalogue();
    OrderListFilter filter;
    filter.*formOf(which).parameter = 1;
    services_.network.retrieveBrochureOrderList(
        filter, {board_.beginWait(QStringLiteral("Cargando los pedidos…")),
                 [this, which](const OrderList& answer) {
                     setQuickFilter(which);
                     board_.showFiltered(answer);
                 },
                 [this, which](const RequestFailure& failure) { quickFilterFailed(which, failure); }});
}

void AllOrdersManagementViewController::setQuickFilter(QuickFilter which) {
    if (std::exchange(quickFilter_, which) != which)
        emit filtersChanged();
}

void AllOrdersManagementViewController::quickFilterFailed(QuickFilter which, const RequestFailure& failure) {
    board_.endWait();
    const bool hasMessage = failure.messages && !failure.messages->isEmpty();
    std::vector<Choice> choices;
    for (const char* caption : formOf(which).buttons) {
        if (caption == tryAgain)
            choices.push_back({QString::fromUtf8(caption), AlertButton::Role::Normal,
                               [this, which] { runQuickFilter(which); }});
        else
            choices.push_back({QString::fromUtf8(caption), AlertButton::Role::Cancel, {}});
    }
    board_.tellFailure(failure, hasMessage ? failure.messages->first() : QStringLiteral("Error"),
                       std::move(choices));
}

// ---- What the view shows

bool AllOrdersManagementViewController::isOffline() const {
    return board_.isOffline();
}

QString AllOrdersManagementViewController::withoutConfirmNumberLabel() const {
    return numberText(board_.rows().summary().noConfirm);
}

QString AllOrdersManagementViewController::realizedNumberLabel() const {
    return numberText(board_.rows().summary().total);
}

QString AllOrdersManagementViewController::withoutCobrixCodeLabel() const {
    return numberText(board_.rows().summary().noComplete);
}

QString AllOrdersManagementViewController::sendAllText() const {
    const auto count = board_.waitingFiles().size();
    return count > 0 ? QStringLiteral("Enviar todos (%1)").arg(count) : QString();
}

QVariantMap AllOrdersManagementViewController::savedEmpty() const {
    if (board_.terms() != SearchTerms())
        return emptyState("search", "Ningún borrador", "La búsqueda sólo encuentra pedidos de la nube.");
    return emptyState("brochure", "Todavía no hay borradores",
                      "Los pedidos que guardes y los que esperan a ser enviados aparecen aquí.");
}

QVariantMap AllOrdersManagementViewController::sentEmpty() const {
    if (isOffline())
        return emptyState("offline", "Sin conexión", "Los pedidos enviados se ven cuando hay conexión.",
                          "Volver a intentarlo");
    switch (board_.state()) {
    case OrderListBoard::Load::None:
    case OrderListBoard::Load::UnderWay:
        return emptyState("refresh", "Cargando los pedidos…", "");
    case OrderListBoard::Load::Offline:
    case OrderListBoard::Load::Failed:
        return emptyState("warning", "No se han podido cargar los pedidos",
                          "Puedes seguir trabajando con los del dispositivo.", "Volver a intentarlo");
    case OrderListBoard::Load::Answered:
        break;
    }
    if (board_.terms() != SearchTerms() || quickFilter_ != QuickFilter::None)
        return emptyState("search", "Ningún pedido", "No hay pedidos enviados con este filtro.");
    return emptyState("send", "Todavía no hay pedidos enviados",
                      "Cuando envíes un pedido podrás seguir aquí lo que pasa con él.");
}

bool AllOrdersManagementViewController::isSentShown() const {
    return !isOffline() && board_.hasSentRows();
}

QVariantList AllOrdersManagementViewController::helpStates() const {
    QVariantList states;
    for (const auto& each : casesOf<OrderSyncState>())
        states.append(QVariantMap{{QStringLiteral("icon"), fromUtf8(each.icon)},
                                  {QStringLiteral("text"), fromUtf8(each.label)},
                                  {QStringLiteral("colour"), stateColour(each.value)},
                                  {QStringLiteral("explanation"), explanationOf(each.value)}});
    return states;
}

void AllOrdersManagementViewController::openHelpModalButton() {
    helpShown_ = true;
    emit helpChanged();
}

void AllOrdersManagementViewController::hideNotifications() {
    helpShown_ = false;
    emit helpChanged();
}

void AllOrdersManagementViewController::refreshAge() {
    const QString age = answeredAt_ ? QStringLiteral("Actualizado hace ") +
                                          elapsedText(services_.clock.now().toSecsSinceEpoch() - *answeredAt_)
                                    : QString();
    if (std::exchange(age_, age) != age)
        emit ageChanged();
    services_.clock.cancel(ageTimer_);
    ageTimer_ = services_.clock.after(std::chrono::minutes(1), this, [this] { refreshAge(); });
}

void AllOrdersManagementViewController::reachabilityChanged() {
    emit offlineChanged();
    emit emptyChanged();
    const auto waiting = qint64(board_.waitingFiles().size());
    if (isOffline() || waiting == 0)
        return setNotice({});
    setNotice(QStringLiteral("Vuelve a haber conexión: ") +
              countOf(waiting, "pedido espera a ser enviado.", "pedidos esperan a ser enviados."));
}

void AllOrdersManagementViewController::setNotice(const QString& notice) {
    if (std::exchange(notice_, notice) != notice)
        emit noticeChanged();
}

// ---- A sent row

void AllOrdersManagementViewController::openSheet(qlonglong id) {
    sheetId_ = id;
    emit sheetChanged();
}

void AllOrdersManagementViewController::closeSheet() {
    sheetId_.reset();
    emit sheetChanged();
}

QVariantMap AllOrdersManagementViewController::sheet() const {
    const OrderList::Order* order = sheetId_ ? board_.rows().findSent(*sheetId_) : nullptr;
    if (!order)
        return {};
    const std::string place = order->pdv.value_or("");
    return {{QStringLiteral("orderId"), qlonglong(order->id)},
            {QStringLiteral("title"), QStringLiteral("Pedido %1").arg(order->id)},
            {QStringLiteral("date"), fromUtf8(order->date.text()).left(16)},
            {QStringLiteral("type"), fromUtf8(order->type)},
            {QStringLiteral("pointOfSale"),
             place.empty() ? QStringLiteral("(Sin especificar)") : fromUtf8(place)},
            {QStringLiteral("state"), fromUtf8(order->state)},
            {QStringLiteral("note"), fromUtf8(order->note.value_or(""))},
            {QStringLiteral("pending"), order->pending.value_or(false)},
            {QStringLiteral("canDemandQr"), order->canDemandQr}};
}

void AllOrdersManagementViewController::previewURLAction(qlonglong id) {
    const OrderList::Order* order = board_.rows().findSent(id);
    if (!order)
        return;
    const QString contact = QStringLiteral("Póngase en contacto con soporte.");
    if (!order->url)
        return services_.alerts.inform(QStringLiteral("No existe enlace para este pedido."), contact, this);
    if (!services_.urls.openExternally(QString::fromStdString(order->url->text)))
        services_.alerts.inform(QStringLiteral("No se puede abrir el enlace."), contact, this);
}

void AllOrdersManagementViewController::claimOrder(qlonglong id) {
    const OrderList::Order* order = board_.rows().findSent(id);
    if (!order)
        return;
    closeSheet();
    board_.cover([this, order = *order] { ways_.claim(order); });
}

void AllOrdersManagementViewController::demandQrOrder(qlonglong id) {
    const OrderList::Order* order = board_.rows().findSent(id);
    if (!order || !order->canDemandQr)
        return;
    if (!board_.hasSession())
        return board_.tellOldCatalogue();
    if (!services_.session.catalogue().brochureType(order->typeId))
        return services_.alerts.inform(QStringLiteral("Atención"),
                                       QStringLiteral("Este tipo de pedido ya no está en el catálogo."),
                                       this);
    closeSheet();
    board_.cover([this, order = *order] { ways_.qrDemand(order); });
}

void AllOrdersManagementViewController::copyOrder(qlonglong id) {
    closeSheet();
    actions_.copy(id);
}

} // namespace kavor
