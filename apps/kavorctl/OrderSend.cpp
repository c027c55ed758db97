#include "Commands.h"
#include "OnlineSession.h"
#include "OptionValues.h"
#include "OrderInputs.h"
#include "orders/services/SendIntent.h"

#include <CLI/CLI.hpp>

namespace kavor::ctl {

namespace {

QString failureTitle(OrderRequestType save) {
    switch (save) {
    case OrderRequestType::sendToPrint:
        return QStringLiteral("El pedido no se puede realizar");
    case OrderRequestType::sendPreview:
        return QStringLiteral("El pedido no se puede previsualizar");
    case OrderRequestType::saveCloud:
        break;
    }
    return QStringLiteral("El pedido no se puede sincronizar");
}

// The key of the intent that was named, or of a send of the file which nobody answered; empty for a new one.
QByteArray keyOf(const OrderInputs& inputs, const KeptOrder& order) {
    if (!inputs.intent.empty())
        return send_intent::keyOfName(inputs.intent, order.save);
    return send_intent::keyInFile(order).value_or(QByteArray());
}

void send(const CommandContext& context, const OrderInputs& inputs) {
    auto order = readRecord<KeptOrder>(inputs.order);
    order.save = requestType(inputs.save);
    const QByteArray key = keyOf(inputs, order);
    OnlineSession online(context);
    online.requireNetwork();
    online.requireLogin();
    const auto answer = online.await<SaveBrochuresOrderResponse>(
        {QStringLiteral("Enviando el pedido"), failureTitle(order.save)},
        [&](const Completion<SaveBrochuresOrderResponse>& done) {
            online.network.saveOrder(order, done, key);
        });
    context.out << prettyText(answer);
}

} // namespace

void addOrderSend(CLI::App& group, CommandContext& context) {
    const auto inputs = std::make_shared<OrderInputs>();
    CLI::App* command = group.add_subcommand("send", "sends an order; prints the server's answer");
    withValue(command->add_option("FILE", inputs->order, "an order document"))->required();
    addSaveOption(*command, inputs->save);
    withValue(command->add_option("--intent", inputs->intent,
                                  "a name for what is meant: repeated under it, the order is placed once"));
    command->callback([&context, inputs] { send(context, *inputs); });
}

} // namespace kavor::ctl
