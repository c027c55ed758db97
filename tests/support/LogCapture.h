#pragma once

#include "base/Log.h"

#include <algorithm>
#include <mutex>
#include <string>
#include <vector>

namespace kavor {

// Collects the lines of the log while it lives.
class LogCapture {
public:
    LogCapture() {
        setLogSink([this](const LogEntry& entry) {
            const std::lock_guard lock(mutex_);
            lines_.emplace_back(entry.text);
        });
    }
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;
    ~LogCapture() { setLogSink({}); }

    [[nodiscard]] std::vector<std::string> lines() const {
        const std::lock_guard lock(mutex_);
        return lines_;
    }
    [[nodiscard]] bool contains(std::string_view line) const {
        return std::ranges::any_of(lines(), [line](const std::string& each) { return each == line; });
    }
    // The number of lines that begin like this.
    [[nodiscard]] int startingWith(std::string_view start) const {
        const auto all = lines();
        return int(
            std::ranges::count_if(all, [start](const std::string& each) { return each.starts_with(start); }));
    }

private:
    mutable std::mutex mutex_;
    std::vector<std::string> lines_;
};

} // namespace kavor
