#pragma once

#include "CommandContext.h"

namespace kavor {
class DraftOrderRows;
}

namespace kavor::ctl {

// Prints the drafts, newest first: as a JSON list, or a line each with the state's Spanish text, then the
// orders sent.
void printRows(CommandContext& context, const DraftOrderRows& rows);

} // namespace kavor::ctl
