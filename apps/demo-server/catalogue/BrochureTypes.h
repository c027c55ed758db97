#pragma once

#include "Json.h"
#include "catalogue/Styles.h"

namespace kavor::demo {

/// The list "cartatipos": every kind of brochure with switches and limits of its own.
Json brochureTypes();

/// Whether a kind has the QR material as wooden blocks too.
bool offersQrBlocks(BrochureKind kind);

/// How much of everything an order of a kind may hold.
struct KindLimits {
    int brands = 8, formats = 3; ///< formats of each brand
    int leastQuantity = 1, greatestQuantity = 100;
    bool secondPrice = false;
};
KindLimits limitsOf(BrochureKind kind);

} // namespace kavor::demo
