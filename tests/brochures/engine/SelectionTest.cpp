#include "base/StopProcess.h"
#include "brochures/engine/DraftTest.h"
#include "support/LogCapture.h"

namespace kavor {

namespace {

using Draft = BrochureIntermediateData;
using State = SelectionState;
class Selection : public DraftTest {};

TEST_F(Selection, ASelectedFormatGetsAnEntryInEveryMap) {
    draft().setSecondPrice(PriceType::terrace);
    EXPECT_TRUE(draft().setFormatSelected(true, 101, 10));
    EXPECT_TRUE(draft().setFormatSelected(true, 100, 10));
    EXPECT_EQ(draft().selectedBrands, (Draft::FormatsOfBrands{{10, {101, 100}}}));
    const std::map<PriceType, double> none{{PriceType::main, 0.0}, {PriceType::terrace, 0.0}};
    const std::map<PriceType, double> known{{PriceType::main, 2.5}, {PriceType::terrace, 2.5}};
    EXPECT_EQ(draft().brandPrices, (Draft::Prices{{10, {{101, none}, {100, known}}}}));
    EXPECT_EQ(draft().netPriceOf(101, 10), 0.0);
    EXPECT_EQ(draft().isNewProduct(101, 10), false);
    EXPECT_TRUE(draft().brandVolumes.at(10).contains(101));
}

TEST_F(Selection, TheColumnsOfANewFormatAreThoseOfTheSharedDraft) {
    Draft other;
    ASSERT_TRUE(draft().setSecondPrice(PriceType::night));
    other.setFormatSelected(true, 100, 10);
    EXPECT_EQ(other.priceOf(PriceType::night, 100, 10), 2.5);
}

TEST_F(Selection, RefusesWhatTheCatalogueOrTheSelectionDoesNotHave) {
    ASSERT_TRUE(draft().setFormatSelected(true, 100, 10));
    const auto before = documentOf(draft().makeOrder(OrderRequestType::saveCloud, false));
    EXPECT_FALSE(draft().setFormatSelected(true, 100, 10)) << "selected twice";
    EXPECT_FALSE(draft().setFormatSelected(true, 100, 99)) << "no such brand";
    EXPECT_FALSE(draft().setFormatSelected(true, 110, 10)) << "another brand's format";
    EXPECT_FALSE(draft().setFormatSelected(false, 101, 10)) << "not selected";
    EXPECT_FALSE(draft().setPrice(PriceType::main, 101, 10, 9));
    EXPECT_FALSE(draft().setNetPrice(101, 10, 9));
    EXPECT_FALSE(draft().setVolume(33, 110, 11));
    EXPECT_FALSE(draft().setNewProduct(true, 101, 10));
    EXPECT_FALSE(draft().setFormatHighlighted(true, 110, 11).success);
    EXPECT_EQ(draft().priceOf(PriceType::table, 100, 10), std::nullopt);
    EXPECT_EQ(documentOf(draft().makeOrder(OrderRequestType::saveCloud, false)), before);
    EXPECT_EQ(draft().isFormatSelected(100, 10), State::selected);
    EXPECT_EQ(draft().isFormatSelected(101, 10), State::notSelected);
    EXPECT_EQ(draft().isFormatSelected(110, 10), State::unknown);
}

TEST_F(Selection, DeselectingTheLastFormatLeavesNoTraceOfTheBrand) {
    draft().setFormatSelected(true, 100, 10);
    draft().setFormatHighlighted(true, 100, 10);
    draft().setNetPrice(100, 10, 0.8);
    EXPECT_TRUE(draft().setFormatSelected(false, 100, 10));
    EXPECT_TRUE(draft().selectedBrands.empty() && draft().highlightedBrands.empty() &&
                draft().brandPrices.empty());
    EXPECT_TRUE(draft().netPrices.empty() && draft().brandVolumes.empty() && draft().newProducts.empty());
    draft().setFormatSelected(true, 100, 10);
    EXPECT_EQ(draft().netPriceOf(100, 10), 0.0);
}

TEST_F(Selection, NetPricesOutliveTheDraftAndTheBrand) {
    draft().setFormatSelected(true, 100, 10);
    draft().setFormatSelected(true, 101, 10);
    draft().setNetPrice(100, 10, 0.8);
    draft().setNetPrice(101, 10, 0.5);
    draft().storeNetPrices();
    Draft next;
    EXPECT_EQ(folder.content("netPrices"), R"({"10":{"100":0.8,"101":0.5}})");
    EXPECT_TRUE(next.selectedBrands.empty());
    next.setFormatSelected(true, 100, 10);
    EXPECT_EQ(next.netPriceOf(100, 10), 0.8);
    next.setFormatSelected(false, 100, 10);
    EXPECT_EQ(next.netPrices, (Draft::NetPrices{{10, {{101, 0.5}}}}));
    const LogCapture log;
    folder.put("netPrices", R"({"10":{"a":1}})");
    EXPECT_TRUE(Draft().netPrices.empty());
    EXPECT_TRUE(log.contains("netPrices: 10.a: expected a whole number as key"));
}

TEST_F(Selection, ThereIsOneHighlightAndItsPredecessorIsTold) {
    for (const auto& [format, brand] : {std::pair<Int, Int>{100, 10}, {101, 10}, {110, 11}})
        draft().setFormatSelected(true, format, brand);
    EXPECT_FALSE(draft().setFormatHighlighted(true, 101, 10).success) << "not highlightable";
    EXPECT_FALSE(draft().setFormatHighlighted(false, 100, 10).success) << "nothing is highlighted";
    EXPECT_EQ(draft().setFormatHighlighted(true, 100, 10).previousBrand, std::nullopt);
    const auto change = draft().setFormatHighlighted(true, 110, 11);
    EXPECT_TRUE(change.success);
    EXPECT_EQ(change.previousBrand, 10);
    EXPECT_EQ(change.previousFormat, 100);
    EXPECT_EQ(draft().highlightedBrands, (Draft::FormatsOfBrands{{11, {110}}}));
    EXPECT_EQ(draft().isFormatHighlighted(110, 11), State::selected);
    EXPECT_EQ(draft().isFormatHighlighted(100, 10), State::notSelected);
    const auto off = draft().setFormatHighlighted(false, 110, 11);
    EXPECT_TRUE(off.success && !off.previousBrand && draft().highlightedBrands.empty());
}

TEST_F(Selection, AnotherSecondPriceTakesTheOldColumnAwayAndStartsFromTheCatalogue) {
    draft().setFormatSelected(true, 100, 10);
    draft().setFormatSelected(true, 101, 10);
    EXPECT_FALSE(draft().setSecondPrice(PriceType::table)) << "not in the catalogue";
    EXPECT_TRUE(draft().setSecondPrice(PriceType::terrace));
    draft().setPrice(PriceType::terrace, 100, 10, 7.0);
    EXPECT_TRUE(draft().setSecondPrice(PriceType::night));
    EXPECT_EQ(draft().brandPrices[10][100],
              (std::map<PriceType, double>{{PriceType::main, 2.5}, {PriceType::night, 2.5}}));
    EXPECT_EQ(draft().priceOf(PriceType::night, 101, 10), 0.0);
    EXPECT_TRUE(draft().setSecondPrice(std::nullopt));
    EXPECT_EQ(draft().brandPrices[10][100].size(), 1U);
    catalogue.removeProduct(10);
    useCatalogue();
    EXPECT_EXIT(draft().setSecondPrice(PriceType::night), testing::ExitedWithCode(stoppedExitStatus),
                "brand 10");
}

TEST_F(Selection, LanguagesAreTakenTogetherOrNotAtAll) {
    EXPECT_FALSE(draft().setLanguages(9, std::nullopt));
    EXPECT_FALSE(draft().setLanguages(1, 9));
    EXPECT_EQ(draft().currentLanguages(), std::nullopt);
    EXPECT_TRUE(draft().setLanguages(1, 2));
    EXPECT_TRUE(draft().setLanguages(2, std::nullopt));
    EXPECT_EQ(draft().currentLanguages(), (Draft::MainAndSecondary{2, std::nullopt}));
    catalogue.brochures().languages.pop_back();
    useCatalogue();
    EXPECT_EQ(draft().currentLanguages(), std::nullopt);
}

TEST_F(Selection, LogosMustBeOfferedByThePrintedStyle) {
    EXPECT_FALSE(draft().setLogos(1, 2, 3, 1, 2, 3)) << "no style";
    draft().selectedStyleIdentifier = 1;
    EXPECT_FALSE(draft().setLogos(1, 2, 9, 1, 2, 3));
    EXPECT_TRUE(draft().setLogos(1, 1, 4, 7, 8, 9));
    EXPECT_EQ(draft().currentLogos(), (Draft::LogoIdentifiers{1, 1, 4, 7, 8, 9}));
    draft().selectedStyleIdentifier = 999;
    EXPECT_EQ(draft().currentLogos(), std::nullopt);
}

TEST_F(Selection, ReferencesAreCheckedWhenSet) {
    const auto set = [](Int id) {
        return std::vector<bool>{draft().setOrderSheet(id), draft().setPennantBrand(id),
                                 draft().setBrandQr(id), draft().setBlackboardFormat(id),
                                 draft().setBlackboardType(id)};
    };
    EXPECT_EQ(set(9), std::vector<bool>(5, false));
    EXPECT_EQ(set(1), std::vector<bool>(5, true));
    EXPECT_EQ(draft().isBlackboardFormatSelected(1), State::selected);
    EXPECT_EQ(draft().isBlackboardFormatSelected(9), State::unknown);
    draft().setBlackboardFormat(std::nullopt);
    EXPECT_EQ(draft().isBlackboardFormatSelected(1), State::notSelected);
}

TEST_F(Selection, LimitsOfBrandsFollowTheFormOfTheMenu) {
    auto& parameters = catalogue.parameters(BrochureType::beer);
    parameters.minBrandSelection = 2;
    parameters.maxBrandSelection = 9;
    parameters.minBrandListSelection = 3;
    const auto limits = [this](bool withForms, std::optional<Int> form) {
        catalogue.parameters(BrochureType::beer).withMenuFormat = withForms;
        useCatalogue();
        draft().selectedFormatVisualizeId = form;
        return std::pair(draft().minimumBrands(0), draft().maximumBrands(100));
    };
    using Limits = std::pair<Int, Int>;
    EXPECT_EQ(limits(true, 1), (Limits{2, 9}));
    EXPECT_EQ(limits(true, 2), (Limits{3, 100}));
    EXPECT_EQ(limits(true, std::nullopt), (Limits{3, 100}));
    EXPECT_EQ(limits(false, 2), (Limits{2, 9}));
    catalogue.type(BrochureType::beer).parameters.reset();
    useCatalogue();
    EXPECT_EXIT(static_cast<void>(draft().minimumBrands(0)), testing::ExitedWithCode(stoppedExitStatus),
                "parameters");
}

} // namespace
} // namespace kavor
