#pragma once

#include "base/AtomicFile.h"
#include "base/json/Json.h"

#include <filesystem>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace kavor::ctl {

// The exit statuses of the program.
inline constexpr int fine = 0;
inline constexpr int orderHasMessages = 1;
inline constexpr int requestFailed = 1;
inline constexpr int unreadableInput = 2;
inline constexpr int wrongUsage = 64;
inline constexpr int unwritableOutput = 74;

// Ends a command with an exit status and a line for stderr.
class CommandFailure : public std::runtime_error {
public:
    CommandFailure(int status, const std::string& line)
        : std::runtime_error(line)
        , status_(status) {}
    [[nodiscard]] int status() const { return status_; }

private:
    int status_;
};

// What every command works with.
struct CommandContext {
    std::ostream& out;
    std::ostream& err;
    bool json = false;
    std::filesystem::path documents; // empty: the user's own
    std::filesystem::path caches;    // empty: the user's own
    std::filesystem::path configuration;
    int status = fine;
};

// The whole of a file, or of a pipe to its end; a CommandFailure with "FILE: reason" when it cannot be read.
std::string readText(const std::filesystem::path& file);

// Decodes a file strictly; a CommandFailure with "FILE: path.in.document: reason" when it does not decode.
template <class Record>
Record readRecord(const std::filesystem::path& file) {
    auto record = json::decode<Record>(readText(file));
    if (!record)
        throw CommandFailure(unreadableInput, file.string() + ": " + record.error().text());
    return std::move(*record);
}

// A text for a JSON document: bytes that are no UTF-8, as file names may hold, become U+FFFD.
std::string utf8Text(const std::string& bytes);

// A record as a pretty document with a line feed at its end.
template <class Record>
std::string prettyText(const Record& record) {
    const auto text = json::encodePretty(record);
    if (!text)
        throw CommandFailure(unreadableInput, text.error().text());
    return *text + "\n";
}

// What an order lacks, one a line or as a list of texts; the exit status tells of it.
void printMessages(CommandContext& context, const std::vector<std::string>& messages);

// A list of texts as a pretty document with a line feed at its end.
std::string listText(const std::vector<std::string>& texts);

} // namespace kavor::ctl
