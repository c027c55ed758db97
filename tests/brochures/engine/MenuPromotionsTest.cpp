#include "brochures/engine/MenuPromotions.h"

#include "brochures/engine/BrochureIntermediateData.h"

#include <gtest/gtest.h>

namespace kavor {
namespace {

MenuPromotion promotion(Int id, const char* phrase = "Hoy") {
    return {{}, id, "Tapa", "Encina", {{14, phrase, {}}}};
}

PromotionValidity from(const char* date) {
    PromotionValidity validity;
    validity.dateFrom = date;
    return validity;
}

TEST(MenuPromotionsOfADraft, AreAddedEditedInTheirPlaceAndRemoved) {
    auto& promotions = MenuPromotions::shared();
    const auto draft = std::make_shared<BrochureIntermediateData>();
    for (const Int id : {1, 2, 3})
        promotions.attach(draft, promotion(id), {});
    promotions.attach(draft, promotion(2, "Mañana"), {}, promotion(2), 1);
    EXPECT_EQ(draft->promotions, (std::vector{promotion(1), promotion(2, "Mañana"), promotion(3)}));
    // The list moved below the form: it is found by what it is.
    EXPECT_TRUE(promotions.remove(draft, promotion(1)));
    EXPECT_FALSE(promotions.remove(draft, promotion(1)));
    promotions.attach(draft, promotion(3, "Siempre"), {}, promotion(3), 2);
    EXPECT_EQ(draft->promotions, (std::vector{promotion(2, "Mañana"), promotion(3, "Siempre")}));
    promotions.attach(draft, promotion(9), {}, promotion(8), 0);
    EXPECT_EQ(draft->promotions.back(), promotion(9)) << "an edit is not lost with what it was made of";
}

TEST(MenuPromotionsOfADraft, KeepTheirValidityAlsoWhenTheMenuComesBackButNotForAnotherBar) {
    auto& promotions = MenuPromotions::shared();
    auto draft = std::make_shared<BrochureIntermediateData>();
    draft->openedAs = BrochureType::beer;
    draft->customerInformation.emplace().name = "Bar Sol";
    promotions.attach(draft, promotion(1), from("01-05-26"));
    promotions.attach(draft, promotion(1, "Ya"), from("02-05-26"), promotion(1), 0);
    EXPECT_FALSE(promotions.validityOf(draft, promotion(1)));
    EXPECT_EQ(promotions.validityOf(draft, promotion(1, "Ya")), from("02-05-26"));
    auto other = std::make_shared<BrochureIntermediateData>();
    other->openedAs = BrochureType::beer;
    other->customerInformation.emplace().name = "Bar Luna";
    const auto sameBar = std::make_shared<BrochureIntermediateData>();
    sameBar->openedAs = BrochureType::beer;
    sameBar->customerInformation.emplace().name = "Bar Sol";
    EXPECT_FALSE(promotions.validityOf(sameBar, promotion(1, "Ya"))) << "the first one is still there";
    draft.reset();
    EXPECT_FALSE(promotions.validityOf(other, promotion(1, "Ya")));
    EXPECT_EQ(promotions.validityOf(sameBar, promotion(1, "Ya")), from("02-05-26"));
}

} // namespace
} // namespace kavor
