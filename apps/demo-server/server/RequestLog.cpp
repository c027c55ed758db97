#include "server/RequestLog.h"

#include <algorithm>

namespace kavor::demo {

long RequestLog::add(Json entry) {
    const std::lock_guard lock(mutex_);
    entry["number"] = next_;
    entries_.push_back(std::move(entry));
    if (entries_.size() > limit) {
        entries_.pop_front();
    }
    return next_++;
}

void RequestLog::setStatus(long number, int status) {
    const std::lock_guard lock(mutex_);
    const auto entry = std::find_if(entries_.rbegin(), entries_.rend(),
                                    [&](const Json& each) { return each["number"] == number; });
    if (entry != entries_.rend())
        (*entry)["status"] = status;
}

Json RequestLog::all() {
    const std::lock_guard lock(mutex_);
    Json list = Json::array();
    for (const Json& entry : entries_) {
        list.push_back(entry);
    }
    return list;
}

void RequestLog::clear() {
    const std::lock_guard lock(mutex_);
    entries_.clear();
}

} // namespace kavor::demo
