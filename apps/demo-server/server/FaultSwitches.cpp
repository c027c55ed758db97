#include "server/FaultSwitches.h"

#include <map>

namespace kavor::demo {

namespace {

bool matches(const FaultSwitch& fault, const std::string& method, const std::string& path) {
    if (!fault.method.empty() && fault.method != method) {
        return false;
    }
    if (fault.path.ends_with('*')) {
        return path.starts_with(fault.path.substr(0, fault.path.size() - 1));
    }
    return path == fault.path;
}

} // namespace

std::optional<std::string> FaultSwitches::add(const Json& description) {
    static const std::map<std::string, FaultSwitch::Kind> kinds = {
        {"status", FaultSwitch::Kind::status}, {"wrong-shape", FaultSwitch::Kind::wrongShape},
        {"html", FaultSwitch::Kind::html},     {"not-json", FaultSwitch::Kind::notJson},
        {"empty", FaultSwitch::Kind::empty},   {"cut", FaultSwitch::Kind::cut},
        {"slow", FaultSwitch::Kind::slow},     {"delay", FaultSwitch::Kind::delay},
        {"close", FaultSwitch::Kind::close},   {"errors", FaultSwitch::Kind::errors},
        {"no-url", FaultSwitch::Kind::noUrl},
    };
    if (!description.is_object() || !description.contains("path") || !description.contains("fault")) {
        return "path and fault are needed";
    }
    try {
        FaultSwitch fault;
        fault.path = description["path"].get<std::string>();
        const auto kind = kinds.find(description["fault"].get<std::string>());
        if (kind == kinds.end()) {
            return "unknown fault";
        }
        fault.kind = kind->second;
        fault.method = description.value("method", "");
        fault.status = description.value("status", 500);
        fault.times = description.value("times", 1);
        fault.milliseconds = description.value("milliseconds", 50);
        fault.after = description.value("after", false);
        if (const auto body = description.find("body"); body != description.end()) {
            fault.body = body->is_string() ? body->get<std::string>() : body->dump();
        }
        const std::lock_guard lock(mutex_);
        switches_.push_back(std::move(fault));
        return std::nullopt;
    } catch (const Json::exception& error) {
        return error.what();
    }
}

void FaultSwitches::clear() {
    const std::lock_guard lock(mutex_);
    switches_.clear();
}

std::optional<FaultSwitch> FaultSwitches::take(const std::string& method, const std::string& path) {
    const std::lock_guard lock(mutex_);
    for (auto fault = switches_.begin(); fault != switches_.end(); ++fault) {
        if (matches(*fault, method, path)) {
            FaultSwitch taken = *fault;
            if (fault->times > 0 && --fault->times == 0) {
                switches_.erase(fault);
            }
            return taken;
        }
    }
    return std::nullopt;
}

} // namespace kavor::demo
