#include "OrderRowOutput.h"

#include "base/json/Table.h"
#include "orders/DraftOrderRows.h"

namespace kavor::ctl {

// A row as "orders merge --json" and "orders list --json" write it.
struct RowRecord {
    std::string filename;
    std::string syncState;
    std::string section;
    std::string date;
    std::optional<Int> serverId;
};

} // namespace kavor::ctl

namespace kavor::json {

template <>
struct Table<ctl::RowRecord> {
    using R = ctl::RowRecord;
    static constexpr auto fields = std::tuple{
        required("filename", &R::filename), required("syncState", &R::syncState),
        required("section", &R::section), required("date", &R::date), optional("serverId", &R::serverId)};
};

} // namespace kavor::json

namespace kavor::ctl {

namespace {

std::string stateName(OrderSyncState state) {
    switch (state) {
    case OrderSyncState::synced:
        return "synced";
    case OrderSyncState::savedLocally:
        return "savedLocally";
    case OrderSyncState::cloud:
        return "cloud";
    case OrderSyncState::pendingToSend:
        return "pendingToSend";
    }
    return "";
}

} // namespace

void printRows(CommandContext& context, const DraftOrderRows& rows) {
    std::vector<RowRecord> records;
    for (const DraftOrderRow& row : rows.draftsOrderList())
        records.push_back({row.filename, stateName(row.syncState), row.sectionIdentifier.text(),
                           row.date.text(), row.serverId()});
    if (context.json) {
        context.out << prettyText(records);
        return;
    }
    for (std::size_t i = 0; i < records.size(); ++i) {
        context.out << records[i].date << "  " << label(rows.draftsOrderList()[i].syncState) << "  "
                    << records[i].section << "  "
                    << (records[i].filename.empty() ? "(Sin nombre)" : records[i].filename);
        if (records[i].serverId)
            context.out << "  #" << *records[i].serverId;
        context.out << '\n';
    }
    for (const OrderList::Order& order : rows.sentBrochureOrders())
        context.out << order.date.text() << "  " << order.state << "  " << order.type << "  "
                    << order.pdv.value_or("(Sin especificar)") << "  #" << order.id << '\n';
}

} // namespace kavor::ctl

KAVOR_JSON_DOCUMENT(std::vector<kavor::ctl::RowRecord>)
