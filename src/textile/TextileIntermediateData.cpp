#include "textile/TextileIntermediateData.h"

#include "base/StopProcess.h"
#include "base/Text.h"
#include "session/AppSingleton.h"

#include <algorithm>
#include <limits>

namespace kavor {

namespace {

const TextileArticles& articles() {
    return TextileArticles::current();
}

bool isEmpty(const std::optional<std::string>& text) {
    return !text || text->empty();
}

UInt saturatingSum(UInt one, UInt other) {
    constexpr UInt most = std::numeric_limits<UInt>::max();
    return other > most - one ? most : one + other;
}

std::shared_ptr<TextileIntermediateData>& sharedDraft() {
    static auto draft = std::make_shared<TextileIntermediateData>();
    return draft;
}

} // namespace

const std::shared_ptr<TextileIntermediateData>& TextileIntermediateData::shared() {
    return sharedDraft();
}

void TextileIntermediateData::setShared(std::shared_ptr<TextileIntermediateData> draft) {
    sharedDraft() = std::move(draft);
}

bool TextileIntermediateData::selectBrand(std::optional<Int> identifier) {
    if (!identifier) {
        selectedBrandIdentifier.reset();
        return true;
    }
    if (!articles().hasBrand(*identifier))
        return false;
    selectedBrandIdentifier = identifier;
    selectedFormatAndGenderIdentifier.reset();
    selectedColorIdentifier.reset();
    selectedSizes.clear();
    return true;
}

bool TextileIntermediateData::selectFormatAndGender(std::optional<Int> format, std::optional<Int> gender) {
    if (!format || !gender) {
        selectedFormatAndGenderIdentifier.reset();
        return true;
    }
    if (!selectedBrandIdentifier || !articles().hasFormat({*selectedBrandIdentifier, *format, *gender}))
        return false;
    selectedFormatAndGenderIdentifier = {*format, *gender};
    selectedColorIdentifier.reset();
    return true;
}

bool TextileIntermediateData::selectColor(std::optional<Int> identifier) {
    if (!identifier) {
        selectedColorIdentifier.reset();
        return true;
    }
    const auto& format = selectedFormatAndGenderIdentifier;
    if (!selectedBrandIdentifier || !format ||
        !articles().has(
            {*selectedBrandIdentifier, format->formatIdentifier, format->genderIdentifier, *identifier}))
        return false;
    selectedColorIdentifier = identifier;
    selectedSizes.clear();
    return true;
}

std::optional<Int> TextileIntermediateData::selectedBrand() const {
    const bool there = selectedBrandIdentifier && articles().hasBrand(*selectedBrandIdentifier);
    return there ? selectedBrandIdentifier : std::nullopt;
}

std::optional<TextileIntermediateData::FormatAndGender> TextileIntermediateData::selectedFormat() const {
    const auto& format = selectedFormatAndGenderIdentifier;
    const bool there =
        selectedBrandIdentifier && format &&
        articles().hasFormat({*selectedBrandIdentifier, format->formatIdentifier, format->genderIdentifier});
    return there ? format : std::nullopt;
}

std::optional<Int> TextileIntermediateData::selectedColor() const {
    const auto item = selectedItem();
    return item && articles().has(*item) ? selectedColorIdentifier : std::nullopt;
}

std::optional<TextileIntermediateData::UniqueItem> TextileIntermediateData::selectedItem() const {
    const auto& format = selectedFormatAndGenderIdentifier;
    if (!selectedBrandIdentifier || !format || !selectedColorIdentifier)
        return std::nullopt;
    return UniqueItem{*selectedBrandIdentifier, format->formatIdentifier, format->genderIdentifier,
                      *selectedColorIdentifier};
}

bool TextileIntermediateData::setUnits(Int size, UInt quantity) {
    if (!articles().size(size))
        return false;
    selectedSizes[size] = quantity;
    return true;
}

std::optional<TextileIntermediateData::Sizes> TextileIntermediateData::sizes(bool onlyTyped) const {
    const auto item = selectedItem();
    if (!item)
        return std::nullopt;
    const OrderItem* line = onlyTyped ? nullptr : cartLine(*item);
    if (!line)
        return selectedSizes;
    Sizes units; // a size may stand twice in a line that was loaded
    for (const auto& [size, quantity] : line->sizes)
        units[size] = saturatingSum(units[size], quantity);
    return units;
}

const TextileIntermediateData::OrderItem* TextileIntermediateData::cartLine(const UniqueItem& item) const {
    const auto found = std::ranges::find(order, item, &OrderItem::item);
    return found == order.end() ? nullptr : &*found;
}

TextileIntermediateData::OrderItem& TextileIntermediateData::lineOf(const UniqueItem& item) {
    const auto found = std::ranges::find(order, item, &OrderItem::item);
    return found == order.end() ? order.emplace_back(OrderItem{item, {}}) : *found;
}

bool TextileIntermediateData::addToCart(const Textile::Item& article, UInt quantity) {
    const UniqueItem item = uniqueItemOf(article);
    if (!articles().article(item, article.sizeIdentifier))
        return false;
    OrderItem& line = lineOf(item);
    std::erase_if(line.sizes,
                  [&](const SizeQuantity& each) { return each.sizeIdentifier == article.sizeIdentifier; });
    if (quantity > 0)
        line.sizes.push_back({article.sizeIdentifier, quantity});
    if (line.sizes.empty())
        std::erase_if(order, [&](const OrderItem& each) { return each.item == item; });
    return true;
}

std::vector<const Textile::Item*> TextileIntermediateData::cartArticles() const {
    std::vector<const Textile::Item*> found;
    for (const OrderItem& line : order) {
        for (const SizeQuantity& each : line.sizes) {
            if (const auto* article = articles().article(line.item, each.sizeIdentifier))
                found.push_back(article);
        }
    }
    return found;
}

UInt TextileIntermediateData::totalUnits(std::span<const SizeQuantity> sizes) {
    UInt total = 0;
    for (const SizeQuantity& each : sizes)
        total = saturatingSum(total, each.quantity);
    return total;
}

UInt TextileIntermediateData::totalUnits() const {
    UInt total = 0;
    for (const OrderItem& line : order)
        total = saturatingSum(total, totalUnits(line.sizes));
    return total;
}

bool TextileIntermediateData::removeGoneArticles() {
    std::size_t removed = 0;
    for (OrderItem& line : order) {
        removed += std::erase_if(line.sizes, [&](const SizeQuantity& each) {
            return !articles().article(line.item, each.sizeIdentifier);
        });
    }
    std::erase_if(order, [](const OrderItem& line) { return line.sizes.empty(); });
    return removed > 0;
}

bool TextileIntermediateData::rememberColor(Int color) {
    const auto format = selectedFormat();
    if (!format)
        return false;
    const TripleTuple key{*selectedBrandIdentifier, format->formatIdentifier, format->genderIdentifier};
    if (!articles().has({key.a, key.b, key.c, color}))
        return false;
    selectedColors[key] = color;
    return true;
}

std::optional<Int> TextileIntermediateData::rememberedColor() const {
    const auto& format = selectedFormatAndGenderIdentifier;
    if (!selectedBrandIdentifier || !format)
        return std::nullopt;
    const auto found =
        selectedColors.find({*selectedBrandIdentifier, format->formatIdentifier, format->genderIdentifier});
    return found == selectedColors.end() ? std::nullopt : std::optional(found->second);
}

bool TextileIntermediateData::selectTypography(Int identifier) {
    if (!articles().typography(identifier))
        return false;
    typographyIdentifier = identifier;
    return true;
}

const Textile::Typography* TextileIntermediateData::selectedTypography() const {
    return typographyIdentifier ? articles().typography(*typographyIdentifier) : nullptr;
}

// A name and a contact that nobody gave pass; what was emptied does not.
void TextileIntermediateData::validateCustomer(std::vector<std::string>& errors) const {
    if (!customer) {
        errors.emplace_back("El cliente no es válido");
        return;
    }
    if (isEmpty(customer->tevo))
        errors.emplace_back("Debe rellenar primero el código cliente.");
    if (customer->name && customer->name->empty())
        errors.emplace_back("Debe rellenar primero el nombre del establecimiento.");
    if (customer->contactName && customer->contactName->empty())
        errors.emplace_back("Debe introducir un nombre de contacto.");
    if (isEmpty(customer->email))
        errors.emplace_back("Debe introducir un email.");
    if (isEmpty(customer->telephone))
        errors.emplace_back("Debe introducir un teléfono.");
}

void TextileIntermediateData::validateText(std::vector<std::string>& errors) const {
    const Int limit = articles().textile().validations.maximumNumberOfCharactersForMessage;
    if (isEmpty(customizedText))
        errors.emplace_back("Debe rellenar el texto a mostrar");
    else if (static_cast<Int>(text::characterCount(*customizedText)) > limit)
        errors.push_back("El texto a mostrar debe de tener una longitud máxima de " + std::to_string(limit));
}

std::vector<std::string> TextileIntermediateData::validate() const {
    std::vector<std::string> errors;
    validateCustomer(errors);
    validateText(errors);
    const Int minimum = articles().textile().validations.minimumOrderAmount;
    if (minimum >= 1 && totalUnits() < static_cast<UInt>(minimum))
        errors.push_back("El carrito debe contener al menos " + std::to_string(minimum) + " artículos.");
    if (!selectedTypography())
        errors.emplace_back("Seleccione una tipografía válida");
    return errors;
}

SaveTextileOrder TextileIntermediateData::makeOrder(OrderRequestType request, bool validating) const {
    if (validating && !validate().empty())
        stopProcess("Fatal error");
    const auto& entered = AppSingleton::shared().actualApplicationType;
    if (!entered)
        stopProcess("section of a textile order");
    SaveTextileOrder made;
    made.save = request;
    made.orderInformation.message = customizedText.value_or("");
    made.orderInformation.applicationType = *entered;
    made.orderInformation.typographyId = typographyIdentifier;
    made.orderInformation.orderComment = orderComment;
    for (const OrderItem& line : order) {
        for (const SizeQuantity& each : line.sizes) {
            const Textile::Item* article = articles().article(line.item, each.sizeIdentifier);
            if (!article)
                stopProcess("article of a size in a textile order");
            made.orderInformation.orderLines.push_back({article->identifier, each.quantity});
        }
    }
    made.customer = customer;
    made.filename = filename;
    made.orderIdentifier = orderIdentifier;
    return made;
}

void TextileIntermediateData::loadOrder(const SaveTextileOrder& loaded) {
    std::map<UniqueItem, std::vector<SizeQuantity>> lines;
    for (const auto& [identifier, quantity] : loaded.orderInformation.orderLines) {
        if (const Textile::Item* article = articles().article(identifier))
            lines[uniqueItemOf(*article)].push_back({article->sizeIdentifier, quantity});
    }
    order.clear();
    for (auto& [item, sizes] : lines)
        order.push_back({item, std::move(sizes)});
    customizedText = loaded.orderInformation.message;
    typographyIdentifier = loaded.orderInformation.typographyId;
    orderComment = loaded.orderInformation.orderComment;
    customer = loaded.customer;
    filename = loaded.filename;
    orderIdentifier = loaded.orderIdentifier;
}

SaveTextileOrder savedOrder(const RetrieveTextileOrderResponse& answer) {
    const auto& retrieved = answer.orderInformation;
    SaveTextileOrder order;
    order.save = OrderRequestType::sendToPrint;
    order.orderInformation.message = retrieved.message.value_or("");
    order.orderInformation.applicationType = retrieved.applicationType;
    order.orderInformation.typographyId = retrieved.typographyId;
    order.orderInformation.orderComment = retrieved.orderComment;
    order.orderInformation.orderLines = retrieved.orderLineList;
    order.customer = answer.customerInformation;
    order.filename = retrieved.filename;
    order.orderIdentifier = retrieved.id;
    return order;
}

} // namespace kavor
