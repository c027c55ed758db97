#include "PdfText.h"
#include "RunningServer.h"
#include "catalogue/Posters.h"
#include "server/SampleOrder.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>

namespace kavor::demo {
namespace {

constexpr int everything = 5; ///< the promotion that asks for every kind of attribute

/// An order of the promotion's first formats in its second language.
Json promotionOrder(int formats, bool save) {
    const Poster& poster = *posterOf(everything);
    Json order = {{"save", save},
                  {"promotion_id", poster.id},
                  {"emails", {{{"email", "bar@kavor.example"}}, {{"email", "rep@kavor.example"}}}},
                  {"supports", Json::array()},
                  {"attributes", Json::array()},
                  {"customer", {{"cod_tevo", "B0007"}, {"name", "Bar El Remanso"}}},
                  {"date_from", "28-02-31"},
                  {"date_to", "01-03-31"},
                  {"show_menu", true},
                  {"comment", "Con margen blanco"}};
    for (int day = 1; day <= 7; ++day) {
        order["show_promotion_day_" + std::to_string(day)] = day < 6;
    }
    for (int i = 0; i < formats; ++i) {
        order["supports"].push_back({{"id", poster.supportId(poster.supports[size_t(i)])},
                                     {"language_id", poster.texts[1].language}});
    }
    for (const PosterAttribute& attribute : poster.attributes()) {
        if (attribute.kind != AttributeKind::logo) {
            const char* value = attribute.kind == AttributeKind::words   ? "Hoy invitamos"
                                : attribute.kind == AttributeKind::price ? "9,5"
                                : attribute.kind == AttributeKind::hour  ? "20:30"
                                                                         : "Noche";
            order["attributes"].push_back({{"id", attribute.id}, {"value", value}});
        }
    }
    return order;
}

QByteArray pdfAt(RunningServer& server, const Json& url) {
    const auto reply = server.get(url.get<std::string>().substr(server.baseUrl().size()));
    return QByteArray::fromStdString(reply.text);
}

TEST(PromotionsOfTheDemoCatalogue, AreOfEverySort) {
    const Catalogue catalogue(60, "http://127.0.0.1:1");
    const Json document = Json::parse(catalogue.text());
    std::set<int> brands, kinds, classifications, ids;
    for (const Json& brand : document["productos"]) {
        brands.insert(brand["id"].get<int>());
    }
    int single = 0, unclassified = 0, withoutBrand = 0, inTwoLanguages = 0;
    for (const Json& promotion : document["carteleria"]["promociones"]) {
        EXPECT_TRUE(ids.insert(promotion["id"].get<int>()).second);
        single += promotion["supports"].size() == 1 && promotion["languages"].size() == 1;
        inTwoLanguages += promotion["languages"].size() > 1;
        unclassified += promotion["clasification_id"].is_null();
        withoutBrand += !brands.contains(promotion["brand_id"].get<int>());
        if (!promotion["clasification_id"].is_null()) {
            classifications.insert(promotion["clasification_id"].get<int>());
        }
        for (const Json& attribute : promotion["attributes"]) {
            kinds.insert(attribute["type_id"].get<int>());
            EXPECT_EQ(attribute["values"].empty(), attribute["type_id"] != int(AttributeKind::list));
        }
        EXPECT_TRUE(promotion["languages"][0]["default"].get<bool>());
    }
    EXPECT_EQ(kinds.size(), document["attribute_types"].size());
    EXPECT_EQ(classifications.size(), document["carteleria"]["clasificaciones"].size());
    EXPECT_GE(single, 1);
    EXPECT_GE(unclassified, 1);
    EXPECT_EQ(withoutBrand, 1);
    EXPECT_GE(inTwoLanguages, 20);
    for (const Json& attached : document["cartas"]["carteleria"]["promociones"]) {
        EXPECT_TRUE(attached["show_menu_online"].get<bool>());
        EXPECT_TRUE(ids.contains(attached["id"].get<int>()));
    }
}

TEST(PromotionOfTheDemoServer, IsStoredAndMailedOnceHoweverOftenItsKeyComes) {
    RunningServer server;
    server.login();
    const auto preview = server.post("/api/promotions", promotionOrder(2, false), "preview");
    EXPECT_EQ(preview.status, 200) << preview.text;
    EXPECT_TRUE(pdfAt(server, preview.json["url"]).startsWith("%PDF-"));
    EXPECT_FALSE(preview.json.contains("order_id"));
    EXPECT_TRUE(server.get("/demo/orders").json.empty());
    EXPECT_TRUE(server.get("/demo/mails").json.empty());

    Json order = promotionOrder(2, true);
    order["emails"].push_back({{"email", "bar@kavor.example"}});
    order["customer"]["name"] = "Bar <El Remanso>";
    const auto first = server.post("/api/promotions", order, "order");
    const auto again = server.post("/api/promotions", order, "order");
    EXPECT_EQ(first.status, 200) << first.text;
    EXPECT_EQ(first.json, again.json);
    const Json stored = server.get("/demo/orders").json;
    ASSERT_EQ(stored.size(), 1u);
    EXPECT_EQ(stored[0]["id"], first.json["order_id"]);
    EXPECT_EQ(stored[0]["kind"], "promotion");
    EXPECT_EQ(stored[0]["body"], order);
    const Json mails = server.get("/demo/mails").json;
    ASSERT_EQ(mails.size(), 2u) << "an address that stands twice gets one mail";
    for (const Json& mail : mails) {
        EXPECT_EQ(mail["order_id"], first.json["order_id"]);
        EXPECT_EQ(mail["url_pdf"], first.json["url"]);
    }
    httplib::Client browser(server.baseUrl());
    const auto page = browser.Get("/demo/mails", {{"Accept", "text/html,*/*"}});
    ASSERT_TRUE(page);
    EXPECT_NE(page->body.find("bar@kavor.example"), std::string::npos);
    EXPECT_NE(page->body.find("Bar &lt;El Remanso&gt;"), std::string::npos);
    const std::string token = stored[0]["token"].get<std::string>();
    EXPECT_NE(server.get("/pedido/" + token).text.find("Noche de partido"), std::string::npos);
}

TEST(PromotionOfTheDemoServer, IsRefusedByTheMemberThatIsWrong) {
    RunningServer server;
    server.login();
    struct Case {
        const char* what;
        std::function<void(Json&)> spoil;
        const char* member;
    };
    const auto attribute = [](size_t index, const char* value) {
        return [=](Json& o) { o["attributes"][index]["value"] = value; };
    };
    for (const Case& spoilt : {
             Case{"an unknown promotion", [](Json& o) { o["promotion_id"] = 4711; }, "promotion_id"},
             Case{"no format", [](Json& o) { o["supports"].clear(); }, "supports"},
             Case{"a foreign format", [](Json& o) { o["supports"][1]["id"] = 11; }, "supports[1].id"},
             Case{"a format twice", [](Json& o) { o["supports"][1] = o["supports"][0]; }, "supports[1].id"},
             Case{"a foreign language", [](Json& o) { o["supports"][0]["language_id"] = 7; },
                  "supports[0].language_id"},
             Case{"a foreign attribute", [](Json& o) { o["attributes"][0]["id"] = 9011; },
                  "attributes[0].id"},
             Case{"words for a price", attribute(1, "nueve"), "attributes[1].value"},
             Case{"a negative price", attribute(1, "-1"), "attributes[1].value"},
             Case{"no finite price", attribute(1, "inf"), "attributes[1].value"},
             Case{"two commas", attribute(1, "1,2,3"), "attributes[1].value"},
             Case{"a choice that is none", attribute(2, "Madrugada"), "attributes[2].value"},
             Case{"a day that is none", [](Json& o) { o["date_from"] = "29-02-31"; }, "date_from"},
             Case{"another form of date", [](Json& o) { o["date_to"] = "2031-03-01"; }, "date_to"},
             Case{"an end before the start", [](Json& o) { o["date_to"] = "27-02-31"; }, "date_to"},
             Case{"no address", [](Json& o) { o["emails"][1]["email"] = "rep"; }, "emails[1].email"},
             Case{"online what is not",
                  [](Json& o) {
                      o["promotion_id"] = 4;
                      o["supports"] = {{{"id", 41}, {"language_id", 1}}};
                      o["attributes"].clear();
                  },
                  "show_menu"},
             Case{"a number for a language", [](Json& o) { o["supports"][0]["language_id"] = "3"; },
                  "supports[0].language_id"},
         }) {
        Json order = promotionOrder(2, true);
        spoilt.spoil(order);
        const auto reply = server.post("/api/promotions", order);
        EXPECT_EQ(reply.status, 422) << spoilt.what;
        EXPECT_TRUE(reply.json["errors"].contains(spoilt.member)) << spoilt.what << ": " << reply.text;
    }
    EXPECT_TRUE(server.get("/demo/orders").json.empty());
    EXPECT_TRUE(server.get("/demo/mails").json.empty());
    for (const char* price : {"9", "9,50", "9.50", "1.234,5", ""}) {
        Json order = promotionOrder(1, false);
        attribute(1, price)(order);
        EXPECT_EQ(server.post("/api/promotions", order).status, 200) << price;
    }
}

TEST(PromotionOfTheDemoServer, IsPrintedOnAPageForEachFormatAndSummedUpOnALastOne) {
    RunningServer server;
    server.login();
    const auto reply = server.post("/api/promotions", promotionOrder(5, false));
    ASSERT_EQ(reply.status, 200) << reply.text;
    ReadPdf pdf(pdfAt(server, reply.json["url"]));
    const Poster& poster = *posterOf(everything);
    ASSERT_EQ(pdf.pages(), 6);
    for (int page = 0; page < 5; ++page) {
        const Support& support = supports()[size_t(poster.supports[size_t(page)]) - 1];
        const QSizeF size = pdf.size(page) / 72 * 25.4;
        EXPECT_NEAR(size.width(), support.width, 0.3) << support.name;
        EXPECT_NEAR(size.height(), support.height, 0.3) << support.name;
        const QString words = pdf.words(page).simplified();
        for (const char* printed :
             {poster.texts[1].title, "Hoy invitamos", "9,50", "20:30", "Bar El Remanso"}) {
            EXPECT_TRUE(words.contains(printed))
                << printed << " on " << support.name << ": " << words.toStdString();
        }
    }
    const QString last = pdf.words(5).simplified();
    for (const char* printed :
         {"Noche de partido", "Bar El Remanso", "B0007", "Cartel A3", "Pantalla", "Inglés", "Hoy invitamos",
          "28-02-31", "01-03-31", "bar@kavor.example", "rep@kavor.example", "Con margen blanco"}) {
        EXPECT_TRUE(last.contains(printed)) << printed << " in " << last.toStdString();
    }
}

TEST(PromotionOfTheDemoServer, FailsInsideItsAnswerWhenTold) {
    RunningServer server;
    server.login();
    const Json order = promotionOrder(1, true);
    const auto fail = [&](const char* fault) {
        ASSERT_EQ(server.post("/demo/faults", {{"path", "/api/promotions"}, {"fault", fault}}).status, 200);
    };
    fail("errors");
    const auto refused = server.post("/api/promotions", order, "key");
    EXPECT_EQ(refused.status, 200);
    EXPECT_FALSE(refused.json["errors"].empty());
    EXPECT_TRUE(server.get("/demo/orders").json.empty()) << "refused is not ordered";

    fail("no-url");
    const auto bare = server.post("/api/promotions", order, "key");
    EXPECT_EQ(bare.status, 200);
    EXPECT_FALSE(bare.json.contains("url"));
    const auto again = server.post("/api/promotions", order, "key");
    EXPECT_TRUE(again.json.contains("url"));
    EXPECT_EQ(again.json["order_id"], bare.json["order_id"]);
    EXPECT_EQ(server.get("/demo/orders").json.size(), 1u);
}

TEST(PromotionInAMenu, IsRefusedWhenTheCatalogueHasItNoLonger) {
    const Catalogue catalogue(60, "http://127.0.0.1:1");
    RunningServer server;
    server.login();
    Json order = sampleOrder(catalogue, bars()[3], BrochureKind::beer, 4);
    const auto attach = [&order](int promotion, int attribute, const char* value) {
        order["menu"]["promotions"] = {{{"promotion_id", promotion},
                                        {"promotion_name", "Jueves de quintos"},
                                        {"brand_name", "Trasgalonga"},
                                        {"attributes", {{{"id", attribute}, {"value", value}}}}}};
    };
    attach(1, 9012, "3,95");
    EXPECT_EQ(server.post("/api/orders", order).status, 200);
    attach(4711, 9012, "3,95");
    EXPECT_TRUE(server.post("/api/orders", order).json["errors"].contains("menu.promotions[0].promotion_id"));
    attach(1, 9012, "tres");
    EXPECT_TRUE(
        server.post("/api/orders", order).json["errors"].contains("menu.promotions[0].attributes[0].value"));
    attach(4711, 9012, "3,95");
    order["save"] = 3;
    EXPECT_EQ(server.post("/api/orders", order).status, 200) << "a draft may hold it";
}

} // namespace
} // namespace kavor::demo
