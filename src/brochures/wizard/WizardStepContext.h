#pragma once

#include "brochures/wizard/WizardStep.h"
#include "catalogue/Catalogue.h"

#include <memory>
#include <optional>

namespace kavor {

class BrochureIntermediateData;

// What a step works with and on: the services, and the catalogue, draft and section of the session as they
// stand when the step is made.
struct WizardStepContext {
    // The process stops without a catalogue, and in a brochure section whose kind it does not know.
    WizardStepContext(const WizardServices& servicesOfTheWizard); // a step may be made of the services alone

    WizardServices services;
    std::shared_ptr<const Catalogue> catalogue; // never null
    std::shared_ptr<BrochureIntermediateData> draft;
    std::optional<BrochureType> kind;      // of the section; none outside a brochure section
    const Brochures::Type* type = nullptr; // the record of the kind, owned by the catalogue

    // The switches and limits of the kind; all off outside a brochure section.
    [[nodiscard]] const Brochures::Type::Parameters& parameters() const;
    // Takes the catalogue that has come into place since.
    void readCatalogue();
};

} // namespace kavor
