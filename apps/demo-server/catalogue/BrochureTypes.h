#pragma once

#include "Json.h"
#include "catalogue/Styles.h"

namespace kavor::demo {

/// The list "cartatipos": every kind of brochure with switches and limits of its own.
Json brochureTypes();

/// Whether a kind has the QR material as wooden blocks too.
bool offersQrBlocks(BrochureKind kind);

} // namespace kavor::demo
