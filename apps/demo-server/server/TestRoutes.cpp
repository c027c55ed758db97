#include "server/DemoServer.h"
#include "server/OrderRecords.h"
#include "server/Time.h"

#include <httplib.h>

namespace kavor::demo {

void DemoServer::addTestRoutes() {
    route("POST", "/demo/faults", Access::open, [this](const Call& call) {
        const Json body = call.json();
        if (const auto wrong = faults_.add(body)) {
            return Answer::message(400, *wrong);
        }
        return Answer::message(200, "on");
    });
    route("DELETE", "/demo/faults", Access::open, [this](const Call&) {
        faults_.clear();
        return Answer::message(200, "off");
    });
    route("POST", "/demo/expire-tokens", Access::open, [this](const Call&) {
        accounts_.expireTokens();
        return Answer::message(200, "expired");
    });
    route("GET", "/demo/requests", Access::open, [this](const Call&) { return Answer::json(log_.all()); });
    route("DELETE", "/demo/requests", Access::open, [this](const Call&) {
        log_.clear();
        return Answer::message(200, "cleared");
    });
    route("GET", "/demo/orders", Access::open,
          [this](const Call& call) { return Answer::json(storedOrders(call.request.has_param("all"))); });
    route("POST", R"(/demo/orders/(\d{1,15})/state)", Access::open,
          [this](const Call& call) { return setState(call); });
    route("POST", "/demo/next-list", Access::open, [this](const Call& call) {
        faults_.add({{"path", "/api/orders/list"},
                     {"fault", "status"},
                     {"status", 200},
                     {"body", call.request.body}});
        return Answer::message(200, "on");
    });
}

Json DemoServer::storedOrders(bool withHistory) {
    Json list = Json::array();
    for (const char* kind : {"brochure", "textile", "promotion", "sheet", "activation", "raw"}) {
        for (const Order& order : orders_.list(std::nullopt, kind)) {
            if (order.seeded && !withHistory) {
                continue;
            }
            Json messages = Json::array();
            for (const OrderMessage& message : orders_.messages(order)) {
                messages.push_back(
                    {{"kind", message.kind}, {"created", wireDate(message.created)}, {"body", message.body}});
            }
            list.push_back({{"id", order.id},
                            {"account", order.account},
                            {"kind", order.kind},
                            {"type", order.type},
                            {"token", order.token},
                            {"created", wireDate(order.created)},
                            {"filename", order.filename},
                            {"tevo", order.tevo},
                            {"pdv", order.pdv},
                            {"cloud", order.cloud},
                            {"seeded", order.seeded},
                            {"state", int(orders_.stateOf(order))},
                            {"pending", orders_.isPending(order)},
                            {"note", orders_.noteOf(order)},
                            {"can_demand_qr", canDemandQr(order, orders_)},
                            {"messages", std::move(messages)},
                            {"url_pdf", orderPdf(order, baseUrl_)},
                            {"body", order.body}});
        }
    }
    return list;
}

/// The order stays in the state until something happens to it again.
Answer DemoServer::setState(const Call& call) {
    const Json wanted = call.json();
    const auto has = [&wanted](const char* key, bool (Json::*isType)() const noexcept) {
        return wanted.contains(key) && (wanted[key].*isType)();
    };
    if (!wanted.is_object() || !has("state", &Json::is_number_integer) || wanted["state"] < 2 ||
        wanted["state"] > 12) {
        return Answer::message(400, "\"state\" is a number from 2 to 12");
    }
    const std::lock_guard lock(writeMutex_);
    auto order = orders_.findById(std::stoll(call.part(1)));
    if (!order) {
        return Answer::message(404, "no such order");
    }
    const auto state = OrderState(wanted["state"].get<int>());
    order->cloud = state == OrderState::cloud;
    order->fixedState = order->cloud ? std::nullopt : std::optional(state);
    order->note = has("note", &Json::is_string) ? wanted["note"].get<std::string>() : "";
    order->pending =
        has("pending", &Json::is_boolean) ? std::optional(wanted["pending"].get<bool>()) : std::nullopt;
    orders_.update(*order);
    return Answer::message(200, stateName(state));
}

} // namespace kavor::demo
