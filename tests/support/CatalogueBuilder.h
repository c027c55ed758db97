#pragma once

#include "catalogue/Catalogue.h"

#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace kavor {

// A small valid catalogue that a test changes before it takes it: two beers and a wine, every kind of
// brochure, three price columns, two languages, drinks, and one of everything else.
//
//   brand 11 Encina, formats 110 Tercio 3.00 and 111 Jarra; brand 10 Roble, formats 100 Tercio 2.50 and 101
//   Caña (no price, not highlightable); brand 12 Tinto (wine), format 120 Copa 12.00; minimal price 1.5,
//   warning over 6.0
struct CatalogueBuilder {
    ApplicationInformation information;

    CatalogueBuilder() {
        auto& limits = information.validations;
        limits.customerFreeText = limits.customerLocalPhone = limits.customerUrl = 10;
        limits.customerInstagram = limits.customerTwitter = limits.customerFacebook = 10;
        limits.productFormatNumber = 3;
        brand(11, "Encina").format(110, "Tercio", 3.0).format(111, "Jarra", 5.5);
        brand(10, "Roble").format(100, "Tercio", 2.5).format(101, "Caña", std::nullopt);
        product(10).productList[1].isHighlightable = false;
        brand(12, "Tinto", ApplicationFather::orderWine).format(120, "Copa", 12.0);
        addBrochures();
    }

    [[nodiscard]] std::shared_ptr<const Catalogue> take() const {
        return std::make_shared<Catalogue>(information);
    }

    CatalogueBuilder& brand(Int id, std::string name,
                            ApplicationFather family = ApplicationFather::orderBeer) {
        auto& added = information.products.emplace_back();
        added.id = id;
        added.name = std::move(name);
        added.applicationFather = family;
        added.category = Product::Category();
        added.category->segmentId = id + 1000;
        added.category->typologyId = id + 2000;
        return *this;
    }
    // A format of the brand added last.
    CatalogueBuilder& format(Int id, std::string icon, std::optional<double> price) {
        auto& added = information.products.back().productList.emplace_back();
        added.id = id;
        added.typeId = id + 5000;
        added.icon = std::move(icon);
        added.price = price;
        added.isHighlightable = added.isVolumeEditable = true;
        added.minimalPrice = 1.5;
        added.priceMaximumAvise = 6.0;
        return *this;
    }
    Product& product(Int id) { return *std::ranges::find(information.products, id, &Product::id); }
    CatalogueBuilder& removeProduct(Int id) {
        std::erase_if(information.products, [id](const Product& each) { return each.id == id; });
        return *this;
    }
    Brochures& brochures() { return *information.brochures; }
    Brochures::Type& type(BrochureType kind) {
        return *std::ranges::find(brochures().types, kind, &Brochures::Type::id);
    }
    Brochures::Type::Parameters& parameters(BrochureType kind) { return *type(kind).parameters; }

    static constexpr auto kinds = [] {
        std::array<BrochureType, casesOf<BrochureType>().size()> all{};
        std::ranges::transform(casesOf<BrochureType>(), all.begin(), &EnumerationCase<BrochureType>::value);
        return all;
    }();
    static bool isWine(BrochureType kind) {
        return kind == BrochureType::wineA4 || kind == BrochureType::wineOrder;
    }
    // The printed style of a kind: its raw number; the beer style 1 offers the logos 1 to 4.
    static Int styleOf(BrochureType kind) { return static_cast<Int>(kind); }

private:
    void addBrochures() {
        const HashedResource picture{"drawn", Url{"http://server.example/drawn.png"}, 3};
        auto& all = information.brochures.emplace();
        for (const auto kind : kinds) {
            auto& type = all.types.emplace_back();
            type.id = kind;
            type.applicationFather =
                isWine(kind) ? ApplicationFather::orderWine : ApplicationFather::orderBeer;
            auto& parameters = type.parameters.emplace(Brochures::Type::Parameters());
            parameters.isHighlightable = kind == BrochureType::beer || kind == BrochureType::menu;
            parameters.checkUnitsNumber = parameters.multiPrices = true;
            parameters.minimumOrderQuantity = 5;
            parameters.maximumOrderQuantity = 50;
            auto& style = all.styles.emplace_back();
            style.id = style.typeId = styleOf(kind);
            style.firstImage = style.secondImage = style.thumbImage = picture;
        }
        all.styles.front().logotypeIdentifiers = {1, 2, 3, 4};
        for (Int id = 1; id <= 4; ++id)
            all.logos.push_back({id, 0, 0, "", 0, picture});
        all.languages = {{1, "Castellano", "es", "", 1, {}}, {2, "Català", "ca", "", 2, {}}};
        all.prices = {
            {PriceType::main, "Barra"}, {PriceType::terrace, "Terraza"}, {PriceType::night, "Noche"}};
        auto& sheet = all.orderSheets.emplace_back();
        sheet.id = 1;
        sheet.image = picture;
        auto& pennant = all.pennantBrands.emplace_back();
        pennant.id = 1;
        pennant.imageThumb = pennant.imageSample = pennant.imageBrand = picture;
        auto& qr = all.brandQrs.emplace_back();
        qr.id = 1;
        qr.image = qr.imageTaco = picture;
        all.menuFormatVisualize = {{1, "Detalle", 1}, {2, "Lista", 2}};
        all.menuWineFormatVisualize = {{1, "Bodega", 1}};
        auto& board = all.blackboardFormats.emplace_back();
        board.id = 1;
        board.imageSelected = board.imageUnselected = picture;
        board.numberOfSelectableBrands = {2, 4};
        all.blackboardTypes.emplace_back().id = 1;
        all.drinks = {{1,
                       "Refrescos",
                       1,
                       "Fríos",
                       {{1, "Limonada", 1, 2.0, 2.5, "Casera", "Vaso"},
                        {1, "Limonada", 1, 5.0, {}, {}, "Jarra"},
                        {2, "Agua", 2, {}, {}, {}, {}}}},
                      {2, "Cafés", 2, {}, {{3, "Solo", 1, 1.2, 1.4, {}, "Taza"}}}};
    }
};

} // namespace kavor
