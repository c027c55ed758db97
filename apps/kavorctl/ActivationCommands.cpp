#include "ActivationRows.h"
#include "Commands.h"
#include "OnlineSession.h"
#include "OptionValues.h"
#include "activations/ActivationForm.h"
#include "activations/PartyDates.h"
#include "base/StopProcess.h"
#include "catalogue/ApplicationInformation.h"
#include "device/Clock.h"
#include "orders/services/SendIntent.h"

#include <CLI/CLI.hpp>
#include <memory>

namespace kavor::ctl {

namespace {

struct ActivationInputs {
    std::string order;
    std::string catalogue;
    std::string intent;
    std::string day;
    std::string now;
    Int activation = 0;
};

// The process stops where the catalogue has no activations.
ActivationsInformation readActivations(const ActivationInputs& inputs) {
    auto information = readRecord<ApplicationInformation>(inputs.catalogue);
    if (!information.activations)
        stopProcess("activaciones");
    return std::move(*information.activations);
}

const ActivationInformation& activationOf(const ActivationsInformation& all, Int id,
                                          const std::string& whose) {
    for (const auto& definition : all.definitionsList) {
        for (const auto& activation : definition.activationsList) {
            if (activation.id == id)
                return activation;
        }
    }
    throw CommandFailure(unreadableInput, whose + ": the catalogue has no activation " + std::to_string(id));
}

void list(CommandContext& context, const ActivationInputs& inputs) {
    std::vector<ActivationRow> rows;
    for (const auto& definition : readActivations(inputs).definitionsList) {
        for (const auto& each : definition.activationsList)
            rows.push_back({each.id, definition.id, definition.brandName, each.name, each.numberMade,
                            each.quota, each.antelationDays});
    }
    printRows(context, rows);
}

void check(CommandContext& context, const ActivationInputs& inputs) {
    const auto order = readRecord<ActivationOrder>(inputs.order);
    const auto all = readActivations(inputs);
    const auto& activation =
        activationOf(all, order.activationInfo.activationId, inputs.order + ": activation.activation_id");
    printMessages(context, activationErrors(order, activation.attributesList));
}

LocalDateTime present(const std::string& text) {
    if (text.empty()) {
        const auto read = LocalDateTime::parse(
            SystemClock().now().toString(QStringLiteral("dd-MM-yyyy hh:mm:ss")).toStdString());
        return read.value();
    }
    const auto given = LocalDateTime::parse(text + ":00");
    if (!given)
        throw CommandFailure(wrongUsage, "--now: expected DD-MM-YYYY HH:MM, found \"" + text + "\"");
    return *given;
}

void day(CommandContext& context, const ActivationInputs& inputs) {
    const auto wanted = partyDay(inputs.day);
    if (!wanted)
        throw CommandFailure(wrongUsage, "expected a day DD-MM-YYYY, found \"" + inputs.day + "\"");
    const LocalDateTime now = present(inputs.now);
    const auto all = readActivations(inputs);
    const auto& activation = activationOf(all, inputs.activation, "--activation");
    const auto refusal = dayRefusal(*wanted, now, activation.antelationDays);
    printMessages(context, refusal ? std::vector{*refusal} : std::vector<std::string>());
}

void send(CommandContext& context, const ActivationInputs& inputs) {
    const auto order = readRecord<ActivationOrder>(inputs.order);
    OnlineSession online(context);
    online.requireNetwork();
    online.requireLogin();
    const QByteArray key = inputs.intent.empty()
                               ? QByteArray()
                               : send_intent::keyOfName(inputs.intent, OrderRequestType::sendToPrint);
    context.out << prettyText(online.await<SaveBrochuresOrderActivationResponse>(
        {QStringLiteral("Enviando el pedido"), QStringLiteral("El pedido no se puede realizar")},
        [&](const Completion<SaveBrochuresOrderActivationResponse>& done) {
            online.network.activationOrder(order, done, key);
        }));
}

void quotas(CommandContext& context) {
    OnlineSession online(context);
    online.requireNetwork();
    online.requireLogin();
    context.out << prettyText(online.await<ActivationsUserQuota>(
        {QStringLiteral("Consultando el cupo"),
         QStringLiteral("No se puede obtener información del cupo disponible para cada activación.")},
        [&](const Completion<ActivationsUserQuota>& done) { online.network.activationUserQuota(done); }));
}

} // namespace

void addActivationCommands(CLI::App& program, CommandContext& context) {
    CLI::App& group =
        *program.add_subcommand("activation", "activations and their orders")->require_subcommand(1);
    const auto inputs = std::make_shared<ActivationInputs>();
    const auto add = [&](const std::string& name, const std::string& help) {
        return group.add_subcommand(name, help);
    };
    const auto needOrder = [&](CLI::App* command) {
        withValue(command->add_option("FILE", inputs->order, "an activation order document"))->required();
    };
    const auto needCatalogue = [&](CLI::App* command) {
        withValue(command->add_option("--catalogue", inputs->catalogue, "a catalogue document"))->required();
    };

    CLI::App* listing = add("list", "the activations of every brand");
    needCatalogue(listing);
    listing->callback([&context, inputs] { list(context, *inputs); });

    add("quotas", "how many of each activation the user may hold, as the server says")->callback([&context] {
        quotas(context);
    });

    CLI::App* checking = add("check", "what keeps the order from being sent, one a line");
    needOrder(checking);
    needCatalogue(checking);
    checking->callback([&context, inputs] { check(context, *inputs); });

    CLI::App* judging = add("day", "why an activation can't be on a day; nothing when it can");
    withValue(judging->add_option("DAY", inputs->day, "the day, DD-MM-YYYY"))->required();
    judging->add_option("--activation", inputs->activation, "the number of the activation")->required();
    needCatalogue(judging);
    withValue(judging->add_option("--now", inputs->now, "another moment than the present: DD-MM-YYYY HH:MM"));
    judging->callback([&context, inputs] { day(context, *inputs); });

    CLI::App* decoding = add("decode", "the order as the reader took it, written again");
    needOrder(decoding);
    decoding->callback(
        [&context, inputs] { context.out << prettyText(readRecord<ActivationOrder>(inputs->order)); });

    CLI::App* sending = add("send", "sends an order; prints the server's answer");
    needOrder(sending);
    withValue(sending->add_option("--intent", inputs->intent,
                                  "a name for what is meant: repeated under it, the order is placed once"));
    sending->callback([&context, inputs] { send(context, *inputs); });
}

} // namespace kavor::ctl
