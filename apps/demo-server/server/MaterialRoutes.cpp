#include "catalogue/Content.h"
#include "server/DemoServer.h"
#include "server/OrderRecords.h"
#include "server/Time.h"

#include <httplib.h>

#include <algorithm>

namespace kavor::demo {

void DemoServer::addMaterialRoutes() {
    route("POST", "/api/textile", Access::bearerWrite,
          [this](const Call& call) { return saveTextile(call); });
    route("GET", R"(/api/textile/order/(\d{1,15}))", Access::bearer, [this](const Call& call) {
        const auto order = orders_.find(call.account.id, std::stoll(call.part(1)), "textile");
        return order ? Answer::json(retrievedTextile(*order, orders_, baseUrl_))
                     : Answer::message(404, "El pedido no existe.");
    });
    route("GET", "/api/sheets/list", Access::bearer, [this](const Call& call) {
        Json sheets = Json::array();
        for (const Order& order : orders_.list(call.account.id, "sheet")) {
            sheets.push_back(sellingSheetEntry(order, baseUrl_));
        }
        return Answer::json({{"orders", std::move(sheets)}});
    });
    route("POST", "/api/sheets", Access::bearerWrite, [this](const Call& call) { return sendSheet(call); });
    route("POST", "/api/sheets/delete", Access::bearerWrite,
          [this](const Call& call) { return deleteSheet(call); });
}

Answer DemoServer::saveTextile(const Call& call) {
    const Json body = call.json();
    if (const Faults faults = textileFormFaults(body); !faults.empty()) {
        return refusal(faults);
    }
    const int save = body["save"].get<int>();
    const Json customer = body.value("customer", Json::object());
    if (save != 3) { // what is only kept may be unfinished
        if (const Faults faults = textileContentFaults(body, catalogue_); !faults.empty()) {
            return refusal(faults);
        }
    }
    if (save == 2) {
        return Answer::json({{"url_pdf", previewUrl("textile", body)}});
    }
    Order order;
    if (body.contains("id")) {
        const auto earlier = orders_.find(call.account.id, body["id"].get<std::int64_t>(), "textile");
        if (earlier && earlier->cloud) {
            order = *earlier;
            order.seeded = false; // what its user made of it
            order.linked = true;
        }
    }
    const bool known = order.id != 0;
    order.account = call.account.id;
    order.kind = "textile";
    order.type = body["order"]["application_type_id"].get<int>();
    order.created = now();
    order.filename = body.value("name_archive_tablet", "");
    order.tevo = customer.value("tevo", "");
    order.pdv = customer.value("name", "");
    order.cloud = save == 3;
    order.body = body;
    known ? orders_.update(order) : orders_.add(order);
    Json answer = {{"order_id", order.id}};
    if (save == 1) {
        answer["url_order"] = orderPage(order, baseUrl_);
        answer["url_pdf"] = orderPdf(order, baseUrl_);
    }
    return Answer::json(answer);
}

Answer DemoServer::sendSheet(const Call& call) {
    const Json body = call.json();
    if (const Faults faults = sellingSheetFormFaults(body); !faults.empty()) {
        return refusal(faults);
    }
    if (const Faults faults = sellingSheetContentFaults(body, catalogue_); !faults.empty()) {
        return refusal(faults);
    }
    if (!body.value("save", true)) {
        return Answer::json({{"url", previewUrl("sheet", body)}});
    }
    Order order;
    if (const auto earlier = orders_.find(call.account.id, body["id"].get<std::int64_t>(), "sheet")) {
        order = *earlier;
    }
    const bool known = order.id != 0;
    order.account = call.account.id;
    order.kind = "sheet";
    order.type = 7;
    order.created = now();
    order.filename = body["name_order"].get<std::string>();
    order.body = body;
    known ? orders_.update(order) : orders_.add(order);
    std::vector<std::string> recipients;
    for (const char* key : {"email_to_send1", "email_to_send2", "email_to_send3"}) {
        recipients.push_back(body.value(key, ""));
    }
    mail(call.account, order, recipients, "Hoja vendedora: " + order.filename);
    return Answer::json({{"url", orderPdf(order, baseUrl_)}, {"order_id", order.id}});
}

Answer DemoServer::deleteSheet(const Call& call) {
    auto order = orders_.find(call.account.id, call.number("order_id").value_or(0), "sheet");
    if (!order || order->token != call.parameter("order_token")) {
        return Answer::message(404, "La hoja vendedora no existe.");
    }
    orders_.remove(*order);
    return Answer::message(200, "Hoja vendedora eliminada.");
}

} // namespace kavor::demo
