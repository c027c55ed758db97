#include "base/Log.h"

#include <unistd.h>

#include <mutex>
#include <string>

namespace kavor {

namespace {

struct Sink {
    std::mutex mutex;
    std::function<void(std::string_view)> function;
};

Sink& sink() {
    static Sink instance;
    return instance;
}

} // namespace

void logLine(std::string_view text) {
    const std::lock_guard lock(sink().mutex);
    if (sink().function) {
        sink().function(text);
        return;
    }
    const std::string line = std::string(text) + "\n";
    [[maybe_unused]] const auto written = ::write(STDERR_FILENO, line.data(), line.size());
}

void setLogSink(std::function<void(std::string_view)> function) {
    const std::lock_guard lock(sink().mutex);
    sink().function = std::move(function);
}

} // namespace kavor
