#pragma once

#include <string>

namespace kavor {

class BrochureIntermediateData;
class Catalogue;

// The four texts in which the send step sums up a draft: what is set and what is missing, a line each.
struct BrochureSendSummary {
    std::string orderDataInfoLeft;
    std::string orderDataInfoLeftWarning;
    std::string orderDataInfoRight;
    std::string orderDataInfoRightWarning;

    // For the kind of brochure of the section entered; outside a brochure section nothing depends on the
    // kind.
    static BrochureSendSummary of(const BrochureIntermediateData& draft, const Catalogue& catalogue);

    bool operator==(const BrochureSendSummary&) const = default;
};

} // namespace kavor
