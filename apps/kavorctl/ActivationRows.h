#pragma once

#include "CommandContext.h"
#include "base/Int.h"

#include <string>
#include <vector>

namespace kavor::ctl {

// An activation as a list names it.
struct ActivationRow {
    Int id = 0;
    Int definitionId = 0;
    std::string brand;
    std::string name;
    Int numberMade = 0;
    Int quota = 0;
    Int previousDays = 0;
};

// A line each, with tabs between number, brand, name, how many are made of how many, and days of notice.
void printRows(CommandContext& context, const std::vector<ActivationRow>& rows);

} // namespace kavor::ctl
