#pragma once

#include "CommandContext.h"
#include "OnlineSession.h"
#include "OptionValues.h"
#include "orders/services/SendIntent.h"

#include <string>

namespace CLI {
class App;
}

namespace kavor::ctl {

// What the commands that send an order file are given.
struct FileSendInputs {
    std::string order;
    std::string save;
    std::string intent;
};

// Adds FILE, "--save" and "--intent" to a command.
void addFileSendOptions(CLI::App& command, FileSendInputs& inputs);
// What a request that failed could not do with the order.
QString failureTitle(OrderRequestType save);

// Sends the file's order and prints the server's answer: under the key of the intent that was named, or of a
// send of the file which nobody answered, else a new one. `send` gets the network, the order, the completion
// and the key.
template <class Kept, class Response, class Send>
void sendFile(const CommandContext& context, const FileSendInputs& inputs, Send send) {
    auto order = readRecord<Kept>(inputs.order);
    order.save = requestType(inputs.save);
    const QByteArray key = inputs.intent.empty() ? send_intent::keyInFile(order).value_or(QByteArray())
                                                 : send_intent::keyOfName(inputs.intent, order.save);
    OnlineSession online(context);
    online.requireNetwork();
    online.requireLogin();
    const auto answer = online.await<Response>(
        {QStringLiteral("Enviando el pedido"), failureTitle(order.save)},
        [&](const Completion<Response>& done) { send(online.network, order, done, key); });
    context.out << prettyText(answer);
}

} // namespace kavor::ctl
