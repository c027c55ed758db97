#pragma once

#include "base/LocalDateTime.h"
#include "catalogue/Shared.h"

namespace kavor {

// The activation catalogue, "activaciones".
struct ActivationsInformation {
    // A brand's group of activations.
    struct Definition {
        struct ActivationInformation {
            struct ImageInfo {
                HashedResource image;
                Int position = 0;
            };
            struct Attribute {
                Int id = 0;
                Int typeId = 0;
                Int position = 0;
                std::string name;
                std::string description;
                bool required = false;
                std::optional<std::string> fieldValidation;
            };
            struct Item {
                Int id = 0;
                Int position = 0;
                std::string name;
                bool required = false;
                std::optional<std::string> description;
                std::vector<ImageInfo> imagesList;
            };

            Int id = 0;
            Int position = 0;
            std::string name;
            std::string description;
            std::optional<std::string> color;
            std::optional<std::string> backgroundColor; // has no key: never on the wire
            HashedResource imageOn;
            HashedResource imageOff;
            std::optional<HashedResource> imageBackground;
            Int imageWidth = 0;
            Int imageHeight = 0;
            Int imageX = 0;
            Int imageY = 0;
            Int imageRotate = 0;
            std::optional<Url> detailsPDF;
            std::optional<LocalDateTime> dateFrom;
            std::optional<LocalDateTime> dateTo;
            std::string agencyName;
            std::string agencyDescription;
            Int antelationDays = 0;
            Int quotaX = 0;
            Int quotaY = 0;
            Int quotaW = 0;
            Int quotaH = 0;
            Int quotaSize = 0;
            Int quota = 0;
            Int numberMade = 0;
            bool canBeRelatedWithAnotherActivations = false;
            std::vector<Attribute> attributesList;
            std::vector<Item> itemsList;
            std::vector<ImageInfo> imagesList;
        };

        Int id = 0;
        Int brandId = 0;
        std::string brandName;
        std::string name;
        std::optional<std::string> color; // has no key: never on the wire
        std::optional<std::string> backgroundColor;
        std::optional<HashedResource> imageBackground;
        HashedResource imageLogo;
        Int imageWidth = 0;
        Int imageHeight = 0;
        Int imageX = 0;
        Int imageY = 0;
        Int imageRotate = 0;
        std::vector<ActivationInformation> activationsList;
    };

    std::vector<Definition> definitionsList;
};

using ActivationInformation = ActivationsInformation::Definition::ActivationInformation;

} // namespace kavor
