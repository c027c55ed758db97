#pragma once

#include "Json.h"
#include "catalogue/Catalogue.h"

#include <QByteArray>

namespace kavor::demo {

/// PDFs of the orders beside the menus, and the documents that the catalogue names.

QByteArray sellingSheetPdf(const Json& order, const Catalogue& catalogue);

/// Recommended prices of a family.
QByteArray priceListPdf(Family family, const Catalogue& catalogue);

} // namespace kavor::demo
