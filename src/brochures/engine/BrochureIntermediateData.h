#pragma once

#include "base/Int.h"
#include "brochures/engine/SaveBrochuresOrder.h"
#include "brochures/engine/SelectHighlightCheckerDelegate.h"
#include "brochures/engine/SentOrder.h"
#include "brochures/engine/ValidationMessage.h"
#include "catalogue/Brochures.h"

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace kavor {

// The working copy of one brochure order while the user composes it. It holds ids and small values; every
// name, image, limit and minimal price stays in the catalogue. "Brand" is a Product.id, "format" a
// ProductFormat.id. Screens change plain fields directly, and selections and values through the operations,
// which leave the draft untouched when they fail. Main thread only. The process stops where the session has
// no catalogue.
class BrochureIntermediateData : public SelectHighlightCheckerDelegate {
public:
    template <class Value>
    using ByFormat = std::map<Int, std::map<Int, Value>>; // brand, format
    using FormatsOfBrands = std::map<Int, std::vector<Int>>;
    using Prices = ByFormat<std::map<PriceType, double>>;
    using NetPrices = ByFormat<double>;

    struct MainAndSecondary {
        Int main = 0;
        std::optional<Int> secondary;
        bool operator==(const MainAndSecondary&) const = default;
    };

    struct LogoIdentifiers {
        Int firstIdentifier = 0;
        Int secondIdentifier = 0;
        Int thirdIdentifier = 0;
        Int firstPosition = 0;
        Int secondPosition = 0;
        Int thirdPosition = 0;
        bool operator==(const LogoIdentifiers&) const = default;
    };

    // A drink category, or a drink product in one of its formats. Ids of 1 or more are the catalogue's, ids
    // below 1 the user's own. Categories and products have numbers of their own.
    struct BeverageIdentifier {
        Int identifier = 0;
        bool isCategory = false;
        std::string name = {};
        Int position = 0;
        std::optional<std::string> description = std::nullopt;
        std::optional<double> price1 = std::nullopt;
        std::optional<double> price2 = std::nullopt;
        std::optional<std::string> formatName = std::nullopt;
        bool operator==(const BeverageIdentifier&) const = default;
    };

    struct BrandSecondaryItemPrice {
        Int type = 0;
        std::optional<double> price;
    };

    struct BrandSecondaryItems {
        std::optional<Int> product;
        std::optional<Int> type;
        std::vector<BrandSecondaryItemPrice> prices;
    };

    struct BrandSecondaryIdentifier {
        Int identifier = 0;
        std::optional<Int> typology;
        std::optional<std::string> typologyName;
        std::optional<Int> taste;
        std::optional<std::string> tasteName;
        std::string name;
        Int position = 0;
        std::optional<std::string> description;
        std::optional<std::vector<BrandSecondaryItems>> items;
    };

    // The answer of setFormatHighlighted: the highlight that was replaced, so that its caller can repaint it.
    struct HighlightChange {
        bool success = false;
        std::optional<Int> previousBrand;
        std::optional<Int> previousFormat;
    };

    // The draft without the brands of other families than the section's. Brands that left the catalogue stay.
    struct FilteredSelection {
        FormatsOfBrands selectedBrands;
        Prices brandPrices;
        FormatsOfBrands highlightedBrands;
    };

    // A new draft; its net prices are those stored last.
    BrochureIntermediateData();
    BrochureIntermediateData(const BrochureIntermediateData&) = delete;
    BrochureIntermediateData& operator=(const BrochureIntermediateData&) = delete;
    ~BrochureIntermediateData() override = default;

    // The draft that all screens share, made on first use.
    static const std::shared_ptr<BrochureIntermediateData>& temporalBrochure();
    // Puts a new draft in its place and answers it. Whoever still holds the old one keeps it.
    static const std::shared_ptr<BrochureIntermediateData>& replaceTemporalBrochure();

    // ---- Fields

    std::optional<Int> sourceIdentifier; // the order that this one was copied from
    std::optional<Customer> customerInformation;
    std::optional<std::string> supportComment;
    std::optional<Int> selectedFormatIdentifier; // the orientation of a chalkboard
    std::optional<Int> selectedBlackboardTypeIdentifier;
    std::optional<PriceType> selectedSecondPriceIdentifier;
    std::optional<MainAndSecondary> selectedLanguageIdentifiers;
    std::optional<MainAndSecondary> selectedNumberOfBrochures; // printed copies per price column
    std::optional<Int> selectedStyleIdentifier;
    std::optional<Int> selectedStyleDigitalIdentifier;
    std::optional<Int> selectedStylePennantIdentifier;
    std::optional<Int> selectedOrderSheetIdentifier;
    std::optional<Int> selectedPennantBrandIdentifier;
    std::optional<LogoIdentifiers> selectedLogoIdentifiers; // of the cover
    FormatsOfBrands selectedBrands;                         // formats in the order of their selection
    FormatsOfBrands highlightedBrands;                      // one format in all
    Prices brandPrices;
    NetPrices netPrices;
    ByFormat<std::optional<Int>> brandVolumes; // centilitres
    ByFormat<bool> newProducts;
    std::optional<BeverageIdentifier> editingBeverage;
    std::map<Int, std::set<Int>> selectedBeverages;             // category, products
    std::map<Int, std::set<std::string>> selectedProductFormat; // product, format names
    std::vector<BeverageIdentifier> beverageCategoryInformation;
    std::vector<BeverageIdentifier> beverageProductInformation; // one per product and format name
    std::optional<BrandSecondaryIdentifier> editingBrandSecondary;
    std::map<Int, std::set<Int>> selectedBrandSecondary;
    std::vector<BrandSecondaryIdentifier> brandSecondaryProductInformation;
    std::vector<MenuPromotion> promotions;
    std::vector<SaveBrochuresOrder::Menu::ProductPennant> productPennant;
    bool defaultHighlightedElementVisited = false;
    std::optional<std::string> fileName;   // plain name of the order's file
    std::optional<std::string> outboxFile; // plain name of the file of the outbox that it was opened from
    std::optional<Int> orderIdentifier;
    // The "Tmp" fields are the working values of the four switches on the screens; only the plain ones
    // decide.
    bool includeDigitalBrochure = true;
    bool includeDigitalBrochureTmp = true;
    bool printDigitalBrochure = true;
    bool printDigitalBrochureTmp = true;
    bool includePaperBrochure = true;
    bool includePaperBrochureTmp = true;
    bool withPennant = true;
    bool withPennantTmp = true;
    bool printedMyself = false;
    std::optional<Int> selectedBrandQrIdentifier;
    std::optional<Int> selectedQuantityQr;
    std::optional<Int> selectedQuantityQrCircular;
    std::optional<Int> selectedQuantityQrTaco;
    bool showQrOtherMenu = false;
    Int brandQrTypeSelected = 0; // 1 when the taco form is in use
    std::optional<Int> selectedFormatVisualizeId;
    std::optional<Int> selectedWineFormatVisualizeId;
    std::optional<std::vector<SaveBrochuresOrder::Menu::MenuStyleAttribute>> valuesMenuStyleAttributes;
    bool withoutPriceBeer = false;
    bool withoutPricePennant = false;
    std::optional<Brochures::Type::Parameters>
        brochureTypeParameters; // of the section, set by the wizard's frame
    // The kind of the section in which a wizard opened it, or of the order that was loaded. What an order
    // says comes from the section all the same.
    std::optional<BrochureType> openedAs;
    UnansweredSends unansweredSends;
    std::optional<SentOrder> sent; // once the server has taken it to print

    // ---- References to the catalogue
    // Setters answer false, and change nothing, for an id that the catalogue doesn't have; with none they
    // clear the field. Getters answer none (null) when nothing is chosen or the id has left the catalogue.
    // Their pointers live as long as the session's catalogue.

    bool setLanguages(Int main, std::optional<Int> secondary);
    [[nodiscard]] std::optional<MainAndSecondary> currentLanguages() const;
    [[nodiscard]] const Brochures::Style* currentStyle() const;
    [[nodiscard]] const Brochures::Style* currentStyleDigital() const;
    [[nodiscard]] const Brochures::Style* currentStylePennant() const;
    bool setOrderSheet(std::optional<Int> id);
    [[nodiscard]] const Brochures::OrderSheet* currentOrderSheet() const;
    bool setPennantBrand(std::optional<Int> id);
    [[nodiscard]] const Brochures::PennantBrand* currentPennantBrand() const;
    bool setBrandQr(std::optional<Int> id);
    [[nodiscard]] const Brochures::BrandQr* currentBrandQr() const;
    bool setBlackboardFormat(std::optional<Int> id);
    [[nodiscard]] const Brochures::BlackBoardFormat* currentBlackboardFormat() const;
    [[nodiscard]] SelectionState isBlackboardFormatSelected(Int id) const;
    bool setBlackboardType(std::optional<Int> id);
    [[nodiscard]] const Brochures::BlackBoardType* currentBlackboardType() const;
    [[nodiscard]] const Brochures::MenuFormatVisualize* currentFormatVisualize() const;
    [[nodiscard]] const Brochures::MenuWineFormatVisualize* currentWineFormatVisualize() const;
    // Moves every price of the old second column out and gives the new one the catalogue's prices. The
    // process stops when a brand or format of the price map has left the catalogue.
    bool setSecondPrice(std::optional<PriceType> type);
    [[nodiscard]] std::optional<PriceType> currentSecondPrice() const;
    // The three logos must be offered by the current printed style.
    bool setLogos(Int first, Int second, Int third, Int firstPosition, Int secondPosition, Int thirdPosition);
    // None also when the printed style is gone.
    [[nodiscard]] std::optional<LogoIdentifiers> currentLogos() const;

    // ---- Formats and their values
    // All fail for a brand or format that the catalogue doesn't have.

    // Refuses a format that is already (or is not) selected. A new one gets the catalogue's price in each
    // column that the shared draft uses.
    bool setFormatSelected(bool on, Int format, Int brand) override;
    [[nodiscard]] SelectionState isFormatSelected(Int format, Int brand) const override;
    // The format must be selected and, to be put on, highlightable. It replaces any other highlight.
    HighlightChange setFormatHighlighted(bool on, Int format, Int brand);
    [[nodiscard]] SelectionState isFormatHighlighted(Int format, Int brand) const;
    // Values need an entry that setFormatSelected made; only a price's column may be new.
    bool setPrice(PriceType type, Int format, Int brand, double value);
    [[nodiscard]] std::optional<double> priceOf(PriceType type, Int format, Int brand) const;
    bool setNetPrice(Int format, Int brand, double value);
    [[nodiscard]] std::optional<double> netPriceOf(Int format, Int brand) const;
    bool setVolume(std::optional<Int> value, Int format, Int brand);
    [[nodiscard]] std::optional<Int> volumeOf(Int format, Int brand) const;
    bool setNewProduct(bool flag, Int format, Int brand);
    [[nodiscard]] std::optional<bool> isNewProduct(Int format, Int brand) const;

    // The products of selectedBrands, in the order of the catalogue's list.
    [[nodiscard]] std::vector<const Product*> selectedProducts() const;
    // The process stops outside a brochure section, or when the catalogue lacks the section's kind.
    [[nodiscard]] FilteredSelection filteredSelection() const;
    // The limits of brands of the section's kind; a limit that the kind doesn't have is the default. The
    // process stops without the kind or its parameters.
    [[nodiscard]] Int minimumBrands(Int defaultValue) const;
    [[nodiscard]] Int maximumBrands(Int defaultValue) const;

    // ---- Drinks

    // The catalogue's record of a category (isCategory, then the product is not looked at) or of a product of
    // a category, under what the user changed. None when it isn't selected, or is known to neither.
    [[nodiscard]] std::optional<BeverageIdentifier>
    beverageInfo(Int category, Int product, bool isCategory,
                 const std::optional<std::string>& formatName) const;
    // Adds or removes a category (beverage.isCategory), or a product of a category, which is then selected
    // too. A product with a format name is added in that format. Own items bring their name; those of the
    // catalogue must be in it. Refuses what is already (or is not) selected, except a product that is added
    // in a new format. Removing a category removes its products; removing the last product of a category
    // keeps the category.
    bool setBeverageSelected(bool on, const BeverageIdentifier& beverage, Int category);
    // Makes an own category or product; answers its id, a new negative number.
    Int addBeverageCategory(const std::string& name);
    std::optional<Int> addBeverageProduct(const std::string& name, Int category);
    // Adds a format name to a selected product, or takes it away with its prices.
    bool setBeverageFormatSelected(bool on, const std::string& formatName, Int product, Int category);
    bool setBeverageCategoryDescription(const std::optional<std::string>& description, Int category);
    bool setBeverageProductDescription(const std::optional<std::string>& description, Int product,
                                       Int category);
    // The price of a selected product in a format, in the first or the second column.
    bool setBeveragePrice(std::optional<double> value, bool second, const std::string& formatName,
                          Int product, Int category);

    // ---- Checking, sending, keeping

    // Every rule that fails, as sentences for the user in their fixed order; empty when the draft may be
    // sent.
    [[nodiscard]] std::vector<std::string> validationErrors() const;
    // The same with the place where each is mended.
    [[nodiscard]] std::vector<ValidationMessage> validationMessages() const;
    // Prices that are allowed but look too high, a line each.
    [[nodiscard]] std::vector<std::string> priceWarnings() const;
    // The order document. With validate, messages stop the process and brands of other families stay out. The
    // process stops outside a brochure section and for a brand or drink that the catalogue no longer
    // explains.
    [[nodiscard]] SaveBrochuresOrder makeOrder(OrderRequestType save, bool validate) const;
    // The same for a file of the device, with the sends that wait for their answers.
    [[nodiscard]] KeptOrder keptOrder(OrderRequestType save, bool validate) const;
    // Fills this (new) draft from a document; what left the catalogue falls out. A brand of the user's own
    // that the catalogue lacks, or has under another number, is built again from the document and enters the
    // catalogue. Deletes the temporary copy on disk. The file name is the caller's to set.
    void loadOrder(const SaveBrochuresOrder& order);
    // What fellOutText says of the order loaded, once: empty when nothing fell out, and after the first call.
    [[nodiscard]] std::string takeFallenOut();
    // Keeps the net prices for the drafts to come.
    void storeNetPrices() const;

private:
    using BeerBrand = SaveBrochuresOrder::Menu::BeerBrand;
    using DrinkCategory = SaveBrochuresOrder::Menu::OtherDrinkCategory;

    void removeFormat(Int format, Int brand);
    bool addCategory(const BeverageIdentifier& category);
    bool addBeverage(const BeverageIdentifier& beverage, Int category);
    void keepDescription(const BeverageIdentifier& beverage, Int category);
    bool removeBeverage(Int product, Int category);
    BeverageIdentifier& productRecord(Int category, Int product,
                                      const std::optional<std::string>& formatName);
    [[nodiscard]] SaveBrochuresOrder::Menu menuOf(OrderRequestType save, bool validate) const;
    void loadReferences(const SaveBrochuresOrder::Menu& menu);
    void loadQuantities(const std::vector<SaveBrochuresOrder::OrderLine>& lines, bool languagesAccepted);
    void loadBrands(const SaveBrochuresOrder::Menu& menu);
    void loadBrand(Int identifier, const BeerBrand& brand, std::optional<Int> highlighted);
    void loadDrinks(const std::vector<DrinkCategory>& categories);
    void loadDrink(const DrinkCategory::OtherDrink& element, Int category);

    std::vector<std::string> fallenOut_; // the brand's name (or none) for each brand or format
};

} // namespace kavor
