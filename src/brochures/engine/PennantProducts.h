#pragma once

#include "catalogue/Shared.h"

#include <optional>
#include <vector>

namespace kavor {

class BrochureIntermediateData;
class Catalogue;

inline constexpr Int pennantProductPlaces = 8; // a string of pennants has so many

// A format of the draft that may stand on the pennants; the pointers are the catalogue's.
struct PennantProduct {
    const Product* brand = nullptr;
    const Product::ProductFormat* format = nullptr;
};

// The selected formats that the catalogue offers for pennants, by the position of the brand and then of the
// format.
[[nodiscard]] std::vector<PennantProduct> showInPennantProducts(const BrochureIntermediateData& draft,
                                                                const Catalogue& catalogue);
// The format at a position, 1 to 8; none when the place is empty.
[[nodiscard]] std::optional<Int> pennantProductAt(const BrochureIntermediateData& draft, Int position);
// Puts a format at a position, or with none empties it. The list stays in the order of the positions.
void setPennantProduct(BrochureIntermediateData& draft, Int position, std::optional<Int> format);
// Takes out what the draft no longer has selected; answers whether there was any.
bool dropDeselectedPennantProducts(BrochureIntermediateData& draft, const Catalogue& catalogue);

} // namespace kavor
