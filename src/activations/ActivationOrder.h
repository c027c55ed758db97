#pragma once

#include "base/Int.h"
#include "base/Url.h"

#include <optional>
#include <string>
#include <vector>

namespace kavor {

// The body of "activationOrderURL".
struct ActivationOrder {
    struct CustomerActivation {
        std::string name;
        std::optional<Int> cobrixCode;
        std::optional<std::string> email;
        std::optional<std::string> telephone;
        std::optional<std::string> contact;
        std::string fullAddress;
        std::optional<std::string> postalCode;
        std::optional<std::string> city;
    };

    struct ActivationInfo {
        struct Item {
            Int id = 0;
        };
        struct Attributes {
            Int id = 0;
            std::string value;
        };

        Int activationId = 0;
        std::string dateEvent; // "dd-MM-yyyy"
        std::string hourFrom;  // "HH:mm"
        std::string hourTo;
        std::optional<std::string> comment;
        std::optional<std::string> favoriteSteward;
        std::optional<std::string> localInformation;
        std::optional<Int> otherActivationRelationIdentifier;
        std::optional<std::vector<Item>> itemList;
        std::optional<std::vector<Attributes>> attributesList;
    };

    CustomerActivation customer;
    ActivationInfo activationInfo;
};

// The answer to an activation.
struct SaveBrochuresOrderActivationResponse {
    std::optional<Url> urlOrder;
    std::optional<Int> orderId;
    std::optional<Int> quota;
    std::optional<Int> numberMade;
};

// The answer of "activationUserQuota".
struct ActivationsUserQuota {
    struct ActivationUserQuota {
        Int id = 0;
        Int quota = 0;
        Int numberMade = 0;
    };
    std::vector<ActivationUserQuota> activationList;
};

// The answer of "searchMapsURL".
struct SearchMapsResponse {
    struct Address {
        std::string fullAddress;
        std::optional<std::string> number;
        std::optional<std::string> address;
        std::optional<std::string> city;
        std::optional<std::string> province;
        std::optional<std::string> region;
        std::optional<std::string> countryCode;
        std::optional<std::string> country;
        std::optional<std::string> zip;
        std::string latitude;
        std::string longitude;
    };
    std::vector<Address> addresses;
};

} // namespace kavor
