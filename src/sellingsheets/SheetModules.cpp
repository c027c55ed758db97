#include "sellingsheets/SheetModules.h"

#include "base/AppFormatter.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kavor {

namespace {

using Item = SellingSheetOrder::Item;
using Format = Product::ProductFormat;

constexpr double mostBoxes = 1e15; // whole numbers up to here are exact

// Answers nothing for what comes in no bottles.
std::optional<double> bottlesIn(const Format* format, Int boxes) {
    if (!format || !format->isBottle || !format->bottlesPerBox)
        return std::nullopt;
    return double(*format->bottlesPerBox) * double(boxes);
}

struct Packed {
    const Format* format = nullptr;
    Int boxes = 0;
};

std::optional<double> priceOfBottle(double price, const Packed& main, const std::optional<Packed>& second) {
    auto bottles = bottlesIn(main.format, main.boxes);
    if (second) {
        const auto further = bottlesIn(second->format, second->boxes);
        if (!further)
            return std::nullopt;
        bottles = bottles ? std::optional(*bottles + *further) : std::nullopt;
    }
    if (!bottles || *bottles == 0)
        return std::nullopt;
    return price / *bottles;
}

} // namespace

std::vector<const Product*> sheetBrands(const Catalogue& catalogue) {
    std::vector<const Product*> brands;
    for (const Product& brand : catalogue.information().products) {
        if (std::ranges::any_of(brand.productList, &Format::showOnSellingSheet))
            brands.push_back(&brand);
    }
    std::ranges::stable_sort(brands, {}, &Product::position);
    return brands;
}

std::vector<const Format*> sheetFormats(const Product& brand) {
    std::vector<const Format*> formats;
    for (const Format& format : brand.productList) {
        if (format.showOnSellingSheet)
            formats.push_back(&format);
    }
    std::ranges::stable_sort(formats, {}, &Format::position);
    return formats;
}

SheetFormat sheetFormat(const Catalogue& catalogue, Int format) {
    SheetFormat found;
    for (const Product& brand : catalogue.information().products) {
        for (const Format& each : brand.productList) {
            if (each.id != format)
                continue;
            if (each.showOnSellingSheet)
                return {&brand, &each};
            if (!found)
                found = {&brand, &each};
        }
    }
    return found;
}

bool isOnOffer(const SheetFormat& format) {
    return format && format.format->showOnSellingSheet;
}

std::optional<Int> readBoxes(const std::string& text) {
    const auto number = AppFormatter::shared().parseNumber(text);
    if (!number || *number <= 0 || *number > mostBoxes || std::floor(*number) != *number)
        return std::nullopt;
    return Int(*number);
}

std::optional<double> readModulePrice(const std::string& text) {
    const auto number = AppFormatter::shared().parseNumber(text);
    return number && *number > 0 && std::isfinite(*number) ? number : std::nullopt;
}

std::vector<std::string> moduleErrors(const SheetModuleForm& form) {
    std::vector<std::string> errors;
    if (!form.main || !readBoxes(form.mainBoxes))
        errors.emplace_back("El número de cajas primario no es correcto.");
    if (form.hasSecond && (!form.second || !readBoxes(form.secondBoxes)))
        errors.emplace_back("El número de cajas secundario no es correcto.");
    if (!readModulePrice(form.price))
        errors.emplace_back("El precio del módulo no es correcto.");
    return errors;
}

Item makeModule(const SheetModuleForm& form, const std::optional<Item>& edited,
                std::optional<Int> identifierToUse) {
    Item module;
    module.identifier = edited ? edited->identifier : identifierToUse.value_or(0);
    module.position = edited ? edited->position : 0;
    module.promotionCode = form.reference;
    module.productIdentifier1 = form.main.format->id;
    module.productBox1 = readBoxes(form.mainBoxes).value_or(0);
    if (form.hasSecond) {
        module.productIdentifier2 = form.second.format->id;
        module.productBox2 = readBoxes(form.secondBoxes);
    }
    module.price = readModulePrice(form.price).value_or(0);
    return module;
}

std::optional<double> pricePerBottle(const Item& module, const Catalogue& catalogue) {
    std::optional<Packed> second;
    if (module.productIdentifier2)
        second = {sheetFormat(catalogue, *module.productIdentifier2).format, module.productBox2.value_or(0)};
    return priceOfBottle(
        module.price, {sheetFormat(catalogue, module.productIdentifier1).format, module.productBox1}, second);
}

std::string pricePerBottleText(const SheetModuleForm& form) {
    const auto price = readModulePrice(form.price);
    const auto boxes = readBoxes(form.mainBoxes);
    const auto furtherBoxes = form.hasSecond ? readBoxes(form.secondBoxes) : std::optional<Int>(0);
    if (!price || !boxes || !furtherBoxes)
        return "-";
    std::optional<Packed> second;
    if (form.hasSecond)
        second = {form.second.format, *furtherBoxes};
    const auto bottle = priceOfBottle(*price, {form.main.format, *boxes}, second);
    return bottle ? AppFormatter::shared().numberFormatter(*bottle) : "-";
}

Int nextModuleIdentifier(const std::vector<Item>& modules) {
    if (modules.empty())
        return 1;
    const Int highest = std::ranges::max_element(modules, {}, &Item::identifier)->identifier;
    if (highest < std::numeric_limits<Int>::max())
        return highest + 1;
    Int free = 1;
    while (std::ranges::find(modules, free, &Item::identifier) != modules.end())
        ++free;
    return free;
}

void putModule(std::vector<Item>& modules, const Item& module, std::optional<std::size_t> place) {
    if (place && *place < modules.size() && modules[*place].identifier == module.identifier) {
        modules[*place] = module;
        return;
    }
    const auto namesake = std::ranges::find(modules, module.identifier, &Item::identifier);
    if (namesake != modules.end())
        *namesake = module;
    else
        modules.push_back(module);
}

void duplicateModule(std::vector<Item>& modules, std::size_t place) {
    if (place >= modules.size())
        return;
    Item again = modules[place];
    again.identifier = nextModuleIdentifier(modules);
    modules.insert(modules.begin() + std::ptrdiff_t(place) + 1, std::move(again));
}

} // namespace kavor
