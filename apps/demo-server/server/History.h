#pragma once

#include "catalogue/Catalogue.h"
#include "server/Orders.h"

namespace kavor::demo {

/// Gives an account earlier orders of every sort until it was given `number` of them: the first are chosen,
/// the others made up. A folder that has them already gets no more, and none that its user deleted comes
/// back.
void addHistory(Orders& orders, const Catalogue& catalogue, std::int64_t account, int number);

} // namespace kavor::demo
