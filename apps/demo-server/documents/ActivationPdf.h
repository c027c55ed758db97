#pragma once

#include "Json.h"
#include "catalogue/Activations.h"
#include "catalogue/Catalogue.h"
#include "server/Orders.h"

#include <QByteArray>

#include <optional>
#include <string>

namespace kavor::demo {

/// How many activations of a sort an account has made, those of its earlier days included.
int activationsMade(Orders& orders, std::int64_t account, const Activation& activation);
/// The order that is tied to this one; none when there is none.
std::optional<Order> tiedTo(Orders& orders, const Order& order);

/// An ordered activation as it is printed: day with its month, hours, place, agency, elements, answers, quota
/// and the orders that it is tied with, both ways.
QByteArray activationPdf(const Order& order, Orders& orders, const Catalogue& catalogue);
/// Its rows on the page of the order, HTML.
std::string activationHtml(const Order& order, Orders& orders);

/// Details of an activation; empty for an id that is none.
QByteArray activationSheetPdf(int activationId, const Catalogue& catalogue);

} // namespace kavor::demo
