#pragma once

#include "CommandContext.h"
#include "brochures/engine/SaveBrochuresOrder.h"

#include <memory>
#include <string>

namespace kavor {
class BrochureIntermediateData;
}

namespace kavor::ctl {

// The files that commands on orders read.
struct OrderInputs {
    std::string order;
    std::string catalogue;
    std::string login;
    std::string save = "cloud";
    std::string row;
};

// Makes the catalogue (and the login answer, when a file is named) those of the session.
void openSession(const OrderInputs& inputs);

// The number of a row, in decimal digits; wrong usage when it is none.
Int rowIdentifier(const std::string& row);

// Whether a command can do without the order's kind in the catalogue.
enum class BrochureKind { Optional, Required };

// Fills a new shared draft from the order file, in the brochure section of its "order_type". A required kind
// that the catalogue lacks stops the process, named, before anything else misses it.
std::shared_ptr<BrochureIntermediateData> openDraft(const OrderInputs& inputs,
                                                    BrochureKind kind = BrochureKind::Optional);

// A summary for a reader, in Spanish: bar, languages, copies, style, brands with formats and prices. Needs
// the session's catalogue.
std::string summaryOf(const SaveBrochuresOrder& order);

} // namespace kavor::ctl
