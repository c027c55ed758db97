#pragma once

#include "base/NotificationCenter.h"
#include "interaction/PendingRun.h"
#include "orders/list/DraftOrderRows.h"
#include "orders/screens/OrderListServices.h"
#include "orders/screens/OrderRowModels.h"
#include "orders/services/OrderActions.h"
#include "screens/VeilState.h"

#include <QPointer>

#include <memory>
#include <vector>

namespace kavor {

struct Choice;

// The terms that the server searches by; empty when there are none.
struct SearchTerms {
    QString orderId;
    QString tevo;
    QString pdv;
    bool operator==(const SearchTerms&) const = default;
};

// What stands in both lists of orders and how it comes there: the files of the device, the server's answers
// that are joined to them, and the veil of what is waited for. Files are read and rows are made beside the
// window's thread.
class OrderListBoard : public QObject {
    Q_OBJECT
public:
    enum class Load { None, UnderWay, Offline, Failed, Answered };

    explicit OrderListBoard(const OrderListServices& services);
    ~OrderListBoard() override;

    // Reads the files and asks the server.
    void load();
    // Asks the server by these terms, from now on.
    void search(const SearchTerms& terms);
    // Shows the answer of a quick filter, and ends the wait for it.
    void showFiltered(const OrderList& answer);
    // Opens a further screen; until uncover, which loads, nothing changes here.
    void cover(const std::function<void()>& openScreen);
    void uncover();
    [[nodiscard]] bool isCovered() const { return isCovered_; }
    // The order is no longer in the server's cloud.
    void forgetServerOrder(const DraftOrderRow& row);
    // What the server said of an order's QR material: its row takes it at once.
    void qrDemanded(Int id, std::optional<bool> canDemandQr, std::optional<OrderState> state,
                    const std::optional<std::string>& stateName);

    // Shows the veil, which the user may leave; the context of what is waited for.
    QObject* beginWait(const QString& text);
    void endWait();
    // The alert of a failed request: showRequestFailure for an update that is needed, else these choices.
    void tellFailure(const RequestFailure& failure, const QString& text, std::vector<Choice> choices);
    void tellOldCatalogue();

    [[nodiscard]] bool isOffline() const;
    // Whether there is a login and a catalogue.
    [[nodiscard]] bool hasSession() const;
    [[nodiscard]] Load state() const { return load_; }
    [[nodiscard]] const SearchTerms& terms() const { return terms_; }
    [[nodiscard]] const DraftOrderRows& rows() const { return rows_; }
    // The files of the outbox, what waits longest first.
    [[nodiscard]] std::vector<OrderFile> waitingFiles() const;
    [[nodiscard]] SavedOrdersModel& saved() { return saved_; }
    [[nodiscard]] SentOrdersModel& sent() { return sent_; }
    [[nodiscard]] bool hasSentRows() const { return sent_.count() > 0; }
    [[nodiscard]] VeilState& veil() { return veil_; }

signals:
    void rowsChanged();
    void loadChanged();
    // The server's list came.
    void answered();

private:
    // What was made away from the window's thread.
    struct Shown {
        DraftOrderRows rows;
        std::vector<SavedOrderRow> saved;
        std::vector<SentOrderRow> sent;
    };

    void rebuildLocalRows();
    void showJoined();
    void endWaitWithRows();
    void dropAnswer();
    void fetchServerOrders();
    void take(const OrderList& answer);
    void failed(const RequestFailure& failure);
    void show(Shown shown);
    void setLoad(Load load);
    void left();

    OrderListServices services_;
    NotificationCenter::Subscription reloads_;
    VeilState veil_;
    PendingRun wait_;    // the request that the veil stands for
    PendingRun reading_; // of the files
    PendingRun joining_; // of the rows that are shown next
    bool fetchesAfterReading_ = false;
    QPointer<QObject> endsWithRows_; // the wait that ends once they are on show
    bool isAnswerDue_ = true;        // what stands is of a load before this one
    bool isCovered_ = true;          // by another screen, or not on show yet
    SavedOrdersModel saved_;
    SentOrdersModel sent_;
    // The rows on show, those of the device alone, and the answers that were joined to them.
    DraftOrderRows rows_;
    DraftOrderRows local_;
    std::shared_ptr<const OrderList> answer_;
    std::shared_ptr<const OrderList> filtered_; // by the quick filter that stands
    Load load_ = Load::None;
    SearchTerms terms_; // orderIdToFilter, cobrixToFilter, localNameToFilter
};

} // namespace kavor
