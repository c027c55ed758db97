#pragma once

#include "Commands.h"

#include <sstream>
#include <string>
#include <vector>

namespace kavor {

// How a command ended and what it printed.
struct Outcome {
    int status = 0;
    std::string out;
    std::string err;
};

// Runs the program in this process.
inline Outcome kavorctl(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "kavorctl");
    std::vector<const char*> argv;
    for (const auto& argument : arguments)
        argv.push_back(argument.c_str());
    std::ostringstream out;
    std::ostringstream err;
    const int status = ctl::run(static_cast<int>(argv.size()), argv.data(), out, err);
    return {status, out.str(), err.str()};
}

} // namespace kavor
