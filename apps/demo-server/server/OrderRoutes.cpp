#include "server/Customers.h"
#include "server/DemoServer.h"
#include "server/OrderRecords.h"
#include "server/Time.h"

#include <httplib.h>

#include <algorithm>

namespace kavor::demo {

namespace {

constexpr int sendToPrint = 1;
constexpr int sendPreview = 2;
constexpr int saveCloud = 3;

bool isOne(const std::string& text) {
    return text == "1" || text == "true";
}

bool contains(const std::string& text, const std::string& sanitisedPart) {
    return sanitisedPart.empty() || sanitised(text).find(sanitisedPart) != std::string::npos;
}

/// From now on time moves the order again.
void setOut(Order& order, Road road, const char* note) {
    order.fixedState.reset();
    order.pending.reset();
    order.road = road;
    order.since = now();
    order.note = note;
}

} // namespace

void DemoServer::addOrderRoutes() {
    route("POST", "/api/orders", Access::bearerWrite,
          [this](const Call& call) { return saveBrochure(call); });
    route("POST", "/api/orders/list", Access::bearer, [this](const Call& call) { return orderList(call); });
    route("GET", R"(/api/orders/brochure/(\d{1,15}))", Access::bearer, [this](const Call& call) {
        const auto order = orders_.find(call.account.id, std::stoll(call.part(1)), "brochure");
        return order ? Answer::json(retrievedBrochure(*order, orders_, catalogue_))
                     : Answer::message(404, "El pedido no existe.");
    });
    route("DELETE", "/api/orders/delete", Access::bearerWrite,
          [this](const Call& call) { return deleteOrder(call); });
    route("POST", "/api/orders/claim", Access::bearerWrite,
          [this](const Call& call) { return claimOrder(call); });
    route("POST", "/api/orders/qr", Access::bearerWrite, [this](const Call& call) { return demandQr(call); });
    route("POST", "/api/orders/raw", Access::bearerWrite, [this](const Call& call) {
        const Json body = call.json();
        if (const Faults faults = brochureFormFaults(body, true); !faults.empty()) {
            return refusal(faults);
        }
        Order order;
        order.account = call.account.id;
        order.kind = "raw";
        order.type = body["menu"]["order_type"].get<int>();
        order.filename = body["fileName"].get<std::string>();
        order.body = body;
        orders_.add(order);
        return Answer::message(200, "Recibido");
    });
}

Answer DemoServer::saveBrochure(const Call& call) {
    const Json body = call.json();
    if (body.is_discarded()) {
        return refusal({{"body", {"El pedido no se puede leer."}}});
    }
    if (const Faults faults = brochureFormFaults(body, false); !faults.empty()) {
        return refusal(faults);
    }
    if (body["save"] != saveCloud) {
        if (const Faults faults = brochureContentFaults(body, catalogue_); !faults.empty()) {
            return refusal(faults);
        }
    }
    const Json& customer = body["menu"]["customer"];
    const std::int64_t customerNumber =
        customerId(database_, customer.value("cod_tevo", ""), customer["name"].get<std::string>());
    if (body["save"] == sendPreview) {
        return Answer::json({{"url_pdf", previewUrl("preview", body)}, {"customer_id", customerNumber}});
    }
    return storeBrochure(call, body, customerNumber);
}

/// An order that names a cloud order of its user takes its place, printed or not; any other becomes a new
/// one.
Answer DemoServer::storeBrochure(const Call& call, const Json& body, std::int64_t customer) {
    Order order;
    bool known = false;
    if (body.contains("id")) {
        const auto earlier = orders_.find(call.account.id, body["id"].get<std::int64_t>(), "brochure");
        if (earlier && earlier->cloud) {
            order = *earlier;
            order.seeded = false; // what its user made of it
            order.linked = true;
            known = true;
        }
    }
    const Json& menu = body["menu"];
    order.account = call.account.id;
    order.kind = "brochure";
    order.type = menu["order_type"].get<int>();
    order.created = now();
    order.filename = body.value("name_archive_tablet", "");
    order.tevo = menu["customer"].value("cod_tevo", "");
    order.pdv = menu["customer"]["name"].get<std::string>();
    order.cloud = body["save"] == saveCloud;
    order.body = body;
    if (known) {
        orders_.update(order);
    } else {
        orders_.add(order);
    }
    Json answer = {{"order_id", order.id}, {"customer_id", customer}};
    if (body["save"] == sendToPrint) {
        answer["url_order"] = orderPage(order, baseUrl_);
        answer["url_pdf"] = orderPdf(order, baseUrl_);
        if (body["printed_myself"].get<bool>()) {
            mail(call.account, order, {call.account.login}, "PDF para imprimir: " + order.pdv);
        }
        answer["message"] =
            body["printed_myself"].get<bool>()
                ? "Pedido realizado correctamente. Recibirás el PDF en tu correo para imprimirlo."
                : "Pedido realizado correctamente. Lo imprimimos y lo enviamos al local.";
    } else {
        answer["message"] = "Pedido guardado en la nube.";
    }
    return Answer::json(answer);
}

/// What an order list may be narrowed to; a quick filter that is 0 or absent narrows nothing.
struct DemoServer::ListFilter {
    bool onlyUnconfirmed, onlyIncomplete, thisYear, cloud;
    std::string id, code, pointOfSale;
    int year = yearOf(now());

    explicit ListFilter(const Call& call)
        : onlyUnconfirmed(isOne(call.parameter("sin_confirmar")))
        , onlyIncomplete(isOne(call.parameter("sin_completar")))
        , thisYear(isOne(call.parameter("current_year")))
        , cloud(isOne(call.parameter("cloud")))
        , id(call.parameter("order_id"))
        , code(sanitised(call.parameter("tevo")))
        , pointOfSale(sanitised(call.parameter("pdv"))) {}

    bool takes(const Order& order, OrderState state) const {
        return (cloud || !order.cloud) && (!onlyUnconfirmed || state == OrderState::withoutConfirm) &&
               (!onlyIncomplete || order.tevo.empty()) && (!thisYear || yearOf(order.created) == year) &&
               (id.empty() || std::to_string(order.id) == id) && contains(order.tevo, code) &&
               contains(order.pdv, pointOfSale);
    }
};

Answer DemoServer::orderList(const Call& call) {
    const ListFilter filter(call);
    Json brochures = Json::array(), textiles = Json::array();
    int total = 0, unconfirmed = 0, incomplete = 0;
    for (const Order& order : orders_.rows(call.account.id, "brochure")) {
        const OrderState state = orders_.stateOf(order);
        total += !order.cloud;
        unconfirmed += state == OrderState::withoutConfirm;
        incomplete += !order.cloud && order.tevo.empty();
        if (filter.takes(order, state)) {
            brochures.push_back(brochureListEntry(order, orders_, baseUrl_));
        }
    }
    for (const Order& order : orders_.rows(call.account.id, "textile")) {
        if (filter.takes(order, orders_.stateOf(order))) {
            textiles.push_back(textileListEntry(order, orders_, baseUrl_));
        }
    }
    return Answer::json({{"resumen",
                          {{"total", std::to_string(total)},
                           {"sin_confirmar", std::to_string(unconfirmed)},
                           {"sin_completar", std::to_string(incomplete)}}},
                         {"pedidos", std::move(brochures)},
                         {"pedidos_textil", std::move(textiles)}});
}

Answer DemoServer::deleteOrder(const Call& call) {
    const Json body = call.json();
    if (!body.is_object() || !body.contains("id") || !body["id"].is_number_integer() ||
        !body.contains("application_type_id") || !body["application_type_id"].is_number_integer()) {
        return refusal({{"id", {"No se sabe qué pedido hay que eliminar."}}});
    }
    const int type = body["application_type_id"].get<int>();
    const bool textile = type == 8 || type == 21;
    auto order =
        orders_.find(call.account.id, body["id"].get<std::int64_t>(), textile ? "textile" : "brochure");
    if (!order || (!textile && applicationTypeOfKind(order->type) != type)) {
        return Answer::message(404, "El pedido no existe.");
    }
    const OrderState state = orders_.stateOf(*order);
    if (state != OrderState::cloud && state != OrderState::withoutConfirm) {
        return refusal({{"id", {"El pedido ya está en marcha y no se puede eliminar."}}});
    }
    orders_.remove(*order);
    return Answer::message(200, "Pedido eliminado.");
}

Answer DemoServer::claimOrder(const Call& call) {
    auto order = orders_.find(call.account.id, call.number("order_id").value_or(0), "brochure");
    if (!order) {
        return Answer::message(404, "El pedido no existe.");
    }
    const std::string comment = call.parameter("comment");
    if (comment.find_first_not_of(" \t\r\n") == std::string::npos) {
        return refusal({{"comment", {"Has de informar de un comentario."}}});
    }
    if (order->cloud) {
        return refusal({{"order_id", {"El pedido está en la nube: aún no se ha pedido nada."}}});
    }
    orders_.addMessage(*order, "claim", {{"comment", comment}});
    setOut(*order, Road::claimed, "Reclamación recibida: la estamos revisando.");
    orders_.update(*order);
    return Answer::message(200, "Hemos registrado tu reclamación sobre el pedido " +
                                    std::to_string(order->id) + ".");
}

Answer DemoServer::demandQr(const Call& call) {
    auto order = orders_.find(call.account.id, call.number("order_id").value_or(0), "brochure");
    if (!order) {
        return Answer::message(404, "El pedido no existe.");
    }
    if (!canDemandQr(*order, orders_)) {
        return refusal({{"order_id", {"El material QR de este pedido no se puede volver a pedir."}}});
    }
    Faults faults;
    for (const char* name :
         {"brand_qr_id", "type", "quantity_qr", "quantity_qr_circular", "quantity_qr_taco"}) {
        if (!call.number(name)) {
            faults[name].push_back("Falta el dato.");
        }
    }
    if (!faults.empty()) {
        return refusal(faults);
    }
    const QrMaterial material{*call.number("brand_qr_id"), *call.number("type"), *call.number("quantity_qr"),
                              *call.number("quantity_qr_circular"), *call.number("quantity_qr_taco")};
    if (Faults wrong = qrFaults(material, order->type, catalogue_); !wrong.empty()) {
        return refusal(wrong);
    }
    orders_.addMessage(*order, "qr",
                       {{"brand_qr_id", material.brand},
                        {"type", material.type},
                        {"quantity_qr", material.tables},
                        {"quantity_qr_circular", material.doors},
                        {"quantity_qr_taco", material.blocks},
                        {"comment", call.parameter("comment")}});
    order->qrAsked = true;
    setOut(*order, Road::demanded, "Material QR pedido de nuevo: falta la autorización comercial.");
    orders_.update(*order);
    const OrderState state = orders_.stateOf(*order);
    return Answer::json({{"msg", "Volveremos a imprimir el material QR del pedido."},
                         {"can_demand_qr", false},
                         {"order_state_id", int(state)},
                         {"order_state_name", stateName(state)}});
}

} // namespace kavor::demo
