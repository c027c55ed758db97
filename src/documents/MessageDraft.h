#pragma once

#include "documents/UnansweredSend.h"

#include <string>

namespace kavor {

// What a user has written to the programme, and which sends of it nobody answered.
struct MessageDraft {
    std::string text;
    UnansweredSends unanswered;
};

} // namespace kavor
