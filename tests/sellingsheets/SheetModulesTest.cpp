#include "sellingsheets/SheetModules.h"

#include "sellingsheets/SheetFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace kavor {
namespace {

using ::testing::ElementsAre;

struct SheetModules : ::testing::Test {
    std::shared_ptr<const Catalogue> catalogue;
    SheetModuleForm form;

    SheetModules() {
        CatalogueBuilder builder;
        addSheets(builder);
        catalogue = builder.take();
        form.main = sheetFormat(*catalogue, 110);
        form.second = sheetFormat(*catalogue, 100);
        form.mainBoxes = "2";
        form.secondBoxes = "1";
        form.price = "60";
    }
};

TEST_F(SheetModules, ThreeWrongValuesGiveThreeSentences) {
    form.hasSecond = true;
    EXPECT_TRUE(moduleErrors(form).empty());
    form.mainBoxes = "0";
    form.secondBoxes = "abc";
    form.price = "";
    EXPECT_THAT(moduleErrors(form), ElementsAre("El número de cajas primario no es correcto.",
                                                "El número de cajas secundario no es correcto.",
                                                "El precio del módulo no es correcto."));
    form.hasSecond = false;
    form.mainBoxes = "1";
    form.price = "0,5";
    EXPECT_TRUE(moduleErrors(form).empty()) << "the second field is not read with its switch off";
}

TEST_F(SheetModules, BoxesAreWholeAndPricesReadCommaAndPoint) {
    EXPECT_EQ(readBoxes("12"), 12);
    for (const char* text : {"2,5", "-1", "0", "", " ", "1e3", "9999999999999999999", "doce"})
        EXPECT_EQ(readBoxes(text), std::nullopt) << text;
    EXPECT_EQ(readModulePrice("59,90"), 59.9);
    EXPECT_EQ(readModulePrice("59.90"), 59.9);
    EXPECT_EQ(readModulePrice("-1"), std::nullopt);
}

TEST_F(SheetModules, ThePricePerBottleCountsBothProductsOnceTheSwitchIsOn) {
    EXPECT_EQ(pricePerBottleText(form), "1,25"); // 48 bottles
    form.hasSecond = true;
    EXPECT_EQ(pricePerBottleText(form), "1"); // and 12 more
    form.secondBoxes = "x";
    EXPECT_EQ(pricePerBottleText(form), "-");
    form.secondBoxes = "1";
    form.second = sheetFormat(*catalogue, 111);
    EXPECT_EQ(pricePerBottleText(form), "-") << "that one is no bottle";
    form.hasSecond = false;
    EXPECT_EQ(pricePerBottleText(form), "1,25");
    EXPECT_EQ(pricePerBottle({1, {}, 0, 110, 2, 100, 1, 60}, *catalogue), 1.0);
    EXPECT_EQ(pricePerBottle({1, {}, 0, 110, 2, 999, 1, 60}, *catalogue), std::nullopt);
    EXPECT_EQ(pricePerBottle({1, {}, 0, 110, 0, {}, {}, 60}, *catalogue), std::nullopt);
}

TEST_F(SheetModules, AnEditedModuleKeepsNumberAndPosition) {
    form.reference = "REF";
    EXPECT_EQ(makeModule(form, std::nullopt, 4),
              (SellingSheetOrder::Item{4, "REF", 0, 110, 2, std::nullopt, std::nullopt, 60}));
    form.hasSecond = true;
    const SellingSheetOrder::Item edited{9, {}, 5, 1, 1, {}, {}, 1};
    EXPECT_EQ(makeModule(form, edited, 4), (SellingSheetOrder::Item{9, "REF", 5, 110, 2, 100, 1, 60}));
    EXPECT_EQ(makeModule(form, std::nullopt, std::nullopt).identifier, 0);
}

TEST_F(SheetModules, AModuleReplacesItsNamesakeOrComesLast) {
    using Item = SellingSheetOrder::Item;
    std::vector<Item> modules;
    EXPECT_EQ(nextModuleIdentifier(modules), 1);
    const auto add = [&](Int id, double price, std::optional<std::size_t> place = std::nullopt) {
        putModule(modules, Item{id, {}, 0, 110, 1, {}, {}, price}, place);
    };
    const auto prices = [&] {
        std::vector<double> all;
        for (const Item& each : modules)
            all.push_back(each.price);
        return all;
    };
    add(3, 1);
    add(8, 2);
    add(3, 4);
    EXPECT_THAT(prices(), ElementsAre(4, 2));
    modules.push_back({8, {}, 0, 110, 1, {}, {}, 7}); // a file may hold a number twice
    add(8, 9, 2);
    EXPECT_THAT(prices(), ElementsAre(4, 2, 9));
    duplicateModule(modules, 0);
    EXPECT_THAT(prices(), ElementsAre(4, 4, 2, 9));
    EXPECT_EQ(modules[1].identifier, 9);
    modules[0].identifier = std::numeric_limits<Int>::max();
    EXPECT_EQ(nextModuleIdentifier(modules), 1);
}

TEST_F(SheetModules, OnlyWhatSheetsShowIsOnOffer) {
    std::vector<Int> offered;
    for (const Product* brand : sheetBrands(*catalogue)) {
        for (const auto* format : sheetFormats(*brand))
            offered.push_back(format->id);
    }
    EXPECT_THAT(offered, ElementsAre(110, 111, 100));
    EXPECT_TRUE(isOnOffer(sheetFormat(*catalogue, 100)));
    EXPECT_FALSE(isOnOffer(sheetFormat(*catalogue, 101)));
    EXPECT_EQ(sheetFormat(*catalogue, 101).brand->name, "Roble");
    EXPECT_FALSE(sheetFormat(*catalogue, 4711));
}

} // namespace
} // namespace kavor
