#include "textile/UnfinishedTextile.h"

#include "base/json/Json.h"
#include "support/TemporaryFolder.h"
#include "textile/TextileFixture.h"

#include <gtest/gtest.h>

namespace kavor {
namespace {

using Draft = TextileIntermediateData;

class UnfinishedTextileTest : public ::testing::Test {
protected:
    TemporaryFolder folder;
    CatalogueBuilder builder;
    UnfinishedTextile& unfinished = UnfinishedTextile::shared();

    UnfinishedTextileTest() {
        AppSingleton::shared().setFolders(folder.path(), folder.path());
        addTextile(builder);
        enterTextile(builder);
    }
    ~UnfinishedTextileTest() override {
        unfinished.flush();
        AppSingleton::shared().setFolders({}, {});
        leaveTextile();
    }

    static Draft& draft() { return *Draft::shared(); }
    // The process dies, and the section is opened again.
    void dieAndOpen() {
        unfinished.flush();
        Draft::setShared(std::make_shared<Draft>());
        unfinished.open();
    }
};

TEST_F(UnfinishedTextileTest, TheWholeDraftComesBackWithAWord) {
    unfinished.open();
    EXPECT_EQ(unfinished.takeWord(), "");
    fillTextile(draft());
    draft().selectBrand(11);
    draft().selectFormatAndGender(1, 1);
    draft().selectColor(2);
    draft().rememberColor(2);
    draft().setUnits(3, 7);
    draft().orderComment = "Urgente";
    draft().filename = "Sol";
    draft().outboxFile = "Sin enviar";
    draft().orderIdentifier = 12;
    draft().section = ApplicationType::textilWine;
    draft().unansweredSends = {{"content", "key", true}};
    draft().order.push_back({{99, 1, 1, 1}, {{1, 2}}}); // whatever the catalogue says by then
    unfinished.keep();
    const auto before = *json::encode(recordOf(draft()));
    dieAndOpen();
    EXPECT_EQ(*json::encode(recordOf(draft())), before);
    EXPECT_EQ(draft().sizes(true), (Draft::Sizes{{3, 7}}));
    EXPECT_EQ(draft().rememberedColor(), 2);
    EXPECT_EQ(unfinished.takeWord(), "Se ha recuperado el pedido de textil en curso");
}

TEST_F(UnfinishedTextileTest, NothingIsSaidOfABrandThatWasOnlyLookedAt) {
    draft().selectBrand(11);
    unfinished.keep();
    dieAndOpen();
    EXPECT_EQ(draft().selectedBrand(), 11);
    EXPECT_EQ(unfinished.takeWord(), "");
    draft().selectBrand(std::nullopt);
    unfinished.keep();
    unfinished.flush();
    EXPECT_TRUE(folder.names().empty()) << "an empty draft leaves nothing";
}

TEST_F(UnfinishedTextileTest, WhatWasSentOrResetDoesNotComeBack) {
    fillTextile(draft());
    unfinished.keep();
    draft().orderURL = "http://server.example/orders/1";
    unfinished.removeAll();
    unfinished.keep();
    unfinished.open();
    EXPECT_TRUE(draft().order.empty()) << "leaving the section ends a draft that was sent";
    fillTextile(draft());
    unfinished.keep();
    unfinished.beginAnew();
    dieAndOpen();
    EXPECT_TRUE(draft().order.empty());
}

TEST_F(UnfinishedTextileTest, AnOrderToEditTakesThePlaceOfTheDraftAndKnowsItsSends) {
    fillTextile(draft());
    draft().unansweredSends = {{"one", "former", false}, {"two", "former", false}};
    unfinished.keep();
    TextileOrderToEdit toEdit;
    toEdit.order.orderInformation.message = "Luna";
    toEdit.order.orderInformation.applicationType = ApplicationType::textilWine;
    toEdit.order.filename = "otro nombre";
    toEdit.filename = "Luna";
    toEdit.unansweredSends = {{"two", "of the file", false}};
    unfinished.open(toEdit);
    dieAndOpen();
    EXPECT_EQ(draft().customizedText, "Luna");
    EXPECT_EQ(draft().filename, "Luna");
    EXPECT_EQ(draft().section, ApplicationType::textilWine);
    EXPECT_TRUE(draft().order.empty());
    EXPECT_EQ(draft().unansweredSends,
              (UnansweredSends{{"two", "of the file", false}, {"one", "former", false}}));
}

} // namespace
} // namespace kavor
