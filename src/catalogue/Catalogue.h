#pragma once

#include "catalogue/ApplicationInformation.h"

#include <cstddef>
#include <functional>
#include <span>
#include <unordered_map>
#include <utility>
#include <vector>

namespace kavor {

// The catalogue with an index of every list that is looked up by id. An id that occurs twice means its first
// record. Look-ups are constant time; pointers live as long as the catalogue and until the next change of its
// products.
class Catalogue {
public:
    explicit Catalogue(ApplicationInformation information);
    Catalogue(const Catalogue& other);
    Catalogue& operator=(const Catalogue&) = delete;
    ~Catalogue() = default;

    [[nodiscard]] const ApplicationInformation& information() const { return information_; }
    // The brochure catalogue; the process stops without one.
    [[nodiscard]] const Brochures& brochures() const;

    [[nodiscard]] const Product* product(Int id) const;
    [[nodiscard]] const Product::ProductFormat* format(Int brand, Int format) const;
    // The place of a product in the catalogue's list, for orders "as the catalogue lists them".
    [[nodiscard]] std::optional<std::size_t> productIndex(Int id) const;
    // The products of a family, in list order.
    [[nodiscard]] std::span<const Product* const> productsOfFamily(ApplicationFather family) const;

    [[nodiscard]] const Brochures::Type* brochureType(BrochureType type) const;
    [[nodiscard]] const Brochures::Style* style(Int id) const;
    [[nodiscard]] const Brochures::Logo* logo(Int id) const;
    [[nodiscard]] const Brochures::Language* language(Int id) const;
    [[nodiscard]] const Brochures::OrderSheet* orderSheet(Int id) const;
    [[nodiscard]] const Brochures::PennantBrand* pennantBrand(Int id) const;
    [[nodiscard]] const Brochures::BrandQr* brandQr(Int id) const;
    [[nodiscard]] const Brochures::BlackBoardFormat* blackboardFormat(Int id) const;
    [[nodiscard]] const Brochures::BlackBoardType* blackboardType(Int id) const;
    [[nodiscard]] const Brochures::MenuFormatVisualize* menuFormatVisualize(Int id) const;
    [[nodiscard]] const Brochures::MenuWineFormatVisualize* menuWineFormatVisualize(Int id) const;
    [[nodiscard]] const Brochures::Price* price(PriceType type) const;
    [[nodiscard]] const Brochures::Drink* drink(Int id) const;
    // The articles of the textile catalogue.
    [[nodiscard]] const Textile::Item* textileItem(Int id) const;

    // The brands that the user added by hand, in list order.
    [[nodiscard]] std::vector<Product> ownBrands() const;
    // Adds products at the end of the list.
    void addProducts(std::vector<Product> products);
    void addProduct(Product product) { addProducts({std::move(product)}); }
    // The process stops for a product without category.
    [[nodiscard]] bool hasProductsOfProperty(Int propertyId) const;
    void removeProductsOfProperty(Int propertyId);
    // A negative id that no product has.
    [[nodiscard]] Int freeNegativeProductId() const;

private:
    template <class Record>
    using Index = std::unordered_map<Int, const Record*>;

    void indexAll();
    void indexProducts();
    void takeDescriptions();
    void keepDescriptions();

    ApplicationInformation information_;
    std::unordered_map<Int, std::size_t> products_;
    std::unordered_map<Int, std::unordered_map<Int, const Product::ProductFormat*>> formats_;
    std::unordered_map<Int, std::vector<const Product*>> families_;
    Index<Brochures::Type> types_;
    Index<Brochures::Style> styles_;
    Index<Brochures::Logo> logos_;
    Index<Brochures::Language> languages_;
    Index<Brochures::OrderSheet> orderSheets_;
    Index<Brochures::PennantBrand> pennantBrands_;
    Index<Brochures::BrandQr> brandQrs_;
    Index<Brochures::BlackBoardFormat> blackboardFormats_;
    Index<Brochures::BlackBoardType> blackboardTypes_;
    Index<Brochures::MenuFormatVisualize> menuFormats_;
    Index<Brochures::MenuWineFormatVisualize> menuWineFormats_;
    Index<Brochures::Price> prices_;
    Index<Brochures::Drink> drinks_;
    Index<Textile::Item> textileItems_;
};

} // namespace kavor
