#include "Commands.h"

#include <CLI/CLI.hpp>

namespace kavor::ctl {

int run(int argc, const char* const* argv, std::ostream& out, std::ostream& err) {
    CommandContext context{out, err, false, {}, {}};
    CLI::App program("Kavor's orders and catalogue without a window", "kavorctl");
    program.require_subcommand(1);
    program.fallthrough();
    program.add_option("--documents", context.documents, "the documents folder (default: the client's)");
    program.add_option("--configuration", context.configuration,
                       "the property list with the server's addresses");
    program.add_flag("--json", context.json, "lists as JSON");
    addCatalogueCommands(program, context);
    addOrderCommands(program, context);
    addOrderListCommands(program, context);
    addSessionCommands(program, context);
    try {
        program.parse(argc, argv);
    } catch (const CLI::CallForHelp& help) {
        return program.exit(help, out, err);
    } catch (const CLI::CallForAllHelp& help) {
        return program.exit(help, out, err);
    } catch (const CLI::ParseError& error) {
        program.exit(error, out, err);
        return wrongUsage;
    } catch (const CommandFailure& failure) {
        err << failure.what() << '\n';
        return failure.status();
    }
    out.flush();
    return context.status;
}

} // namespace kavor::ctl
