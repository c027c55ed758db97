#include "brochures/engine/DraftTest.h"

namespace kavor {

namespace {

using Beverage = BrochureIntermediateData::BeverageIdentifier;
using Names = std::set<std::string>;

class Drinks : public DraftTest {
protected:
    static std::optional<Beverage> category(Int id) {
        return draft().beverageInfo(id, 0, true, std::nullopt);
    }
    static std::optional<Beverage> product(Int id, Int inCategory, std::optional<std::string> format = {}) {
        return draft().beverageInfo(inCategory, id, false, format);
    }
};

TEST_F(Drinks, ADrinkOfTheCatalogueIsAddedWithItsCategoryFormatAndPrices) {
    EXPECT_EQ(category(1), std::nullopt);
    EXPECT_TRUE(draft().setBeverageSelected(true, {.identifier = 1, .formatName = "Vaso"}, 1));
    EXPECT_EQ(category(1)->name, "Refrescos");
    EXPECT_EQ(category(1)->description, "Fríos");
    EXPECT_EQ(product(1, 1, "Vaso"), (Beverage{1, false, "Limonada", 1, "Casera", 2.0, 2.5, "Vaso"}));
    EXPECT_FALSE(draft().setBeverageSelected(true, {.identifier = 1, .formatName = "Vaso"}, 1)) << "twice";
    EXPECT_TRUE(draft().setBeverageSelected(true, {.identifier = 1, .formatName = "Jarra"}, 1))
        << "another format";
    EXPECT_EQ(product(1, 1, "Jarra")->price1, 5.0);
    EXPECT_TRUE(draft().beverageProductInformation.empty()) << "nothing of the user's own yet";
    EXPECT_EQ(draft().selectedProductFormat.at(1), (Names{"Jarra", "Vaso"}));
}

TEST_F(Drinks, RefusesWhatNeitherTheCatalogueNorTheUserHas) {
    EXPECT_FALSE(draft().setBeverageSelected(true, {.identifier = 9, .isCategory = true}, 9));
    EXPECT_FALSE(draft().setBeverageSelected(true, {.identifier = 3}, 1)) << "of another category";
    EXPECT_FALSE(draft().setBeverageSelected(true, {.identifier = -1, .name = "Naranja"}, -1))
        << "no such category";
    EXPECT_FALSE(draft().setBeverageSelected(false, {.identifier = 1, .isCategory = true}, 1))
        << "not selected";
    EXPECT_FALSE(draft().setBeverageSelected(false, {.identifier = 1}, 1));
    EXPECT_FALSE(draft().setBeverageFormatSelected(true, "Vaso", 1, 1));
    EXPECT_FALSE(draft().setBeveragePrice(1, false, "Vaso", 1, 1));
    EXPECT_FALSE(draft().setBeverageCategoryDescription("x", 1));
    EXPECT_EQ(draft().addBeverageProduct("Naranja", -1), std::nullopt);
    EXPECT_TRUE(draft().selectedBeverages.empty() && draft().selectedProductFormat.empty());
    EXPECT_TRUE(draft().beverageCategoryInformation.empty() && draft().beverageProductInformation.empty());
}

TEST_F(Drinks, TheUsersValuesStandOverTheCatalogueAndGapsShowThrough) {
    draft().setBeverageSelected(true, {.identifier = 1, .formatName = "Vaso"}, 1);
    EXPECT_TRUE(draft().setBeveragePrice(9.0, true, "Vaso", 1, 1));
    EXPECT_TRUE(draft().setBeverageProductDescription("Muy fría", 1, 1));
    EXPECT_TRUE(draft().setBeverageCategoryDescription("De la casa", 1));
    EXPECT_FALSE(draft().setBeveragePrice(9.0, true, "Jarra", 1, 1)) << "a format that isn't selected";
    EXPECT_EQ(product(1, 1, "Vaso"), (Beverage{1, false, "Limonada", 1, "Casera", 2.0, 9.0, "Vaso"}));
    EXPECT_EQ(product(1, 1)->description, "Muy fría");
    EXPECT_EQ(category(1), (Beverage{1, true, "Refrescos", 1, "De la casa", {}, {}, {}}));
    EXPECT_TRUE(draft().setBeveragePrice(std::nullopt, true, "Vaso", 1, 1));
    EXPECT_EQ(product(1, 1, "Vaso")->price2, 2.5);
}

TEST_F(Drinks, OwnItemsTakeTheNextFreeNegativeNumber) {
    EXPECT_EQ(draft().addBeverageCategory("Zumos"), -1);
    EXPECT_EQ(draft().addBeverageCategory("Batidos"), -2);
    EXPECT_EQ(draft().addBeverageProduct("Naranja", -2), -1) << "products have numbers of their own";
    EXPECT_EQ(draft().addBeverageProduct("Piña", 1), -2) << "in a category of the catalogue";
    EXPECT_EQ(product(-2, 1)->name, "Piña");
    EXPECT_TRUE(draft().setBeverageSelected(false, {.identifier = -1, .isCategory = true}, -1));
    EXPECT_EQ(draft().addBeverageCategory("Infusiones"), -1);
    EXPECT_GT(category(-1)->position, category(-2)->position);
}

TEST_F(Drinks, AFormatOfTheUsersOwnKeepsTheProductsName) {
    draft().setBeverageSelected(true, {.identifier = 2}, 1);
    EXPECT_TRUE(draft().setBeverageFormatSelected(true, "Botellín", 2, 1));
    EXPECT_FALSE(draft().setBeverageFormatSelected(true, "Botellín", 2, 1));
    EXPECT_TRUE(draft().setBeveragePrice(1.1, false, "Botellín", 2, 1));
    EXPECT_EQ(product(2, 1, "Botellín"), (Beverage{2, false, "Agua", 2, {}, 1.1, {}, "Botellín"}));
    EXPECT_TRUE(draft().setBeverageFormatSelected(false, "Botellín", 2, 1));
    EXPECT_EQ(product(2, 1, "Botellín"), std::nullopt);
    EXPECT_TRUE(draft().selectedProductFormat.empty() && draft().beverageProductInformation.empty());
}

TEST_F(Drinks, FormatsOfOneCategoryStandInTheOthersOfTheProductToo) {
    enter(BrochureType::menu);
    catalogue.information.brochures->drinks.back().products.push_back(
        {1, "Limonada", 5, 3.0, {}, {}, "Taza"});
    useCatalogue();
    draft().setBeverageSelected(true, {.identifier = 1, .formatName = "Vaso"}, 1);
    EXPECT_TRUE(draft().setBeverageSelected(true, {.identifier = 1, .formatName = "Taza"}, 2));
    EXPECT_EQ(product(1, 2, "Vaso"), (Beverage{1, false, "Limonada", 5, "Casera", 2.0, 2.5, "Vaso"}));
    EXPECT_EQ(product(1, 1, "Taza"), (Beverage{1, false, "Limonada", 1, {}, 3.0, {}, "Taza"}));
    EXPECT_EQ(product(1, 1, "Vaso"), (Beverage{1, false, "Limonada", 1, "Casera", 2.0, 2.5, "Vaso"}));
    EXPECT_EQ(product(1, 2, "Taza")->price1, 3.0);
    EXPECT_EQ(draft().makeOrder(OrderRequestType::saveCloud, false).menu.otherDrinks->size(), 2U);
}

TEST_F(Drinks, RemovingTakesTheUsersRecordsWithIt) {
    const Int own = draft().addBeverageCategory("Zumos");
    const Int juice = *draft().addBeverageProduct("Naranja", own);
    draft().setBeverageFormatSelected(true, "Copa", juice, own);
    draft().setBeverageSelected(true, {.identifier = 1, .formatName = "Vaso"},
                                own); // the catalogue's, in an own one
    draft().setBeverageSelected(true, {.identifier = 1, .formatName = "Vaso"}, 1);
    draft().setBeveragePrice(7.0, false, "Vaso", 1, 1);
    EXPECT_TRUE(draft().setBeverageSelected(false, {.identifier = 1}, own));
    EXPECT_EQ(product(1, 1, "Vaso")->price1, 7.0) << "still in the other category";
    EXPECT_TRUE(draft().setBeverageSelected(false, {.identifier = juice}, own));
    EXPECT_EQ(category(own)->name, "Zumos") << "a category without products stays";
    EXPECT_TRUE(draft().setBeverageSelected(false, {.identifier = own, .isCategory = true}, own));
    EXPECT_TRUE(draft().setBeverageSelected(false, {.identifier = 1, .isCategory = true}, 1));
    EXPECT_TRUE(draft().selectedBeverages.empty() && draft().selectedProductFormat.empty());
    EXPECT_TRUE(draft().beverageCategoryInformation.empty() && draft().beverageProductInformation.empty());
}

} // namespace
} // namespace kavor
