#include "catalogue/Catalogue.h"

#include "base/StopProcess.h"
#include "support/CatalogueBuilder.h"

#include <gtest/gtest.h>

namespace kavor {

namespace {

TEST(Catalogue, AnIdThatOccursTwiceMeansItsFirstRecord) {
    CatalogueBuilder builder;
    builder.brand(10, "Otro roble").format(109, "Tercio", 9.0);
    builder.product(11).productList.push_back(builder.product(11).productList.front());
    builder.product(11).productList.back().icon = "Otro tercio";
    builder.brochures().styles.push_back(builder.brochures().styles.front());
    builder.brochures().styles.back().name = "Otro estilo";
    const auto catalogue = builder.take();
    EXPECT_EQ(catalogue->product(10)->name, "Roble");
    EXPECT_EQ(catalogue->productIndex(10), 1U);
    EXPECT_EQ(catalogue->format(10, 109), nullptr) << "a format of the second record";
    EXPECT_EQ(catalogue->format(11, 110)->icon, "Tercio");
    EXPECT_EQ(catalogue->style(1)->name, "");
    EXPECT_EQ(catalogue->product(99), nullptr);
    EXPECT_EQ(catalogue->format(10, 110), nullptr) << "another brand's format";
    EXPECT_EQ(catalogue->price(PriceType::table), nullptr);
    EXPECT_EQ(catalogue->productsOfFamily(ApplicationFather::orderWine).size(), 1U);
    EXPECT_TRUE(catalogue->productsOfFamily(ApplicationFather::mercado).empty());
}

TEST(Catalogue, AddingAndRemovingBrandsKeepsTheIndexesAndOlderCopies) {
    const auto old = CatalogueBuilder().take();
    Catalogue changed(*old);
    EXPECT_EQ(changed.freeNegativeProductId(), -1);
    Product own;
    own.id = -1;
    own.category = Product::Category();
    own.category->propertyId = 4;
    own.productList.emplace_back().id = 1;
    for (int i = 0; i < 50; ++i, --own.id)
        changed.addProduct(own);
    EXPECT_EQ(changed.freeNegativeProductId(), -51);
    EXPECT_NE(changed.format(-50, 1), nullptr);
    EXPECT_EQ(changed.product(10)->name, "Roble");
    changed.removeProductsOfProperty(4);
    EXPECT_EQ(changed.product(-1), nullptr);
    EXPECT_EQ(changed.productIndex(12), 2U);
    EXPECT_EQ(changed.information().products.size(), 3U);
    EXPECT_EQ(old->product(-1), nullptr);
    CatalogueBuilder without;
    without.product(11).category.reset();
    EXPECT_EXIT(Catalogue(without.information).removeProductsOfProperty(4),
                testing::ExitedWithCode(stoppedExitStatus), "category of product 11");
    EXPECT_EXIT(static_cast<void>(Catalogue(ApplicationInformation()).brochures()),
                testing::ExitedWithCode(stoppedExitStatus), "brochure catalogue");
}

} // namespace
} // namespace kavor
