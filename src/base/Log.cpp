#include "base/Log.h"

#include <unistd.h>

#include <mutex>
#include <string>
#include <utility>

namespace kavor {

namespace {

struct Sink {
    std::mutex mutex;
    LogSink function;
    std::function<void()> flush;
};

Sink& sink() {
    static Sink instance;
    return instance;
}

thread_local bool isInSink = false;

void writeToStderr(std::string_view text) {
    const std::string line = std::string(text) + "\n";
    [[maybe_unused]] const auto written = ::write(STDERR_FILENO, line.data(), line.size());
}

// The folder below src of a source file.
std::string_view subsystemOf(std::string_view file) {
    constexpr std::string_view sources = "/src/";
    const std::size_t at = file.rfind(sources);
    if (at == std::string_view::npos)
        return "kavor";
    file.remove_prefix(at + sources.size());
    return file.substr(0, file.find('/'));
}

} // namespace

void logLine(std::string_view text, LogLevel level, const char* callersFile) {
    logEntry({level, subsystemOf(callersFile), text});
}

void logEntry(const LogEntry& entry) {
    if (isInSink) // what a sink itself has to say would find the sink taken
        return writeToStderr(entry.text);
    const std::lock_guard lock(sink().mutex);
    if (!sink().function)
        return writeToStderr(entry.text);
    isInSink = true;
    sink().function(entry);
    isInSink = false;
}

void setLogSink(LogSink function, std::function<void()> flush) {
    const std::lock_guard lock(sink().mutex);
    sink().function = std::move(function);
    sink().flush = std::move(flush);
}

bool logLastWords(std::string_view text) {
    std::function<void()> flush;
    if (!isInSink) {
        const std::lock_guard lock(sink().mutex);
        flush = sink().flush;
    }
    if (!flush)
        return false;
    logEntry({LogLevel::Fault, "kavor", text});
    flush();
    return true;
}

} // namespace kavor
