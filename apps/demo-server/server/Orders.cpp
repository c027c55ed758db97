#include "server/Orders.h"

#include "server/Time.h"

#include <array>

namespace kavor::demo {

namespace {

constexpr const char* columns =
    "id, account, kind, token, type, created, filename, tevo, pdv, cloud, state, note, "
    "qr_asked, seeded, body";

Order orderOf(const SqlRow& row) {
    Order order;
    order.id = row.integer(0);
    order.account = row.integer(1);
    order.kind = row.text(2);
    order.token = row.text(3);
    order.type = int(row.integer(4));
    order.created = row.integer(5);
    order.filename = row.text(6);
    order.tevo = row.text(7);
    order.pdv = row.text(8);
    order.cloud = row.integer(9) == 1;
    if (!row.isNull(10)) {
        order.fixedState = OrderState(row.integer(10));
    }
    order.note = row.text(11);
    order.qrAsked = row.integer(12) == 1;
    order.seeded = row.integer(13) == 1;
    order.body = Json::parse(row.text(14));
    return order;
}

std::vector<SqlValue> valuesOf(const Order& order) {
    return {order.account,
            order.kind,
            order.token,
            std::int64_t(order.type),
            order.created,
            order.filename,
            order.tevo,
            order.pdv,
            std::int64_t(order.cloud),
            order.fixedState ? SqlValue(std::int64_t(*order.fixedState)) : SqlValue(nullptr),
            order.note,
            std::int64_t(order.qrAsked),
            std::int64_t(order.seeded),
            order.body.dump()};
}

std::optional<Order> first(const std::vector<SqlRow>& rows) {
    return rows.empty() ? std::nullopt : std::optional(orderOf(rows.front()));
}

} // namespace

std::string stateName(OrderState state) {
    switch (state) {
    case OrderState::withoutConfirm:
        return "Sin confirmar";
    case OrderState::confirmed:
        return "Confirmado";
    case OrderState::inProcess:
        return "En proceso";
    case OrderState::sent:
        return "Enviado";
    case OrderState::incidence:
        return "Incidencia";
    case OrderState::deleted:
        return "Eliminado";
    case OrderState::canceled:
        return "Cancelado";
    case OrderState::delivered:
        return "Entregado";
    case OrderState::cloud:
        return "En la nube";
    }
    return {};
}

void Orders::add(Order& order) {
    if (order.token.empty()) {
        order.token = randomHex(24);
    }
    if (order.created == 0) {
        order.created = now();
    }
    order.id = database_.run(
        "INSERT INTO orders (account, kind, token, type, created, filename, tevo, pdv, cloud, state, "
        "note, qr_asked, seeded, body) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
        valuesOf(order));
}

void Orders::update(const Order& order) {
    std::vector<SqlValue> values = valuesOf(order);
    values.emplace_back(order.id);
    database_.run(
        "UPDATE orders SET account = ?, kind = ?, token = ?, type = ?, created = ?, filename = ?, tevo = ?, "
        "pdv = ?, cloud = ?, state = ?, note = ?, qr_asked = ?, seeded = ?, body = ? WHERE id = ?",
        values);
}

std::optional<Order> Orders::find(std::int64_t account, std::int64_t id, const std::string& kind) {
    return first(database_.query(std::string("SELECT ") + columns +
                                     " FROM orders WHERE account = ? AND id = ? AND "
                                     "kind = ? AND COALESCE(state, 0) <> 7",
                                 {account, id, kind}));
}

std::optional<Order> Orders::findByToken(const std::string& token) {
    return first(database_.query(std::string("SELECT ") + columns + " FROM orders WHERE token = ?", {token}));
}

std::vector<Order> Orders::list(std::optional<std::int64_t> account, const std::string& kind) {
    std::string sql =
        std::string("SELECT ") + columns + " FROM orders WHERE kind = ? AND COALESCE(state, 0) <> 7";
    std::vector<SqlValue> values = {kind};
    if (account) {
        sql += " AND account = ?";
        values.emplace_back(*account);
    }
    std::vector<Order> orders;
    for (const SqlRow& row : database_.query(sql + " ORDER BY created DESC, id DESC", values)) {
        orders.push_back(orderOf(row));
    }
    return orders;
}

OrderState Orders::stateOf(const Order& order) const {
    if (order.cloud) {
        return OrderState::cloud;
    }
    if (order.fixedState) {
        return *order.fixedState;
    }
    constexpr std::array road = {OrderState::withoutConfirm, OrderState::confirmed, OrderState::inProcess,
                                 OrderState::sent, OrderState::delivered};
    const std::int64_t stage = std::max<std::int64_t>(0, now() - order.created) / stateSeconds_;
    return road[size_t(std::min<std::int64_t>(stage, std::int64_t(road.size()) - 1))];
}

std::string Orders::addDocument(const std::string& kind, const Json& body) {
    std::string name = randomHex(32);
    database_.run("INSERT INTO documents (name, kind, created, body) VALUES (?, ?, ?, ?)",
                  {name, kind, now(), body.dump()});
    constexpr std::int64_t week = std::int64_t(7) * 24 * 3600;
    database_.run("DELETE FROM documents WHERE kind = 'preview' AND created < ?", {now() - week});
    return name;
}

std::optional<Orders::Document> Orders::document(const std::string& name) {
    const auto rows = database_.query("SELECT kind, body FROM documents WHERE name = ?", {name});
    if (rows.empty()) {
        return std::nullopt;
    }
    return Document{rows.front().text(0), Json::parse(rows.front().text(1))};
}

} // namespace kavor::demo
