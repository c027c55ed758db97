#pragma once

#include "catalogue/ApplicationInformation.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace kavor::ctl {

// The number of records of each kind, named by its place in the document.
using CatalogueCounts = std::vector<std::pair<std::string, std::size_t>>;

// Counts every list of records that the catalogue has; a part that it leaves out has no line.
CatalogueCounts countsOf(const ApplicationInformation& catalogue);

} // namespace kavor::ctl
