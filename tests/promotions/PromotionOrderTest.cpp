#include "base/json/Json.h"
#include "promotions/PromotionFixture.h"
#include "promotions/UnfinishedPromotion.h"
#include "session/AppSingleton.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace kavor {
namespace {

class PromotionForm : public ::testing::Test {
protected:
    CatalogueBuilder builder;
    std::shared_ptr<const Catalogue> catalogue;
    PromotionTuple tapa;
    PromotionTuple feria;
    PromotionDraft draft;

    PromotionForm() {
        addPromotions(builder);
        catalogue = builder.take();
        const auto& promotions = catalogue->information().promotion->promotions;
        tapa = promotionTuple(promotions[1], 1);
        feria = promotionTuple(promotions[2]);
        draft.promotionId = 1;
        draft.languageId = 1;
        draft.name = "Bar Sol";
        draft.formats = {102, 101, 999};
        draft.attributes = {
            {14, "De 18 a 20", {}}, {13, "1,5", {}}, {12, "Noche", 121}, {11, "data:image", {}}};
        draft.emails = {"", "ana@sol.example", ""};
    }
    PromotionOrder order(OrderRequestType type = OrderRequestType::sendToPrint) const {
        return makePromotionOrder(draft, tapa, catalogue->information().attributesTypes, type);
    }
    std::vector<std::string> errors(bool codeRequired = false) const {
        return promotionErrors(order(), tapa.attributes, codeRequired);
    }
};

TEST_F(PromotionForm, BecomesAnOrderOfWhatWasChosenAndLeavesTheRestOut) {
    EXPECT_EQ(
        *json::encode(order()),
        R"({"save":true,"promotion_id":1,"emails":[{"email":"ana@sol.example"}],)"
        R"("supports":[{"id":101,"language_id":1},{"id":102,"language_id":1}],)"
        R"("attributes":[{"id":12,"value":"Noche"},{"id":13,"value":"1,5"},{"id":14,"value":"De 18 a 20"}],)"
        R"("customer":{"name":"Bar Sol"},"show_menu":false,"show_promotion_day_1":true,)"
        R"("show_promotion_day_2":true,"show_promotion_day_3":true,"show_promotion_day_4":true,)"
        R"("show_promotion_day_5":true,"show_promotion_day_6":true,"show_promotion_day_7":true})");
    draft.customerId = 4;
    draft.code = "77";
    draft.imageLogo = "data:image/png;base64,AA";
    draft.comment = "Urgente";
    draft.validity = {"01-05-26", "31-05-26", true, {1, 7}};
    draft.languageId = 2;
    const PromotionOrder full = order(OrderRequestType::sendPreview);
    EXPECT_FALSE(full.save);
    EXPECT_EQ(full.imageLogo, "data:image/png;base64,AA");
    EXPECT_EQ(full.supports[1].languageId, 2);
    EXPECT_TRUE(full.customer.id == 4 && full.customer.codTevo == "77" && full.comment == "Urgente");
    EXPECT_TRUE(full.showMenu && full.showPromotionDay1 && full.showPromotionDay7 &&
                full.dateTo == "31-05-26");
    EXPECT_FALSE(full.showPromotionDay2 || full.showPromotionDay6);
    draft.name.clear();
    EXPECT_EQ(order().customer.name, "") << "the name always goes along";
}

TEST_F(PromotionForm, OfAPromotionThatTheOnlineMenuDoesNotShowHasNoValidityAndWithoutALogoToFillNoLogo) {
    draft.formats = {301};
    draft.imageLogo = "data:image/png;base64,AA";
    draft.validity.showMenu = true;
    draft.validity.dateFrom = "01-05-26";
    const auto made = makePromotionOrder(draft, feria, catalogue->information().attributesTypes,
                                         OrderRequestType::sendToPrint);
    EXPECT_FALSE(made.showMenu || made.showPromotionDay1 || made.showPromotionDay7 || made.dateFrom);
    EXPECT_FALSE(made.imageLogo);
    EXPECT_TRUE(made.attributes.empty()) << "what another promotion asked for";
}

TEST_F(PromotionForm, NamesEverythingThatIsMissingAtOnceAndInItsOrder) {
    EXPECT_TRUE(errors().empty());
    draft.name.clear();
    draft.formats.clear();
    draft.attributes[1].value = "mucho";
    EXPECT_EQ(errors(true),
              (std::vector<std::string>{"El código cliente debe informarse.",
                                        "El nombre del establecimiento es obligatorio.",
                                        "No hay ningún formato seleccionado, seleccione al menos uno.",
                                        "El precio no es válido."}));
    for (const char* price : {"", "3", "3.50", "3,50", "1.200,5"}) {
        draft.attributes[1].value = price;
        EXPECT_EQ(errors().size(), 2U) << price;
    }
}

TEST_F(PromotionForm, BecomesAPromotionOfAMenuThatKeepsItsIdWhenItIsEdited) {
    const MenuPromotion added = makeMenuPromotion(draft, tapa, {});
    EXPECT_EQ(added,
              (MenuPromotion{
                  {},
                  1,
                  "Martes de tapa",
                  "Encina",
                  {{11, "data:image", {}}, {12, "Noche", 121}, {13, "1,5", {}}, {14, "De 18 a 20", {}}}}));
    EXPECT_TRUE(menuPromotionErrors(added, tapa.attributes).empty());
    draft.attributes[1].value = "x";
    const MenuPromotion edited = makeMenuPromotion(draft, tapa, MenuPromotion{55, 1, {}, {}, {}});
    EXPECT_EQ(edited.id, 55);
    EXPECT_EQ(menuPromotionErrors(edited, tapa.attributes),
              std::vector<std::string>{"El precio no es válido."});
}

class UnfinishedPromotionTest : public PromotionForm {
protected:
    TemporaryFolder folder;
    UnfinishedPromotion& unfinished = UnfinishedPromotion::shared();

    UnfinishedPromotionTest() { AppSingleton::shared().setFolders(folder.path(), folder.path()); }
    ~UnfinishedPromotionTest() override {
        BackgroundFileWriter::shared().flush();
        AppSingleton::shared().setFolders({}, {});
    }
};

TEST_F(UnfinishedPromotionTest, EachPromotionComesBackAsItWasUntilItIsSentOrEmptied) {
    draft.unansweredSends = {{"content", "key", false}};
    const auto first = unfinished.open(1);
    EXPECT_EQ(unfinished.takeWord(), "");
    *first = draft;
    unfinished.keep(*first);
    const auto second = unfinished.open(2);
    EXPECT_TRUE(second->promotionId == 2 && !holdsWork(*second));
    unfinished.keep(*first); // a late answer of a form that was left
    second->comment = "Para el viernes";
    unfinished.keep(*second);
    EXPECT_EQ(*unfinished.open(1), draft);
    EXPECT_EQ(unfinished.takeWord(), "Se ha recuperado la promoción en curso");
    EXPECT_EQ(unfinished.open(2)->comment, "Para el viernes");
    const auto emptied = unfinished.open(2);
    emptied->comment.clear();
    emptied->emails = {""};
    unfinished.keep(*emptied);
    EXPECT_TRUE(unfinished.open(2)->emails.empty());
    unfinished.sent(*unfinished.open(1));
    EXPECT_EQ(unfinished.open(1)->name, "");
    unfinished.flush();
    EXPECT_TRUE(folder.names().empty());
}

} // namespace
} // namespace kavor
