#pragma once

#include "base/Int.h"
#include "documents/MessageDraft.h"

#include <map>
#include <string>

namespace kavor {

// What a user has written about sent orders, by their numbers; it lives as long as the process.
struct OrderMessages {
    std::string account; // whose it is
    std::map<Int, MessageDraft> claims;
    std::map<Int, MessageDraft> demands;

    // Forgets what somebody else wrote on this device.
    void belongTo(const std::string& owner) {
        if (account != owner)
            *this = {owner, {}, {}};
    }
};

} // namespace kavor
