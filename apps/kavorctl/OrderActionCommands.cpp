#include "Commands.h"
#include "OnlineSession.h"
#include "OptionValues.h"
#include "OrderRowOutput.h"
#include "RequestFailures.h"
#include "orders/list/DraftOrderRows.h"
#include "orders/services/OrderActions.h"
#include "shell/WelcomeOptions.h"

#include <CLI/CLI.hpp>
#include <memory>

namespace kavor::ctl {

namespace {

struct ActionInputs {
    std::string name;
    Int id = 0;
    bool outbox = false;
    bool textile = false;
    bool overwrite = false;
};

// Waits until an action calls back.
template <class Result, class Begin>
Result waitFor(const Begin& begin) {
    std::optional<Result> result;
    QEventLoop loop;
    begin([&](const Result& outcome) {
        result = outcome;
        loop.quit();
    });
    if (!result)
        loop.exec();
    return *result;
}

OrderFile fileOf(const ActionInputs& inputs, OrderDiskManager::DirectoryName directory) {
    return {inputs.textile ? OrderFile::Kind::Textile : OrderFile::Kind::Brochure, directory, inputs.name};
}

void send(const CommandContext& context, const ActionInputs& inputs) {
    using Result = OrderActions::Sending::Result;
    OnlineSession online(context);
    online.requireNetwork();
    online.requireLogin();
    OrderActions actions(online.network, online.orders);
    const OrderFile file = fileOf(inputs, OrderDiskManager::DirectoryName::outbox);
    const auto sending =
        waitFor<OrderActions::Sending>([&](const auto& done) { actions.send(file, done); });
    switch (sending.result) {
    case Result::Sent:
        context.out << "Pedido realizado correctamente.\n";
        return;
    case Result::FileStays:
        throw CommandFailure(requestFailed, "El pedido se ha enviado correctamente pero no se ha podido "
                                            "borrar del dispositivo.");
    case Result::Failed:
        throw requestFailure(QStringLiteral("El pedido no se puede realizar"), *sending.failure);
    case Result::Gone:
    case Result::UnderWay:
        break;
    }
    throw CommandFailure(unreadableInput, "no order \"" + inputs.name + "\" waits in the outbox");
}

void copy(const CommandContext& context, const ActionInputs& inputs) {
    if (const auto refusal = OrderDiskManager::refusalOf(inputs.name))
        throw CommandFailure(unreadableInput, *refusal);
    OnlineSession online(context);
    online.requireNetwork();
    online.requireLogin();
    OrderActions actions(online.network, online.orders);
    const auto fetched = waitFor<OrderActions::Fetched<SaveBrochuresOrder>>(
        [&](const auto& done) { actions.fetchCopy(inputs.id, done); });
    if (!fetched.value)
        throw requestFailure(QStringLiteral("El pedido no se puede replicar"), *fetched.failure);
    const bool there = actions.draftExists(inputs.name);
    if (there && !inputs.overwrite)
        throw CommandFailure(unreadableInput, "Ya existe un archivo con ese nombre.");
    const bool stored = waitFor<bool>(
        [&](const auto& done) { actions.storeCopy(*fetched.value, inputs.name, there, done); });
    if (!stored)
        throw CommandFailure(unreadableInput, "No se ha podido copiar el pedido en local.");
    context.out << "Su pedido ha sido copiado en local.\n";
}

// The rows as the list shows them; without a network those of the device.
DraftOrderRows rowsOf(OnlineSession& online) {
    DraftOrderRows rows;
    rows.rebuildLocalRows(online.orders);
    if (online.network.isReachable())
        joinServerOrders(online, rows);
    return rows;
}

const DraftOrderRow& rowOf(const DraftOrderRows& rows, const ActionInputs& inputs) {
    const auto directory =
        inputs.outbox ? OrderDiskManager::DirectoryName::outbox : OrderDiskManager::DirectoryName::draft;
    for (const DraftOrderRow& row : rows.draftsOrderList()) {
        const bool isTextile = !row.sectionIdentifier.brochureType();
        const bool isNamed = !inputs.name.empty() && row.file() == fileOf(inputs, directory);
        const bool isNumbered = inputs.name.empty() && row.serverId() == inputs.id;
        if (isTextile == inputs.textile && (isNamed || isNumbered))
            return row;
    }
    throw CommandFailure(unreadableInput, "no such draft");
}

// The file goes in any case; the server is asked when it has the order in its cloud.
void remove(const CommandContext& context, const ActionInputs& inputs) {
    OnlineSession online(context);
    OrderActions actions(online.network, online.orders);
    const DraftOrderRows rows = rowsOf(online);
    const DraftOrderRow& row = rowOf(rows, inputs);
    if (const auto file = row.file()) {
        if (!waitFor<bool>([&](const auto& done) { actions.remove(*file, done); }))
            throw CommandFailure(unreadableInput,
                                 "No se ha podido borrar el pedido " + std::string(label(row.syncState)));
        context.out << "El borrador se ha eliminado del dispositivo.\n";
    }
    if (!row.serverId())
        return;
    const auto type = applicationTypeOf(row.sectionIdentifier);
    if (!type)
        throw CommandFailure(requestFailed, "Incidencia: Error");
    const auto failure = waitFor<OrderActions::Answer>(
        [&](const auto& done) { actions.deleteInCloud(*row.serverId(), *type, done); });
    if (failure)
        throw requestFailure(QStringLiteral("Incidencia"), *failure);
    context.out << "El borrador se ha eliminado en cloud.\n";
}

} // namespace

void addOrderActions(CLI::App& group, CommandContext& context) {
    const auto inputs = std::make_shared<ActionInputs>();
    const auto addTextile = [&](CLI::App* command) {
        command->add_flag("--textile", inputs->textile, "an order of clothing");
    };
    CLI::App* sending = group.add_subcommand("send", "sends an order that waits in the outbox");
    withValue(sending->add_option("NAME", inputs->name, "the plain name of its file"))->required();
    addTextile(sending);
    sending->callback([&context, inputs] { send(context, *inputs); });

    CLI::App* copying = group.add_subcommand("copy", "keeps a copy of a sent order as a draft");
    copying->add_option("ID", inputs->id, "the order's number")->required();
    withValue(copying->add_option("NAME", inputs->name, "the plain name of the draft"))->required();
    copying->add_flag("--overwrite", inputs->overwrite, "in place of a draft of that name");
    copying->callback([&context, inputs] { copy(context, *inputs); });

    CLI::App* deleting = group.add_subcommand("delete", "deletes a draft, on the device and in the cloud");
    auto* name = withValue(deleting->add_option("NAME", inputs->name, "the plain name of its file"));
    auto* id = deleting->add_option("--id", inputs->id, "the number of one that is in the cloud");
    name->excludes(id);
    deleting->add_flag("--outbox", inputs->outbox, "one that waits in the outbox");
    addTextile(deleting);
    deleting->callback([&context, inputs, name, id] {
        if (name->count() + id->count() == 0)
            throw CLI::RequiredError("NAME or --id");
        remove(context, *inputs);
    });
}

} // namespace kavor::ctl
