#pragma once

#include "catalogue/Shared.h"

namespace kavor {

// The selling sheet catalogue, "hoja_vendedora".
struct SellingSheet {
    struct Validation {
        Int titleLength = 0;
        Int subtitleLenth = 0; // spelt so in the model
        Int freeTextLength = 0;
    };
    struct Style {
        Int id = 0;
        std::string name;
        Int position = 0;
        HashedResource image;
    };

    Validation validations;
    std::vector<Style> styles;
};

} // namespace kavor
