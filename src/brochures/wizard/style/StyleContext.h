#pragma once

#include "catalogue/Catalogue.h"

#include <memory>

namespace kavor {

class BrochureIntermediateData;

// What the parts of the style step work on.
struct StyleContext {
    std::shared_ptr<const Catalogue> catalogue;
    std::shared_ptr<BrochureIntermediateData> draft;
    const Brochures::Type* type = nullptr; // owned by the catalogue; has parameters
    bool isSectionStyleDigital = false;

    [[nodiscard]] const Brochures::Type::Parameters& parameters() const { return *type->parameters; }
};

} // namespace kavor
