#include "base/StopProcess.h"
#include "brochures/engine/DraftTest.h"
#include "brochures/engine/OrderToEdit.h"
#include "brochures/engine/RetrievedOrder.h"
#include "catalogue/OwnBrand.h"

#include <limits>

namespace kavor {

namespace {

using Draft = BrochureIntermediateData;

class LoadOrder : public DraftTest {
public:
    static JsonData document() { return JsonData::ofFile(KAVOR_TEST_DATA "/beer_order.json"); }
    static SaveBrochuresOrder read(const JsonData& data) {
        return json::decode<SaveBrochuresOrder>(data.text()).value();
    }
    static Draft& load(const JsonData& data) {
        Draft::replaceTemporalBrochure()->loadOrder(read(data));
        return draft();
    }
    static std::string problem(const JsonData& data) {
        const auto order = json::decode<SaveBrochuresOrder>(data.text());
        return order ? "" : order.error().text();
    }
};

TEST_F(LoadOrder, TheReaderOfFilesTakesOlderFormsAndNoOthers) {
    const auto with = [](const char* path, const char* value) { return document().set(path, value); };
    const auto without = [](const char* path) { return document().remove(path); };
    EXPECT_EQ(read(with("save", "true")).save, OrderRequestType::sendToPrint);
    EXPECT_EQ(read(with("save", "false")).save, OrderRequestType::sendPreview);
    EXPECT_EQ(read(with("save", "2")).save, OrderRequestType::sendPreview);
    EXPECT_EQ(problem(with("save", "4")), "save: expected one of 1, 2, 3, found 4");
    EXPECT_EQ(problem(with("save", "\"1\"")), "save: expected integer, found string");
    EXPECT_EQ(problem(with("order_lines.1.price", "4")),
              "order_lines[1].price: expected one of 1, 2, 3, 5, found 4");
    EXPECT_EQ(problem(with("menu.order_type", "8")).substr(0, 32), "menu.order_type: expected one of");
    for (const auto* flag : {"with_digital_menu", "with_digital_menu_print", "with_default_menu",
                             "with_pennant", "includeDigitalBrochureTmp", "printDigitalBrochureTmp",
                             "includePaperBrochureTmp", "withPennantTmp"}) {
        EXPECT_EQ(problem(with(flag, "0")), std::string(flag) + ": expected boolean, found integer");
        for (const auto& each : {without(flag), with(flag, "null")})
            EXPECT_EQ(JsonData::of(json::encode(read(each)).value()).at(flag).text(), "true") << flag;
    }
    for (const auto* value : {"true", "null", "\"x\"", "[]"})
        EXPECT_FALSE(read(with("printed_myself", value)).printedMyself);
    for (const auto* path :
         {"menu.items.0.brand", "menu.items.0.sub_items.0.product", "menu.items.0.name",
          "menu.items.0.description", "menu.promotions.0.id", "menu.promotions.0.brand_name",
          "name_archive_tablet", "id", "order_copy", "menu.other_drinks", "menu.bottles"})
        EXPECT_EQ(problem(without(path)), "") << path;
    EXPECT_EQ(read(with("menu.items.0.sub_items.0.sub_item_prices.0.price_type", "4")).menu.beerBrands.size(),
              2U);
}

TEST_F(LoadOrder, WhatLeftTheCatalogueFallsOut) {
    auto file = document();
    for (const auto* key :
         {"style", "style_digital_id", "style_pennant_id", "comandero_id", "pennant_brand_id"})
        file.set(std::string("menu.") + key, "999");
    file.set("menu.items.0.brand", "99").set("menu.items.1.sub_items.0.product", "999");
    const auto& order = load(file);
    EXPECT_FALSE(order.selectedStyleIdentifier || order.selectedStyleDigitalIdentifier ||
                 order.selectedStylePennantIdentifier || order.selectedOrderSheetIdentifier ||
                 order.selectedPennantBrandIdentifier || order.selectedLogoIdentifiers);
    EXPECT_TRUE(order.selectedBrands.empty() && order.brandPrices.empty());
    EXPECT_EQ(order.customerInformation->name, "Bar La Esquina");
    EXPECT_EQ(order.brandQrTypeSelected, 1);
}

TEST_F(LoadOrder, QuantitiesNeedTheLanguagesAndTheLastSecondLineWins) {
    using Pair = std::optional<Draft::MainAndSecondary>;
    const auto quantities = [](const char* lines, const char* language = "1") {
        load(document().set("order_lines", lines).set("menu.language1_id", language));
        return draft().selectedNumberOfBrochures;
    };
    EXPECT_EQ(quantities(R"([{"price":1,"quantity":9}])"), (Pair{{9, 0}})) << "the second is 0, not unset";
    EXPECT_EQ(draft().selectedSecondPriceIdentifier, std::nullopt);
    EXPECT_EQ(quantities(R"([{"price":2,"quantity":3},{"price":1,"quantity":9},{"price":5,"quantity":4}])"),
              (Pair{{9, 4}}));
    EXPECT_EQ(draft().selectedSecondPriceIdentifier, PriceType::night);
    EXPECT_EQ(quantities(R"([{"price":5,"quantity":4}])"), std::nullopt);
    EXPECT_EQ(quantities(R"([{"price":1,"quantity":9},{"price":3,"quantity":4}])"), (Pair{{9, 4}}));
    EXPECT_EQ(draft().selectedSecondPriceIdentifier, std::nullopt) << "not in the catalogue";
    EXPECT_EQ(quantities(R"([{"price":1,"quantity":9},{"price":5,"quantity":4}])", "9"), std::nullopt);
    EXPECT_EQ(draft().selectedLanguageIdentifiers, std::nullopt);
    EXPECT_EQ(draft().selectedSecondPriceIdentifier, PriceType::night);
}

TEST_F(LoadOrder, WithoutASecondNumberItCanBeSentAsItCameWhereverItIsOpenedFrom) {
    complete();
    const auto order = draft().makeOrder(OrderRequestType::saveCloud, false);
    const auto messages = [&] {
        draft().brochureTypeParameters = catalogue.parameters(BrochureType::beer);
        return draft().validationErrors();
    };
    openOrder({order, {}, {}, {}});
    EXPECT_EQ(messages(), std::vector<std::string>());
    TemporalBrochure::shared().write(draft());
    TemporalBrochure::shared().flush();
    ASSERT_TRUE(TemporalBrochure::shared().restoreDraft());
    EXPECT_EQ(messages(), std::vector<std::string>());
}

TEST_F(LoadOrder, LogosAreTakenInThreesAndNumberedAnew) {
    EXPECT_EQ(load(document().set("menu.bottles",
                                  R"([{"id":3,"position":9},{"id":2,"position":9},{"id":1,"position":9}])"))
                  .selectedLogoIdentifiers,
              (Draft::LogoIdentifiers{3, 2, 1, 1, 2, 3}));
    EXPECT_EQ(load(document().set("menu.bottles", R"([{"id":3,"position":1},{"id":2,"position":2}])"))
                  .selectedLogoIdentifiers,
              std::nullopt);
}

TEST_F(LoadOrder, BrandsTakeTheirValuesAndAnyUnknownColumnIsTheMainOne) {
    auto file = document().set("menu.items.0.sub_items.0.sub_item_prices",
                               R"([{"price_type":4,"price":8},{"price_type":3,"price":9}])");
    const auto& order = load(file.set("menu.product_featured_id", "110"));
    EXPECT_EQ(order.brandPrices.at(10).at(100),
              (std::map<PriceType, double>{
                  {PriceType::main, 8.0}, {PriceType::table, 9.0}, {PriceType::night, 2.5}}));
    EXPECT_EQ(order.volumeOf(100, 10), 33);
    EXPECT_EQ(order.isNewProduct(101, 10), true);
    EXPECT_EQ(order.highlightedBrands, (Draft::FormatsOfBrands{{11, {110}}}));
    EXPECT_TRUE(load(document().set("menu.product_featured_id", "101")).highlightedBrands.empty())
        << "not highlightable";
}

TEST_F(LoadOrder, AChalkboardThatLostItsFormatShowsAtValidation) {
    enter(BrochureType::chalkboard);
    const auto& order = load(document()
                                 .set("menu.order_type", "5")
                                 .set("menu.blackboard_format_id", "9")
                                 .set("menu.blackboard_type_id", "1"));
    EXPECT_EQ(order.selectedFormatIdentifier, std::nullopt);
    EXPECT_EQ(order.selectedBlackboardTypeIdentifier, 1);
    EXPECT_EQ(load(document().set("menu.blackboard_type_id", "1")).selectedBlackboardTypeIdentifier,
              std::nullopt)
        << "of another kind";
}

TEST_F(LoadOrder, DrinksFallOutStayNamelessOrTakeNewNumbers) {
    const auto& order = load(document().set("menu.order_type", "2").set("menu.other_drinks", R"([
        {"category_name": "Zumos", "category_position": 4, "other_products": [
            {"product_format_id": -7, "product_format_name": "Naranja", "product_format_position": 3,
             "sub_item_prices": [{"price_type": 1, "price": 3.5, "format_name": "Copa"},
                                 {"price_type": 2, "price": 9, "format_name": "Jarra"}]}]},
        {"category_id": -8, "category_name": "Batidos", "category_position": 5, "other_products": []},
        {"category_id": 77, "category_position": 1, "other_products": [
            {"product_format_id": 5, "product_format_position": 1, "sub_item_prices": []}]},
        {"category_id": 1, "category_name": "Otro nombre", "category_position": 9, "other_products": [
            {"product_format_id": 1, "product_format_name": "X", "product_format_position": 9, "description": "Propia",
             "sub_item_prices": [{"price_type": 5, "price": 6, "format_name": "Vaso"}]},
            {"product_format_id": 66, "product_format_name": "Desaparecido", "product_format_position": 2,
             "sub_item_prices": [{"price_type": 1, "price": 1, "format_name": "Vaso"}]}]}])"));
    using Beverage = Draft::BeverageIdentifier;
    EXPECT_EQ(order.selectedBeverages, (std::map<Int, std::set<Int>>{{-2, {}}, {-1, {-7}}, {1, {1, 66}}}));
    EXPECT_EQ(order.beverageInfo(-1, 0, true, {}), (Beverage{-1, true, "Zumos", 4, {}, {}, {}, {}}));
    EXPECT_EQ(order.beverageInfo(-1, -7, false, "Copa"),
              (Beverage{-7, false, "Naranja", 3, {}, 3.5, {}, "Copa"}));
    EXPECT_EQ(order.beverageInfo(-1, -7, false, "Jarra")->price1, std::nullopt)
        << "of a column that isn't in use";
    EXPECT_EQ(order.beverageInfo(1, 0, true, {}), (Beverage{1, true, "Refrescos", 1, "Fríos", {}, {}, {}}));
    EXPECT_EQ(order.beverageInfo(1, 1, false, "Vaso"),
              (Beverage{1, false, "Limonada", 1, "Casera", 2.0, 6.0, "Vaso"}));
    EXPECT_EQ(order.beverageInfo(1, 1, false, {})->description, "Propia");
    EXPECT_EQ(order.beverageInfo(1, 66, false, "Vaso")->name, "");
    EXPECT_EQ(order.beverageInfo(1, 66, false, "Vaso")->price1, 1.0);
}

// Each loading numbers own categories anew, so the order in which they are written decides.
TEST_F(LoadOrder, OwnCategoriesKeepTheirNumbersThroughEveryLoading) {
    AppSingleton::shared().actualSection = SectionIdentifier::brochure(BrochureType::beverage);
    Draft::replaceTemporalBrochure();
    for (const char* name : {"Zumos", "Batidos", "Infusiones"})
        draft().addBeverageCategory(name);
    draft().setBeverageSelected(true, {.identifier = 1, .isCategory = true}, 1);
    const auto drinks = [] { return draft().makeOrder(OrderRequestType::saveCloud, false).menu.otherDrinks; };
    const auto first = drinks();
    ASSERT_EQ(first->size(), 4U);
    const auto order = draft().makeOrder(OrderRequestType::saveCloud, false);
    Draft::replaceTemporalBrochure();
    draft().loadOrder(order);
    EXPECT_EQ(drinks(), first);
    EXPECT_EQ(draft().beverageInfo(-2, 0, true, {})->name, "Batidos");
}

// "Limonada" is of category 1 only: in category 2 it is what is left of a product that moved.
TEST_F(LoadOrder, ADrinkIsNamelessWhereItLeftTheCategoryAndOnlyThere) {
    for (const std::string price : {"1", "2"}) { // of the first column; of one that isn't in use
        const std::string here =
            R"({"category_id": 1, "category_position": 1, "other_products": [
                {"product_format_id": 1, "product_format_position": 1, "sub_item_prices": [{"price_type": )" +
            price + R"(, "price": 2, "format_name": "Vaso"}]}]})";
        std::string gone = here;
        gone.replace(gone.find("\"category_id\": 1"), 16, "\"category_id\": 2");
        for (const std::string& both : {here + "," + gone, gone + "," + here}) {
            const auto& order =
                load(document().set("menu.order_type", "2").set("menu.other_drinks", "[" + both + "]"));
            for (const std::optional<std::string>& format :
                 {std::optional<std::string>(), std::optional<std::string>("Vaso")}) {
                EXPECT_EQ(order.beverageInfo(1, 1, false, format).value().name, "Limonada") << both;
                EXPECT_EQ(order.beverageInfo(2, 1, false, format).value().name, "") << both;
            }
        }
    }
}

TEST_F(LoadOrder, WhoPrintsIsAskedAnewAndTheFileNameIsTheCallers) {
    draft().printedMyself = true;
    draft().loadOrder(read(document()));
    EXPECT_TRUE(draft().printedMyself);
    EXPECT_EQ(draft().fileName, std::nullopt);
    EXPECT_EQ(draft().sourceIdentifier, 7);
    EXPECT_EQ(draft().orderIdentifier, 8);
    EXPECT_FALSE(draft().withPennantTmp || draft().printDigitalBrochure);
}

class OwnBrands : public LoadOrder {
public:
    OwnBrands() {
        constexpr auto family = ApplicationFather::orderBeer;
        catalogue.brochures().productTypes = {{1, family, 1, "Barril", {}, {}, {}, {}},
                                              {2, family, 2, "Botella", {}, {}, {}, {}},
                                              {3, ApplicationFather::orderWine, 1, "Copa", {}, {}, {}, {}}};
        useCatalogue();
        session().setCatalogueKeeper([this](const auto&) { ++changes; });
    }
    ~OwnBrands() override { session().setCatalogueKeeper({}); }

    static OwnBrand cierva() {
        return {ApplicationFather::orderBeer, "Cierva", "Turbia, de casa", 41, 22, 31, std::nullopt, 5};
    }
    // Adds a brand and selects its formats, as the product step does.
    static void add(const OwnBrand& brand, Int id) {
        session().changeCatalogue(
            [&](Catalogue& all) { all.addProduct(brand.product(all.brochures(), id)); });
        for (const auto& format : session().catalogue().product(id)->productList)
            draft().setFormatSelected(true, format.id, id);
    }
    SaveBrochuresOrder orderWithCierva() {
        complete();
        add(cierva(), -1);
        const auto format = session().catalogue().product(-1)->productList.front().id;
        draft().setPrice(PriceType::main, format, -1, 4.2);
        draft().setNewProduct(true, format, -1);
        return draft().makeOrder(OrderRequestType::saveCloud, false);
    }
    SaveBrochuresOrder reloaded(const SaveBrochuresOrder& order) {
        changes = 0;
        Draft::replaceTemporalBrochure()->loadOrder(order);
        return draft().makeOrder(OrderRequestType::saveCloud, false);
    }
    int changes = 0; // of the catalogue, that were to be stored
};

TEST_F(OwnBrands, AreBuiltAgainFromTheRecordWithAllThatTheUserEntered) {
    const auto order = orderWithCierva();
    useCatalogue(); // without it
    EXPECT_EQ(reloaded(order), order);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(OwnBrand::of(*session().catalogue().product(-1)), cierva());
    EXPECT_EQ(draft().takeFallenOut(), "");
    EXPECT_EQ(reloaded(order), order);
    EXPECT_EQ(changes, 0) << "it is there";
}

TEST_F(OwnBrands, ANumberThatAnotherBrandBearsDoesNotBringThatOneIn) {
    const auto order = orderWithCierva();
    auto other = cierva();
    const auto expectAnew = [&](Int number) {
        const auto loaded = reloaded(order);
        const auto& brands = loaded.menu.beerBrands;
        const auto found =
            std::ranges::find(brands, std::optional(number), &SaveBrochuresOrder::Menu::BeerBrand::brand);
        ASSERT_NE(found, brands.end()) << other.name;
        EXPECT_EQ(brands.size(), order.menu.beerBrands.size());
        EXPECT_EQ(found->name, "Cierva");
        EXPECT_EQ(found->description, "Turbia, de casa");
        ASSERT_EQ(found->beers.size(), 2U);
        const auto keg =
            std::ranges::find(found->beers, 1, &SaveBrochuresOrder::Menu::BeerBrand::Beer::productType);
        EXPECT_EQ(keg->prices.front().price, 4.2);
        EXPECT_TRUE(keg->isNew);
    };
    // After a reset the numbers start anew; each of these differs in one thing.
    for (const auto& change :
         {+[](OwnBrand& brand) { brand.name = "Corza"; }, +[](OwnBrand& brand) { brand.description.reset(); },
          +[](OwnBrand& brand) { brand.taste = 32; },
          +[](OwnBrand& brand) { brand.family = ApplicationFather::orderWine; }}) {
        useCatalogue();
        Draft::replaceTemporalBrochure();
        other = cierva();
        change(other);
        add(other, -1);
        expectAnew(-2);
        EXPECT_EQ(changes, 1);
        EXPECT_EQ(OwnBrand::of(*session().catalogue().product(-1)), other);
        expectAnew(-2); // the same again, and no third brand
        EXPECT_EQ(changes, 0);
    }
}

TEST_F(OwnBrands, SeveralKeepTheirNumbersAndAHostileNumberIsReplaced) {
    auto order = orderWithCierva();
    auto second = cierva();
    second.name = "Corza";
    add(second, -2);
    order = draft().makeOrder(OrderRequestType::saveCloud, false);
    useCatalogue();
    EXPECT_EQ(reloaded(order), order);
    order.menu.beerBrands.front().brand = std::numeric_limits<Int>::min();
    useCatalogue();
    const auto loaded = reloaded(order);
    EXPECT_EQ(loaded.menu.beerBrands.size(), order.menu.beerBrands.size());
    EXPECT_GT(*loaded.menu.beerBrands.front().brand, -10);
}

TEST_F(OwnBrands, WhatCannotComeBackIsCountedAndNamedOnce) {
    using Order = SaveBrochuresOrder;
    const auto order = orderWithCierva(); // Cierva, Roble, Encina
    struct Case {
        void (*change)(std::vector<Order::Menu::BeerBrand>& brands);
        const char* text;
    };
    for (const Case& each :
         {Case{[](auto&) {}, ""},
          Case{[](auto& brands) { brands[1].brand = 99; }, "1 producto ya no está en el catálogo: Roble"},
          Case{[](auto& brands) { brands[2].beers[0].id = 999; },
               "1 producto ya no está en el catálogo: Encina"},
          Case{[](auto& brands) { brands[1].brand = brands[2].brand = 99; },
               "2 productos ya no están en el catálogo: Roble, Encina"},
          Case{[](auto& brands) {
                   for (auto& beer : brands[0].beers)
                       beer.productType = 77;
               },
               "1 producto ya no está en el catálogo: Cierva"},
          Case{[](auto& brands) { brands[0].name.reset(); }, "1 producto ya no está en el catálogo"}}) {
        auto changed = order;
        each.change(changed.menu.beerBrands);
        useCatalogue();
        Draft::replaceTemporalBrochure()->loadOrder(changed);
        EXPECT_EQ(draft().takeFallenOut(), each.text);
        EXPECT_EQ(draft().takeFallenOut(), "");
    }
}

class RetrievedOrder : public LoadOrder {
public:
    static RetrieveBrochureOrderListResponse answer(const JsonData& data = answerDocument()) {
        return json::decode<RetrieveBrochureOrderListResponse>(data.text()).value();
    }
    static JsonData answerDocument() { return JsonData::ofFile(KAVOR_TEST_DATA "/retrieved_order.json"); }
};

TEST_F(RetrievedOrder, BecomesTheOrderDocumentWithItsCrossingsAndLosses) {
    auto expected = document();
    expected.set("order_copy", "41").set("save", "1").set("printed_myself", "true");
    // Of the answer's own flags only these two are set: "with_default_menu" and "with_pennant".
    expected.set("with_digital_menu", "false").set("includeDigitalBrochureTmp", "false");
    expected.set("with_digital_menu_print", "false").set("printDigitalBrochureTmp", "true");
    expected.set("with_default_menu", "false").set("includePaperBrochureTmp", "true");
    expected.set("with_pennant", "true").set("withPennantTmp", "true");
    for (const auto* lost : {"format_visualize_id", "wine_format_visualize_id", "menu_style_attributes"})
        expected.remove(std::string("menu.") + lost);
    expected.set("menu.items.0.sub_items.1.is_new", "false");
    expected.set("menu.items.0.description", "\"\"").set("menu.items.1.description", "\"De barril\"");
    expected.set("menu.other_drinks",
                 R"([{"category_name": "Zumos", "category_position": 1, "other_products": [
        {"product_format_id": -1, "product_format_name": "Naranja", "product_format_position": 1,
         "description": "Recién hecho", "sub_item_prices": [{"price_type": 1, "price": 3.5, "format_name": "Copa"}]}]}])");
    EXPECT_EQ(documentOf(orderOf(41, answer())), expected.text(true));
}

TEST_F(RetrievedOrder, MayLackWhatTheServerLeavesOut) {
    for (const auto* path :
         {"order.drinks", "order.pdv", "order.beer.brands.0.category", "order.drinks.0.name",
          "order.beer.brands.0.products.0.quantity", "order.beer.menu_style_attributes"}) {
        const auto document = answerDocument().remove(path).text();
        EXPECT_TRUE(json::decode<RetrieveBrochureOrderListResponse>(document)) << path;
    }
}

TEST_F(RetrievedOrder, TwoLogosReachNoDraftAndABrandNeedsItsCategory) {
    draft().loadOrder(
        orderOf(41, answer(answerDocument().set("order.beer.menuStyleLogos",
                                                R"([{"id":1,"position":1},{"id":2,"position":2}])"))));
    EXPECT_EQ(draft().selectedLogoIdentifiers, std::nullopt);
    EXPECT_EQ(draft().makeOrder(OrderRequestType::sendToPrint, false).sourceIdentifier, 41);
    EXPECT_EXIT(orderOf(41, answer(answerDocument().remove("order.beer.brands.1.category"))),
                testing::ExitedWithCode(stoppedExitStatus), "category of the retrieved brand 11");
}

} // namespace
} // namespace kavor
