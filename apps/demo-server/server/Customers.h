#pragma once

#include "Json.h"
#include "server/Database.h"

#include <optional>
#include <string>
#include <vector>

namespace kavor::demo {

/// A fictional bar that answers to a customer code.
struct Bar {
    int id = 0;
    std::string code; ///< "B0001" and so on
    std::string name, contact, email, telephone, localPhone, url;
    std::string facebook, twitter, instagram;
    std::string postalCode, town, province;
    int townId = 0, provinceId = 0;
    std::vector<std::string> freeTexts;
    std::vector<int> priorityBrands;
    bool withLogo = false;
};

/// The bars of the programme, in the order of their codes.
const std::vector<Bar>& bars();

/// The bar with this code, in any case and without the blanks around it.
const Bar* barOf(const std::string& code);

/// The record that the look-up answers; the logo is a PNG as data text.
Json customerRecord(const Bar& bar, const std::optional<std::string>& logo);

/// The identifier of the customer of an order: the bar's, or one given to its name and code at first sight.
std::int64_t customerId(Database& database, const std::string& code, const std::string& name);

/// Places that an address search finds.
Json addressesFor(const std::string& direction);

/// What others charge for a format around a place; `reference` is the format's usual price.
Json recommendation(const std::string& brand, const std::string& format, double reference,
                    const std::string& postalCode, const std::string& locality);

} // namespace kavor::demo
