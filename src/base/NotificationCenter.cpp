#include "base/NotificationCenter.h"

namespace kavor {

NotificationCenter& NotificationCenter::shared() {
    static NotificationCenter instance;
    return instance;
}

NotificationCenter::Subscription NotificationCenter::observe(std::string_view name, Observer observer) {
    auto shared = std::make_shared<Observer>(std::move(observer));
    observers_[std::string(name)].push_back(shared);
    return Subscription(std::move(shared));
}

void NotificationCenter::post(std::string_view name, const NotificationInfo& info) {
    const auto found = observers_.find(name);
    if (found == observers_.end())
        return;
    std::erase_if(found->second, [](const auto& observer) { return observer.expired(); });
    const auto observers = found->second; // a copy: an observer may subscribe or unsubscribe others
    for (const auto& weak : observers) {
        if (const auto observer = weak.lock())
            (*observer)(info);
    }
}

} // namespace kavor
