#pragma once

#include "base/Int.h"
#include "base/Url.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

// What the body of a failed answer holds.
namespace kavor {

// Status 422 and 429.
struct ValidationErrorsResponse {
    std::string msg;
    std::map<std::string, std::vector<std::string>> errors;
};

// Status 505.
struct OutdatedVersionErrorResponse {
    std::string message;
    Url updateLink;
};

// The success body of "demandBrandQr", in spite of its name.
struct DemandBrandQrErrorResponse {
    std::string message;
    std::optional<bool> canDemandQr;
    std::optional<Int> orderStateId;
    std::optional<std::string> orderStateName;
};

} // namespace kavor
