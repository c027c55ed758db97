#pragma once

#include "CommandContext.h"
#include "base/Int.h"

#include <optional>
#include <string>
#include <vector>

namespace kavor::ctl {

// A promotion as a list names it.
struct PromotionRow {
    Int id = 0;
    std::optional<Int> languageId;
    std::string name;
    std::string brand;
    std::optional<std::string> classification;
};

// A line each, with tabs between number, language, name, brand and classification; "-" for what is not there.
void printRows(CommandContext& context, const std::vector<PromotionRow>& rows);

} // namespace kavor::ctl
