#pragma once

#include "Json.h"
#include "catalogue/Catalogue.h"

#include <map>
#include <string>
#include <vector>

namespace kavor::demo {

/// What is wrong with a document, by the member that it is about; empty when nothing is.
using Faults = std::map<std::string, std::vector<std::string>>;

/// The form of each order document: every member of the right type, those that are always written present, no
/// null and no member that the server does not know.
Faults brochureFormFaults(const Json& order, bool raw);
Faults textileFormFaults(const Json& order);
Faults promotionFormFaults(const Json& order);
Faults sellingSheetFormFaults(const Json& order);
Faults activationFormFaults(const Json& order);

/// What keeps a well-formed menu from being printed: no name of the bar, no brand, references that left the
/// catalogue.
Faults brochureContentFaults(const Json& order, const Catalogue& catalogue);

} // namespace kavor::demo
