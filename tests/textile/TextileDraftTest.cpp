#include "base/StopProcess.h"
#include "base/json/Json.h"
#include "textile/TextileFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace kavor {
namespace {

using Draft = TextileIntermediateData;
using Line = SaveTextileOrder::Order::OrderLine;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class TextileDraft : public ::testing::Test {
protected:
    CatalogueBuilder builder;
    Draft draft;

    TextileDraft() {
        addTextile(builder);
        enterTextile(builder);
    }
    ~TextileDraft() override { leaveTextile(); }

    Textile& textile() { return *builder.information.textile; }
    const Textile::Item& article(Int id) const { return *TextileArticles::current().article(id); }
    void chooseBlackShirt() {
        draft.selectBrand(11);
        draft.selectFormatAndGender(1, 1);
        draft.selectColor(1);
    }
    static SaveTextileOrder orderOf(std::vector<Line> lines) {
        SaveTextileOrder order;
        order.orderInformation.message = "Sol";
        order.orderInformation.orderLines = std::move(lines);
        return order;
    }
    // "id x quantity" of each line of the order document.
    std::vector<std::string> document() const {
        std::vector<std::string> lines;
        for (const auto& [id, quantity] :
             draft.makeOrder(OrderRequestType::saveCloud, false).orderInformation.orderLines)
            lines.push_back(std::to_string(id) + " x " + std::to_string(quantity));
        return lines;
    }
};

TEST_F(TextileDraft, TakesASelectionThatTheCatalogueHasAndClearsWhatHangsOnIt) {
    EXPECT_FALSE(draft.selectFormatAndGender(1, 1)) << "no brand yet";
    EXPECT_FALSE(draft.selectColor(1));
    EXPECT_FALSE(draft.selectBrand(99));
    chooseBlackShirt();
    draft.setUnits(2, 5);
    EXPECT_FALSE(draft.selectFormatAndGender(2, 1)) << "an apron of the other brand";
    EXPECT_FALSE(draft.selectColor(3));
    EXPECT_EQ(draft.selectedColor(), 1) << "a failure changes nothing";
    EXPECT_EQ(draft.selectedSizes, (Draft::Sizes{{2, 5}}));

    EXPECT_TRUE(draft.selectFormatAndGender(1, 1)) << "the same again";
    EXPECT_FALSE(draft.selectedColorIdentifier);
    EXPECT_EQ(draft.selectedSizes, (Draft::Sizes{{2, 5}})) << "the sizes stay with another format";
    EXPECT_TRUE(draft.selectColor(1));
    EXPECT_THAT(draft.selectedSizes, IsEmpty());
    draft.setUnits(2, 5);
    EXPECT_TRUE(draft.selectBrand(11)) << "the same again";
    EXPECT_FALSE(draft.selectedFormatAndGenderIdentifier);
    EXPECT_THAT(draft.selectedSizes, IsEmpty());
}

TEST_F(TextileDraft, ClearsOneMemberAloneWhenNoneIsChosen) {
    chooseBlackShirt();
    draft.setUnits(2, 5);
    EXPECT_TRUE(draft.selectFormatAndGender(1, std::nullopt));
    EXPECT_FALSE(draft.selectedFormatAndGenderIdentifier);
    EXPECT_EQ(draft.selectedColorIdentifier, 1) << "the colour stays";
    EXPECT_TRUE(draft.selectBrand(std::nullopt));
    EXPECT_TRUE(draft.selectColor(std::nullopt));
    EXPECT_FALSE(draft.selectedColorIdentifier);
    EXPECT_EQ(draft.selectedSizes, (Draft::Sizes{{2, 5}}));
}

TEST_F(TextileDraft, AnswersNoSelectionThatLeftTheCatalogue) {
    chooseBlackShirt();
    std::erase_if(textile().items, [](const Textile::Item& each) { return each.colorIdentifier == 1; });
    enterTextile(builder);
    EXPECT_EQ(draft.selectedBrand(), 11);
    EXPECT_TRUE(draft.selectedFormat());
    EXPECT_FALSE(draft.selectedColor());
    std::erase_if(textile().items, [](const Textile::Item& each) { return each.brandIdentifier == 11; });
    enterTextile(builder);
    EXPECT_FALSE(draft.selectedBrand());
    EXPECT_FALSE(draft.selectedFormat());
}

TEST_F(TextileDraft, ShowsTheTypedSizesOrThoseOfTheCart) {
    EXPECT_FALSE(draft.setUnits(9, 1)) << "no such size";
    chooseBlackShirt();
    EXPECT_TRUE(draft.setUnits(4, 0)) << "a size that only aprons have";
    EXPECT_EQ(draft.sizes(true), (Draft::Sizes{{4, 0}}));
    EXPECT_EQ(draft.sizes(false), (Draft::Sizes{{4, 0}})) << "not in the cart yet";
    draft.order = {{{11, 1, 1, 1}, {{2, 4}, {3, 1}, {2, 5}}}};
    EXPECT_EQ(draft.sizes(false), (Draft::Sizes{{2, 9}, {3, 1}})) << "all that is ordered";
    EXPECT_EQ(draft.sizes(true), (Draft::Sizes{{4, 0}}));
    draft.selectColor(std::nullopt);
    EXPECT_FALSE(draft.sizes(true));
    EXPECT_FALSE(draft.sizes(false));
}

TEST_F(TextileDraft, KeepsOneEntryOfASizeAtTheEndOfItsLine) {
    EXPECT_TRUE(draft.addToCart(article(101), 3));
    EXPECT_TRUE(draft.addToCart(article(100), 2));
    EXPECT_TRUE(draft.addToCart(article(120), 1));
    EXPECT_TRUE(draft.addToCart(article(101), 3)) << "the same again moves";
    EXPECT_EQ(draft.order,
              (std::vector<Draft::OrderItem>{{{11, 1, 1, 1}, {{1, 2}, {2, 3}}}, {{10, 2, 1, 3}, {{4, 1}}}}));
    EXPECT_TRUE(draft.addToCart(article(104), 0)) << "what is not in the cart";
    EXPECT_EQ(draft.order.size(), 2U);
    EXPECT_TRUE(draft.addToCart(article(120), 0));
    ASSERT_EQ(draft.order.size(), 1U) << "a line without sizes goes";

    Textile::Item gone = article(100);
    gone.colorIdentifier = 3;
    EXPECT_FALSE(draft.addToCart(gone, 5));
    EXPECT_EQ(draft.totalUnits(), 5U);
    draft.order[0].sizes.push_back({2, 1}); // as a file may have it
    EXPECT_TRUE(draft.addToCart(article(101), 0));
    EXPECT_EQ(draft.order[0].sizes, (std::vector<Draft::SizeQuantity>{{1, 2}})) << "each entry of the size";
}

TEST_F(TextileDraft, RemembersTheLastColourOfEachFormat) {
    EXPECT_FALSE(draft.rememberColor(1)) << "nothing chosen";
    EXPECT_FALSE(draft.rememberedColor());
    draft.selectBrand(11);
    draft.selectFormatAndGender(1, 1);
    EXPECT_FALSE(draft.rememberColor(3)) << "no article";
    EXPECT_TRUE(draft.rememberColor(1));
    EXPECT_TRUE(draft.rememberColor(2));
    draft.selectFormatAndGender(1, 2);
    EXPECT_FALSE(draft.rememberedColor());
    draft.selectFormatAndGender(1, 1);
    EXPECT_EQ(draft.rememberedColor(), 2);
}

TEST_F(TextileDraft, TakesTheFirstOfWhatOccursTwice) {
    Textile::Item twin = textile().items.front(); // the same number, another colour
    twin.colorIdentifier = 3;
    textile().items.push_back(twin);
    Textile::Item further = textile().items.front(); // the same combination, another number
    further.identifier = 900;
    textile().items.push_back(further);
    enterTextile(builder);
    draft.loadOrder(orderOf({{100, 1}, {900, 2}}));
    EXPECT_EQ(draft.order, (std::vector<Draft::OrderItem>{{{11, 1, 1, 1}, {{1, 1}, {1, 2}}}}));
    EXPECT_THAT(document(), ElementsAre("100 x 1", "100 x 2"));
}

TEST_F(TextileDraft, LoadsAnOrderByCombinationAndWritesItAgain) {
    chooseBlackShirt();
    draft.loadOrder(orderOf({{130, 1}, {111, 2}, {101, 0}, {777, 9}, {120, 3}, {100, 4}, {101, 5}}));
    EXPECT_EQ(draft.selectedColor(), 1) << "the selection stays";
    EXPECT_THAT(document(), ElementsAre("120 x 3", "101 x 0", "100 x 4", "101 x 5", "111 x 2", "130 x 1"))
        << "lines by brand, format, model and colour, sizes as in the file, also what is not on offer";
    std::vector<Int> articles;
    for (const auto* each : draft.cartArticles())
        articles.push_back(each->identifier);
    EXPECT_THAT(articles, ElementsAre(120, 101, 100, 101, 111, 130));
    EXPECT_EQ(draft.totalUnits(), 15U);

    std::erase_if(textile().items,
                  [](const Textile::Item& each) { return each.identifier == 101 || each.identifier == 120; });
    enterTextile(builder);
    EXPECT_EXIT(static_cast<void>(document()), ::testing::ExitedWithCode(stoppedExitStatus), "article");
    EXPECT_TRUE(draft.removeGoneArticles());
    EXPECT_THAT(document(), ElementsAre("100 x 4", "111 x 2", "130 x 1"));
    EXPECT_FALSE(draft.removeGoneArticles());
}

TEST_F(TextileDraft, MakesTheDocumentOfItsSection) {
    fillTextile(draft);
    draft.orderComment = "Urgente";
    draft.filename = "Sol";
    draft.orderIdentifier = 5;
    draft.customer->placeProvinceId = 28;
    EXPECT_EQ(*json::encode(draft.makeOrder(OrderRequestType::sendToPrint, true)),
              R"({"save":1,"order":{"message":"Bar Sol","application_type_id":8,"typography_id":2,)"
              R"("orderComment":"Urgente","lines":[{"textil_id":101,"quantity":4},)"
              R"({"textil_id":102,"quantity":2}]},"customer":{"name":"Bar Sol","email":"ana@sol.example",)"
              R"("telephone":"600","tevo":"77","placeProvinceId":28},"name_archive_tablet":"Sol","id":5})");
    Draft again;
    again.loadOrder(draft.makeOrder(OrderRequestType::saveCloud, true));
    EXPECT_EQ(*json::encode(again.makeOrder(OrderRequestType::sendToPrint, true)),
              *json::encode(draft.makeOrder(OrderRequestType::sendToPrint, true)));

    AppSingleton::shared().actualApplicationType = ApplicationType::textilWine;
    EXPECT_EQ(*json::encode(Draft().makeOrder(OrderRequestType::saveCloud, false)),
              R"({"save":3,"order":{"message":"","application_type_id":21,"lines":[]}})");
    EXPECT_EXIT(static_cast<void>(Draft().makeOrder(OrderRequestType::saveCloud, true)),
                ::testing::ExitedWithCode(stoppedExitStatus), "Fatal error");
    AppSingleton::shared().actualApplicationType.reset();
    EXPECT_EXIT(static_cast<void>(document()), ::testing::ExitedWithCode(stoppedExitStatus), "section");
}

TEST_F(TextileDraft, ListsAllThatItLacksInAFixedOrder) {
    EXPECT_THAT(draft.validate(), ElementsAre("El cliente no es válido", "Debe rellenar el texto a mostrar",
                                              "El carrito debe contener al menos 6 artículos.",
                                              "Seleccione una tipografía válida"));
    draft.customer = SaveTextileOrder::Customer{};
    draft.customizedText = "";
    draft.typographyIdentifier = 99;
    EXPECT_THAT(draft.validate(),
                ElementsAre("Debe rellenar primero el código cliente.", "Debe introducir un email.",
                            "Debe introducir un teléfono.", "Debe rellenar el texto a mostrar",
                            "El carrito debe contener al menos 6 artículos.",
                            "Seleccione una tipografía válida"))
        << "a name and a contact that are unset pass";
    fillTextile(draft);
    EXPECT_THAT(draft.validate(), IsEmpty());
    draft.customer->name = draft.customer->contactName = draft.customer->tevo = "";
    EXPECT_THAT(draft.validate(), ElementsAre("Debe rellenar primero el código cliente.",
                                              "Debe rellenar primero el nombre del establecimiento.",
                                              "Debe introducir un nombre de contacto."));
}

TEST_F(TextileDraft, CountsTheTextByCharactersAndTheCartByUnits) {
    fillTextile(draft);
    draft.customizedText = "Peñas 🇪🇸 ÀB"; // ten characters, the flag of eight bytes
    EXPECT_THAT(draft.validate(), IsEmpty());
    draft.customizedText = *draft.customizedText + "!";
    EXPECT_THAT(draft.validate(), ElementsAre("El texto a mostrar debe de tener una longitud máxima de 10"));
    draft.customizedText = " ";
    EXPECT_THAT(draft.validate(), IsEmpty()) << "blanks are a text";

    draft.order[0].sizes = {{2, 5}};
    EXPECT_THAT(draft.validate(), ElementsAre("El carrito debe contener al menos 6 artículos."));
    draft.order[0].sizes = {{2, std::numeric_limits<UInt>::max()}, {3, 2}};
    EXPECT_THAT(draft.validate(), IsEmpty()) << "the sum does not begin at 0 again";
    draft.order.clear();
    for (const Int none : {0, -3}) {
        textile().validations.minimumOrderAmount = none;
        enterTextile(builder);
        EXPECT_THAT(draft.validate(), IsEmpty());
    }
}

TEST_F(TextileDraft, StopsWithoutATextileCatalogue) {
    builder.information.textile.reset();
    AppSingleton::shared().applicationInformation = builder.take();
    EXPECT_EXIT(draft.selectBrand(11), ::testing::ExitedWithCode(stoppedExitStatus), "textile catalogue");
}

TEST_F(TextileDraft, ReadsOldAndNewKindsOfSave) {
    const auto saved = [](const std::string& save) {
        return json::decode<SaveTextileOrder>(
            R"({"save":)" + save + R"(,"order":{"message":"","application_type_id":8,"lines":[]}})");
    };
    EXPECT_EQ(saved("true")->save, OrderRequestType::sendToPrint);
    EXPECT_EQ(saved("false")->save, OrderRequestType::sendPreview);
    EXPECT_EQ(saved("3")->save, OrderRequestType::saveCloud);
    for (const char* other : {"0", "4", "1.0", "null", "\"1\""})
        EXPECT_FALSE(saved(other)) << other;
}

TEST_F(TextileDraft, ComesBackFromTheServerAsTheOrderThatItWas) {
    const auto answer = json::decode<RetrieveTextileOrderResponse>(
        R"({"code":0,"msg":"","customer":{"tevo":"77"},"order":{"id":12,"application_type_id":21,)"
        R"("token":"t","fecha":"06-05-2024 10:00:00","estadoId":2,"estado":"En la nube","nota":"Ojo",)"
        R"("pendiente":false,"name_archive_tablet":"Sol","typography_id":1,"message":"Sol",)"
        R"("lines":[{"textil_id":130,"quantity":6}]}})");
    ASSERT_TRUE(answer) << answer.error().text();
    EXPECT_EQ(*json::encode(savedOrder(*answer)),
              R"({"save":1,"order":{"message":"Sol","application_type_id":21,"typography_id":1,)"
              R"("orderComment":"Ojo","lines":[{"textil_id":130,"quantity":6}]},"customer":{"tevo":"77"},)"
              R"("name_archive_tablet":"Sol","id":12})");
}

} // namespace
} // namespace kavor
