#pragma once

#include "CommandContext.h"

namespace kavor {
class DraftOrderRows;
}

namespace kavor::ctl {

// Which rows the JSON form holds; the text form holds all.
enum class JsonRows { Drafts, DraftsAndSent };

class OnlineSession;

// Asks the server for its orders and joins them to the rows; a CommandFailure without login or answer.
void joinServerOrders(OnlineSession& online, DraftOrderRows& rows);

// Prints the drafts, newest first, then the orders sent: as a JSON list, or a line each with the state's
// Spanish text.
void printRows(CommandContext& context, const DraftOrderRows& rows, JsonRows jsonRows);

} // namespace kavor::ctl
