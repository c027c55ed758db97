#pragma once

#include "Json.h"
#include "catalogue/Catalogue.h"

#include <QByteArray>

namespace kavor::demo {

/// The documents that the catalogue names.

/// Recommended prices of a family.
QByteArray priceListPdf(Family family, const Catalogue& catalogue);

} // namespace kavor::demo
