#pragma once

#include "Json.h"
#include "catalogue/Catalogue.h"

#include <QByteArray>

namespace kavor::demo {

/// PDFs of the orders beside the menus, and the documents that the catalogue names.

QByteArray textilePdf(const Json& order, const Catalogue& catalogue);
QByteArray activationPdf(const Json& order, const Catalogue& catalogue);

/// Details of an activation; empty for an id that is none.
QByteArray activationSheetPdf(int activationId, const Catalogue& catalogue);

/// Recommended prices of a family.
QByteArray priceListPdf(Family family, const Catalogue& catalogue);

} // namespace kavor::demo
