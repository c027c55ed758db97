#pragma once

#include "catalogue/Catalogue.h"
#include "server/Orders.h"

#include <string>

namespace kavor::demo {

/// Pages for the browser, small and without scripts.

/// An order's state on its way, with a link to its PDF.
std::string orderHtml(const Order& order, OrderState state, const Catalogue& catalogue);

/// The online menu of an order, for a phone at the table.
std::string menuHtml(const Order& order, const Catalogue& catalogue);

/// A page with a title and a few sentences; the last may be a link written as HTML.
std::string plainHtml(const std::string& title, const std::vector<std::string>& sentences);

/// A text with the characters escaped that mean something in HTML.
std::string escaped(const std::string& text);

} // namespace kavor::demo
