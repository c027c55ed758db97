#pragma once

#include "brochures/engine/SaveBrochuresOrder.h"

namespace kavor {

// Whether an order under the name of one that was sent is that order, as it stands by now. A name can be
// given to another order, and then a number would put one bar's order in the place of another's.
bool isThatOrder(const SaveBrochuresOrder& sent, BrochureType kind, const Customer& bar);
bool isThatOrder(const SaveBrochuresOrder& sent, const SaveBrochuresOrder& other);

} // namespace kavor
