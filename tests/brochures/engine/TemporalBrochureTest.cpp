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
    // Opens the wizard in the section of a kind; answers the file name of the menu that came back.
    std::string open(BrochureType kind) {
        enter(kind);
        return temporal().restoreDraft() ? *draft().fileName : "";
    }
    // The content that a copy of a kind has.
    std::string menuOf(BrochureType kind, const std::string& name) {
        enter(kind);
        Draft::replaceTemporalBrochure();
        complete();
        draft().fileName = name;
        return json::encode(draft().makeOrder(OrderRequestType::saveCloud, false)).value();
    }
    static constexpr auto beer = BrochureType::beer, wine = BrochureType::wineA4;
    const std::string copy = "temporalBrochure";
    const std::string recovery = "temporalBrochure.recovery";
    const std::string beerAside = "temporalBrochure.type1";
    const std::string wineAside = "temporalBrochure.type12";
    const std::string unreadable = "temporalBrochure.unreadable";
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

TEST_F(TemporalBrochureTest, EachKindHasAnUnfinishedMenuOfItsOwn) {
    EXPECT_EQ(open(beer), "");
    writeDraftOf("La Esquina");
    draft().includeDigitalBrochure = false;
    EXPECT_EQ(open(wine), "");
    EXPECT_TRUE(draft().selectedBrands.empty() && draft().includeDigitalBrochure) << "a new draft";
    EXPECT_EQ(folder.names(), Names{beerAside});
    writeDraftOf("Bodega");
    EXPECT_EQ(open(beer), "La Esquina");
    EXPECT_EQ(folder.names(), (Names{recovery, wineAside}));
    EXPECT_EQ(open(wine), "Bodega") << "nothing was written in between";
    temporal().removeAll(); // the reset, of this kind alone
    temporal().flush();
    EXPECT_EQ(folder.names(), Names{beerAside});
    EXPECT_EQ(open(beer), "La Esquina");
    const auto mode = std::filesystem::status(folder / recovery).permissions();
    EXPECT_EQ(mode, std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
}

// Where a process that opens, writes and changes kinds may die, and what stands on disk then.
TEST_F(TemporalBrochureTest, ADeathAtAnyMomentLosesNoMenuAndBringsNoneBackTwice) {
    const std::string cask = menuOf(beer, "La Esquina"), older = menuOf(beer, "La Esquina, antes"),
                      red = menuOf(wine, "Bodega");
    using Files = std::map<std::string, std::string>;
    for (const Files& files :
         {Files{{copy, cask}, {wineAside, red}}, Files{{copy, red}, {beerAside, cask}},
          Files{{beerAside, cask}, {wineAside, red}}, Files{{recovery, red}, {beerAside, cask}},
          Files{{recovery, cask}, {wineAside, red}}, Files{{copy, cask}, {recovery, older}, {wineAside, red}},
          Files{{copy, cask}, {recovery, red}}}) {
        for (const auto& [first, second] : {std::pair(beer, wine), std::pair(wine, beer)}) {
            for (const auto& name : folder.names())
                std::filesystem::remove(folder / name);
            for (const auto& [name, content] : files)
                folder.put(name, content);
            Draft::replaceTemporalBrochure(); // as a new process has it
            for (const auto kind : {first, second, first}) {
                EXPECT_EQ(open(kind), kind == beer ? "La Esquina" : "Bodega")
                    << files.begin()->first << " and " << files.rbegin()->first;
            }
            temporal().removeAll();
            EXPECT_NE(open(second), "");
            temporal().removeAll();
            temporal().flush();
            EXPECT_TRUE(folder.names().empty());
        }
    }
}

TEST_F(TemporalBrochureTest, TwoOfAKindComeBackOneAfterTheOther) {
    folder.put(beerAside, menuOf(beer, "La primera"));
    folder.put(copy, menuOf(beer, "La segunda"));
    EXPECT_EQ(open(wine), "");
    EXPECT_EQ(folder.names(), (Names{beerAside, beerAside + "-2"}));
    EXPECT_EQ(open(beer), "La segunda");
    temporal().removeAll();
    Draft::replaceTemporalBrochure(); // it was sent
    EXPECT_EQ(open(beer), "La primera");
}

TEST_F(TemporalBrochureTest, WhatCantBeReadIsSetAsideAndStays) {
    const std::string broken = "{\"save\":";
    const std::string nameless = JsonData::of(menuOf(beer, "Sin marca")).remove("menu.items.0.brand").text();
    const LogCapture log;
    for (const auto& content : {broken, nameless}) {
        folder.put(copy, content);
        EXPECT_EQ(open(beer), "");
    }
    folder.put(beerAside, broken);
    EXPECT_EQ(open(wine), "");
    EXPECT_EQ(open(beer), "");
    EXPECT_EQ(folder.names(), (Names{unreadable, unreadable + "-2", unreadable + "-3"}));
    EXPECT_EQ(folder.content(unreadable), broken);
    EXPECT_EQ(folder.content(unreadable + "-2"), nameless);
}

TEST_F(TemporalBrochureTest, AnOrderThatIsLoadedGoesBeforeMenusOfItsKindAndLeavesThoseOfOthers) {
    const auto order = json::decode<SaveBrochuresOrder>(menuOf(wine, "Del archivo")).value();
    folder.put(copy, menuOf(beer, "La Esquina"));
    folder.put(wineAside, menuOf(wine, "Bodega"));
    enter(wine);
    Draft::replaceTemporalBrochure()->loadOrder(order);
    draft().fileName = "Del archivo";
    EXPECT_EQ(open(wine), "");
    EXPECT_EQ(draft().fileName, "Del archivo") << "the wizard goes on with the order just loaded";
    EXPECT_EQ(folder.names(), (Names{beerAside, wineAside}));
}

} // namespace
} // namespace kavor
