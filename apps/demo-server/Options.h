#pragma once

#include <optional>
#include <string>
#include <variant>

namespace kavor::demo {

/// What the command line asks of the demonstration server.
struct Options {
    int port = 8480;                              ///< 0 picks a free one
    std::string dataFolder;                       ///< database and made PDFs; empty means a folder of its own
    int brands = 60;                              ///< size of the catalogue
    int tokenSeconds = 12 * 60 * 60;              ///< life of a bearer token
    int stateSeconds = 90;                        ///< time that an order spends in each state
    std::string minimumVersion;                   ///< older clients are told to update; empty accepts all
    std::optional<std::string> configurationFile; ///< property list to write
    std::optional<std::string> dumpCatalogueFile; ///< write the catalogue here and end
    std::string baseUrl = "http://127.0.0.1:8480"; ///< address inside a dumped catalogue
    bool history = true;                           ///< earlier orders in the list of the first account
    int orders = 40;                               ///< how many of them
    bool quiet = false;                            ///< no line for each request
    bool stopWithParent = false;                   ///< end when the process that started this one ends
};

/// Reads the command line. Answers the exit status instead when the help was asked for and printed, or when
/// something is wrong, which is told with the help on stderr.
std::variant<Options, int> readOptions(int argc, const char* const* argv);

} // namespace kavor::demo
