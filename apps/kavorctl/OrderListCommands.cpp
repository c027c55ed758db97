#include "Commands.h"
#include "OnlineSession.h"
#include "OptionValues.h"
#include "OrderRowOutput.h"
#include "catalogue/ApplicationInformation.h"
#include "orders/OrderList.h"
#include "orders/list/DraftOrderRows.h"

#include <CLI/CLI.hpp>
#include <memory>

namespace kavor::ctl {

namespace {

struct MergeInputs {
    std::string local;
    std::string answer;
    std::string catalogue;
};

void applyAnswer(DraftOrderRows& rows, const OrderList& answer) {
    rows.applyAnswer(answer);
    rows.sortSentOrders();
}

// The folder is somebody else's: it is read as it stands.
OrderDiskManager openForReading(const std::filesystem::path& folder) {
    const auto orders = folder / "orders";
    std::error_code error;
    const std::filesystem::directory_iterator entries(orders, error);
    if (error)
        throw CommandFailure(unreadableInput, orders.string() + ": " + error.message());
    return OrderDiskManager(folder, OrderDiskManager::Opening::AsItStands);
}

void merge(CommandContext& context, const MergeInputs& inputs) {
    const OrderDiskManager orders = openForReading(inputs.local);
    const auto answer = readRecord<OrderList>(inputs.answer);
    readRecord<ApplicationInformation>(inputs.catalogue);
    DraftOrderRows rows;
    rows.rebuildLocalRows(orders);
    applyAnswer(rows, answer);
    printRows(context, rows, JsonRows::Drafts);
}

void list(CommandContext& context) {
    OnlineSession online(context);
    DraftOrderRows rows;
    rows.rebuildLocalRows(online.orders);
    std::optional<CommandFailure> failure;
    if (!online.network.isReachable()) {
        context.err << "Sólo se muestran pedidos guardados localmente.\n";
    } else {
        try {
            joinServerOrders(online, rows);
        } catch (const CommandFailure& reason) {
            failure = reason;
        }
    }
    printRows(context, rows, JsonRows::DraftsAndSent);
    if (failure)
        throw *failure;
}

} // namespace

void joinServerOrders(OnlineSession& online, DraftOrderRows& rows) {
    online.requireLogin();
    const OrderListFilter filter{{}, {}, {}, 0, 0, 0, true};
    applyAnswer(rows, online.await<OrderList>(
                          {QStringLiteral("Consultando los pedidos"), QStringLiteral("Incidencia")},
                          [&](const Completion<OrderList>& done) {
                              online.network.retrieveBrochureOrderList(filter, done);
                          }));
}

void addOrderListCommands(CLI::App& program, CommandContext& context) {
    CLI::App* group = program.add_subcommand("orders", "the lists of orders")->require_subcommand(1);
    const auto inputs = std::make_shared<MergeInputs>();
    CLI::App* merging =
        group->add_subcommand("merge", "a folder's files and a stored answer of the server, merged");
    withValue(merging->add_option("--local", inputs->local, "a folder that holds \"orders\""))->required();
    withValue(merging->add_option("--answer", inputs->answer, "an order list as the server answers it"))
        ->required();
    withValue(merging->add_option("--catalogue", inputs->catalogue, "a catalogue document"))->required();
    merging->callback([&context, inputs] { merge(context, *inputs); });
    group->add_subcommand("list", "the device's files and the server's orders, merged")->callback([&context] {
        list(context);
    });
    addOrderActions(*group, context);
}

} // namespace kavor::ctl
