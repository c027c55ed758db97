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
    route("GET", "/demo/orders", Access::open, [this](const Call& call) {
        const bool all = call.request.has_param("all");
        Json list = Json::array();
        for (const char* kind : {"brochure", "textile", "promotion", "sheet", "activation", "raw"}) {
            for (const Order& order : orders_.list(std::nullopt, kind)) {
                if (all || !order.seeded) {
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
                                    {"state", int(orders_.stateOf(order))},
                                    {"url_pdf", orderPdf(order, baseUrl_)},
                                    {"body", order.body}});
                }
            }
        }
        return Answer::json(list);
    });
}

} // namespace kavor::demo
