#include "brochures/wizard/MenuMarks.h"

#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/engine/DrinkKinds.h"
#include "brochures/wizard/MissingPlace.h"
#include "session/AppSingleton.h"

namespace kavor {

void MenuMarks::count() {
    missing_.clear();
    if (!AppSingleton::shared().brochureType())
        return;
    for (const ValidationMessage& message :
         BrochureIntermediateData::temporalBrochure()->validationMessages())
        ++missing_[missingPlaceOf(message.place).button];
}

int MenuMarks::missingAt(int button) const {
    const auto found = missing_.find(button);
    return found == missing_.end() ? 0 : found->second;
}

bool MenuMarks::isComplete(int button) const {
    using Menu = BrochureMenuViewController;
    if (!AppSingleton::shared().brochureType() || missing_.contains(button))
        return false;
    const BrochureIntermediateData& draft = *BrochureIntermediateData::temporalBrochure();
    switch (button) {
    case Menu::Configuration:
        return true;
    case Menu::Products:
    case Menu::Prices:
        return !draft.selectedBrands.empty();
    case Menu::Drinks:
        return !draft.selectedBeverages.empty() && printsDrinks(*AppSingleton::shared().brochureType());
    case Menu::Style:
        return draft.currentStyle() != nullptr;
    case Menu::DigitalStyle:
        return draft.currentStyleDigital() != nullptr;
    default:
        return false;
    }
}

} // namespace kavor
