#pragma once

#include "brochures/engine/SaveBrochuresOrder.h"

#include <optional>
#include <string>
#include <vector>

namespace kavor {

class BrochureIntermediateData;
class Catalogue;

// An order at hand, out of a file or from the server, that the wizard is to go on with.
struct OrderToEdit {
    SaveBrochuresOrder order;
    std::optional<std::string> filename = {}; // plain name of its draft file
    UnansweredSends unansweredSends = {};
    std::optional<std::string> outboxFile = {};     // plain name, for one that waits in the outbox
    std::optional<std::string> supportComment = {}; // what only the device knows of it
};

// Loads an order that the user goes on with. A second number of copies that it does not have is one that
// nobody chose: no field shows it, and the check before sending would refuse it.
void loadToGoOn(BrochureIntermediateData& draft, const SaveBrochuresOrder& order);

// Puts a new shared draft, filled from the order, in the place of the one in work, whose sends without an
// answer it knows too: what may be at the server already is not ordered twice. The session is in the section
// of the order's kind by then.
void openOrder(const OrderToEdit& toEdit);

// The names of the brands of the order that are not in the catalogue, one for each such brand and for each
// format that its brand lacks. Brands of the user's own do not count: they come back.
std::vector<std::string> fellOut(const SaveBrochuresOrder& order, const Catalogue& catalogue);
// One line for the user that counts and names them; empty when there are none.
std::string fellOutText(const std::vector<std::string>& names);

} // namespace kavor
