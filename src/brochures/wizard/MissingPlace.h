#pragma once

#include "brochures/engine/ValidationMessage.h"
#include "brochures/wizard/BrochureMenuViewController.h"

namespace kavor {

// Where the wizard mends what a sentence of the check is about.
struct MissingPlace {
    BrochureMenuViewController::MenuButton button;
    const char* field; // the name of what is typed or chosen there; empty for the step as a whole
};

MissingPlace missingPlaceOf(ValidationPlace place);

} // namespace kavor
