#pragma once

#include "catalogue/Catalogue.h"
#include "server/Orders.h"

#include <string>

namespace kavor::demo {

/// Pages for the browser, small and without scripts.

/// An order's state on its way, what was written about it, and a link to its PDF.
std::string orderHtml(const Order& order, Orders& orders, const Catalogue& catalogue);

/// The online menu of an order, for a phone at the table.
std::string menuHtml(const Order& order, const Catalogue& catalogue);

/// A page with a title and a few sentences, which are HTML.
std::string plainHtml(const std::string& title, const std::vector<std::string>& sentences);

} // namespace kavor::demo
