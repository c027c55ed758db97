#include "orders/screens/OrderListBoard.h"

#include "device/Background.h"
#include "interaction/Questions.h"
#include "network/ShowRequestFailure.h"
#include "orders/DraftsWithChanges.h"
#include "orders/services/OrderSync.h"
#include "session/AppSingleton.h"

#include <algorithm>
#include <utility>

namespace kavor {

OrderListBoard::OrderListBoard(const OrderListServices& services)
    : services_(services)
    , reloads_(
          NotificationCenter::shared().observe(notification::reloadOrders, [this](const NotificationInfo&) {
              if (!isCovered_)
                  load();
          })) {
    connect(&services_.actions, &OrderActions::filesChanged, this, [this] {
        if (!isCovered_)
            rebuildLocalRows();
    });
    connect(&veil_, &VeilState::left, this, &OrderListBoard::left);
}

OrderListBoard::~OrderListBoard() = default;

bool OrderListBoard::hasSession() const {
    return services_.session.loginResult && services_.session.applicationInformation;
}

// ---- Loading

// The rows of the last answer stay on show until the next one, or until it is known that there is none, so
// that nobody loses the place where he was.
void OrderListBoard::load() {
    isAnswerDue_ = true;
    fetchesAfterReading_ = true;
    rebuildLocalRows();
}

void OrderListBoard::search(const SearchTerms& terms) {
    terms_ = terms;
    fetchServerOrders();
}

void OrderListBoard::showFiltered(const OrderList& answer) {
    filtered_ = std::make_shared<const OrderList>(answer);
    endWaitWithRows();
}

void OrderListBoard::rebuildLocalRows() {
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
void OrderListBoard::showJoined() {
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

void OrderListBoard::endWaitWithRows() {
    endsWithRows_ = wait_.context();
    showJoined();
}

// Of a load that began with nothing but the device's rows.
void OrderListBoard::dropAnswer() {
    if (isAnswerDue_) {
        answer_.reset();
        filtered_.reset();
    }
    showJoined();
}

void OrderListBoard::fetchServerOrders() {
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
    services_.network.retrieveBrochureOrderList({terms_.orderId, terms_.tevo, terms_.pdv, 0, 0, 0, true},
                                                {beginWait(QStringLiteral("Cargando los pedidos…")),
                                                 [this](const OrderList& answer) { take(answer); },
                                                 [this](const RequestFailure& failure) { failed(failure); }});
}

void OrderListBoard::take(const OrderList& answer) {
    answer_ = std::make_shared<const OrderList>(answer);
    filtered_.reset();
    isAnswerDue_ = false;
    emit answered();
    endWaitWithRows();
}

void OrderListBoard::failed(const RequestFailure& failure) {
    endWait();
    setLoad(Load::Failed);
    dropAnswer();
    tellFailure(
        failure, QStringLiteral("Error"),
        {{QStringLiteral("Trabajar en local"), AlertButton::Role::Cancel, {}},
         {QStringLiteral("Intentar de nuevo"), AlertButton::Role::Normal, [this] { fetchServerOrders(); }}});
}

void OrderListBoard::show(Shown shown) {
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
    emit rowsChanged();
}

void OrderListBoard::setLoad(Load load) {
    load_ = load;
    emit loadChanged();
}

// What opens over the list has it loaded anew when it closes.
void OrderListBoard::cover(const std::function<void()>& openScreen) {
    isCovered_ = true;
    openScreen();
}

void OrderListBoard::uncover() {
    isCovered_ = false;
    services_.session.actualSection.reset();
    services_.session.actualApplicationType.reset();
    load();
}

bool OrderListBoard::isOffline() const {
    return !services_.network.isReachable();
}

void OrderListBoard::qrDemanded(Int id, std::optional<bool> canDemandQr, std::optional<OrderState> state,
                                const std::optional<std::string>& stateName) {
    rows_.changeSent(id, canDemandQr, state, stateName);
    sent_.show(sentRows(rows_));
    emit rowsChanged();
}

QObject* OrderListBoard::beginWait(const QString& text) {
    veil_.setText(text);
    veil_.setVisible(true, true);
    return wait_.begin();
}

void OrderListBoard::endWait() {
    wait_.end();
    veil_.setVisible(false, false);
}

// The user works with what is on the device; a late answer changes nothing.
void OrderListBoard::left() {
    endWait();
    if (load_ != Load::UnderWay)
        return showJoined(); // which rows are being sent
    setLoad(Load::Failed);
    dropAnswer();
}

void OrderListBoard::tellFailure(const RequestFailure& failure, const QString& text,
                                 std::vector<Choice> choices) {
    if (failure.error.updateNeeded)
        return showRequestFailure({services_.alerts, services_.urls}, {}, failure, true, {});
    ask(services_.alerts, this, QStringLiteral("Incidencia"), text, std::move(choices));
}

std::vector<OrderFile> OrderListBoard::waitingFiles() const {
    std::vector<OrderFile> files;
    for (const DraftOrderRow& row : rows_.draftsOrderList()) {
        if (row.syncState == OrderSyncState::pendingToSend)
            files.push_back(*row.file());
    }
    std::ranges::reverse(files); // what waits longest goes first
    return files;
}

// The answer that stands no longer holds; it must not show the order until the next one.
void OrderListBoard::forgetServerOrder(const DraftOrderRow& row) {
    if (!answer_)
        return;
    auto answer = std::make_shared<OrderList>(*answer_);
    const auto drop = [id = *row.serverId()](auto& orders) {
        if (orders)
            std::erase_if(*orders, [id](const auto& order) { return order.id == id; });
    };
    if (row.sectionIdentifier.brochureType())
        drop(answer->orders);
    else
        drop(answer->textileOrders);
    answer_ = std::move(answer);
}

void OrderListBoard::tellOldCatalogue() {
    services_.alerts.inform(QStringLiteral("Atención"),
                            QStringLiteral("Es necesario actualizar el catálogo."), this);
}

} // namespace kavor
