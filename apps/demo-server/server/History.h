#pragma once

#include "Json.h"
#include "catalogue/Catalogue.h"
#include "server/Customers.h"
#include "server/Orders.h"

namespace kavor::demo {

/// A complete menu order for a bar, in the form in which a client would have sent it.
Json sampleOrder(const Catalogue& catalogue, const Bar& bar, BrochureKind kind, int seed);

/// Gives an account some earlier orders in various states, unless it has them already.
void addHistory(Orders& orders, const Catalogue& catalogue, std::int64_t account);

} // namespace kavor::demo
