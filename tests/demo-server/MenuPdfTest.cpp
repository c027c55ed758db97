#include "documents/MenuPdf.h"

#include "PdfText.h"
#include "catalogue/Content.h"
#include "documents/PageFlow.h"
#include "server/SampleOrder.h"

#include <gtest/gtest.h>

namespace kavor::demo {
namespace {

const Catalogue& catalogue() {
    static const Catalogue made(60, "http://127.0.0.1:1");
    return made;
}

Group groupOf(const char* heading, int blocks, double height, Group::Spread spread) {
    Group group{.heading = heading, .blocks = {}, .spread = spread};
    for (int i = 0; i < blocks; ++i) {
        group.blocks.push_back({height, {}});
    }
    return group;
}

TEST(PageOfAMenu, HoldsEachBlockOnceWithoutAnyOverAnother) {
    const QSizeF body(640, 880);
    for (int brands = 1; brands <= 40; ++brands) {
        const std::vector<Group> groups = {groupOf("", 1, 236, Group::Spread::wide),
                                           groupOf("Rubias", brands, 133, Group::Spread::column),
                                           groupOf("Tapas", brands * 2, 25, Group::Spread::column),
                                           groupOf("Promociones", brands % 4, 150, Group::Spread::even),
                                           groupOf("Banderines", 1, 200, Group::Spread::wide)};
        const Flow flow = flowOf(groups, body, 270);
        size_t placed = 0;
        for (const Flow::Place& place : flow.places) {
            placed += place.block != nullptr;
            const QRectF page(QPointF(0, 0), body / flow.scale);
            EXPECT_TRUE(page.adjusted(-0.1, -0.1, 0.1, 0.1).contains(place.area)) << brands;
            for (const Flow::Place& other : flow.places) {
                EXPECT_TRUE(&other == &place || other.page != place.page ||
                            !other.area.adjusted(0.1, 0.1, -0.1, -0.1).intersects(place.area))
                    << brands;
            }
        }
        EXPECT_EQ(placed, size_t(2 + brands * 3 + brands % 4));
    }
}

TEST(PageOfAMenu, IsWellFilledByAFewBrandsAsByMany) {
    const QSizeF body(640, 880);
    for (int brands = 1; brands <= 12; ++brands) {
        std::vector<Group> groups;
        for (int i = 0; i < brands; ++i) {
            groups.push_back(groupOf("Estilo", 1, 133, Group::Spread::column));
        }
        const Flow flow = flowOf(groups, body, 270);
        for (size_t page = 0; page < flow.ends.size(); ++page) {
            // One brand alone is not blown up to a poster; the shelf below it fills the rest.
            EXPECT_GT(flow.ends[page] * flow.scale, body.height() * (brands == 1 ? 0.4 : 0.6)) << brands;
        }
    }
}

TEST(PrintedMenu, NamesDrinksPromotionsAndPennantsWithTheirPrices) {
    Json order = sampleOrder(catalogue(), bars().front(), BrochureKind::beer, 4);
    Json& menu = order["menu"];
    const auto price = [](int type, double amount, const char* format) {
        return Json{{"price_type", type}, {"price", amount}, {"format_name", format}};
    };
    Json unpriced = price(1, 0, "Cuenco");
    unpriced.erase("price");
    menu["other_drinks"] = {
        {{"category_id", 2},
         {"category_position", 1},
         {"other_products",
          {{{"product_format_id", 201},
            {"product_format_position", 1},
            {"sub_item_prices",
             {price(1, 7.35, "Copa"), price(2, 8.45, "Copa"), price(1, 12.15, "Jarra")}}}}}},
        {{"category_name", "Cocina de la abuela"},
         {"category_position", 2},
         {"description", "Con leña de encina"},
         {"other_products",
          {{{"product_format_id", -1},
            {"product_format_name", "Caldereta"},
            {"description", "Solo los jueves"},
            {"product_format_position", 1},
            {"sub_item_prices", {price(1, 9.85, "")}}},
           {{"product_format_id", -2},
            {"product_format_name", "Natillas"},
            {"product_format_position", 2},
            {"sub_item_prices", {unpriced}}}}}}};
    menu["promotions"] = {{{"promotion_id", 1},
                           {"promotion_name", "Jueves de quintos"},
                           {"brand_name", "Trasgalonga"},
                           {"attributes", {{{"id", 9012}, {"value", "3,95"}}}}},
                          {{"promotion_id", 4711},
                           {"promotion_name", "Retirada del catálogo"},
                           {"brand_name", "Marca retirada"},
                           {"attributes", Json::array()}}};
    ASSERT_FALSE(menu["product_pennant"].empty());
    const QString words = textOf(menuPdf(order, catalogue(), "http://127.0.0.1:1/carta/1")).simplified();
    for (const char* printed :
         {"Combinados", "Ginebra con tónica", "Copa", "Jarra", "7,35", "8,45", "12,15", "Cocina de la abuela",
          "Con leña de encina", "Caldereta", "Solo los jueves", "9,85", "Natillas", "Cuenco",
          "Jueves de quintos", "3,95", "Retirada del catálogo", "Banderines", "Terraza"}) {
        EXPECT_TRUE(words.contains(printed)) << printed << " in " << words.toStdString();
    }
    order["with_pennant"] = false;
    EXPECT_FALSE(textOf(menuPdf(order, catalogue(), "")).contains("Banderines"));
}

} // namespace
} // namespace kavor::demo
