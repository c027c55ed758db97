#include "RunningServer.h"
#include "catalogue/Content.h"
#include "server/SampleOrder.h"
#include "server/Time.h"

#include <gtest/gtest.h>

namespace kavor::demo {
namespace {

Json beerOrder(const Catalogue& catalogue, int save) {
    Json order = sampleOrder(catalogue, bars().front(), BrochureKind::beer, 4);
    order["save"] = save;
    return order;
}

const Catalogue& catalogue() {
    static const Catalogue made(60, "http://127.0.0.1:1");
    return made;
}

TEST(DemoServer, LetsInOnlyWhoKnowsThePassword) {
    RunningServer server;
    EXPECT_EQ(server.get("/api/user").status, 401);
    const auto refused = server.login("rep@kavor.example", "otra");
    EXPECT_EQ(refused.status, 422);
    EXPECT_FALSE(refused.json["errors"].begin()->empty());

    const auto full = server.login();
    ASSERT_EQ(full.status, 200);
    EXPECT_EQ(server.form("/api/login", {{"login", "rep@kavor.example"}, {"token", full.json["user_token"]}})
                  .status,
              200);
    EXPECT_GT(full.json["notificaciones"].size(), 0u);

    const auto few = server.login("ayuda@kavor.example", "malta2024");
    for (const char* always : {"show_logo_nrv", "test_send_order_info", "notificaciones"}) {
        EXPECT_TRUE(few.json.contains(always)) << always;
    }
    EXPECT_NE(few.json["customer_code_required"], full.json["customer_code_required"]);

    server.form("/demo/expire-tokens", {});
    const auto expired = server.get("/api/catalogue");
    EXPECT_EQ(expired.status, 401);
    EXPECT_TRUE(expired.json["msg"].is_string());
    EXPECT_EQ(server.get("/demo/requests").text.find("malta2024"), std::string::npos);
}

TEST(DemoServer, FindsTheTownThatAnAddressNamesAndPricesAroundIt) {
    RunningServer server;
    server.login();
    for (const char* direction : {"Calle Mayor 3, Soria", "Calle Mayor, 3, 42001", "42001, Soria"}) {
        const auto found = server.form("/api/places", {{"direction", direction}}).json["addresses"];
        EXPECT_EQ(found.front()["zip"], "42001") << direction;
        EXPECT_EQ(found.front()["number"].is_null(), std::string(direction) == "42001, Soria") << direction;
        EXPECT_TRUE(found.back()["zip"].is_null()) << "a province has none";
    }
    bool few = false;
    for (const Brand& brand : catalogue().brands().first(12)) {
        const auto answer =
            server.form("/api/prices", {{"product_id", std::to_string(brand.formats.front().id)},
                                        {"placePostalCode", "42001"},
                                        {"placeLocality", "Soria"}});
        EXPECT_EQ(answer.json["tabla"].size(), 5u);
        EXPECT_EQ(answer.json["columnas"][1], "Soria");
        few = few || answer.json["tabla"][0][0].is_null();
    }
    EXPECT_TRUE(few) << "somewhere there are too few menus to tell the least";
}

TEST(DemoServer, SlowsDownWhoGuessesPasswords) {
    RunningServer server;
    int status = 422;
    for (int attempt = 0; attempt < 30 && status == 422; ++attempt) {
        status = server.login("rep@kavor.example", "al azar").status;
    }
    EXPECT_EQ(status, 429);
}

TEST(DemoServer, TellsOnlyOlderClientsToUpdate) {
    Options options;
    options.minimumVersion = "2.10";
    RunningServer server(options);
    for (const auto& [version, status] :
         {std::pair{"2.9.4", 505}, {"", 505}, {"2.10", 200}, {"2.10.0", 200}, {"3", 200}}) {
        server.version = version;
        EXPECT_EQ(server.login().status, status) << version;
    }
    server.version = "1.0";
    EXPECT_TRUE(server.login().json["update_link"].get<std::string>().starts_with("http://127.0.0.1:"));
}

TEST(DemoServer, KeepsCloudOrdersInPlaceAndPreviewsNowhere) {
    Options options;
    options.history = false;
    RunningServer server(options);
    server.login();
    const auto preview = server.post("/api/orders", beerOrder(catalogue(), 2));
    ASSERT_EQ(preview.status, 200);
    EXPECT_TRUE(preview.json.contains("url_pdf"));
    EXPECT_FALSE(preview.json.contains("order_id"));
    EXPECT_EQ(server.get("/demo/orders").json.size(), 0u);

    Json order = beerOrder(catalogue(), 3);
    order.erase("name_archive_tablet");
    const int id = server.post("/api/orders", order).json["order_id"].get<int>();
    order["id"] = id;
    EXPECT_EQ(server.post("/api/orders", order).json["order_id"], id);
    const auto list =
        server.form("/api/orders/list", {{"order_id", ""}, {"tevo", ""}, {"pdv", ""}, {"cloud", "1"}});
    ASSERT_EQ(list.json["pedidos"].size(), 1u);
    EXPECT_EQ(list.json["pedidos"][0]["estadoId"], 12);
    EXPECT_FALSE(list.json["pedidos"][0]["name_archive_tablet"].get<std::string>().empty());
    EXPECT_EQ(server.form("/api/orders/list", {{"cloud", "0"}}).json["pedidos"].size(), 0u);

    order["save"] = 1;
    const auto printed = server.post("/api/orders", order);
    EXPECT_EQ(printed.json["order_id"], id);
    EXPECT_TRUE(printed.json.contains("url_order"));
    EXPECT_EQ(server.remove("/api/orders/delete", {{"id", id}, {"application_type_id", 5}}).status, 404);
    EXPECT_EQ(server.remove("/api/orders/delete", {{"id", id}, {"application_type_id", 1}}).status, 200);
    EXPECT_EQ(server.get("/api/orders/brochure/" + std::to_string(id)).status, 404);
}

TEST(DemoServer, NamesTheMemberThatMakesAnOrderUnreadable) {
    RunningServer server;
    server.login();
    struct Case {
        const char* what;
        std::function<void(Json&)> spoil;
        const char* member;
    };
    for (const Case& spoilt : {
             Case{"a price as text",
                  [](Json& o) { o["menu"]["items"][0]["sub_items"][0]["sub_item_prices"][0]["price"] = "2"; },
                  "menu.items[0].sub_items[0].sub_item_prices[0].price"},
             Case{"price column 4", [](Json& o) { o["order_lines"][0]["price"] = 4; },
                  "order_lines[0].price"},
             Case{"a null", [](Json& o) { o["menu"]["style"] = nullptr; }, "menu.style"},
             Case{"a missing flag", [](Json& o) { o.erase("withPennantTmp"); }, "withPennantTmp"},
             Case{"a boolean as number", [](Json& o) { o["printed_myself"] = 0; }, "printed_myself"},
             Case{"a member of memory", [](Json& o) { o["syncState"] = 1; }, "syncState"},
             Case{"an unknown brand", [](Json& o) { o["menu"]["items"][0]["brand"] = 4711; }, "menu.items"},
             Case{"no name", [](Json& o) { o["menu"]["customer"]["name"] = ""; }, "menu.customer.name"},
         }) {
        Json order = beerOrder(catalogue(), 1);
        spoilt.spoil(order);
        const auto reply = server.post("/api/orders", order);
        EXPECT_EQ(reply.status, 422) << spoilt.what;
        EXPECT_TRUE(reply.json["errors"].contains(spoilt.member)) << spoilt.what << ": " << reply.text;
    }
    EXPECT_EQ(server.get("/demo/orders").json.size(), 0u);
}

TEST(DemoServer, MovesOrdersOnAsTimePasses) {
    QTemporaryDir folder;
    Database database(folder.filePath("orders.sqlite").toStdString());
    const Orders orders(database, 100);
    for (const auto& [age, state] : {std::pair{0, OrderState::withoutConfirm},
                                     {100, OrderState::confirmed},
                                     {250, OrderState::inProcess},
                                     {300, OrderState::sent},
                                     {400, OrderState::delivered},
                                     {99999, OrderState::delivered}}) {
        Order order;
        order.created = now() - age;
        EXPECT_EQ(orders.stateOf(order), state) << age;
        order.cloud = true;
        EXPECT_EQ(orders.stateOf(order), OrderState::cloud);
    }
}

TEST(DemoServer, FailsAsItWasTold) {
    RunningServer server;
    server.login();
    struct Case {
        Json fault;
        int status;
        const char* contains;
    };
    const std::string path = "/api/profile";
    for (const Case& told : {
             Case{{{"fault", "status"}, {"status", 419}}, 419, "msg"},
             Case{{{"fault", "status"}, {"status", 422}}, 422, "errors"},
             Case{{{"fault", "status"}, {"status", 505}}, 505, "update_link"},
             Case{{{"fault", "status"}, {"status", 500}, {"body", "<b>"}}, 500, "<b>"},
             Case{{{"fault", "wrong-shape"}}, 200, "inesperado"},
             Case{{{"fault", "html"}}, 200, "<html>"},
             Case{{{"fault", "slow"}, {"milliseconds", 1}}, 200, "usuario"},
             Case{{{"fault", "cut"}}, 0, ""},
             Case{{{"fault", "close"}}, 0, ""},
         }) {
        Json fault = told.fault;
        fault["path"] = path;
        ASSERT_EQ(server.post("/demo/faults", fault).status, 200);
        const auto reply = server.get(path);
        EXPECT_EQ(reply.status, told.status) << fault;
        EXPECT_NE(reply.text.find(told.contains), std::string::npos) << fault << reply.text;
        EXPECT_EQ(server.get(path).status, 200) << "the fault stays after " << fault;
    }
    EXPECT_EQ(server.post("/demo/faults", {{"path", path}, {"fault", "otro"}}).status, 400);
}

TEST(DemoServer, MakesAPdfOfEverySortOfOrder) {
    Options options;
    options.orders = 11; // with brands, formats and a style that left the catalogue
    RunningServer server(options);
    server.login();
    for (const BrochureKind kind : allKinds()) {
        const auto reply = server.post("/api/orders", sampleOrder(catalogue(), bars()[7], kind, int(kind)));
        ASSERT_EQ(reply.status, 200) << reply.text;
    }
    server.post("/api/textile", {{"save", 1},
                                 {"order",
                                  {{"message", "Equipo"},
                                   {"application_type_id", 8},
                                   {"typography_id", 1},
                                   {"lines", {{{"textil_id", 3}, {"quantity", 12}}}}}}});
    const Json module = {
        {"id", 1}, {"position", 0}, {"product1_id", 11}, {"product1_box", 2}, {"price", 48.5}};
    server.post("/api/sheets", {{"id", 0},
                                {"save", true},
                                {"token", ""},
                                {"created_at", ""},
                                {"style_id", 1},
                                {"name_order", "Otoño"},
                                {"title", "Oferta de otoño"},
                                {"taxes_included", true},
                                {"date_from", "2031-01-01"},
                                {"date_to", "2031-02-01"},
                                {"include_logo_nrv", true},
                                {"show_one_module_per_page", false},
                                {"items", {module}}});
    int made = 0;
    for (const Json& order : server.get("/demo/orders?all=1").json) {
        const std::string url = order["url_pdf"].get<std::string>();
        const auto pdf = server.get(url.substr(server.baseUrl().size()));
        EXPECT_TRUE(pdf.text.starts_with("%PDF-")) << order["kind"] << order["type"];
        EXPECT_EQ(server.get("/pedido/" + order["token"].get<std::string>()).status, 200);
        ++made;
    }
    EXPECT_GE(made, 25);
    EXPECT_TRUE(server.get("/documentos/activacion-1.pdf").text.starts_with("%PDF-"));
    EXPECT_TRUE(server.get("/documentos/precios.pdf").text.starts_with("%PDF-"));
}

} // namespace
} // namespace kavor::demo
