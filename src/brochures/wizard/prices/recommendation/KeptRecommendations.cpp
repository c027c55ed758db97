#include "brochures/wizard/prices/recommendation/KeptRecommendations.h"

#include "base/BackgroundFileWriter.h"
#include "base/json/Table.h"
#include "brochures/engine/PriceRecommendationTable.h"
#include "session/StateFile.h"

#include <algorithm>
#include <utility>

namespace kavor {

namespace {

constexpr std::string_view fileName = "priceRecommendations";

} // namespace

// The file.
struct KeptRecommendationFile {
    std::vector<KeptRecommendation> recommendations;
};

} // namespace kavor

namespace kavor::json {

template <>
struct Table<KeptRecommendation> {
    using R = KeptRecommendation;
    static constexpr auto fields = std::tuple{
        required("product_id", &R::productIdentifier), required("placePostalCode", &R::postalCode),
        required("placeLocality", &R::locality), required("date", &R::date), required("answer", &R::answer)};
};
template <>
struct Table<KeptRecommendationFile> {
    static constexpr auto fields =
        std::tuple{required("recommendations", &KeptRecommendationFile::recommendations)};
};

} // namespace kavor::json

KAVOR_JSON_DOCUMENT(kavor::KeptRecommendationFile)

namespace kavor {

KeptRecommendations::KeptRecommendations(std::filesystem::path cachesFolder)
    : folder_(std::move(cachesFolder)) {}

std::vector<KeptRecommendation>& KeptRecommendations::all() {
    if (all_)
        return *all_;
    all_.emplace();
    if (folder_.empty())
        return *all_;
    BackgroundFileWriter::shared().flush(folder_ / fileName);
    if (auto stored = state_file::read<KeptRecommendationFile>(folder_, fileName))
        all_ = std::move(stored->recommendations);
    return *all_;
}

void KeptRecommendations::keep(KeptRecommendation recommendation) {
    auto& kept = all();
    std::erase_if(kept, [&](const KeptRecommendation& each) {
        return each.productIdentifier == recommendation.productIdentifier &&
               each.postalCode == recommendation.postalCode && each.locality == recommendation.locality;
    });
    kept.insert(kept.begin(), std::move(recommendation));
    kept.resize(std::min(kept.size(), maximum));
    if (folder_.empty())
        return;
    if (const auto text = json::encode(KeptRecommendationFile{kept}))
        BackgroundFileWriter::shared().write(folder_ / fileName, *text);
    else
        logLine(std::string(fileName) + ": " + text.error().text());
}

std::optional<KeptRecommendation> KeptRecommendations::find(Int product, const std::string& postalCode,
                                                            const std::string& locality) {
    const auto found = std::ranges::find_if(all(), [&](const KeptRecommendation& each) {
        return each.productIdentifier == product && each.postalCode == postalCode &&
               each.locality == locality;
    });
    return found == all().end() ? std::nullopt : std::optional(*found);
}

std::vector<KeptRecommendation> KeptRecommendations::of(Int product) {
    std::vector<KeptRecommendation> found;
    std::ranges::copy_if(all(), std::back_inserter(found), [product](const KeptRecommendation& each) {
        return each.productIdentifier == product;
    });
    return found;
}

} // namespace kavor
