#pragma once

#include "catalogue/Catalogue.h"
#include "sellingsheets/SellingSheetOrder.h"

#include <optional>
#include <string>
#include <vector>

namespace kavor {

// A format of the catalogue with its brand. Both null for a format that is not there.
struct SheetFormat {
    const Product* brand = nullptr;
    const Product::ProductFormat* format = nullptr;

    explicit operator bool() const { return format != nullptr; }
};

// The brands with a format that selling sheets offer, as the catalogue orders them.
std::vector<const Product*> sheetBrands(const Catalogue& catalogue);
// What selling sheets offer of a brand, by position.
std::vector<const Product::ProductFormat*> sheetFormats(const Product& brand);
// The first format of this number, among those on offer if it is there.
SheetFormat sheetFormat(const Catalogue& catalogue, Int format);
bool isOnOffer(const SheetFormat& format);

// The form of a module, as typed.
struct SheetModuleForm {
    SheetFormat main;
    std::string mainBoxes;
    bool hasSecond = false;
    SheetFormat second;
    std::string secondBoxes;
    std::string price;
    std::string reference;
};

// A number of boxes as typed: whole and above 0; nothing for any other text.
std::optional<Int> readBoxes(const std::string& text);
// A price as typed, above 0.
std::optional<double> readModulePrice(const std::string& text);

// The three sentences about what does not read, in the order of the form.
std::vector<std::string> moduleErrors(const SheetModuleForm& form);
// The module of a form without errors. The one edited lends identifier and position.
SellingSheetOrder::Item makeModule(const SheetModuleForm& form,
                                   const std::optional<SellingSheetOrder::Item>& edited,
                                   std::optional<Int> identifierToUse);

// The price of a bottle; nothing where a format is no bottle or has no box, or without bottles.
std::optional<double> pricePerBottle(const SellingSheetOrder::Item& module, const Catalogue& catalogue);
// The same as the form shows it: in the number format, "-" while anything does not read.
std::string pricePerBottleText(const SheetModuleForm& form);

// For a new module: the highest of the list plus one, 1 for an empty list.
Int nextModuleIdentifier(const std::vector<SellingSheetOrder::Item>& modules);
// Puts a module in the place of its namesake, the one at this place where several bear its number, or at the
// end.
void putModule(std::vector<SellingSheetOrder::Item>& modules, const SellingSheetOrder::Item& module,
               std::optional<std::size_t> place);
// The same module once more, right behind it, under the next number.
void duplicateModule(std::vector<SellingSheetOrder::Item>& modules, std::size_t place);

} // namespace kavor
