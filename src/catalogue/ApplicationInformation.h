#pragma once

#include "catalogue/ActivationsInformation.h"
#include "catalogue/Brochures.h"
#include "catalogue/Posters.h"
#include "catalogue/SellingSheet.h"
#include "catalogue/Shared.h"
#include "catalogue/Textile.h"

namespace kavor {

// The catalogue document: the whole vocabulary of the system as the server gives it. Records refer to each
// other by id; a dangling id is no error of the document.
struct ApplicationInformation {
    // A type of free attributes.
    struct AttributeType {
        Int id = 0;
        std::string name;
        std::optional<std::string> description;
        std::optional<std::string> regex;
        std::optional<std::string> format;
    };

    // A video tutorial.
    struct Manual {
        std::string type;
        std::string label;
        Int position = 0;
        HashedResource thumb;
        HashedResource video;
        HashedResource videoToken;
    };

    // What a user wrote about a brand of his own, beside the products because a product's description has no
    // key. Only the file of the device has it.
    struct OwnBrandDescription {
        Int id = 0;
        std::string description;
    };

    Validations validations;
    std::vector<Pairing> pairings;
    std::vector<SuggestionCategory> suggestionCategories;
    std::vector<Product> products;
    std::optional<Brochures> brochures;
    std::vector<AttributeType> attributesTypes;
    std::optional<Posters> promotion;
    std::optional<SellingSheet> sellingSheet;
    std::optional<ActivationsInformation> activations;
    std::optional<Textile> textile;
    std::vector<HashedResource> images; // every resource to hold on the device
    std::vector<Manual> manuals;
    std::optional<std::vector<OwnBrandDescription>> ownBrandDescriptions;
};

} // namespace kavor
