#pragma once

#include "base/Url.h"
#include "catalogue/Enumerations.h"
#include "documents/Customer.h"
#include "documents/MenuPromotion.h"
#include "documents/OrderRequestType.h"
#include "documents/OrderSyncState.h"
#include "documents/UnansweredSend.h"

#include <optional>
#include <string>
#include <vector>

namespace kavor {

// The document that carries a brochure order: the body of "saveOrderURL" in all its modes and the content of
// draft and outbox files. The reader takes older files: "save" as a boolean, missing flags as true,
// "printed_myself" never.
struct SaveBrochuresOrder {
    // One printed run.
    struct OrderLine {
        PriceType priceIdentifier = PriceType::main;
        Int quantity = 0;
        bool operator==(const OrderLine&) const = default;
    };

    struct Menu {
        struct SelectedLogoIdentifiers {
            Int id = 0;
            Int position = 0;
            bool operator==(const SelectedLogoIdentifiers&) const = default;
        };

        // A selected brand.
        struct BeerBrand {
            // A selected format of the brand.
            struct Beer {
                struct SubItemPrice {
                    Int id = 0; // raw PriceType; files may hold any number
                    double price = 0;
                    bool operator==(const SubItemPrice&) const = default;
                };

                std::optional<Int> id;
                Int productType = 0;
                bool isNew = false;
                std::optional<Int> volume; // centilitres
                std::vector<SubItemPrice> prices;
                bool operator==(const Beer&) const = default;
            };

            std::optional<Int> brand;
            std::optional<Int> segment;
            std::optional<Int> typology;
            std::optional<Int> taste;
            std::optional<Int> subTypology;
            std::optional<Int> age;
            std::optional<std::string> name;
            std::optional<std::string> description;
            std::vector<Beer> beers;
            bool operator==(const BeerBrand&) const = default;
        };

        struct OtherDrinkCategory {
            struct OtherDrink {
                struct SubItemPrice {
                    Int identifier = 0; // raw PriceType; files may hold any number
                    std::optional<double> value;
                    std::optional<std::string> formatName;
                    bool operator==(const SubItemPrice&) const = default;
                };

                Int id = 0;
                std::optional<std::string> name;
                Int position = 0;
                std::optional<std::string> description;
                std::vector<SubItemPrice> prices;
                bool operator==(const OtherDrink&) const = default;
            };

            std::optional<Int> id;
            std::optional<std::string> name;
            Int position = 0;
            std::optional<std::string> description;
            std::vector<OtherDrink> elements;
            bool operator==(const OtherDrinkCategory&) const = default;
        };

        struct ProductPennant {
            Int product = 0;
            Int position = 0;
            bool operator==(const ProductPennant&) const = default;
        };

        struct MenuStyleAttribute {
            Int attributeId = 0;
            Int menuStyleId = 0;
            std::optional<std::string> value;
            std::optional<Int> valueListId;
            bool operator==(const MenuStyleAttribute&) const = default;
        };

        BrochureType orderType = BrochureType::beer;
        std::optional<Int> style;
        std::optional<Int> styleDigital;
        std::optional<Int> stylePennant;
        std::optional<Int> orderSheetIdentifier;
        std::optional<Int> pennantBrandId;
        std::optional<Int> formatVisualizeId;
        std::optional<Int> wineFormatVisualizeId;
        std::optional<Int> highlightedProductIdentifier;
        std::optional<Int> orientation;
        std::optional<Int> blackboardTypeId;
        Int language1Id = 0;
        std::optional<Int> language2Id;
        Customer customer;
        std::optional<std::vector<SelectedLogoIdentifiers>> selectedLogoIdentifiersList;
        std::vector<BeerBrand> beerBrands;
        std::optional<std::vector<ProductPennant>> productPennant;
        std::optional<std::vector<OtherDrinkCategory>> otherDrinks;
        std::optional<std::vector<MenuPromotion>> promotions;
        std::optional<Int> brandQrId;
        std::optional<Int> brandQrTableQuantity;
        std::optional<Int> brandQrCircleQuantity;
        std::optional<Int> brandQrTacoQuantity;
        std::optional<bool> showQrOtherMenu;
        std::optional<bool> withoutPriceBeer;
        std::optional<bool> withoutPricePennant;
        std::optional<std::vector<MenuStyleAttribute>> menuStyleAttributes;
        bool operator==(const Menu&) const = default;
    };

    // The name of the record's folder on the device, and whether what lies there is this version's own.
    static constexpr std::string_view folderName = "SaveBrochuresOrder";
    static constexpr bool onlyWrittenHere = false;

    std::optional<Int> sourceIdentifier; // the order that this one was copied from
    OrderRequestType save = OrderRequestType::saveCloud;
    std::vector<OrderLine> orderLines;
    Menu menu;
    std::optional<std::string> filename;
    std::optional<Int> orderIdentifier;
    bool includeDigitalBrochure = true;
    bool printDigitalBrochure = true;
    bool includePaperBrochure = true;
    bool withPennant = true;
    bool includeDigitalBrochureTmp = true;
    bool printDigitalBrochureTmp = true;
    bool includePaperBrochureTmp = true;
    bool withPennantTmp = true;
    bool printedMyself = false;              // written, never read back
    std::optional<OrderSyncState> syncState; // memory only

    bool operator==(const SaveBrochuresOrder&) const = default;
};

// The server's answer to a saved order.
struct SaveBrochuresOrderResponse {
    std::optional<Url> urlPDF;
    std::optional<Url> urlOrder;
    std::optional<Int> orderId;
    std::optional<Int> customerId;
    std::optional<std::string> message;
};

// The order as a file keeps it: beside its keys, what must outlive the process.
struct KeptOrder : SaveBrochuresOrder {
    std::optional<UnansweredSends> unansweredSends = std::nullopt; // absent rather than empty
    // The plain name of the file of the outbox that the draft in work was opened from.
    std::optional<std::string> outboxFile = std::nullopt;
    // Who prints an order of the outbox. A draft is asked anew, so "printed_myself" is never read back.
    std::optional<bool> printsMyself = std::nullopt;
    // The server has no place for it.
    std::optional<std::string> supportComment = std::nullopt;
};

// The body of "sendRawOrder": the order and the name of its file beside its keys.
struct RawOrder : SaveBrochuresOrder {
    std::string fileName;
};

} // namespace kavor
