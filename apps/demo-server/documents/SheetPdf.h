#pragma once

#include "Json.h"
#include "catalogue/Catalogue.h"

#include <QByteArray>
#include <QImage>

namespace kavor::demo {

/// A selling sheet as its bars get it: the modules below each other, or one on each page.
QByteArray sellingSheetPdf(const Json& order, const Catalogue& catalogue);

/// The logo of the distributor of the seeded sheets, under the path "/logos/distribuidora.png".
QImage distributorLogo();

} // namespace kavor::demo
