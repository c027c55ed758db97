#include "catalogue/Catalogue.h"

#include "base/StopProcess.h"
#include "catalogue/OwnBrand.h"

#include <algorithm>
#include <iterator>
#include <type_traits>

namespace kavor {

namespace {

template <class Record>
Int identifierOf(const Record& record) {
    if constexpr (requires { record.identifier; })
        return record.identifier;
    else
        return static_cast<Int>(record.id);
}

template <class Record>
void indexList(std::unordered_map<Int, const Record*>& index, const std::vector<Record>& list) {
    index.clear();
    index.reserve(list.size());
    for (const Record& record : list)
        index.try_emplace(identifierOf(record), &record);
}

template <class Record>
const Record* find(const std::unordered_map<Int, const Record*>& index, Int id) {
    const auto found = index.find(id);
    return found == index.end() ? nullptr : found->second;
}

struct HasProperty {
    Int property;
    bool operator()(const Product& product) const {
        if (!product.category)
            stopProcess("category of product " + std::to_string(product.id));
        return product.category->propertyId == property;
    }
};

} // namespace

Catalogue::Catalogue(ApplicationInformation information)
    : information_(std::move(information)) {
    indexAll();
    takeDescriptions();
}

Catalogue::Catalogue(const Catalogue& other)
    : information_(other.information_) {
    indexAll();
}

const Brochures& Catalogue::brochures() const {
    if (!information_.brochures)
        stopProcess("brochure catalogue");
    return *information_.brochures;
}

void Catalogue::indexAll() {
    indexProducts();
    if (information_.brochures) {
        const Brochures& brochures = *information_.brochures;
        indexList(types_, brochures.types);
        indexList(styles_, brochures.styles);
        indexList(logos_, brochures.logos);
        indexList(languages_, brochures.languages);
        indexList(orderSheets_, brochures.orderSheets);
        indexList(pennantBrands_, brochures.pennantBrands);
        indexList(brandQrs_, brochures.brandQrs);
        indexList(blackboardFormats_, brochures.blackboardFormats);
        indexList(blackboardTypes_, brochures.blackboardTypes);
        indexList(menuFormats_, brochures.menuFormatVisualize);
        indexList(menuWineFormats_, brochures.menuWineFormatVisualize);
        indexList(prices_, brochures.prices);
        indexList(drinks_, brochures.drinks);
    }
    if (information_.textile)
        indexList(textileItems_, information_.textile->items);
}

void Catalogue::indexProducts() {
    products_.clear();
    formats_.clear();
    families_.clear();
    products_.reserve(information_.products.size());
    formats_.reserve(information_.products.size());
    for (std::size_t i = 0; i < information_.products.size(); ++i) {
        const Product& product = information_.products[i];
        families_[static_cast<Int>(product.applicationFather)].push_back(&product);
        if (!products_.try_emplace(product.id, i).second)
            continue;
        auto& formats = formats_[product.id];
        formats.reserve(product.productList.size());
        for (const Product::ProductFormat& format : product.productList)
            formats.try_emplace(format.id, &format);
    }
}

const Product* Catalogue::product(Int id) const {
    const auto index = productIndex(id);
    return index ? &information_.products[*index] : nullptr;
}

std::optional<std::size_t> Catalogue::productIndex(Int id) const {
    const auto found = products_.find(id);
    return found == products_.end() ? std::nullopt : std::optional(found->second);
}

const Product::ProductFormat* Catalogue::format(Int brand, Int format) const {
    const auto found = formats_.find(brand);
    return found == formats_.end() ? nullptr : find(found->second, format);
}

std::span<const Product* const> Catalogue::productsOfFamily(ApplicationFather family) const {
    const auto found = families_.find(static_cast<Int>(family));
    return found == families_.end() ? std::span<const Product* const>()
                                    : std::span<const Product* const>(found->second);
}

const Brochures::Type* Catalogue::brochureType(BrochureType type) const {
    return find(types_, static_cast<Int>(type));
}
const Brochures::Style* Catalogue::style(Int id) const {
    return find(styles_, id);
}
const Brochures::Logo* Catalogue::logo(Int id) const {
    return find(logos_, id);
}
const Brochures::Language* Catalogue::language(Int id) const {
    return find(languages_, id);
}
const Brochures::OrderSheet* Catalogue::orderSheet(Int id) const {
    return find(orderSheets_, id);
}
const Brochures::PennantBrand* Catalogue::pennantBrand(Int id) const {
    return find(pennantBrands_, id);
}
const Brochures::BrandQr* Catalogue::brandQr(Int id) const {
    return find(brandQrs_, id);
}
const Brochures::BlackBoardFormat* Catalogue::blackboardFormat(Int id) const {
    return find(blackboardFormats_, id);
}
const Brochures::BlackBoardType* Catalogue::blackboardType(Int id) const {
    return find(blackboardTypes_, id);
}
const Brochures::MenuFormatVisualize* Catalogue::menuFormatVisualize(Int id) const {
    return find(menuFormats_, id);
}
const Brochures::MenuWineFormatVisualize* Catalogue::menuWineFormatVisualize(Int id) const {
    return find(menuWineFormats_, id);
}
const Brochures::Price* Catalogue::price(PriceType type) const {
    return find(prices_, static_cast<Int>(type));
}
const Brochures::Drink* Catalogue::drink(Int id) const {
    return find(drinks_, id);
}
const Textile::Item* Catalogue::textileItem(Int id) const {
    return find(textileItems_, id);
}

// The descriptions of own brands lie beside the products in the document, and in the products in memory.
void Catalogue::takeDescriptions() {
    if (!information_.ownBrandDescriptions)
        return;
    for (const auto& [id, description] : *information_.ownBrandDescriptions) {
        const auto index = productIndex(id);
        if (index && OwnBrand::is(information_.products[*index]))
            information_.products[*index].description = description;
    }
}

void Catalogue::keepDescriptions() {
    information_.ownBrandDescriptions.reset();
    for (const Product& product : information_.products) {
        if (!OwnBrand::is(product) || !product.description)
            continue;
        if (!information_.ownBrandDescriptions)
            information_.ownBrandDescriptions.emplace();
        information_.ownBrandDescriptions->push_back({product.id, *product.description});
    }
}

std::vector<Product> Catalogue::ownBrands() const {
    std::vector<Product> found;
    std::ranges::copy_if(information_.products, std::back_inserter(found), OwnBrand::is);
    return found;
}

void Catalogue::addProducts(std::vector<Product> products) {
    auto& all = information_.products;
    all.insert(all.end(), std::make_move_iterator(products.begin()), std::make_move_iterator(products.end()));
    indexProducts();
    keepDescriptions();
}

bool Catalogue::hasProductsOfProperty(Int propertyId) const {
    return std::ranges::count_if(information_.products, HasProperty{propertyId}) > 0;
}

void Catalogue::removeProductsOfProperty(Int propertyId) {
    if (std::erase_if(information_.products, HasProperty{propertyId}) == 0)
        return;
    indexProducts();
    keepDescriptions();
}

Int Catalogue::freeNegativeProductId() const {
    Int id = -1;
    while (products_.contains(id))
        --id;
    return id;
}

} // namespace kavor
