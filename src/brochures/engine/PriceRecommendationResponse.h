#pragma once

#include <optional>
#include <string>
#include <vector>

namespace kavor {

// The answer of "priceRecommendationURL": a table that only informs.
struct PriceRecommendationResponse {
    std::vector<std::vector<std::optional<std::string>>> table;
    std::vector<std::string> columns;
    std::vector<std::string> files;
    std::optional<std::string> brandName;
    std::optional<std::string> productName;
};

} // namespace kavor
