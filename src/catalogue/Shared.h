#pragma once

#include "base/Int.h"
#include "catalogue/Enumerations.h"
#include "catalogue/HashedResource.h"

#include <optional>
#include <string>
#include <vector>

// Records that several catalogues share.
namespace kavor {

// Limits and help texts, "validaciones" of the catalogue. Lengths are in characters.
struct Validations {
    Int categoryName = 0;
    Int categoryDescription = 0;
    Int productName = 0;
    Int productDescription = 0;
    Int productFormatLength = 0;
    Int productFormatNumber = 0;
    Int customerFacebook = 0;
    Int customerTwitter = 0;
    Int customerInstagram = 0;
    Int customerLocalPhone = 0;
    Int customerUrl = 0;
    Int customerFreeText = 0;
    bool withPrintQr = false;
    std::vector<Int> lstMenuQrTableQuantity;
    std::vector<Int> lstMenuQrDoorQuantity;
    std::vector<Int> lstMenuQrTacoQuantity;
    bool withPrintedMyself = false;
    bool defaultPrintedMyself = false;
    std::string printedMyselfHelptext;
    std::string printedKavorHelptext;
    std::string pennantHeltext; // spelt so in the model
    std::string promotionHourDayInit;
    std::optional<HashedResource> archivePrice;
    std::optional<HashedResource> archivePriceSecondary;
    std::string manteleriaSupportText;
};

// A food pairing that a product can refer to, "maridaje".
struct Pairing {
    Int id = 0;
    std::string name;
    Int position = 0;
};

// A category of the suggestion box.
struct SuggestionCategory {
    Int id = 0;
    std::string name;
};

// A free field of a style or promotion; its value is entered by the user and travels with the order.
struct Attribute {
    struct SortableElement {
        Int identifier = 0;
        std::string value;
        Int position = 0;
    };

    Int id = 0;
    std::string name;
    Int maxLength = 0;
    Int typeId = 0;
    std::vector<SortableElement> values;
};

// A brand with its selling formats.
struct Product {
    struct Category {
        std::optional<std::string> categoryLabelAll;
        std::optional<std::string> categoryLabel;
        Int propertyId = 0;
        std::optional<Int> segmentId;
        std::optional<Int> typologyId;
        std::optional<Int> subTypologyId;
        std::optional<Int> tasteId;
        std::optional<Int> ageId;
    };

    // A bottle, a draught measure and so on.
    struct ProductFormat {
        Int id = 0;
        Int typeId = 0;
        double factorCorrection = 0;
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
        std::optional<Int> minimumVolume; // centilitres
        std::optional<Int> maximumVolume;
        std::optional<double> price;
    };

    Int id = 0;
    ApplicationFather applicationFather = ApplicationFather::orderBeer;
    std::string name;
    std::string nameSanitice;
    std::optional<std::string> description; // has no key: never on the wire
    Int position = 0;
    bool withLogo = false;
    std::optional<HashedResource> image;
    std::optional<Int> bitterness;
    std::optional<std::vector<Int>> pairings;
    std::optional<std::string> pairingsLabel;
    std::optional<Category> category;
    std::vector<ProductFormat> productList;
    bool isMain = false;
    bool isSecondary = false;
    bool useColorTypology = false;
};

} // namespace kavor
