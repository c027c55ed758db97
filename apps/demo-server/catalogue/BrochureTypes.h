#pragma once

#include "Json.h"

namespace kavor::demo {

/// The list "cartatipos": every kind of brochure with switches and limits of its own.
Json brochureTypes();

} // namespace kavor::demo
