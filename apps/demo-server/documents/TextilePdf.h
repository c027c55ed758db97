#pragma once

#include "Json.h"
#include "catalogue/Catalogue.h"

#include <QByteArray>

namespace kavor::demo {

/// An order of clothing: the bar, the text, a card for each combination with the printed garment and its
/// sizes, and the total.
QByteArray textilePdf(const Json& order, const Catalogue& catalogue);

} // namespace kavor::demo
