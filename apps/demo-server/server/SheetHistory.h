#pragma once

#include "catalogue/Catalogue.h"
#include "server/Orders.h"

#include <vector>

namespace kavor::demo {

/// Selling sheets that an account sent earlier, the oldest first: one that has run out, with a module on each
/// page; one without its PDF; one with the logo of a distributor.
std::vector<Order> pastSheets(const Catalogue& catalogue, std::int64_t account);

} // namespace kavor::demo
