#pragma once

#include "catalogue/Posters.h"
#include "catalogue/Shared.h"

namespace kavor {

// The brochure catalogue, "cartas".
struct Brochures {
    struct ProductType {
        struct TasteImage {
            Int segmentId = 0;
            std::optional<Int> tasteId;
            HashedResource image;
        };

        Int id = 0;
        ApplicationFather applicationFather = ApplicationFather::orderBeer;
        Int position = 0;
        std::string name;
        std::optional<HashedResource> image;
        std::optional<HashedResource> imageThumb;
        std::optional<double> factorCorrection;
        std::optional<std::vector<TasteImage>> imageTastes;
    };

    struct BrandProperty {
        Int id = 0;
        ApplicationFather applicationFather = ApplicationFather::orderBeer;
        std::string name;
    };

    struct BrandTipology {
        Int id = 0;
        ApplicationFather applicationFather = ApplicationFather::orderBeer;
        std::string name;
        Int position = 0;
        std::optional<std::string> textColor;
        std::optional<std::string> backGroundColor;
    };

    struct BrandTaste {
        Int id = 0;
        ApplicationFather applicationFather = ApplicationFather::orderBeer;
        std::string name;
        Int position = 0;
        std::optional<std::string> textColor;
        std::optional<std::string> backGroundColor;
        bool withImage = false;
    };

    struct BrandSubTipology {
        Int id = 0;
        ApplicationFather applicationFather = ApplicationFather::orderBeer;
        std::string name;
        Int position = 0;
    };

    struct BrandSegment {
        Int id = 0;
        ApplicationFather applicationFather = ApplicationFather::orderBeer;
        std::string name;
        Int position = 0;
        std::optional<HashedResource> segmentImage;
    };

    struct BrandAge {
        Int id = 0;
        ApplicationFather applicationFather = ApplicationFather::orderBeer;
        std::string name;
        Int position = 0;
    };

    struct MenuFormatVisualize {
        Int id = 0;
        std::string name;
        Int position = 0;
    };

    struct MenuWineFormatVisualize {
        Int id = 0;
        std::string name;
        Int position = 0;
    };

    struct OtherFormat {
        Int id = 0;
        Int otherTypeId = 0;
        std::string name;
        Int position = 0;
        bool showLabel = false;
    };

    struct Style {
        Int id = 0;
        std::string name;
        Int position = 0;
        Int typeId = 0; // raw BrochureType of the kind that the style serves
        std::optional<Int> blackboardFormatTypeId;
        std::optional<Int> brandId; // has no key: never on the wire
        std::optional<ApplicationFather> applicationFather;
        HashedResource firstImage;
        HashedResource secondImage;
        HashedResource thumbImage;
        std::vector<Int> logotypeIdentifiers;
        std::vector<Int> preferredBrands;
        std::vector<Attribute> attributesList;
    };

    struct BlackBoardFormat {
        Int id = 0;
        Int typeId = 0;
        std::string name;
        std::string description;
        HashedResource imageSelected;
        HashedResource imageUnselected;
        Int sizeIcon = 0;
        Int numberOfPrint = 0;
        std::vector<Int> numberOfSelectableBrands;
    };

    struct BlackBoardType {
        Int id = 0;
        Int position = 0;
        std::string name;
        bool isDefault = false;
        bool isPremium = false;
    };

    // A kind of brochure.
    struct Type {
        // The switches and limits of a kind. An unset limit does not apply.
        struct Parameters {
            bool withPromotion = false;
            bool allowSelectDigitalBrochure = false;
            bool allowUserToSelectOrDeselectPaperBrochure = false;
            bool allowNotSelectPaperBrouchure = false; // spelt so in the model
            bool allowOrderSheet = false;
            bool withPennants = false;
            bool withPennantBrand = false;
            bool allowDigitalPdf = false;
            bool printSecondPrice = false;
            bool requiredPriceBeer = false;
            Int numberOfOrderSheetsToSend = 0;
            std::optional<Int> minBrandMainSelection;
            std::optional<Int> minBrandSelection;
            std::optional<Int> maxBrandSelection;
            std::optional<Int> minBrandListSelection;
            std::optional<Int> maxBrandListSelection;
            std::optional<Int> minFormatSelected;
            std::optional<Int> maxFormatSelected;
            Int highLightedNumber = 0;
            Int highLightedNumberList = 0;
            bool multiLanguage = false;
            bool multiPrices = false;
            bool isRRSSAvailable = false;
            Int freeTextNumberOfFields = 0;
            bool isHighlightable = false;
            Int minimumOrderQuantity = 0;
            Int maximumOrderQuantity = 0;
            std::vector<Int> rangeOrderQuantity;
            bool checkUnitsNumber = false;
            bool withPrinter = false;
            bool withMenuFormat = false;
            bool withMenuFormatWine = false;
            bool showOtherDrink = false;
            bool showProductSecondary = false;
            bool withTaco = false;
            std::optional<std::string> dtColumnFilePriceRecomended; // spelt so in the model
        };

        BrochureType id = BrochureType::beer;
        ApplicationFather applicationFather = ApplicationFather::orderBeer;
        std::string name;
        bool isSecondBrochuresPriceAllowed = false;
        std::optional<Parameters> parameters;
    };

    struct OrderSheet {
        Int id = 0;
        Int position = 0;
        std::string name;
        std::string reference;
        HashedResource image;
        std::vector<Int> brands;
    };

    struct PennantBrand {
        Int id = 0;
        Int position = 0;
        std::string name;
        std::string description;
        std::string reference;
        std::string helpText;
        HashedResource imageThumb;
        HashedResource imageSample;
        HashedResource imageBrand;
        std::vector<Int> brands;
    };

    struct Price {
        PriceType id = PriceType::main;
        std::string name;
    };

    struct Language {
        struct OrderType {
            Int id = 0;
        };

        Int id = 0;
        std::string name;
        std::string code;
        std::string reference;
        Int position = 0;
        std::vector<OrderType> orderTypes;
    };

    // A drink category with its default products.
    struct Drink {
        struct Product {
            Int id = 0;
            std::string name;
            Int position = 0;
            std::optional<double> price1;
            std::optional<double> price2;
            std::optional<std::string> description;
            std::optional<std::string> formatName;
        };

        Int id = 0;
        std::string name;
        Int position = 0;
        std::optional<std::string> description;
        std::vector<Product> products;
    };

    struct Logo {
        Int id = 0;
        Int typeId = 0;
        Int brandId = 0;
        std::string brand;
        Int position = 0;
        HashedResource image;
    };

    struct BrandQr {
        Int id = 0;
        Int position = 0;
        std::string name;
        HashedResource image;
        HashedResource imageTaco;
        Int brandId = 0;
        ApplicationFather applicationFather = ApplicationFather::orderBeer;
    };

    std::vector<ProductType> productTypes;
    std::vector<BrandProperty> brandProperties;
    std::vector<BrandTipology> brandTypologies;
    std::vector<BrandTaste> brandTastes;
    std::vector<BrandSubTipology> brandSubTypologies;
    std::vector<BrandSegment> brandSegments;
    std::vector<BrandAge> brandAges;
    std::vector<MenuFormatVisualize> menuFormatVisualize;
    std::vector<MenuWineFormatVisualize> menuWineFormatVisualize;
    std::vector<OtherFormat> otherFormats;
    std::vector<Style> styles;
    std::vector<BlackBoardFormat> blackboardFormats;
    std::vector<BlackBoardType> blackboardTypes;
    std::vector<Type> types;
    std::vector<OrderSheet> orderSheets;
    std::vector<PennantBrand> pennantBrands;
    std::vector<Price> prices;
    std::vector<Language> languages;
    std::vector<Drink> drinks;
    std::vector<Logo> logos;
    std::vector<BrandQr> brandQrs;
    Posters promotions; // those that can be attached to a brochure
};

} // namespace kavor
