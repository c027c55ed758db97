#include "OptionValues.h"

#include <CLI/CLI.hpp>

namespace kavor::ctl {

CLI::Option* withValue(CLI::Option* option) {
    const bool named = !option->get_positional();
    const auto fault = [named](const std::string& value) -> std::string {
        if (value.empty())
            return "the value is empty";
        if (named && value.starts_with("--"))
            return "expected a value, found the option " + value;
        return "";
    };
    return option->check(fault);
}

void addSaveOption(CLI::App& command, std::string& save) {
    command.add_option("--save", save, "what the server is to do with the order")
        ->required()
        ->check(CLI::IsMember({"print", "preview", "cloud"}));
}

std::string optionWithoutValue(int argc, const char* const* argv) {
    for (int i = 1; i < argc; ++i) {
        const std::string_view word = argv[i];
        if (word == "--")
            break;
        if (word.starts_with("--") && word.find('=') == word.size() - 1)
            return std::string(word.substr(0, word.size() - 1));
    }
    return "";
}

} // namespace kavor::ctl
