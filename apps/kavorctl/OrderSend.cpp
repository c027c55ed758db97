#include "Commands.h"
#include "OnlineSession.h"
#include "OptionValues.h"
#include "OrderInputs.h"

#include <CLI/CLI.hpp>

namespace kavor::ctl {

namespace {

QString failureTitle(OrderRequestType save) {
    switch (save) {
    case OrderRequestType::sendToPrint:
        return QStringLiteral("El pedido no se puede realizar");
    case OrderRequestType::sendPreview:
        return QStringLiteral("El pedido no se puede previsualizar");
    default:
        return QStringLiteral("El pedido no se puede sincronizar");
    }
}

void send(const CommandContext& context, const OrderInputs& inputs) {
    auto order = readRecord<SaveBrochuresOrder>(inputs.order);
    order.save = requestType(inputs.save);
    OnlineSession online(context);
    online.requireNetwork();
    online.requireLogin();
    const auto answer = online.await<SaveBrochuresOrderResponse>(
        {QStringLiteral("Enviando el pedido"), failureTitle(order.save)},
        [&](const Completion<SaveBrochuresOrderResponse>& done) { online.network.saveOrder(order, done); });
    context.out << prettyText(answer);
}

} // namespace

void addOrderSend(CLI::App& group, CommandContext& context) {
    const auto inputs = std::make_shared<OrderInputs>();
    CLI::App* command = group.add_subcommand("send", "sends an order; prints the server's answer");
    withValue(command->add_option("FILE", inputs->order, "an order document"))->required();
    addSaveOption(*command, inputs->save);
    command->callback([&context, inputs] { send(context, *inputs); });
}

} // namespace kavor::ctl
