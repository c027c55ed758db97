#include "orders/screens/AllOrdersManagementViewController.h"

#include "device/Background.h"
#include "device/Clock.h"
#include "device/Reachability.h"
#include "interaction/QtText.h"
#include "interaction/Questions.h"
#include "network/ShowRequestFailure.h"
#include "orders/DraftsWithChanges.h"
#include "orders/services/OrderSync.h"
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
    , services_(services) {
    observe();
}

AllOrdersManagementViewController::~AllOrdersManagementViewController() {
    endUndo();
}

void AllOrdersManagementViewController::observe() {
    observers_.push_back(
        NotificationCenter::shared().observe(notification::reloadOrders, [this](const NotificationInfo&) {
            if (!covered_)
                load();
        }));
    connect(&services_.actions, &OrderActions::filesChanged, this, [this] {
        if (!covered_)
            rebuildLocalRows();
    });
    connect(&services_.reachability, &Reachability::changed, this,
            &AllOrdersManagementViewController::reachabilityChanged);
    connect(&veil_, &VeilState::left, this, &AllOrdersManagementViewController::left);
}

void AllOrdersManagementViewController::viewWillAppear() {
    covered_ = false;
    services_.session.actualSection.reset();
    services_.session.actualApplicationType.reset();
    load();
}

void AllOrdersManagementViewController::closeSceneAction() {
    emit closed();
}

void AllOrdersManagementViewController::refresh() {
    load();
}

bool AllOrdersManagementViewController::hasSession() const {
    return services_.session.loginResult && services_.session.applicationInformation;
}

// ---- Loading

// The rows of the last answer stay on show until the next one, or until it is known that there is none, so
// that nobody loses the place where he was.
void AllOrdersManagementViewController::load() {
    quickFilter_ = QuickFilter::None;
    isAnswerDue_ = true;
    fetchesAfterReading_ = true;
    emit filtersChanged();
    rebuildLocalRows();
}

void AllOrdersManagementViewController::rebuildLocalRows() {
    runInBackground(
        reading_.begin(),
        [&orders = services_.orders] {
            DraftOrderRows rows;
            rows.rebuildLocalRows(orders);
            return rows;
        },
        [this](DraftOrderRows rows) {
            reading_.end();
            local_ = std::move(rows);
            showJoined();
            if (std::exchange(fetchesAfterReading_, false))
                fetchServerOrders();
        });
}

// The rows of the device, joined with the answers that stand.
void AllOrdersManagementViewController::showJoined() {
    runInBackground(
        joining_.begin(),
        [rows = local_, answer = answer_, filtered = filtered_,
         withChanges = DraftsWithChanges::shared().names()]() mutable {
            if (answer)
                rows.applyAnswer(*answer);
            rows.sortSentOrders();
            if (filtered)
                rows.applyQuickFilter(*filtered);
            auto saved = savedRows(rows, withChanges);
            auto sent = sentRows(rows);
            return Shown{std::move(rows), std::move(saved), std::move(sent)};
        },
        [this](Shown shown) {
            joining_.end();
            show(std::move(shown));
            if (endsWithRows_ && endsWithRows_ == wait_.context())
                endWait();
        });
}

void AllOrdersManagementViewController::endWaitWithRows() {
    endsWithRows_ = wait_.context();
    showJoined();
}

// Of a load that began with nothing but the device's rows.
void AllOrdersManagementViewController::dropAnswer() {
    if (isAnswerDue_) {
        answer_.reset();
        filtered_.reset();
    }
    showJoined();
}

void AllOrdersManagementViewController::fetchServerOrders() {
    services_.sync.replanBrochureSync();
    if (!services_.network.isReachable()) {
        setLoad(Load::Offline);
        dropAnswer();
        services_.alerts.inform(QStringLiteral("Atención"),
                                QStringLiteral("Sólo se muestran pedidos guardados localmente."), this);
        return;
    }
    if (!hasSession()) {
        setLoad(Load::Failed);
        return dropAnswer();
    }
    setLoad(Load::UnderWay);
    services_.network.retrieveBrochureOrderList({active_.orderId, active_.tevo, active_.pdv, 0, 0, 0, true},
                                                {beginWait(QStringLiteral("Cargando los pedidos…")),
                                                 [this](const OrderList& answer) { answered(answer); },
                                                 [this](const RequestFailure& failure) { failed(failure); }});
}

void AllOrdersManagementViewController::answered(const OrderList& answer) {
    answer_ = std::make_shared<const OrderList>(answer);
    filtered_.reset();
    isAnswerDue_ = false;
    answeredAt_ = services_.clock.now().toSecsSinceEpoch();
    refreshAge();
    endWaitWithRows();
}

void AllOrdersManagementViewController::failed(const RequestFailure& failure) {
    endWait();
    setLoad(Load::Failed);
    dropAnswer();
    tellFailure(failure, QStringLiteral("Error"),
                {{QString::fromUtf8(workLocally), AlertButton::Role::Cancel, {}},
                 {QString::fromUtf8(tryAgain), AlertButton::Role::Normal, [this] { fetchServerOrders(); }}});
}

void AllOrdersManagementViewController::show(Shown shown) {
    rows_ = std::move(shown.rows);
    for (SavedOrderRow& row : shown.saved) {
        if (!row.waiting)
            continue;
        row.isBusy = services_.actions.isBeingSent(*row.waiting);
        row.refusal = services_.actions.refusalOf(*row.waiting);
    }
    saved_.show(std::move(shown.saved));
    sent_.show(std::move(shown.sent));
    if (!isAnswerDue_ && load_ == Load::UnderWay)
        load_ = Load::Answered;
    if (waitingFiles().empty())
        setNotice({});
    emit rowsChanged();
    emit summaryChanged();
    emit emptyChanged();
    emit sheetChanged();
}

void AllOrdersManagementViewController::setLoad(Load load) {
    load_ = load;
    emit emptyChanged();
}

QObject* AllOrdersManagementViewController::beginWait(const QString& text) {
    veil_.setText(text);
    veil_.setVisible(true, true);
    return wait_.begin();
}

void AllOrdersManagementViewController::endWait() {
    wait_.end();
    veil_.setVisible(false, false);
}

// The user works with what is on the device; a late answer changes nothing.
void AllOrdersManagementViewController::left() {
    endWait();
    if (load_ != Load::UnderWay)
        return showJoined(); // which rows are being sent
    setLoad(Load::Failed);
    dropAnswer();
}

void AllOrdersManagementViewController::tellFailure(const RequestFailure& failure, const QString& text,
                                                    std::vector<Choice> choices) {
    if (failure.error.updateNeeded)
        return showRequestFailure({services_.alerts, services_.urls}, {}, failure, true, {});
    ask(services_.alerts, this, QStringLiteral("Incidencia"), text, std::move(choices));
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
    active_ = typed_;
    quickFilter_ = QuickFilter::None;
    emit filtersChanged();
    fetchServerOrders();
}

void AllOrdersManagementViewController::removeFilter(const QString& id) {
    if (id == QLatin1String("quick"))
        return load();
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
        if (!(active_.*term).isEmpty())
            chips.append(chip(QString::fromLatin1(name), QString::fromUtf8(caption) + active_.*term));
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
    if (!services_.network.isReachable())
        return informOffline(services_.alerts);
    if (!hasSession())
        return tellOldCatalogue();
    OrderListFilter filter;
    filter.*formOf(which).parameter = 1;
    services_.network.retrieveBrochureOrderList(
        filter, {beginWait(QStringLiteral("Cargando los pedidos…")),
                 [this, which](const OrderList& answer) {
                     filtered_ = std::make_shared<const OrderList>(answer);
                     quickFilter_ = which;
                     emit filtersChanged();
                     endWaitWithRows();
                 },
                 [this, which](const RequestFailure& failure) { quickFilterFailed(which, failure); }});
}

void AllOrdersManagementViewController::quickFilterFailed(QuickFilter which, const RequestFailure& failure) {
    endWait();
    const bool hasMessage = failure.messages && !failure.messages->isEmpty();
    std::vector<Choice> choices;
    for (const char* caption : formOf(which).buttons) {
        if (caption == tryAgain)
            choices.push_back({QString::fromUtf8(caption), AlertButton::Role::Normal,
                               [this, which] { runQuickFilter(which); }});
        else
            choices.push_back({QString::fromUtf8(caption), AlertButton::Role::Cancel, {}});
    }
    tellFailure(failure, hasMessage ? failure.messages->first() : QStringLiteral("Error"),
                std::move(choices));
}

// ---- What the view shows

bool AllOrdersManagementViewController::isOffline() const {
    return !services_.network.isReachable();
}

QString AllOrdersManagementViewController::withoutConfirmNumberLabel() const {
    return numberText(rows_.summary().noConfirm);
}

QString AllOrdersManagementViewController::realizedNumberLabel() const {
    return numberText(rows_.summary().total);
}

QString AllOrdersManagementViewController::withoutCobrixCodeLabel() const {
    return numberText(rows_.summary().noComplete);
}

std::vector<OrderFile> AllOrdersManagementViewController::waitingFiles() const {
    std::vector<OrderFile> files;
    for (const DraftOrderRow& row : rows_.draftsOrderList()) {
        if (row.syncState == OrderSyncState::pendingToSend)
            files.push_back(*row.file());
    }
    std::ranges::reverse(files); // what waits longest goes first
    return files;
}

QString AllOrdersManagementViewController::sendAllText() const {
    const auto count = waitingFiles().size();
    return count > 0 ? QStringLiteral("Enviar todos (%1)").arg(count) : QString();
}

QVariantMap AllOrdersManagementViewController::savedEmpty() const {
    if (active_ != Terms())
        return emptyState("search", "Ningún borrador", "La búsqueda sólo encuentra pedidos de la nube.");
    return emptyState("brochure", "Todavía no hay borradores",
                      "Los pedidos que guardes y los que esperan a ser enviados aparecen aquí.");
}

QVariantMap AllOrdersManagementViewController::sentEmpty() const {
    if (isOffline())
        return emptyState("offline", "Sin conexión", "Los pedidos enviados se ven cuando hay conexión.",
                          "Volver a intentarlo");
    switch (load_) {
    case Load::None:
    case Load::UnderWay:
        return emptyState("refresh", "Cargando los pedidos…", "");
    case Load::Offline:
    case Load::Failed:
        return emptyState("warning", "No se han podido cargar los pedidos",
                          "Puedes seguir trabajando con los del dispositivo.", "Volver a intentarlo");
    case Load::Answered:
        break;
    }
    if (active_ != Terms() || quickFilter_ != QuickFilter::None)
        return emptyState("search", "Ningún pedido", "No hay pedidos enviados con este filtro.");
    return emptyState("send", "Todavía no hay pedidos enviados",
                      "Cuando envíes un pedido podrás seguir aquí lo que pasa con él.");
}

bool AllOrdersManagementViewController::isSentShown() const {
    return !isOffline() && sent_.count() > 0;
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
    const auto waiting = qint64(waitingFiles().size());
    if (isOffline() || waiting == 0)
        return setNotice({});
    setNotice(QStringLiteral("Vuelve a haber conexión: ") +
              countOf(waiting, "pedido espera a ser enviado.", "pedidos esperan a ser enviados."));
}

void AllOrdersManagementViewController::setNotice(const QString& notice) {
    if (std::exchange(notice_, notice) != notice)
        emit noticeChanged();
}

void AllOrdersManagementViewController::tellOldCatalogue() {
    services_.alerts.inform(QStringLiteral("Atención"),
                            QStringLiteral("Es necesario actualizar el catálogo."), this);
}

} // namespace kavor
