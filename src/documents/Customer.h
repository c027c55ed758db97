#pragma once

#include "base/Int.h"

#include <optional>
#include <string>
#include <vector>

namespace kavor {

// The point of sale of an order.
struct Customer {
    std::optional<Int> id;
    std::string name;
    std::optional<std::string> email;
    std::optional<std::string> telephone;
    std::optional<std::string> contact;
    std::optional<std::string> localPhone;
    std::optional<std::string> url;
    std::optional<std::string> facebook;
    std::optional<std::string> twitter;
    std::optional<std::string> instagram;
    std::optional<std::string> freeText1;
    std::optional<std::string> freeText2;
    std::optional<std::string> freeText3;
    std::optional<std::string> tevo; // the customer code
    std::optional<std::string> placePostalCode;
    std::optional<std::string> placeLocality;
    std::optional<Int> placeLocalityId;
    std::optional<Int> placeProvinceId;
    std::optional<std::string> placeProvinceName;
    std::optional<std::string> imageLogo; // "data:image/png;base64," and the picture
    std::optional<std::string> commentImageLogo;
    std::optional<std::vector<Int>> priorityBrandIdentifiers;

    bool operator==(const Customer&) const = default;
};

} // namespace kavor
