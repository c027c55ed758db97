#pragma once

#include "CommandContext.h"

namespace CLI {
class App;
}

namespace kavor::ctl {

// Each group of commands adds itself to the program; a command's work runs when it is parsed.
void addAccountCommands(CLI::App& program, CommandContext& context);
void addActivationCommands(CLI::App& program, CommandContext& context);
void addCatalogueCommands(CLI::App& program, CommandContext& context);
void addOrderCommands(CLI::App& program, CommandContext& context);
void addOrderListCommands(CLI::App& program, CommandContext& context);
void addPromotionCommands(CLI::App& program, CommandContext& context);
void addSessionCommands(CLI::App& program, CommandContext& context);
void addTextileCommands(CLI::App& program, CommandContext& context);
void addSheetCommands(CLI::App& program, CommandContext& context);
void addSyncCommand(CLI::App& program, CommandContext& context);

// Commands that need the server, each added to its group.
void addCatalogueFetch(CLI::App& group, CommandContext& context);
void addOrderClaim(CLI::App& group, CommandContext& context);
void addOrderSend(CLI::App& group, CommandContext& context);
void addOrderActions(CLI::App& group, CommandContext& context);

// Runs the program; answers its exit status.
int run(int argc, const char* const* argv, std::ostream& out, std::ostream& err);

} // namespace kavor::ctl
