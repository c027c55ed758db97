#pragma once

#include "activations/ActivationOrder.h"
#include "base/LocalDateTime.h"

#include <optional>
#include <string>
#include <vector>

namespace kavor {

// An activation that the server has taken, as a calendar needs it.
struct OrderedParty {
    ActivationOrder order;
    std::string name; // of the activation
    std::string agency;
    std::optional<Int> orderId;
};

// A calendar file (iCalendar) with an entry for each party, in the device's time. The moment is that of its
// making. A party that ends before it starts ends on the day after.
std::string calendarFile(const std::vector<OrderedParty>& parties, const LocalDateTime& now);

} // namespace kavor
