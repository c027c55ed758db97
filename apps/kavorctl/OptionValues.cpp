#include "OptionValues.h"

#include <CLI/CLI.hpp>

namespace kavor::ctl {

namespace {

constexpr std::string_view saveWord(OrderRequestType type) {
    switch (type) {
    case OrderRequestType::sendToPrint:
        return "print";
    case OrderRequestType::sendPreview:
        return "preview";
    case OrderRequestType::saveCloud:
        break;
    }
    return "cloud";
}

} // namespace

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

CLI::Option* withText(CLI::Option* option) {
    return option->check([](const std::string& text) -> std::string {
        return text.find_first_not_of(" \t\r\n") == std::string::npos ? "the text is empty" : "";
    });
}

void addSaveOption(CLI::App& command, std::string& save) {
    std::vector<std::string> words;
    for (const auto& each : casesOf<OrderRequestType>())
        words.emplace_back(saveWord(each.value));
    command.add_option("--save", save, "what the server is to do with the order")
        ->required()
        ->check(CLI::IsMember(words));
}

OrderRequestType requestType(std::string_view save) {
    for (const auto& each : casesOf<OrderRequestType>()) {
        if (saveWord(each.value) == save)
            return each.value;
    }
    return OrderRequestType::saveCloud;
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
