#pragma once

#include "base/Int.h"
#include "documents/MessageDraft.h"

#include <optional>
#include <string>

namespace kavor {

// What a user has written into the suggestion form and not sent; it lives as long as the process.
struct SuggestionDraft {
    std::string account; // whose it is
    std::optional<Int> category;
    MessageDraft body;
};

} // namespace kavor
