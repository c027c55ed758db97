#pragma once

#include "CommandContext.h"
#include "catalogue/Catalogue.h"
#include "sellingsheets/SellingSheetOrder.h"

#include <string>
#include <vector>

namespace kavor::ctl {

// The sheets that the server has: a line each, with tabs between number, name, title, validity and the
// address of the PDF; "-" for what is not there.
void printRows(CommandContext& context, const std::vector<SellingSheetOrder>& sheets);

// A summary for a reader, in Spanish. A catalogue, where there is one, names style and products.
std::string summaryOf(const SellingSheetOrder& sheet, const Catalogue* catalogue);

} // namespace kavor::ctl
