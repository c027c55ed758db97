#pragma once

#include "base/Int.h"
#include "base/LocalDateTime.h"
#include "brochures/engine/PriceRecommendationResponse.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace kavor {

// What the recommendation service said last of a format and a place.
struct KeptRecommendation {
    Int productIdentifier = 0; // of the format
    std::string postalCode;
    std::string locality;
    LocalDateTime date;
    PriceRecommendationResponse answer;
};

// The last answers of the recommendation service, for where there is no network: the file
// "priceRecommendations" in the caches. A file that is missing or doesn't decode is no answer.
class KeptRecommendations {
public:
    static constexpr std::size_t maximum = 200; // the oldest ones go

    // Without a folder nothing is kept.
    explicit KeptRecommendations(std::filesystem::path cachesFolder);

    // Takes the place of the former answer of its format and place, without waiting for the disk.
    void keep(KeptRecommendation recommendation);
    [[nodiscard]] std::optional<KeptRecommendation> find(Int product, const std::string& postalCode,
                                                         const std::string& locality);
    // All of a format, the newest first.
    [[nodiscard]] std::vector<KeptRecommendation> of(Int product);

private:
    [[nodiscard]] std::vector<KeptRecommendation>& all(); // the newest first

    std::filesystem::path folder_;
    std::optional<std::vector<KeptRecommendation>> all_; // none before they were read
};

} // namespace kavor
