#include "brochures/engine/PennantProducts.h"

#include "brochures/engine/BrochureIntermediateData.h"
#include "catalogue/Catalogue.h"

#include <algorithm>
#include <set>
#include <tuple>

namespace kavor {

using ProductPennant = SaveBrochuresOrder::Menu::ProductPennant;

std::vector<PennantProduct> showInPennantProducts(const BrochureIntermediateData& draft,
                                                  const Catalogue& catalogue) {
    std::vector<PennantProduct> offered;
    for (const auto& [identifier, formats] : draft.selectedBrands) {
        const Product* brand = catalogue.product(identifier);
        if (!brand)
            continue;
        for (const Product::ProductFormat& format : brand->productList) {
            if (format.showInPennant && std::ranges::find(formats, format.id) != formats.end())
                offered.push_back({brand, &format});
        }
    }
    std::ranges::stable_sort(offered, {}, [](const PennantProduct& each) {
        return std::tuple(each.brand->position, each.format->position);
    });
    return offered;
}

std::optional<Int> pennantProductAt(const BrochureIntermediateData& draft, Int position) {
    const auto found = std::ranges::find(draft.productPennant, position, &ProductPennant::position);
    return found == draft.productPennant.end() ? std::nullopt : std::optional(found->product);
}

void setPennantProduct(BrochureIntermediateData& draft, Int position, std::optional<Int> format) {
    auto& products = draft.productPennant;
    std::erase_if(products, [&](const ProductPennant& each) { return each.position == position; });
    if (!format)
        return;
    const auto place = std::ranges::upper_bound(products, position, {}, &ProductPennant::position);
    products.insert(place, {.product = *format, .position = position});
}

bool dropDeselectedPennantProducts(BrochureIntermediateData& draft, const Catalogue& catalogue) {
    std::set<Int> offered;
    for (const PennantProduct& each : showInPennantProducts(draft, catalogue))
        offered.insert(each.format->id);
    return std::erase_if(draft.productPennant,
                         [&](const ProductPennant& each) { return !offered.contains(each.product); }) > 0;
}

} // namespace kavor
