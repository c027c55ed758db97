#pragma once

#include "CommandContext.h"
#include "network/ServiceOperations.h"

namespace kavor::ctl {

// The end of a command whose request failed: the title, what the user reads and the reason; after an answer
// that asks for a newer version also where that is.
CommandFailure requestFailure(const QString& title, const RequestFailure& failure);

} // namespace kavor::ctl
