#pragma once

#include "catalogue/Shared.h"

namespace kavor {

// The textile catalogue, "textil".
struct Textile {
    struct Validations {
        Int minimumOrderAmount = 0;
        Int maximumNumberOfCharactersForMessage = 0;
    };
    // A garment format.
    struct Type {
        Int identifier = 0;
        Int position = 0;
        std::string name;
        Int minimumAmount = 0;
        Int maximumAmount = 0;
    };
    struct Gender {
        Int identifier = 0;
        Int position = 0;
        std::string name;
    };
    struct Color {
        Int identifier = 0;
        Int position = 0;
        std::string name;
        std::string colorString;
    };
    struct Size {
        Int identifier = 0;
        Int position = 0;
        std::string name;
        std::string code;
    };
    struct Typography {
        Int identifier = 0;
        Int position = 0;
        std::string postScriptName;
        std::string filename; // of the font on the device
        Url fontURL;
        std::string mimetype; // used as the font's own name
    };
    // One article: a combination of brand, format, model, colour and size.
    struct Item {
        Int identifier = 0;
        ApplicationFather applicationFather = ApplicationFather::textil;
        ApplicationType applicationType = ApplicationType::textil;
        Int position = 0;
        Int brandIdentifier = 0;
        Int typeIdentifier = 0;
        Int genderIdentifier = 0;
        Int colorIdentifier = 0;
        Int sizeIdentifier = 0;
        bool isDefault = false;
        HashedResource image;
    };

    Validations validations;
    std::vector<Type> types;
    std::vector<Gender> genders;
    std::vector<Color> colors;
    std::vector<Size> sizes;
    std::vector<Typography> typographies;
    std::vector<Item> items;
};

} // namespace kavor
