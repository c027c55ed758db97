#pragma once

#include "server/OrderCheck.h"

#include <optional>
#include <string>

namespace kavor::demo {

struct Order;

/// What keeps a well-formed activation order from being made: a name or a place that is missing, a day that
/// is past or within the notice, hours, elements or attributes that are not the activation's own or are
/// missing, a tie to an order that is none of the user's activations (`tied`) or of another day.
Faults activationContentFaults(const Json& order, const std::optional<Order>& tied);

} // namespace kavor::demo
