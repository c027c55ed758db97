#include "catalogue/BrochureTypes.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <vector>

namespace kavor::demo {

namespace {

using Limit = std::optional<int>;

/// The switches and limits of one kind; what a kind does not name is off or without limit.
struct Rules {
    BrochureKind kind;
    bool secondPrice = false;
    bool promotion = false, digital = false, userPaper = false, optionalPaper = false;
    bool orderSheet = false, pennants = false, pennantBrand = false, digitalPdf = false;
    bool printSecondPrice = false, requiredPrice = false;
    int orderSheets = 0;
    Limit minimumMain = {}, minimum = {}, maximum = {}, listMinimum = {}, listMaximum = {};
    Limit formatMinimum = {}, formatMaximum = {};
    int highlighted = 0, highlightedList = 0;
    bool languages = false, prices = false, social = false;
    int freeTexts = 0;
    bool highlights = false;
    int leastQuantity = 1, greatestQuantity = 100;
    std::vector<int> quantities = {};
    bool quantityChecked = true, printer = true;
    bool menuFormat = false, wineFormat = false, otherDrinks = false, secondaryBrands = false, block = false;
    std::optional<std::string> priceColumn = {};
};

const std::vector<Rules> allRules = {
    {.kind = BrochureKind::beer,
     .secondPrice = true,
     .promotion = true,
     .digital = true,
     .userPaper = true,
     .optionalPaper = true,
     .orderSheet = true,
     .pennants = true,
     .printSecondPrice = true,
     .orderSheets = 10,
     .minimumMain = 1,
     .minimum = 2,
     .maximum = 12,
     .listMinimum = 3,
     .listMaximum = 20,
     .formatMinimum = 1,
     .formatMaximum = 4,
     .highlighted = 2,
     .highlightedList = 1,
     .languages = true,
     .prices = true,
     .social = true,
     .freeTexts = 3,
     .highlights = true,
     .leastQuantity = 10,
     .greatestQuantity = 500,
     .menuFormat = true,
     .secondaryBrands = true,
     .block = true,
     .priceColumn = "archive_price"},
    {.kind = BrochureKind::beverage,
     .secondPrice = true,
     .promotion = true,
     .digital = true,
     .userPaper = true,
     .optionalPaper = true,
     .printSecondPrice = true,
     .minimum = 1,
     .maximum = 10,
     .formatMinimum = 1,
     .formatMaximum = 3,
     .languages = true,
     .prices = true,
     .social = true,
     .freeTexts = 3,
     .leastQuantity = 10,
     .greatestQuantity = 300,
     .otherDrinks = true,
     .secondaryBrands = true,
     .priceColumn = "archive_price_secondary"},
    {.kind = BrochureKind::menu,
     .promotion = true,
     .digital = true,
     .requiredPrice = true,
     .minimum = 1,
     .maximum = 8,
     .languages = true,
     .social = true,
     .freeTexts = 2,
     .leastQuantity = 25,
     .greatestQuantity = 200,
     .quantities = {25, 50, 75, 100, 150, 200},
     .otherDrinks = true,
     .block = true},
    {.kind = BrochureKind::flyer,
     .pennantBrand = true,
     .requiredPrice = true,
     .minimum = 2,
     .maximum = 6,
     .formatMinimum = 1,
     .formatMaximum = 2,
     .highlighted = 1,
     .freeTexts = 1,
     .highlights = true,
     .leastQuantity = 50,
     .greatestQuantity = 500,
     .quantities = {50, 100, 250, 500},
     .secondaryBrands = true,
     .priceColumn = "archive_price"},
    {.kind = BrochureKind::chalkboard,
     .secondPrice = true,
     .printSecondPrice = true,
     .formatMinimum = 1,
     .formatMaximum = 2,
     .languages = true,
     .prices = true,
     .freeTexts = 1,
     .greatestQuantity = 5},
    {.kind = BrochureKind::video,
     .digitalPdf = true,
     .minimum = 3,
     .maximum = 9,
     .highlighted = 1,
     .languages = true,
     .highlights = true,
     .quantityChecked = false,
     .printer = false},
    {.kind = BrochureKind::mantel,
     .secondPrice = true,
     .minimum = 1,
     .maximum = 4,
     .formatMaximum = 2,
     .social = true,
     .freeTexts = 1,
     .leastQuantity = 100,
     .greatestQuantity = 500,
     .quantities = {100, 250, 500}},
    {.kind = BrochureKind::encarte,
     .optionalPaper = true,
     .pennantBrand = true,
     .digitalPdf = true,
     .minimum = 2,
     .maximum = 8,
     .highlighted = 1,
     .highlightedList = 1,
     .highlights = true,
     .quantityChecked = false,
     .secondaryBrands = true,
     .priceColumn = "archive_price"},
    {.kind = BrochureKind::wineA4,
     .secondPrice = true,
     .digital = true,
     .userPaper = true,
     .orderSheet = true,
     .printSecondPrice = true,
     .orderSheets = 4,
     .minimum = 2,
     .maximum = 12,
     .formatMinimum = 1,
     .languages = true,
     .prices = true,
     .social = true,
     .freeTexts = 2,
     .leastQuantity = 5,
     .greatestQuantity = 100,
     .wineFormat = true},
    {.kind = BrochureKind::wineOrder,
     .promotion = true,
     .pennants = true,
     .minimumMain = 1,
     .minimum = 2,
     .maximum = 10,
     .highlighted = 1,
     .languages = true,
     .freeTexts = 3,
     .highlights = true,
     .leastQuantity = 10,
     .greatestQuantity = 60,
     .quantities = {10, 20, 40, 60},
     .wineFormat = true,
     .secondaryBrands = true,
     .priceColumn = "archive_price_wine"},
    {.kind = BrochureKind::digital,
     .digital = true,
     .userPaper = true,
     .minimum = 1,
     .languages = true,
     .social = true,
     .quantityChecked = false,
     .printer = false,
     .block = true},
    // Its styles are used inside other kinds; no tile opens it, but a string of pennants alone can be ordered
    // again from what lies in the cloud.
    {.kind = BrochureKind::pennant,
     .pennants = true,
     .minimum = 1,
     .maximum = 8,
     .languages = true,
     .leastQuantity = 10,
     .greatestQuantity = 200,
     .quantities = {10, 25, 50, 100, 200}},
};

Json parametersOf(const Rules& rules) {
    return {
        {"with_promotion", rules.promotion},
        {"with_digital_menu", rules.digital},
        {"with_default_menu", rules.userPaper},
        {"with_optional_menu", rules.optionalPaper},
        {"with_comandero", rules.orderSheet},
        {"with_pennants", rules.pennants},
        {"with_pennant_brand", rules.pennantBrand},
        {"with_digital_pdf", rules.digitalPdf},
        {"print_second_price", rules.printSecondPrice},
        {"required_price_beer", rules.requiredPrice},
        {"number_comandero", rules.orderSheets},
        {"marca_min_main", orNull(rules.minimumMain)},
        {"marca_min", orNull(rules.minimum)},
        {"marca_max", orNull(rules.maximum)},
        {"marca_list_min", orNull(rules.listMinimum)},
        {"marca_list_max", orNull(rules.listMaximum)},
        {"formato_min", orNull(rules.formatMinimum)},
        {"formato_max", orNull(rules.formatMaximum)},
        {"destacado_num_productos", rules.highlighted},
        {"destacado_num_productos_list", rules.highlightedList},
        {"multiidioma", rules.languages},
        {"multiprecio", rules.prices},
        {"rrss", rules.social},
        {"textolibre", rules.freeTexts},
        {"destacados", rules.highlights},
        {"pedido_min", rules.leastQuantity},
        {"pedido_max", rules.greatestQuantity},
        {"pedido_range", Json(rules.quantities)},
        {"pedido_required", rules.quantityChecked},
        {"with_printer", rules.printer},
        {"with_menu_format", rules.menuFormat},
        {"with_menu_format_wine", rules.wineFormat},
        {"show_other_drink", rules.otherDrinks},
        {"show_product_secondary", rules.secondaryBrands},
        {"with_taco", rules.block},
        {"dt_column_file_price_recomended", orNull(rules.priceColumn)},
    };
}

} // namespace

bool offersQrBlocks(BrochureKind kind) {
    const auto found = std::ranges::find(allRules, kind, &Rules::kind);
    return found != allRules.end() && found->block;
}

KindLimits limitsOf(BrochureKind kind) {
    KindLimits limits;
    const auto found = std::ranges::find(allRules, kind, &Rules::kind);
    if (found == allRules.end()) {
        return limits;
    }
    limits.brands = std::min(limits.brands, found->maximum.value_or(limits.brands));
    limits.formats = std::min(limits.formats, found->formatMaximum.value_or(limits.formats));
    limits.leastQuantity = found->leastQuantity;
    limits.greatestQuantity = found->greatestQuantity;
    limits.secondPrice = found->secondPrice;
    return limits;
}

Json brochureTypes() {
    Json types = Json::array();
    for (const Rules& rules : allRules) {
        const int kind = int(rules.kind);
        Json type = {{"id", kind},
                     {"application_father_id", int(familyOfKind(kind))},
                     {"name", kindName(kind)},
                     {"permiteIndicarCartas2Precio", rules.secondPrice}};
        type["parametros"] = parametersOf(rules);
        types.push_back(std::move(type));
    }
    return types;
}

} // namespace kavor::demo
