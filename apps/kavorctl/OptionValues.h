#pragma once

#include "documents/OrderRequestType.h"

#include <string>
#include <string_view>

namespace CLI {
class App;
class Option;
} // namespace CLI

namespace kavor::ctl {

// Makes an empty value wrong usage, and for a named option also one that looks like the next option.
CLI::Option* withValue(CLI::Option* option);

// Makes a text of blanks alone wrong usage.
CLI::Option* withText(CLI::Option* option);

// Adds the option "--save" with its three words.
void addSaveOption(CLI::App& command, std::string& save);
// What one of the words asks for.
OrderRequestType requestType(std::string_view save);

// The name of the first option that is given as "--name=" without anything behind it, else empty. The parser
// would take the next word for its value.
std::string optionWithoutValue(int argc, const char* const* argv);

} // namespace kavor::ctl
