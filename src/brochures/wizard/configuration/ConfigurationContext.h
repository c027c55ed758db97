#pragma once

#include "catalogue/Catalogue.h"

#include <memory>
#include <optional>

namespace kavor {

class BrochureIntermediateData;

// What the parts of the configuration step work on.
struct ConfigurationContext {
    std::shared_ptr<const Catalogue> catalogue;
    std::shared_ptr<BrochureIntermediateData> draft;
    std::optional<BrochureType> type; // none outside a brochure section
    Brochures::Type::Parameters parameters;
    bool isSecondBrochuresPriceAllowed = false;
};

} // namespace kavor
