#include "brochures/wizard/WizardStepContext.h"

#include "base/StopProcess.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/wizard/StepSupport.h"
#include "session/AppSingleton.h"

namespace kavor {

WizardStepContext::WizardStepContext(const WizardServices& servicesOfTheWizard)
    : services(servicesOfTheWizard)
    , draft(BrochureIntermediateData::temporalBrochure())
    , kind(AppSingleton::shared().brochureType()) {
    readCatalogue();
}

const Brochures::Type::Parameters& WizardStepContext::parameters() const {
    static const Brochures::Type::Parameters allOff;
    return type ? *type->parameters : allOff;
}

void WizardStepContext::readCatalogue() {
    catalogue = AppSingleton::shared().applicationInformation;
    if (!catalogue)
        stopProcess("the catalogue of a step of the wizard");
    type = sectionParameters(*catalogue) ? sectionBrochureType(*catalogue) : nullptr;
}

} // namespace kavor
