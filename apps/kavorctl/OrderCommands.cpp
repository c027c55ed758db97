#include "Commands.h"
#include "OptionValues.h"
#include "OrderInputs.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/engine/RetrievedOrder.h"

#include <CLI/CLI.hpp>
#include <memory>

namespace kavor::ctl {

namespace {

using Inputs = std::shared_ptr<OrderInputs>;

CLI::App* addCommand(CLI::App& group, const Inputs& inputs, const std::string& name,
                     const std::string& help) {
    CLI::App* command = group.add_subcommand(name, help);
    withValue(command->add_option("FILE", inputs->order, "an order document"))->required();
    return command;
}

void needCatalogue(CLI::App* command, const Inputs& inputs) {
    withValue(command->add_option("--catalogue", inputs->catalogue, "a catalogue document"))->required();
}

void needLogin(CLI::App* command, const Inputs& inputs) {
    withValue(command->add_option("--login", inputs->login, "a login answer"))->required();
}

} // namespace

void addOrderCommands(CLI::App& program, CommandContext& context) {
    CLI::App& group = *program.add_subcommand("order", "one brochure order")->require_subcommand(1);
    const auto inputs = std::make_shared<OrderInputs>();

    addCommand(group, inputs, "decode", "the order as the reader took it, written again")
        ->callback(
            [&context, inputs] { context.out << prettyText(readRecord<SaveBrochuresOrder>(inputs->order)); });

    CLI::App* check = addCommand(group, inputs, "check", "what keeps the order from being sent, one a line");
    needCatalogue(check, inputs);
    needLogin(check, inputs);
    check->callback([&context, inputs] {
        printMessages(context, openDraft(*inputs, BrochureKind::Required)->validationErrors());
    });

    CLI::App* warnings = addCommand(group, inputs, "warnings", "prices that look too high, one a line");
    needCatalogue(warnings, inputs);
    needLogin(warnings, inputs);
    warnings->callback([&context, inputs] { printMessages(context, openDraft(*inputs)->priceWarnings()); });

    CLI::App* rebuild =
        addCommand(group, inputs, "rebuild", "fills a draft and prints its order without validation");
    needCatalogue(rebuild, inputs);
    needLogin(rebuild, inputs);
    addSaveOption(*rebuild, inputs->save);
    rebuild->callback([&context, inputs] {
        context.out << prettyText(openDraft(*inputs)->makeOrder(requestType(inputs->save), false));
    });

    CLI::App* convert =
        addCommand(group, inputs, "from-answer", "the order document of the server's answer for one order");
    withValue(convert->add_option("--row", inputs->row, "the id of the order's row in the order list"))
        ->required();
    needCatalogue(convert, inputs);
    convert->callback([&context, inputs] {
        const Int row = rowIdentifier(inputs->row);
        openSession(*inputs);
        context.out << prettyText(orderOf(row, readRecord<RetrieveBrochureOrderListResponse>(inputs->order)));
    });

    CLI::App* show = addCommand(group, inputs, "show", "a summary to read");
    needCatalogue(show, inputs);
    show->callback([&context, inputs] {
        openSession(*inputs);
        context.out << summaryOf(readRecord<SaveBrochuresOrder>(inputs->order));
    });

    addOrderSend(group, context);
}

} // namespace kavor::ctl
