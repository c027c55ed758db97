#pragma once

#include "Json.h"

#include <deque>
#include <mutex>

namespace kavor::demo {

/// What was asked of the server, oldest first, without secrets. Keeps the last requests only.
class RequestLog {
public:
    /// Answers the number under which the status is added later.
    long add(Json entry);
    void setStatus(long number, int status);
    Json all();
    void clear();

private:
    static constexpr size_t limit = 2000;

    std::mutex mutex_;
    std::deque<Json> entries_;
    long next_ = 1;
};

} // namespace kavor::demo
