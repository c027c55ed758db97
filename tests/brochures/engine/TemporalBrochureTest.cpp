#include "brochures/engine/DraftTest.h"
#include "support/LogCapture.h"

#include <filesystem>

namespace kavor {

namespace {

using Draft = BrochureIntermediateData;
using Names = std::set<std::string>;

class TemporalBrochureTest : public DraftTest {
public:
    static TemporalBrochure& temporal() { return TemporalBrochure::shared(); }
    void writeDraftOf(const std::string& name) {
        complete();
        draft().fileName = name;
        temporal().write(draft());
        temporal().flush();
    }
    const std::string copy = "temporalBrochure";
    const std::string recovery = "temporalBrochure.recovery";
};

TEST_F(TemporalBrochureTest, OpeningTakesTheCopyIntoANewDraft) {
    EXPECT_FALSE(temporal().restoreDraft());
    writeDraftOf("La Esquina");
    const auto before = documentOf(draft().makeOrder(OrderRequestType::saveCloud, false));
    const auto old = Draft::temporalBrochure();
    EXPECT_TRUE(temporal().restoreDraft());
    EXPECT_NE(Draft::temporalBrochure(), old);
    EXPECT_EQ(documentOf(draft().makeOrder(OrderRequestType::saveCloud, false)), before);
    temporal().flush();
    EXPECT_EQ(folder.content(copy), "") << "gone until the next write";
    temporal().write(draft());
    temporal().flush();
    EXPECT_EQ(folder.names(), Names{copy});
}

TEST_F(TemporalBrochureTest, AProcessThatDiesBetweenOpeningAndWritingLosesNothing) {
    writeDraftOf("La Esquina");
    for (int death = 0; death < 3; ++death) {
        Draft::replaceTemporalBrochure();
        ASSERT_TRUE(temporal().restoreDraft());
        EXPECT_EQ(draft().fileName, "La Esquina");
        EXPECT_EQ(draft().selectedBrands.size(), 2U);
    }
}

TEST_F(TemporalBrochureTest, ResetAndSendingLeaveNeitherCopy) {
    writeDraftOf("La Esquina");
    ASSERT_TRUE(temporal().restoreDraft());
    temporal().removeAll();
    EXPECT_FALSE(temporal().restoreDraft());
    EXPECT_TRUE(folder.names().empty());
}

TEST_F(TemporalBrochureTest, LoadingAnotherOrderDropsTheDraftThatWasInWork) {
    writeDraftOf("La Esquina");
    const auto other = draft().makeOrder(OrderRequestType::saveCloud, false);
    ASSERT_TRUE(temporal().restoreDraft()); // leaves a recovery copy
    Draft::replaceTemporalBrochure()->loadOrder(other);
    EXPECT_FALSE(temporal().restoreDraft()) << "the wizard must go on with the order just loaded";
    EXPECT_TRUE(folder.names().empty());
}

TEST_F(TemporalBrochureTest, AWriteThatFailsKeepsTheRecoveryCopy) {
    const LogCapture log;
    writeDraftOf("La Esquina");
    ASSERT_TRUE(temporal().restoreDraft());
    std::filesystem::create_directories(folder / copy / "in the way"); // a folder can't be replaced by a file
    temporal().write(draft());
    temporal().flush();
    EXPECT_EQ(log.startingWith("Error occurred when serializing file \"" + (folder / copy).string() + "\""),
              1);
    std::filesystem::remove_all(folder / copy);
    EXPECT_TRUE(temporal().restoreDraft());
}

TEST_F(TemporalBrochureTest, ABrokenCopyGivesWayToTheRecoveryCopy) {
    writeDraftOf("La Esquina");
    ASSERT_TRUE(temporal().takeForOpening(BrochureType::beer));
    folder.put(copy, "{\"save\":");
    const LogCapture log;
    EXPECT_TRUE(temporal().takeForOpening(BrochureType::beer));
    EXPECT_EQ(log.startingWith("temporalBrochure: not a JSON document"), 1);
}

TEST_F(TemporalBrochureTest, TheLastOfManyWritesStands) {
    complete();
    for (int copies = 1; copies <= 200; ++copies) {
        draft().selectedNumberOfBrochures->main = copies;
        temporal().write(draft());
    }
    const auto order = temporal().takeForOpening(BrochureType::beer);
    ASSERT_TRUE(order);
    EXPECT_EQ(order->orderLines.front().quantity, 200);
}

TEST_F(TemporalBrochureTest, WithoutADocumentsFolderNothingIsKept) {
    session().setFolders({}, {});
    complete();
    temporal().write(draft());
    EXPECT_FALSE(temporal().restoreDraft());
    EXPECT_TRUE(folder.names().empty());
    EXPECT_FALSE(std::filesystem::exists(copy));
}

} // namespace
} // namespace kavor
