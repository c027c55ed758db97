#pragma once

#include "orders/OrderDiskManager.h"
#include "orders/OrderFile.h"
#include "orders/OrderList.h"
#include "session/SectionIdentifier.h"

#include <optional>
#include <string>
#include <vector>

namespace kavor {

// One row of the list of drafts: a file on the device, an order in the server's cloud, or both.
struct DraftOrderRow {
    // What is shown of a file's record, which itself is read anew whenever it is used.
    struct LocalOrder {
        std::optional<Int> orderIdentifier;
        std::string pointOfSale;
        bool operator==(const LocalOrder&) const = default;
    };

    std::optional<LocalOrder> localOrder;
    std::optional<OrderList::Order> brochureServerOrder;
    std::optional<OrderList::OrderTextile> textileServerOrder;
    std::string filename;                                 // plain
    std::optional<OrderDiskManager::DirectoryName> state; // unset for a row that is only in the cloud
    LocalDateTime date;
    OrderDiskManager::Moment moment; // of the date, for the order of the rows
    OrderSyncState syncState = OrderSyncState::savedLocally;
    SectionIdentifier sectionIdentifier;

    // The server's id of a row that has a server order.
    [[nodiscard]] std::optional<Int> serverId() const;
    // The file of a row that has one.
    [[nodiscard]] std::optional<OrderFile> file() const;
    // By this an action finds the row again: the file's folder and name, or section and number.
    [[nodiscard]] std::string key() const;
    // Of the customer in the file, else of the server's order; empty without any.
    [[nodiscard]] std::string pointOfSale() const;
};

// The lists behind the order screen: drafts of the device merged with the server's cloud orders, and the
// orders sent.
class DraftOrderRows {
public:
    // Makes the rows from the files of the draft and outbox folders, brochures before textile orders, newest
    // first. A listed file that can't be read stops the process.
    void rebuildLocalRows(const OrderDiskManager& orders);

    // Takes in the server's answer: orders sent go to the sent lists, cloud orders become rows; a local row
    // and the server's order of the same id become one "synced" row. A cloud order without a file name stops
    // the process.
    void applyAnswer(const OrderList& answer);

    // Takes in the answer of a quick filter: its brochures take the place of those sent, in any state;
    // nothing else changes.
    void applyQuickFilter(const OrderList& answer);

    // Newest first; orders of one moment keep their places.
    void sortSentOrders();

    [[nodiscard]] const std::vector<DraftOrderRow>& draftsOrderList() const { return draftsOrderList_; }
    [[nodiscard]] const std::vector<OrderList::Order>& sentBrochureOrders() const {
        return sentBrochureOrders_;
    }
    // Kept, and shown nowhere: a textile order that was sent has no row.
    [[nodiscard]] const std::vector<OrderList::OrderTextile>& sentTextileOrders() const {
        return sentTextileOrders_;
    }
    [[nodiscard]] const OrderList::Summary& summary() const { return summary_; }
    // Nothing when the row is gone.
    [[nodiscard]] const DraftOrderRow* find(const std::string& key) const;
    [[nodiscard]] const OrderList::Order* findSent(Int id) const;
    // The server has given the order another state, or said whether its QR material can be asked for again.
    void changeSent(Int id, std::optional<bool> canDemandQr, std::optional<OrderState> state,
                    const std::optional<std::string>& stateName);

private:
    void clearSentOrders();
    void forgetFormerAnswer();
    void appendCloudRows(const OrderList& answer);
    void mergeLocalRows(const OrderList& answer);
    void dropDuplicates();
    void sortRows();

    std::vector<DraftOrderRow> draftsOrderList_;
    std::vector<OrderList::Order> sentBrochureOrders_;
    std::vector<OrderList::OrderTextile> sentTextileOrders_;
    OrderList::Summary summary_;
};

} // namespace kavor
