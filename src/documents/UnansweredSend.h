#pragma once

#include <string>
#include <vector>

namespace kavor {

// An order that went out, or waits in the outbox, without an answer so far. The server takes it once under
// its key, so whoever sends the same content again uses the same key.
struct UnansweredSend {
    std::string content; // of the order, as services/SendIntent.h digests it
    std::string key;
    bool onlyQueued = false; // a file of the outbox bears the key; nothing was sent under it yet
    bool operator==(const UnansweredSend&) const = default;
};

using UnansweredSends = std::vector<UnansweredSend>;

} // namespace kavor
