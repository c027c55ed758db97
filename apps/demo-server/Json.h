#pragma once

#include <nlohmann/json.hpp>
#include <optional>

namespace kavor::demo {

/// The documents of the server keep the order in which their members were written.
using Json = nlohmann::ordered_json;

/// The value as JSON, null when it is unset.
template <typename Value>
Json orNull(const std::optional<Value>& value) {
    return value ? Json(*value) : Json(nullptr);
}

} // namespace kavor::demo
