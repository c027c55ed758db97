#include "Commands.h"

#include "OptionValues.h"

#include <CLI/CLI.hpp>

namespace kavor::ctl {

namespace {

int reportWrongUsage(std::ostream& err, const std::string& fault) {
    err << fault << "\nRun with --help for more information.\n";
    return wrongUsage;
}

// What a wrong line is told: a word that nothing takes rather than what is missing in consequence.
std::string faultOf(const CLI::App& program, const CLI::ParseError& error) {
    const bool mayFollow = dynamic_cast<const CLI::RequiredError*>(&error) != nullptr ||
                           dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr;
    const auto unknown = mayFollow ? program.remaining(true) : std::vector<std::string>();
    return unknown.empty() ? error.what() : "kavorctl: unknown command or option: " + unknown.front();
}

} // namespace

int run(int argc, const char* const* argv, std::ostream& out, std::ostream& err) {
    CommandContext context{out, err, false, {}, {}, {}};
    CLI::App program("Kavor's orders and catalogue without a window", "kavorctl");
    program.require_subcommand(1);
    program.fallthrough();
    withValue(
        program.add_option("--documents", context.documents, "the documents folder (default: the client's)"));
    withValue(program.add_option("--caches", context.caches,
                                 "the folder of pictures and fonts (default: the client's)"));
    withValue(program.add_option("--configuration", context.configuration,
                                 "the property list with the server's addresses"));
    program.add_flag("--json", context.json, "lists as JSON");
    addCatalogueCommands(program, context);
    addOrderCommands(program, context);
    addOrderListCommands(program, context);
    addPromotionCommands(program, context);
    addTextileCommands(program, context);
    addSheetCommands(program, context);
    addActivationCommands(program, context);
    addSessionCommands(program, context);
    addAccountCommands(program, context);
    addSyncCommand(program, context);
    if (const std::string option = optionWithoutValue(argc, argv); !option.empty())
        return reportWrongUsage(err, option + ": the value is empty");
    try {
        program.parse(argc, argv);
    } catch (const CLI::CallForHelp& help) {
        program.exit(help, out, err);
    } catch (const CLI::CallForAllHelp& help) {
        program.exit(help, out, err);
    } catch (const CLI::ParseError& error) {
        return reportWrongUsage(err, faultOf(program, error));
    } catch (const CommandFailure& failure) {
        out.flush();
        err << failure.what() << '\n';
        return failure.status();
    }
    if (!out.flush()) {
        err << "the output could not be written\n";
        return unwritableOutput;
    }
    return context.status;
}

} // namespace kavor::ctl
