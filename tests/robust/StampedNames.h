#pragma once

#include "base/Int.h"

#include <filesystem>
#include <optional>
#include <string>

namespace kavor::robust {

// A name among the drafts with changes that begins and ends with a number.
std::string stampedName(Int stamp);
// The highest number among the names in the state file; nothing for a file that is not whole.
std::optional<Int> stampOfNames(const std::filesystem::path& file);

} // namespace kavor::robust
