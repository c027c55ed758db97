#pragma once

#include "base/Int.h"
#include "base/Url.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

// The plain answers that several operations share.
namespace kavor {

// The answer to a promotion or a selling sheet.
struct GenericOrderResponse {
    std::optional<std::map<std::string, std::vector<std::string>>> errors;
    std::optional<Url> PDFURL;
    std::optional<Int> orderIdentifier;
};

// A sentence for the user.
struct MessageResponse {
    std::string msg;
};

// A body whose content doesn't matter.
struct SimpleResponse {};

} // namespace kavor
