#include "Options.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <limits>

namespace kavor::demo {

namespace {

constexpr int wrongUsage = 64;

void addNumbers(CLI::App& program, Options& options) {
    const auto number = [&program](const char* name, int& into, int least, int most, const char* text) {
        program.add_option(name, into, text)->check(CLI::Range(least, most))->capture_default_str();
    };
    constexpr int any = std::numeric_limits<int>::max();
    number("--port", options.port, 0, 65535, "port on 127.0.0.1, 0 picks a free one");
    number("--brands", options.brands, 12, any, "number of brands in the catalogue");
    number("--orders", options.orders, 0, 1'000'000,
           "earlier orders of the first account, cloud orders included");
    number("--token-seconds", options.tokenSeconds, 1, any, "life of a bearer token");
    number("--state-seconds", options.stateSeconds, 1, any,
           "time of an order in each state, and of a claim without an answer");
}

void addTexts(CLI::App& program, Options& options) {
    const auto text = [&program](const char* name, auto& into, const char* description) {
        program.add_option(name, into, description)->check([](const std::string& value) {
            return value.empty() ? std::string("the value is empty") : std::string();
        });
    };
    text("--data", options.dataFolder, "folder of the database and the PDFs");
    text("--minimum-version", options.minimumVersion, "older clients get status 505 with a link");
    text("--write-configuration", options.configurationFile, "property list that points at this server");
    text("--dump-catalogue", options.dumpCatalogueFile, "write the catalogue document and end");
    text("--base-url", options.baseUrl, "address inside a dumped catalogue");
}

void addFlags(CLI::App& program, Options& options) {
    program.add_flag_callback(
        "--no-history", [&options] { options.history = false; }, "no earlier orders, the same as --orders 0");
    program.add_flag("--stop-with-parent", options.stopWithParent, "end together with the starting process");
    program.add_flag("--quiet", options.quiet, "no line for each request");
}

} // namespace

std::variant<Options, int> readOptions(int argc, const char* const* argv) {
    Options options;
    CLI::App program("A server side of the programme on one's own machine", "kavor-demo-server");
    program.option_defaults()->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
    addNumbers(program, options);
    addTexts(program, options);
    addFlags(program, options);
    try {
        program.parse(argc, argv);
    } catch (const CLI::Success&) {
        std::cout << program.help();
        return 0;
    } catch (const CLI::ParseError& fault) {
        std::cerr << "kavor-demo-server: " << fault.what() << "\n" << program.help();
        return wrongUsage;
    }
    return options;
}

} // namespace kavor::demo
