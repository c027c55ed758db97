#pragma once

#include "brochures/engine/RetrieveBrochureOrderListResponse.h"

namespace kavor {

// The order document of a server's answer for one order; rowIdentifier is the id of its row in the order
// list. Stops the process for a brand without category.
SaveBrochuresOrder orderOf(Int rowIdentifier, const RetrieveBrochureOrderListResponse& answer);

} // namespace kavor
