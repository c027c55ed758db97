#pragma once

namespace kavor {

class BrochureIntermediateData;

// Whether the draft holds anything that the user himself entered or chose. What the steps fill in by
// themselves (the first style, its logos, quantities at their first value, the default chalkboard type, the
// QR material of the first brand) does not count, nor do net prices, which belong to no order.
bool holdsWork(const BrochureIntermediateData& draft);

} // namespace kavor
