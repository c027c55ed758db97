#include "promotions/PromotionFixture.h"

#include <gtest/gtest.h>

namespace kavor {
namespace {

class Gallery : public ::testing::Test {
protected:
    CatalogueBuilder builder;
    Gallery() { addPromotions(builder); }

    // "title/language" of what matches.
    static std::vector<std::string> titles(const PromotionGallery& gallery,
                                           std::optional<Int> classification = {},
                                           std::optional<Int> brand = {}) {
        std::vector<std::string> result;
        for (const std::size_t place : gallery.visiblePromotions(classification, brand)) {
            const PromotionTuple& each = gallery.unfilteredPromotions()[place];
            result.push_back(std::string(each.promotionName) + "/" +
                             (each.language ? each.language->name : "-"));
        }
        return result;
    }
    using Titles = std::vector<std::string>;
};

TEST_F(Gallery, OfTheSectionShowsEachLanguageByPositionWithTheDefaultOneFirst) {
    const auto gallery = PromotionGallery::ofSection(builder.take());
    EXPECT_EQ(titles(gallery), (Titles{"Martes de tapa/Català", "Martes de tapa/Castellano",
                                       "Mundial/Castellano", "Feria/Castellano"}));
    EXPECT_EQ(gallery.unfilteredPromotions()[1].image->cacheKey, "tapa-es");
    ASSERT_EQ(gallery.classifications().size(), 2U);
    EXPECT_EQ(gallery.classifications()[0]->name, "Entre semana");
    ASSERT_EQ(gallery.brandList().size(), 2U) << "brands that are in the catalogue and have a promotion";
    EXPECT_EQ(gallery.brandList()[0]->name, "Encina") << "as the catalogue lists them";
    builder.information.promotion.reset();
    EXPECT_TRUE(PromotionGallery::ofSection(builder.take()).unfilteredPromotions().empty());
}

TEST_F(Gallery, IsNarrowedByClassificationAndBrandAndAPromotionWithoutEitherMatchesOnlyAll) {
    const auto gallery = PromotionGallery::ofSection(builder.take());
    EXPECT_EQ(titles(gallery, 7), (Titles{"Martes de tapa/Català", "Martes de tapa/Castellano"}));
    EXPECT_EQ(titles(gallery, 8), Titles{"Feria/Castellano"});
    EXPECT_EQ(titles(gallery, {}, 10), Titles{"Mundial/Castellano"});
    EXPECT_EQ(titles(gallery, 7, 10), Titles{});
}

TEST_F(Gallery, OfAMenuShowsWhatItHasNotInItsLanguageAndStillTheOneThatIsEdited) {
    MenuPromotionRequest request;
    request.languageSelected = Brochures::Language{1, "Castellano", "es", "", 1, {}};
    EXPECT_EQ(titles(PromotionGallery::ofMenu(builder.take(), request)),
              (Titles{"Martes de tapa/Castellano", "Mundial/Castellano"}));
    request.languageSelected->id = 77;
    request.promotionSelectIds = {2};
    EXPECT_EQ(titles(PromotionGallery::ofMenu(builder.take(), request)), Titles{"Martes de tapa/Català"});
    request.menuPromotion = MenuPromotion{{}, 2, {}, {}, {}};
    request.languageSelected.reset();
    EXPECT_EQ(titles(PromotionGallery::ofMenu(builder.take(), request)),
              (Titles{"Martes de tapa/Català", "Mundial/Castellano"}));
    EXPECT_TRUE(PromotionGallery::ofMenuPromotion(*builder.take(), 3, {}));
    EXPECT_FALSE(PromotionGallery::ofMenuPromotion(*builder.take(), 4, {}));
}

} // namespace
} // namespace kavor
