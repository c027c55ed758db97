#pragma once

#include <functional>
#include <string_view>

namespace kavor {

// Writes one diagnostic line to stderr. Secrets never go here.
void logLine(std::string_view text);

// Sends the lines elsewhere (tests read them); an empty function restores stderr.
void setLogSink(std::function<void(std::string_view)> sink);

} // namespace kavor
