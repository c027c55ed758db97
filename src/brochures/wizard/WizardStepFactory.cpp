#include "brochures/wizard/WizardStepFactory.h"

#include "base/StopProcess.h"
#include "brochures/wizard/WizardStepContext.h"
#include "brochures/wizard/configuration/BrochureConfigurationViewController.h"
#include "brochures/wizard/drinks/BrochureDrinkListViewController.h"
#include "brochures/wizard/ordersheet/BrochureOrderSheetViewController.h"
#include "brochures/wizard/pennant/BrochureOrderPennantViewController.h"
#include "brochures/wizard/pennantbrand/PennantBrandViewController.h"
#include "brochures/wizard/prices/BrochurePriceSetterViewController.h"
#include "brochures/wizard/products/BrochureProductListViewController.h"
#include "brochures/wizard/promotions/BrochurePromotionViewController.h"
#include "brochures/wizard/send/BrochureSendViewController.h"
#include "brochures/wizard/style/BrochureStyleSelectorViewController.h"

namespace kavor {

WizardStepViewController* makeWizardStep(int wizardStep, const WizardServices& services, QObject* parent) {
    const WizardStepContext context(services);
    switch (wizardStep) {
    case wizard_step::configuration:
        return new BrochureConfigurationViewController(context, parent);
    case wizard_step::style:
        return new BrochureStyleSelectorViewController(context, parent);
    case wizard_step::products:
        return new BrochureProductListViewController(context, parent);
    case wizard_step::drinks:
        return new BrochureDrinkListViewController(context, parent);
    case wizard_step::prices:
        return new BrochurePriceSetterViewController(context, parent);
    case wizard_step::orderSheet:
        return new BrochureOrderSheetViewController(context, parent);
    case wizard_step::send:
        return new BrochureSendViewController(context, parent);
    case wizard_step::promotions:
        return new BrochurePromotionViewController(context, parent);
    case wizard_step::pennant:
        return new BrochureOrderPennantViewController(context, parent);
    case wizard_step::pennantBrand:
        return new PennantBrandViewController(context, parent);
    default:
        stopProcess("no step of the wizard has this number");
    }
}

} // namespace kavor
