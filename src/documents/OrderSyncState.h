#pragma once

#include <string_view>

namespace kavor {

// Where an order lives, as the order list shows it. Never stored; computed for the list.
enum class OrderSyncState {
    synced,        // file on the device and order on the server
    savedLocally,  // file on the device only
    cloud,         // order on the server only
    pendingToSend, // file in the outbox
};

// The Spanish text of a state.
std::string_view label(OrderSyncState state);
// The name of its icon.
std::string_view iconName(OrderSyncState state);

} // namespace kavor
