#pragma once

#include "Json.h"
#include "catalogue/Catalogue.h"
#include "server/Customers.h"

namespace kavor::demo {

/// A complete menu order for a bar, in the form in which a client would have sent it.
Json sampleOrder(const Catalogue& catalogue, const Bar& bar, BrochureKind kind, int seed);

/// A complete order of clothing; the application type is 8, or 21 for that of wines.
Json sampleTextileOrder(const Catalogue& catalogue, const Bar& bar, int applicationType, int seed);

} // namespace kavor::demo
