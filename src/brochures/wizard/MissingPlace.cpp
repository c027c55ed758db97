#include "brochures/wizard/MissingPlace.h"

#include "base/StopProcess.h"

namespace kavor {

MissingPlace missingPlaceOf(ValidationPlace place) {
    using Menu = BrochureMenuViewController;
    using Place = ValidationPlace;
    switch (place) {
    case Place::outputFormat:
        return {Menu::Configuration, "paperBrochureSwitch"};
    case Place::languages:
        return {Menu::Configuration, "firstLanguagePicker"};
    case Place::customerCode:
        return {Menu::Configuration, "tevoTextField"};
    case Place::customerTexts:
        return {Menu::Configuration, ""};
    case Place::customerName:
        return {Menu::Configuration, "establishmentNameTextField"};
    case Place::customerEmail:
        return {Menu::Configuration, "contactEmailTextField"};
    case Place::customerTelephone:
        return {Menu::Configuration, "contactTelephoneTextField"};
    case Place::customerContact:
        return {Menu::Configuration, "contactNameTextField"};
    case Place::blackboardFormat:
        return {Menu::Configuration, ""};
    case Place::blackboardType:
        return {Menu::Configuration, "blackboardTypePicker"};
    case Place::quantity:
        return {Menu::Style, "numberBrochuresTextField"};
    case Place::printedStyle:
        return {Menu::Style, ""};
    case Place::logos:
        return {Menu::Style, "firstBrandPicker"};
    case Place::onlineStyle:
        return {Menu::DigitalStyle, ""};
    case Place::brands:
        return {Menu::Products, ""};
    case Place::drinks:
        return {Menu::Drinks, ""};
    case Place::prices:
        return {Menu::Prices, ""};
    }
    stopProcess("a place of the check");
}

} // namespace kavor
