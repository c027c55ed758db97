#include "Commands.h"
#include "OrderRowOutput.h"
#include "catalogue/ApplicationInformation.h"
#include "orders/DraftOrderRows.h"

#include <CLI/CLI.hpp>
#include <memory>

namespace kavor::ctl {

namespace {

struct MergeInputs {
    std::string local;
    std::string answer;
    std::string catalogue;
};

void merge(CommandContext& context, const MergeInputs& inputs) {
    std::error_code error;
    if (!std::filesystem::is_directory(inputs.local, error))
        throw CommandFailure(unreadableInput, inputs.local + ": not a folder");
    const auto answer = readRecord<OrderList>(inputs.answer);
    readRecord<ApplicationInformation>(inputs.catalogue);
    DraftOrderRows rows;
    rows.rebuildLocalRows(OrderDiskManager(inputs.local));
    rows.applyAnswer(answer);
    printRows(context, rows);
}

} // namespace

void addOrderListCommands(CLI::App& program, CommandContext& context) {
    CLI::App* group = program.add_subcommand("orders", "the lists of orders")->require_subcommand(1);
    const auto inputs = std::make_shared<MergeInputs>();
    CLI::App* merging =
        group->add_subcommand("merge", "a folder's files and a stored answer of the server, merged");
    merging->add_option("--local", inputs->local, "a folder that holds \"orders\"")->required();
    merging->add_option("--answer", inputs->answer, "an order list as the server answers it")->required();
    merging->add_option("--catalogue", inputs->catalogue, "a catalogue document")->required();
    merging->callback([&context, inputs] { merge(context, *inputs); });
}

} // namespace kavor::ctl
