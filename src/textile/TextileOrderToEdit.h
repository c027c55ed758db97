#pragma once

#include "documents/UnansweredSend.h"
#include "textile/SaveTextileOrder.h"

#include <optional>
#include <string>

namespace kavor {

// An order of clothing at hand, out of a file or from the server, that the section is to go on with.
struct TextileOrderToEdit {
    SaveTextileOrder order;
    std::optional<std::string> filename = {}; // plain name of its draft file
    UnansweredSends unansweredSends = {};
    std::optional<std::string> outboxFile = {}; // plain name, for one that waits in the outbox
};

} // namespace kavor
