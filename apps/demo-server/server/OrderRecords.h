#pragma once

#include "Json.h"
#include "catalogue/Catalogue.h"
#include "server/Orders.h"

namespace kavor::demo {

/// Wire forms of stored orders.

/// An entry of "pedidos" or "pedidos_textil" in the order list.
Json brochureListEntry(const Order& order, const Orders& orders, const std::string& baseUrl);
Json textileListEntry(const Order& order, const Orders& orders, const std::string& baseUrl);

/// The answer to a request for one order. Its form differs from the one that was sent.
Json retrievedBrochure(const Order& order, const Orders& orders, const Catalogue& catalogue);
Json retrievedTextile(const Order& order, const Orders& orders, const std::string& baseUrl);

/// A sent selling sheet as the list of sheets holds it.
Json sellingSheetEntry(const Order& order, const std::string& baseUrl);

/// Where an order can be looked at, and its PDF.
std::string orderPage(const Order& order, const std::string& baseUrl);
std::string orderPdf(const Order& order, const std::string& baseUrl);

/// An order whose QR material may be asked for again.
bool canDemandQr(const Order& order, const Orders& orders);

} // namespace kavor::demo
