#pragma once

#include "textile/SaveTextileOrder.h"
#include "textile/TextileArticles.h"

#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace kavor {

// The working copy of one textile order: clothing of a brand in sizes and colours, with a text printed on it.
// Screens change plain fields directly, and what the catalogue has a say in through the operations, which
// answer whether they could be done and leave the draft untouched when not. Main thread only. The operations
// look into the session's textile catalogue and stop the process where there is none.
class TextileIntermediateData {
public:
    using UniqueItem = TextileUniqueItem;
    using Sizes = std::map<Int, UInt>; // quantity by Textile::Size

    struct FormatAndGender {
        Int formatIdentifier = 0;
        Int genderIdentifier = 0;
        bool operator==(const FormatAndGender&) const = default;
    };
    struct SizeQuantity {
        Int sizeIdentifier = 0;
        UInt quantity = 0;
        bool operator==(const SizeQuantity&) const = default;
    };
    // A line of the cart.
    struct OrderItem {
        UniqueItem item;
        std::vector<SizeQuantity> sizes;
        bool operator==(const OrderItem&) const = default;
    };

    // The draft in work; never none.
    static const std::shared_ptr<TextileIntermediateData>& shared();
    // Puts another draft in its place.
    static void setShared(std::shared_ptr<TextileIntermediateData> draft);

    // What is being edited, before it goes to the cart.
    std::optional<Int> selectedBrandIdentifier;
    std::optional<FormatAndGender> selectedFormatAndGenderIdentifier;
    std::optional<Int> selectedColorIdentifier;
    Sizes selectedSizes;
    std::vector<OrderItem> order; // the cart
    std::optional<std::string> orderComment;
    std::optional<Int> typographyIdentifier;
    std::optional<std::string> customizedText;
    std::unordered_map<TripleTuple, Int> selectedColors; // the last colour by brand, format and model
    std::optional<SaveTextileOrder::Customer> customer;
    std::optional<std::string> filename;
    std::optional<Int> orderIdentifier;

    // What the device alone knows of it.
    UnansweredSends unansweredSends;
    std::optional<std::string> outboxFile;  // plain name, of one that was opened from the outbox
    std::optional<std::string> orderURL;    // where the order can be seen that was made of it
    std::optional<ApplicationType> section; // in which it was begun or gone on with

    // Each clears what hangs on it, also when the same is chosen again; none clears its member alone.
    bool selectBrand(std::optional<Int> identifier);
    bool selectFormatAndGender(std::optional<Int> format, std::optional<Int> gender);
    bool selectColor(std::optional<Int> identifier);
    // The selection as far as the catalogue still has it.
    [[nodiscard]] std::optional<Int> selectedBrand() const;
    [[nodiscard]] std::optional<FormatAndGender> selectedFormat() const;
    [[nodiscard]] std::optional<Int> selectedColor() const;
    // The combination being edited, once brand, format and colour are chosen.
    [[nodiscard]] std::optional<UniqueItem> selectedItem() const;

    // Types the units of a size; fails for a size that the catalogue lacks.
    bool setUnits(Int size, UInt quantity);
    // What was typed; or the cart's line of the selection, where it has one. Nothing while the selection is
    // incomplete.
    [[nodiscard]] std::optional<Sizes> sizes(bool onlyTyped) const;

    // Puts the article's size at the end of its line with this quantity, 0 takes it out. Fails for an article
    // that the catalogue lacks.
    bool addToCart(const Textile::Item& article, UInt quantity);
    // The articles of the cart, line by line and size by size, without those that the catalogue lacks.
    [[nodiscard]] std::vector<const Textile::Item*> cartArticles() const;
    [[nodiscard]] const OrderItem* cartLine(const UniqueItem& item) const;
    // Of all lines; the largest number there is where the sum has no number.
    [[nodiscard]] UInt totalUnits() const;
    static UInt totalUnits(std::span<const SizeQuantity> sizes);
    // Takes out of the cart what left the catalogue, sizes and lines; answers whether there was any.
    bool removeGoneArticles();

    // The colour chosen last for the selected brand, format and model. Storing fails without such an article.
    bool rememberColor(Int color);
    [[nodiscard]] std::optional<Int> rememberedColor() const;

    bool selectTypography(Int identifier);
    // None when the catalogue lacks it.
    [[nodiscard]] const Textile::Typography* selectedTypography() const;

    // The sentences of what the draft lacks, in a fixed order.
    [[nodiscard]] std::vector<std::string> validate() const;
    // The order document of the section entered. The process stops outside a textile section, for a size
    // without an article, and for an invalid draft that is to be validated.
    [[nodiscard]] SaveTextileOrder makeOrder(OrderRequestType request, bool validating) const;
    // Takes the order over, without the articles that left the catalogue; the selection stays.
    void loadOrder(const SaveTextileOrder& order);

private:
    OrderItem& lineOf(const UniqueItem& item);
    void validateCustomer(std::vector<std::string>& errors) const;
    void validateText(std::vector<std::string>& errors) const;
};

// A retrieved order as the document that made it: what a draft is loaded from.
SaveTextileOrder savedOrder(const RetrieveTextileOrderResponse& answer);

} // namespace kavor
