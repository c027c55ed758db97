#pragma once

#include "Json.h"
#include "catalogue/Catalogue.h"

#include <QByteArray>

#include <string>

namespace kavor::demo {

/// The printed work of a brochure order: cover, brands with their formats and prices, other drinks,
/// promotions, pennants, back. `publicAddress` is where the menu can be read online; it goes into the QR
/// code.
QByteArray menuPdf(const Json& order, const Catalogue& catalogue, const std::string& publicAddress);

/// A brand of an order as it is shown: from the catalogue, or as the user named it.
struct ShownBrand {
    std::string name, style;
    Look look;
    std::vector<Vessel> vessels;
};
ShownBrand shownBrand(const Json& item, const Catalogue& catalogue);

/// The vessel that stands for a brand: a bottle does so better than a glass. Of one at least.
Vessel shownVessel(const std::vector<Vessel>& vessels);

/// The words of a sold format, with the volume that the user set: "Caña 25 cl".
std::string soldFormatName(const Json& sold, const Catalogue& catalogue);

} // namespace kavor::demo
