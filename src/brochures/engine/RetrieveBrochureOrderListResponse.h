#pragma once

#include "base/LocalDateTime.h"
#include "brochures/engine/SaveBrochuresOrder.h"
#include "catalogue/Shared.h"

namespace kavor {

// The server's answer for one brochure order. It differs on purpose from SaveBrochuresOrder in names and
// nesting.
struct RetrieveBrochureOrderListResponse {
    struct Order {
        struct OrderLine {
            PriceType priceId = PriceType::main;
            Int quantity = 0;
        };

        struct Beer {
            struct LogoTypes {
                Int id = 0;
                Int position = 0;
            };

            // The catalogue's brand again, with the order's formats.
            struct Brand {
                // The catalogue's format again, with the order's values.
                struct ProductPrice {
                    struct Price {
                        PriceType id = PriceType::main;
                        double price = 0;
                    };

                    Int id = 0;
                    Int typeId = 0;
                    double factorCorrrection = 0; // spelt so in the model
                    std::string icon;
                    std::optional<HashedResource> image;
                    std::optional<HashedResource> imageThumb;
                    Int position = 0;
                    bool showOnSellingSheet = false;
                    bool showOnBrochures = false;
                    bool isHighlightable = false;
                    bool showInPennant = false;
                    Int positionHighlightable = 0;
                    bool isBottle = false;
                    std::optional<HashedResource> bottleBoxImage;
                    double minimalPrice = 0;
                    double priceMaximumAvise = 0;
                    std::optional<Int> bottlesPerBox;
                    bool isVolumeEditable = false;
                    std::optional<Int> minimumVolume;
                    std::optional<Int> maximumVolume;
                    std::optional<double> price;
                    std::optional<Int> volume;
                    std::vector<Price> prices;
                };

                Int id = 0;
                ApplicationFather applicationFather = ApplicationFather::orderBeer;
                Int position = 0;
                std::optional<std::string> name;
                std::optional<std::string> nameSanitice;
                std::optional<std::string> description;
                bool withLogo = false;
                std::optional<HashedResource> image;
                std::optional<Int> bitterness;
                std::optional<std::vector<Int>> pairings;
                std::optional<std::string> pairingsLabel;
                bool isMain = false;
                bool isSecondary = false;
                bool useColorTypology = false;
                std::optional<Product::Category> category;
                std::vector<ProductPrice> products;
            };

            Int id = 0;
            Int typeId = 0;
            std::optional<Int> styleId;
            std::optional<Int> styleDigitalId;
            std::optional<Int> stylePennantId;
            std::optional<Int> orderSheetId;
            std::optional<Int> pennantBrandId;
            std::vector<LogoTypes> menuStyleLogos;
            bool showQr = false;
            Int language1Id = 0;
            std::optional<Int> language2Id;
            std::optional<Int> productFeaturedId;
            std::optional<Int> blackboard_format_id; // the two names are the model's
            std::optional<Int> blackboard_type_id;
            std::vector<Brand> brands;
            std::vector<MenuPromotion> promotions;
            std::vector<SaveBrochuresOrder::Menu::ProductPennant> productPennant;
            std::optional<Int> formatVisualizeId;
            std::optional<Int> wineFormatVisualizeId;
            std::optional<Int> brandQrId;
            std::optional<Int> brandQrTableQuantity;
            std::optional<Int> brandQrCircleQuantity;
            std::optional<Int> brandQrTacoQuantity;
            bool showQrOtherMenu = false;
            bool withoutPriceBeer = false;
            bool withoutPricePennant = false;
            std::optional<std::vector<SaveBrochuresOrder::Menu::MenuStyleAttribute>> menuStyleAttributes;
        };

        struct Drink {
            struct OtherProduct {
                struct Price {
                    PriceType id = PriceType::main;
                    double price = 0;
                    std::optional<std::string> formatName;
                };

                Int id = 0;
                std::optional<std::string> name;
                std::optional<std::string> description;
                Int position = 0;
                std::vector<Price> prices;
            };

            std::optional<Int> id;
            std::optional<std::string> name;
            Int position = 0;
            std::optional<std::string> description;
            std::vector<OtherProduct> otherProducts;
        };

        Int id = 0;
        std::string token;
        LocalDateTime date;
        std::string type;
        BrochureType typeId = BrochureType::beer;
        std::optional<std::string> pdv;
        std::string state;
        Int stateId = 0;
        std::vector<OrderLine> orderLineList;
        Beer beerList; // one object, though it is named a list
        std::optional<std::vector<Drink>> drinkList;
        std::optional<std::string> filename;
        bool includeDigitalBrochure = false;
        bool printDigitalBrochure = false;
        bool includePaperBrochure = false;
        bool withPennant = false;
        bool printedMyself = false;
    };

    Int code = 0;
    std::string errorMessage;
    Customer customerInformation;
    Order orderInformation;
};

} // namespace kavor
