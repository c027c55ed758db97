#pragma once

#include "catalogue/Shared.h"

namespace kavor {

// The poster catalogue, "carteleria".
struct Posters {
    struct SupportType {
        Int id = 0;
        Int position = 0;
        std::string name;
        std::string description;
        HashedResource icon;
    };

    struct Classification {
        Int identifier = 0;
        Int position = 0;
        std::string name;
    };

    struct Promotion {
        struct Language {
            Int id = 0;
            std::string name;
            bool isDefault = false;
            HashedResource image;
        };
        struct Support {
            Int id = 0;
            Int typeId = 0;
            std::string typeName;
            Int position = 0;
        };

        Int id = 0;
        Int brandId = 0;
        std::string brandName;
        Int typeId = 0;
        std::string typeName;
        std::optional<Int> classificationIdentifier;
        std::string title;
        std::string description;
        Int position = 0;
        bool showMenuOnline = false;
        std::vector<Language> languages;
        std::vector<Support> supports;
        std::vector<Attribute> attributes;
    };

    std::vector<SupportType> supportTypes;
    std::vector<Classification> classifications;
    std::vector<Promotion> promotions;
};

} // namespace kavor
