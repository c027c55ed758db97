#pragma once

#include "catalogue/Brands.h"
#include "catalogue/Content.h"
#include "catalogue/PictureBook.h"

#include <span>
#include <string>
#include <vector>

namespace kavor::demo {

/// What goes with an activation: glasses, placemats, shirts, bunting.
struct ActivationElement {
    int id, number; ///< the number says what it is
    const char* name;
    bool required;
};
std::vector<ActivationElement> elementsOf(const Activation& activation);

/// What an activation asks for besides.
struct ActivationQuestion {
    int id, typeId;
    const char* name;
    const char* description;
    bool required;
    const char* regex; ///< null for none
};
std::vector<ActivationQuestion> questionsOf(const Activation& activation);

/// The activation of a number; null for none.
const Activation* activationOf(int id);
const ActivationGroup& groupOf(const Activation& activation);

/// The subtree "activaciones".
Json activationsSection(std::span<const Brand> brands, PictureBook& book);

} // namespace kavor::demo
