#pragma once

#include "base/Int.h"
#include "catalogue/HashedResource.h"

#include <optional>
#include <string>

namespace kavor {

// A selected format of a selected brand, as the prices step shows it. Rebuilt from the draft, never stored.
struct PriceRow {
    Int productIdentifier = 0; // of the format
    std::optional<HashedResource> productImage;
    bool isHighlightable = false;
    Int highlightablePosition = 0; // 0 means "never a default"
    Int brandIdentifier = 0;       // negative for a brand added by hand
    std::string productName;       // the format's display text
    std::string brandName;
    Int position = 0; // of the brand
    bool isVolumeEditable = false;
    std::optional<Int> volume; // centilitres
    std::optional<Int> minimumVolume;
    std::optional<Int> maximumVolume;
    double mainPrice = 0;
    std::optional<double> secondaryPrice;
};

} // namespace kavor
