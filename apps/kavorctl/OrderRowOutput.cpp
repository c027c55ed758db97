#include "OrderRowOutput.h"

#include "base/json/Table.h"
#include "orders/list/DraftOrderRows.h"

namespace kavor::ctl {

// A row in JSON. A draft has a "syncState", an order sent has the server's "state" instead.
struct RowRecord {
    std::optional<std::string> filename;
    std::optional<std::string> syncState;
    std::string section;
    std::string date;
    std::optional<Int> serverId;
    std::optional<std::string> state;
};

} // namespace kavor::ctl

namespace kavor::json {

template <>
struct Table<ctl::RowRecord> {
    using R = ctl::RowRecord;
    static constexpr auto fields =
        std::tuple{optional("filename", &R::filename), optional("syncState", &R::syncState),
                   required("section", &R::section),   required("date", &R::date),
                   optional("serverId", &R::serverId), optional("state", &R::state)};
};

} // namespace kavor::json

namespace kavor::ctl {

namespace {

RowRecord recordOf(const DraftOrderRow& row) {
    return {utf8Text(row.filename),
            std::string(caseName(row.syncState)),
            row.sectionIdentifier.text(),
            row.date.text(),
            row.serverId(),
            std::nullopt};
}

RowRecord recordOf(const OrderList::Order& order) {
    return {order.filename,    std::nullopt, SectionIdentifier::brochure(order.typeId).text(),
            order.date.text(), order.id,     order.state};
}

void printJson(std::ostream& out, const DraftOrderRows& rows, JsonRows jsonRows) {
    std::vector<RowRecord> records;
    for (const DraftOrderRow& row : rows.draftsOrderList())
        records.push_back(recordOf(row));
    if (jsonRows == JsonRows::DraftsAndSent) {
        for (const OrderList::Order& order : rows.sentBrochureOrders())
            records.push_back(recordOf(order));
    }
    out << prettyText(records);
}

void printText(std::ostream& out, const DraftOrderRows& rows) {
    for (const DraftOrderRow& row : rows.draftsOrderList()) {
        out << row.date.text() << "  " << label(row.syncState) << "  " << row.sectionIdentifier.text() << "  "
            << (row.filename.empty() ? "(Sin nombre)" : row.filename);
        if (row.serverId())
            out << "  #" << *row.serverId();
        out << '\n';
    }
    for (const OrderList::Order& order : rows.sentBrochureOrders())
        out << order.date.text() << "  " << order.state << "  " << order.type << "  "
            << order.pdv.value_or("(Sin especificar)") << "  #" << order.id << '\n';
}

} // namespace

void printRows(CommandContext& context, const DraftOrderRows& rows, JsonRows jsonRows) {
    if (context.json)
        printJson(context.out, rows, jsonRows);
    else
        printText(context.out, rows);
}

} // namespace kavor::ctl

KAVOR_JSON_DOCUMENT(std::vector<kavor::ctl::RowRecord>)
