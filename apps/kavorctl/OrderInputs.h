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
    Int row = 0;
};

// Makes the catalogue (and the login answer, when a file is named) those of the session.
void openSession(const OrderInputs& inputs);

// The number behind "print", "preview" and "cloud".
OrderRequestType requestType(const std::string& save);

// Fills a new shared draft from the order file, in the brochure section of its "order_type".
std::shared_ptr<BrochureIntermediateData> openDraft(const OrderInputs& inputs);

// A summary for a reader, in Spanish: bar, languages, copies, style, brands with formats and prices. Needs
// the session's catalogue.
std::string summaryOf(const SaveBrochuresOrder& order);

} // namespace kavor::ctl
