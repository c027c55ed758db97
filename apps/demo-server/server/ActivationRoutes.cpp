#include "catalogue/Activations.h"
#include "documents/ActivationPdf.h"
#include "server/ActivationCheck.h"
#include "server/DemoServer.h"
#include "server/OrderRecords.h"

#include <httplib.h>

namespace kavor::demo {

void DemoServer::addActivationRoutes() {
    route("POST", "/api/activations", Access::bearerWrite,
          [this](const Call& call) { return sendActivation(call); });
    route("GET", "/api/activations/quota", Access::bearer, [this](const Call& call) {
        Json list = Json::array();
        for (const Activation& activation : activations()) {
            list.push_back({{"id", activation.id},
                            {"quota", activation.quota},
                            {"number_made", activationsMade(orders_, call.account.id, activation)}});
        }
        return Answer::json({{"activations", std::move(list)}});
    });
}

Answer DemoServer::sendActivation(const Call& call) {
    const Json body = call.json();
    if (const Faults faults = activationFormFaults(body); !faults.empty()) {
        return refusal(faults);
    }
    const Json& event = body["activation"];
    const auto tied =
        event.contains("activation_relation_id")
            ? orders_.find(call.account.id, event["activation_relation_id"].get<std::int64_t>(), "activation")
            : std::nullopt;
    if (const Faults faults = activationContentFaults(body, tied); !faults.empty()) {
        return refusal(faults);
    }
    const Activation& wanted = *activationOf(event["activation_id"].get<int>());
    const int made = activationsMade(orders_, call.account.id, wanted);
    if (made >= wanted.quota) {
        return refusal({{"activation.activation_id", {"No queda cupo para esta activación."}}});
    }
    Order order;
    order.account = call.account.id;
    order.kind = "activation";
    order.type = 9;
    order.pdv = body["customer"]["name"].get<std::string>();
    order.body = body;
    orders_.add(order);
    return Answer::json({{"url", orderPage(order, baseUrl_)},
                         {"order_id", order.id},
                         {"quota", wanted.quota},
                         {"number_made", made + 1}});
}

} // namespace kavor::demo
