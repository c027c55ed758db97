#pragma once

#include <functional>
#include <string_view>

namespace kavor {

enum class LogLevel {
    Note,    // what happened
    Warning, // what went wrong and cost no more than itself
    Fault,   // what ends the process
};

struct LogEntry {
    LogLevel level = LogLevel::Warning;
    std::string_view category; // the part of the program that speaks
    std::string_view text;
};

using LogSink = std::function<void(const LogEntry&)>;

// Writes a line to the log: its text to stderr, unless a sink was set. Secrets never go here. The category is
// the subsystem of whoever calls.
void logLine(std::string_view text, LogLevel level = LogLevel::Warning,
             const char* callersFile = __builtin_FILE());
// The same for who names a category.
void logEntry(const LogEntry& entry);

// Sends the entries elsewhere; an empty function restores stderr. The sink is called in any thread, one call
// at a time. A sink that writes later brings a function that waits for it.
void setLogSink(LogSink sink, std::function<void()> flush = {});
// What the process says before it ends: written as a fault, and waited for. False when the sink is not of the
// kind that writes later, which gets nothing.
bool logLastWords(std::string_view text);

} // namespace kavor
