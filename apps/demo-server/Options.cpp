#include "Options.h"

#include <charconv>
#include <functional>
#include <map>

namespace kavor::demo {

namespace {

bool readNumber(const std::string& text, int least, int& into) {
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || value < least) {
        return false;
    }
    into = value;
    return true;
}

using Setter = std::function<bool(Options&, const std::string&)>;

Setter text(std::string Options::*member) {
    return [member](Options& options, const std::string& value) {
        options.*member = value;
        return !value.empty();
    };
}

Setter file(std::optional<std::string> Options::*member) {
    return [member](Options& options, const std::string& value) {
        options.*member = value;
        return !value.empty();
    };
}

Setter number(int Options::*member, int least) {
    return [member, least](Options& options, const std::string& value) {
        return readNumber(value, least, options.*member);
    };
}

const std::map<std::string, Setter> withValue = {
    {"--port", number(&Options::port, 0)},
    {"--data", text(&Options::dataFolder)},
    {"--brands", number(&Options::brands, 12)},
    {"--token-seconds", number(&Options::tokenSeconds, 1)},
    {"--state-seconds", number(&Options::stateSeconds, 1)},
    {"--minimum-version", text(&Options::minimumVersion)},
    {"--write-configuration", file(&Options::configurationFile)},
    {"--dump-catalogue", file(&Options::dumpCatalogueFile)},
    {"--base-url", text(&Options::baseUrl)},
};

const std::map<std::string, bool Options::*> flags = {
    {"--quiet", &Options::quiet},
    {"--help", &Options::help},
    {"--stop-with-parent", &Options::stopWithParent},
};

} // namespace

OptionsResult readOptions(const std::vector<std::string>& arguments) {
    Options options;
    for (size_t i = 0; i < arguments.size(); ++i) {
        const std::string& name = arguments[i];
        if (const auto flag = flags.find(name); flag != flags.end()) {
            options.*(flag->second) = true;
            continue;
        }
        if (name == "--no-history") {
            options.history = false;
            continue;
        }
        const auto setter = withValue.find(name);
        if (setter == withValue.end()) {
            return {std::nullopt, "unknown option " + name};
        }
        if (i + 1 == arguments.size() || !setter->second(options, arguments[i + 1])) {
            return {std::nullopt, "option " + name + " needs a usable value"};
        }
        ++i;
    }
    if (options.port > 65535) {
        return {std::nullopt, "option --port needs a usable value"};
    }
    return {options, {}};
}

std::string optionsHelp() {
    return "kavor-demo-server [options]\n"
           "  --port N                   port on 127.0.0.1, 0 picks a free one (8480)\n"
           "  --data DIR                 folder of the database and the PDFs\n"
           "  --brands N                 number of brands in the catalogue, at least 12 (60)\n"
           "  --token-seconds S          life of a bearer token (43200)\n"
           "  --state-seconds S          time of an order in each state (90)\n"
           "  --minimum-version V        older clients get status 505 with a link\n"
           "  --write-configuration FILE property list that points at this server\n"
           "  --dump-catalogue FILE      write the catalogue document and end\n"
           "  --base-url URL             address inside a dumped catalogue\n"
           "  --no-history               no earlier orders in the order list\n"
           "  --stop-with-parent         end together with the starting process\n"
           "  --quiet                    no line for each request\n";
}

} // namespace kavor::demo
