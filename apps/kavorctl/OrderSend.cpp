#include "Commands.h"
#include "FileSend.h"
#include "brochures/engine/SaveBrochuresOrder.h"

#include <CLI/CLI.hpp>
#include <memory>

namespace kavor::ctl {

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

void addFileSendOptions(CLI::App& command, FileSendInputs& inputs) {
    withValue(command.add_option("FILE", inputs.order, "an order document"))->required();
    addSaveOption(command, inputs.save);
    withValue(command.add_option("--intent", inputs.intent,
                                 "a name for what is meant: repeated under it, the order is placed once"));
}

void addOrderSend(CLI::App& group, CommandContext& context) {
    const auto inputs = std::make_shared<FileSendInputs>();
    CLI::App* command = group.add_subcommand("send", "sends an order; prints the server's answer");
    addFileSendOptions(*command, *inputs);
    command->callback([&context, inputs] {
        sendFile<KeptOrder, SaveBrochuresOrderResponse>(
            context, *inputs,
            [](NetworkManager& network, const auto& order, const auto& done, const auto& key) {
                network.saveOrder(order, done, key);
            });
    });
}

} // namespace kavor::ctl
