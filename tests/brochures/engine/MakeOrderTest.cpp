#include "base/StopProcess.h"
#include "brochures/engine/DraftTest.h"
#include "orders/OrderDiskManager.h"

namespace kavor {

namespace {

using Draft = BrochureIntermediateData;
constexpr auto cloud = OrderRequestType::saveCloud;

class MakeOrder : public DraftTest {
protected:
    // An order of the kind that uses every field that has a place in the document.
    void compose(BrochureType kind) {
        enter(kind);
        Draft::replaceTemporalBrochure();
        complete();
        auto& order = draft();
        order.sourceIdentifier = 7;
        order.orderIdentifier = 8;
        order.fileName = "La Esquina";
        order.customerInformation->id = 5;
        order.customerInformation->freeText1 = "\"Ático\"\n";
        order.customerInformation->priorityBrandIdentifiers = {10, 11};
        order.setLanguages(1, 2);
        order.setSecondPrice(PriceType::night);
        order.selectedNumberOfBrochures = Draft::MainAndSecondary{10, 6};
        order.selectedStylePennantIdentifier = 101;
        order.setOrderSheet(1);
        order.setPennantBrand(1);
        order.setBrandQr(1);
        order.selectedFormatVisualizeId = 2;
        order.selectedWineFormatVisualizeId = 1;
        order.selectedQuantityQr = 1;
        order.selectedQuantityQrCircular = 2;
        order.selectedQuantityQrTaco = 3;
        order.showQrOtherMenu = order.withoutPriceBeer = order.withoutPricePennant = true;
        order.withPennantTmp = order.printDigitalBrochure = false;
        order.valuesMenuStyleAttributes = {{1, 2, "Hola", {}}, {3, 4, {}, 5}};
        order.promotions = {{3, 30, "Dos por uno", "Roble", {{1, "Sí", 9}}}, {{}, 31, {}, {}, {}}};
        order.productPennant = {{100, 1}, {110, 4}};
        if (!CatalogueBuilder::isWine(kind)) {
            order.setFormatSelected(true, 101, 10);
            order.setNewProduct(true, 101, 10);
            order.setVolume(33, 100, 10);
            order.setPrice(PriceType::night, 100, 10, 4);
            order.setFormatHighlighted(true, 100, 10);
        }
        order.setBeverageSelected(true, {.identifier = 1, .formatName = "Vaso"}, 1);
        const Int own = order.addBeverageCategory("Zumos");
        const Int juice = *order.addBeverageProduct("Naranja", own);
        order.setBeverageFormatSelected(true, "Copa", juice, own);
        order.setBeveragePrice(3.5, false, "Copa", juice, own);
        order.setBeveragePrice(4, true, "Copa", juice, own);
        order.setBeverageProductDescription("Recién hecho", juice, own);
    }

    // The document of a beer menu composed so.
    static JsonData beerDocument() { return JsonData::ofFile(KAVOR_TEST_DATA "/beer_order.json"); }
    static constexpr const char* drinks = R"([
        {"category_id": -1, "category_name": "Zumos", "category_position": 1, "other_products": [
            {"product_format_id": -1, "product_format_name": "Naranja", "product_format_position": 1,
             "description": "Recién hecho",
             "sub_item_prices": [{"price_type": 1, "price": 3.5, "format_name": "Copa"},
                                 {"price_type": 5, "price": 4.0, "format_name": "Copa"}]}]},
        {"category_id": 1, "category_position": 1, "description": "Fríos", "other_products": [
            {"product_format_id": 1, "product_format_position": 1, "description": "Casera",
             "sub_item_prices": [{"price_type": 1, "price": 2.0, "format_name": "Vaso"},
                                 {"price_type": 5, "price": 2.5, "format_name": "Vaso"}]}]}])";
};

TEST_F(MakeOrder, TheDocumentOfEveryKind) {
    for (const auto kind : CatalogueBuilder::kinds) {
        SCOPED_TRACE(label(kind));
        compose(kind);
        auto expected = beerDocument();
        const std::string number = std::to_string(static_cast<Int>(kind));
        expected.set("menu.order_type", number).set("menu.style", number);
        if (kind != BrochureType::beer)
            expected.remove("menu.bottles");
        if (kind != BrochureType::beer && kind != BrochureType::menu)
            expected.remove("menu.product_featured_id");
        if (kind == BrochureType::chalkboard)
            expected.set("menu.blackboard_format_id", "1").set("menu.blackboard_type_id", "1");
        if (kind == BrochureType::beverage || kind == BrochureType::menu)
            expected.set("menu.other_drinks", drinks);
        if (CatalogueBuilder::isWine(kind))
            expected.set("menu.items",
                         R"([{"brand": 12, "brand_segment": 1012, "brand_typology": 2012, "name": "Tinto",
                "sub_items": [{"product": 120, "product_type": 5120, "is_new": false, "sub_item_prices": [
                    {"price_type": 1, "price": 12.0}, {"price_type": 5, "price": 12.0}]}]}])");
        EXPECT_EQ(documentOf(draft().makeOrder(cloud, false)), expected.text(true));
    }
}

TEST_F(MakeOrder, AnEmptyDraftIsADocumentToo) {
    auto customer = JsonData::of("{}");
    for (const auto* key :
         {"name", "email", "telephone", "contact", "local_phone", "url", "facebook", "twitter", "instagram",
          "free_text_1", "free_text_2", "free_text_3", "cod_tevo", "placePostalCode", "placeLocality",
          "placeProvinceName", "image_logo", "comment_image_logo"})
        customer.set(key, "\"\"");
    const auto expected = JsonData::of(R"({"save": 2, "order_lines": [{"price": 1, "quantity": 0}], "menu": {
        "order_type": 1, "language1_id": 0, "customer": )" +
                                       customer.text() + R"(, "items": [], "product_pennant": [],
        "other_drinks": [], "promotions": [], "show_qr_other_menu": false, "without_price_beer": false,
        "without_price_pennant": false}, "with_digital_menu": true, "with_digital_menu_print": true,
        "with_default_menu": true, "with_pennant": true, "includeDigitalBrochureTmp": true,
        "printDigitalBrochureTmp": true, "includePaperBrochureTmp": true, "withPennantTmp": true,
        "printed_myself": false})");
    draft().selectedNumberOfBrochures = Draft::MainAndSecondary{10, 6}; // without languages it doesn't count
    EXPECT_EQ(documentOf(draft().makeOrder(OrderRequestType::sendPreview, false)), expected.text(true));
}

TEST_F(MakeOrder, OwnDrinkCategoriesGoToTheServerByNameAndToTheCloudByNumber) {
    compose(BrochureType::menu);
    const auto sent = draft().makeOrder(OrderRequestType::sendToPrint, true).menu.otherDrinks->front();
    EXPECT_EQ(sent.id, std::nullopt);
    EXPECT_EQ(sent.name, "Zumos");
    EXPECT_EQ(sent.elements.front().id, -1);
    EXPECT_EQ(draft().makeOrder(cloud, false).menu.otherDrinks->front().id, -1);
}

TEST_F(MakeOrder, StaleReferencesLeaveTheOrder) {
    compose(BrochureType::beer);
    auto& all = catalogue.brochures();
    all.styles.clear();
    all.orderSheets.clear();
    all.pennantBrands.clear();
    all.brandQrs.clear();
    all.menuFormatVisualize.clear();
    all.menuWineFormatVisualize.clear();
    all.languages.pop_back();
    useCatalogue();
    auto expected = beerDocument();
    for (const auto* key :
         {"style", "style_digital_id", "style_pennant_id", "comandero_id", "pennant_brand_id", "brand_qr_id",
          "format_visualize_id", "wine_format_visualize_id", "language2_id"})
        expected.remove(std::string("menu.") + key);
    expected.set("menu.language1_id", "0");
    EXPECT_EQ(documentOf(draft().makeOrder(cloud, false)), expected.text(true));
}

TEST_F(MakeOrder, ValidationFiltersOtherFamiliesAndAsksForNoMessages) {
    complete();
    draft().setFormatSelected(true, 120, 12);
    draft().setFormatHighlighted(true, 120, 12);
    EXPECT_EQ(draft().makeOrder(OrderRequestType::sendToPrint, true).menu.beerBrands.size(), 2U);
    EXPECT_EQ(draft().makeOrder(OrderRequestType::sendToPrint, true).menu.highlightedProductIdentifier,
              std::nullopt);
    EXPECT_EQ(draft().makeOrder(OrderRequestType::sendToPrint, false).menu.beerBrands.size(), 3U);
    EXPECT_EQ(draft().makeOrder(cloud, false).menu.highlightedProductIdentifier, 120);
    draft().customerInformation->email = "";
    EXPECT_EXIT(static_cast<void>(draft().makeOrder(cloud, true)), testing::ExitedWithCode(stoppedExitStatus),
                "email");
}

TEST_F(MakeOrder, OrderLinesFollowTheSecondPriceAndItsQuantity) {
    complete();
    using Lines = std::vector<SaveBrochuresOrder::OrderLine>;
    draft().setSecondPrice(PriceType::night);
    EXPECT_EQ(draft().makeOrder(cloud, false).orderLines, (Lines{{PriceType::main, 10}}));
    draft().selectedNumberOfBrochures->secondary = 6;
    EXPECT_EQ(draft().makeOrder(cloud, false).orderLines,
              (Lines{{PriceType::main, 10}, {PriceType::night, 6}}));
    draft().setSecondPrice(std::nullopt);
    EXPECT_EQ(draft().makeOrder(cloud, false).orderLines, (Lines{{PriceType::main, 10}}));
}

TEST_F(MakeOrder, ABrandWithoutPriceEntryIsNoItem) {
    complete();
    draft().brandPrices.erase(10);
    const auto items = draft().makeOrder(cloud, false).menu.beerBrands;
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items.front().brand, 11);
}

TEST_F(MakeOrder, WhatIsKeptInAFileComesBackAsTheSameOrder) {
    const OrderDiskManager disk(folder.path());
    for (const auto kind : CatalogueBuilder::kinds) {
        SCOPED_TRACE(label(kind));
        compose(kind);
        const auto order = draft().makeOrder(cloud, false);
        const std::string name(label(kind));
        ASSERT_TRUE(disk.create(order, OrderDiskManager::DirectoryName::draft, name));
        const auto file =
            disk.retrieve<SaveBrochuresOrder>(name + ".zvo", OrderDiskManager::DirectoryName::draft);
        ASSERT_TRUE(file);
        EXPECT_EQ(*file, order);
        disk.remove<SaveBrochuresOrder>(name + ".zvo", OrderDiskManager::DirectoryName::draft);
        Draft::replaceTemporalBrochure()->loadOrder(*file);
        draft().fileName = "La Esquina";
        EXPECT_EQ(documentOf(draft().makeOrder(cloud, false)), documentOf(order));
    }
}

} // namespace
} // namespace kavor
