#include "server/Orders.h"

#include "server/Time.h"

#include <array>

namespace kavor::demo {

namespace {

const std::string columnsOfARow =
    "SELECT id, account, kind, token, type, created, filename, tevo, pdv, cloud, state, note, "
    "qr_asked, seeded, road, since, pending, linked, qr_brand, qr_blocks, typography";
const std::string columns = columnsOfARow + ", body";
constexpr size_t bodyColumn = 21;
const std::string newestFirst = " ORDER BY created DESC, id DESC";

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
    order.road = Road(row.integer(14));
    order.since = row.integer(15);
    if (!row.isNull(16)) {
        order.pending = row.integer(16) == 1;
    }
    order.linked = row.integer(17) == 1;
    if (!row.isNull(18)) {
        order.qrBrand = row.integer(18);
    }
    order.qrBlocks = row.integer(19) == 1;
    order.typography = row.integer(20);
    if (row.size() > bodyColumn) {
        order.body = Json::parse(row.text(bodyColumn));
    }
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
            std::int64_t(order.road),
            order.since,
            order.pending ? SqlValue(std::int64_t(*order.pending)) : SqlValue(nullptr),
            std::int64_t(order.linked),
            order.qrBrand ? SqlValue(*order.qrBrand) : SqlValue(nullptr),
            std::int64_t(order.qrBlocks),
            order.typography,
            order.body.dump()};
}

std::optional<Order> first(const std::vector<SqlRow>& rows) {
    return rows.empty() ? std::nullopt : std::optional(orderOf(rows.front()));
}

std::vector<Order> all(const std::vector<SqlRow>& rows) {
    std::vector<Order> orders;
    orders.reserve(rows.size());
    for (const SqlRow& row : rows) {
        orders.push_back(orderOf(row));
    }
    return orders;
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
    case OrderState::confirmSupport:
        return "Confirmado por soporte";
    case OrderState::tradeAuthorization:
        return "Autorización comercial";
    case OrderState::cloud:
        return "En la nube";
    }
    return {};
}

void Order::takeFromBody() {
    qrBrand.reset();
    qrBlocks = false;
    if (const auto menu = body.find("menu"); menu != body.end()) {
        if (const auto brand = menu->find("brand_qr_id"); brand != menu->end()) {
            qrBrand = brand->get<std::int64_t>();
        }
        qrBlocks = menu->value("quantity_qr_taco", 0) > 0;
    }
    const auto order = body.find("order");
    typography = order == body.end() ? 0 : order->value("typography_id", std::int64_t(0));
}

void Orders::add(Order& order) {
    if (order.token.empty()) {
        order.token = randomHex(24);
    }
    if (order.created == 0) {
        order.created = now();
    }
    order.takeFromBody();
    order.id = database_.run(
        "INSERT INTO orders (account, kind, token, type, created, filename, tevo, pdv, cloud, state, "
        "note, qr_asked, seeded, road, since, pending, linked, qr_brand, qr_blocks, typography, body) "
        "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
        valuesOf(order));
}

void Orders::update(Order& order) {
    order.takeFromBody();
    std::vector<SqlValue> values = valuesOf(order);
    values.emplace_back(order.id);
    database_.run(
        "UPDATE orders SET account = ?, kind = ?, token = ?, type = ?, created = ?, filename = ?, tevo = ?, "
        "pdv = ?, cloud = ?, state = ?, note = ?, qr_asked = ?, seeded = ?, road = ?, since = ?, "
        "pending = ?, linked = ?, qr_brand = ?, qr_blocks = ?, typography = ?, body = ? WHERE id = ?",
        values);
}

void Orders::remove(const Order& order) {
    database_.run("DELETE FROM orders WHERE id = ?", {order.id});
    database_.run("DELETE FROM messages WHERE order_id = ?", {order.id});
}

std::optional<Order> Orders::find(std::int64_t account, std::int64_t id, const std::string& kind) {
    return first(database_.query(columns + " FROM orders WHERE account = ? AND id = ? AND kind = ?",
                                 {account, id, kind}));
}

std::optional<Order> Orders::findByToken(const std::string& token) {
    return first(database_.query(columns + " FROM orders WHERE token = ?", {token}));
}

std::optional<Order> Orders::findById(std::int64_t id) {
    return first(database_.query(columns + " FROM orders WHERE id = ?", {id}));
}

std::vector<Order> Orders::list(std::optional<std::int64_t> account, const std::string& kind) {
    return account
               ? all(database_.query(columns + " FROM orders WHERE kind = ? AND account = ?" + newestFirst,
                                     {kind, *account}))
               : all(database_.query(columns + " FROM orders WHERE kind = ?" + newestFirst, {kind}));
}

std::vector<Order> Orders::rows(std::int64_t account, const std::string& kind) {
    return all(database_.query(columnsOfARow + " FROM orders WHERE kind = ? AND account = ?" + newestFirst,
                               {kind, account}));
}

OrderState Orders::stateOf(const Order& order) const {
    if (order.cloud) {
        return OrderState::cloud;
    }
    if (order.fixedState) {
        return *order.fixedState;
    }
    using enum OrderState;
    constexpr std::array settled = {confirmed, inProcess, sent, delivered};
    const std::int64_t stage = stageOf(order);
    if (stage > 0) {
        return settled[size_t(std::min<std::int64_t>(stage, std::int64_t(settled.size())) - 1)];
    }
    return order.road == Road::claimed    ? incidence
           : order.road == Road::demanded ? tradeAuthorization
                                          : withoutConfirm;
}

std::int64_t Orders::stageOf(const Order& order) const {
    const std::int64_t start = order.since > 0 ? order.since : order.created;
    return std::max<std::int64_t>(0, now() - start) / stateSeconds_;
}

bool Orders::isPending(const Order& order) const {
    return order.pending.value_or(stateOf(order) == OrderState::incidence);
}

std::string Orders::noteOf(const Order& order) const {
    const bool settled = !order.cloud && !order.fixedState && stageOf(order) > 0;
    if (settled && order.road == Road::claimed) {
        return "Reclamación atendida: el pedido vuelve a estar en marcha.";
    }
    if (settled && order.road == Road::demanded) {
        return "Material QR autorizado.";
    }
    return order.note;
}

void Orders::addMessage(const Order& order, const std::string& kind, const Json& body) {
    database_.run("INSERT INTO messages (order_id, kind, created, body) VALUES (?, ?, ?, ?)",
                  {order.id, kind, now(), body.dump()});
}

std::vector<OrderMessage> Orders::messages(const Order& order) {
    std::vector<OrderMessage> messages;
    for (const SqlRow& row : database_.query(
             "SELECT created, kind, body FROM messages WHERE order_id = ? ORDER BY id", {order.id})) {
        messages.push_back({row.integer(0), row.text(1), Json::parse(row.text(2))});
    }
    return messages;
}

int Orders::seeds(std::int64_t account) {
    const auto rows = database_.query("SELECT number FROM seeds WHERE account = ?", {account});
    return rows.empty() ? 0 : int(rows.front().integer(0));
}

void Orders::setSeeds(std::int64_t account, int number) {
    database_.run("INSERT OR REPLACE INTO seeds (account, number) VALUES (?, ?)",
                  {account, std::int64_t(number)});
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
