#include "RunningServer.h"
#include "catalogue/Content.h"
#include "server/SampleOrder.h"
#include "server/Time.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace kavor::demo {
namespace {

const Catalogue& catalogue() {
    static const Catalogue made(60, "http://127.0.0.1:1");
    return made;
}

Options empty() {
    Options options;
    options.history = false;
    return options;
}

/// An order whose QR material was sent, so that it may be asked for again; its id.
int sentOrder(RunningServer& server, BrochureKind kind) {
    const auto reply = server.post("/api/orders", sampleOrder(catalogue(), bars()[3], kind, 4));
    EXPECT_EQ(reply.status, 200) << reply.text;
    const int id = reply.json["order_id"].get<int>();
    EXPECT_EQ(server.post("/demo/orders/" + std::to_string(id) + "/state", {{"state", 5}}).status, 200);
    return id;
}

Json rowOf(RunningServer& server, int id) {
    const Json rows = server.list({{"order_id", std::to_string(id)}}).json["pedidos"];
    EXPECT_EQ(rows.size(), 1u);
    return rows.empty() ? Json() : rows[0];
}

TEST(OrderListOfTheDemoServer, HasEverySortOfOrderFromTheStart) {
    RunningServer server;
    server.login();
    const Json list = server.list().json;
    std::set<int> states, kinds, years;
    std::map<std::string, int> dates;
    int withoutCode = 0, withoutBar = 0, withoutLink = 0, pending = 0;
    std::set<std::string> cloudNames;
    for (const Json& row : list["pedidos"]) {
        states.insert(row["estadoId"].get<int>());
        kinds.insert(row["tipoId"].get<int>());
        years.insert(std::stoi(row["fecha"].get<std::string>().substr(6, 4)));
        ++dates[row["fecha"].get<std::string>()];
        const bool cloud = row["estadoId"] == 12;
        if (cloud) {
            EXPECT_TRUE(cloudNames.insert(row["name_archive_tablet"].get<std::string>()).second) << row;
        }
        withoutCode += row["tevo"].is_null();
        withoutBar += row["pdv"].is_null();
        withoutLink += !cloud && row["url"].is_null();
        pending += row["pendiente"].get<bool>();
        EXPECT_EQ(server.get("/api/orders/brochure/" + row["id"].dump()).status, 200);
    }
    EXPECT_EQ(states, (std::set<int>{2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}));
    EXPECT_EQ(kinds, (std::set<int>{1, 2, 3, 4, 5, 6, 7, 12, 13, 14, 100, 101}));
    EXPECT_GE(years.size(), 2u);
    EXPECT_GE(dates.size() + 2, list["pedidos"].size()) << "most moments differ";
    for (const int number : {withoutCode, withoutBar, withoutLink, pending}) {
        EXPECT_GE(number, 2);
    }
    EXPECT_TRUE(cloudNames.contains("Bar. La Nube"));
    std::set<int> textileStates, textileTypes;
    for (const Json& row : list["pedidos_textil"]) {
        textileStates.insert(row["estadoId"].get<int>());
        textileTypes.insert(row["application_type_id"].get<int>());
        EXPECT_TRUE(row["typography_id"].is_number_integer());
    }
    EXPECT_EQ(textileTypes, (std::set<int>{8, 21}));
    EXPECT_GT(textileStates.size(), 2u);
    EXPECT_EQ(list["pedidos"].size() + list["pedidos_textil"].size(), 40u);
}

TEST(OrderListOfTheDemoServer, HoldsOrdersWhoseStyleOrBrandsLeftTheCatalogue) {
    RunningServer server;
    server.login();
    std::set<std::string> gone;
    for (const Json& order : server.get("/demo/orders?all=1").json) {
        if (order["kind"] != "brochure") {
            continue;
        }
        const Json& menu = order["body"]["menu"];
        if (!catalogue().style(menu["style"].get<int>())) {
            EXPECT_TRUE(order["cloud"].get<bool>());
            gone.insert("style");
        }
        for (const Json& item : menu["items"]) {
            gone.insert(catalogue().brand(item["brand"].get<int>()) ? "" : "brand");
            for (const Json& sold : item["sub_items"]) {
                gone.insert(catalogue().format(sold["product"].get<int>()) ? "" : "format");
            }
        }
    }
    EXPECT_EQ(gone, (std::set<std::string>{"", "style", "brand", "format"}));
}

TEST(OrderListOfTheDemoServer, AnswersFiveThousandOrdersOnceAndForAll) {
    QTemporaryDir folder;
    Options options;
    options.dataFolder = folder.path().toStdString();
    const auto sizeWith = [&](int orders) {
        options.orders = orders;
        RunningServer server(options);
        server.login();
        const Json list = server.list().json;
        return list["pedidos"].size() + list["pedidos_textil"].size();
    };
    EXPECT_EQ(sizeWith(40), 40u);
    EXPECT_EQ(sizeWith(5000), 5000u);
    EXPECT_EQ(sizeWith(40), 5000u) << "none goes, and none comes twice";
}

TEST(OrderListOfTheDemoServer, IsNarrowedByEachSearchAndQuickFilterAlone) {
    RunningServer server;
    server.login();
    const Json all = server.list().json["pedidos"];
    const auto count = [&](const std::function<bool(const Json&)>& isWanted) {
        return size_t(std::ranges::count_if(all, isWanted));
    };
    const auto narrowed = [&](const httplib::Params& values) {
        return server.list(values).json["pedidos"].size();
    };
    const std::string year = std::to_string(yearOf(now()));
    EXPECT_EQ(narrowed({{"sin_confirmar", "0"}, {"sin_completar", "0"}, {"current_year", "0"}}), all.size());
    EXPECT_EQ(narrowed({{"sin_confirmar", "1"}}),
              count([](const Json& row) { return row["estadoId"] == 2; }));
    EXPECT_EQ(narrowed({{"sin_completar", "1"}}),
              count([](const Json& row) { return row["tevo"].is_null(); }));
    EXPECT_EQ(narrowed({{"current_year", "1"}}),
              count([&](const Json& row) { return row["fecha"].get<std::string>().substr(6, 4) == year; }));
    EXPECT_EQ(narrowed({{"order_id", all[0]["id"].dump()}}), 1u);
    EXPECT_EQ(narrowed({{"pdv", "LA NÚBE"}}), 1u);
    EXPECT_EQ(narrowed({{"tevo", "b0001"}}), count([](const Json& row) { return row["tevo"] == "B0001"; }));
    EXPECT_EQ(server.form("/api/orders/list", {{"cloud", "0"}}).json["pedidos"].size(),
              count([](const Json& row) { return row["estadoId"] != 12; }));
}

TEST(OrderListOfTheDemoServer, ObeysWhatATestSetsForAnOrderAndForTheNextAnswer) {
    RunningServer server(empty());
    server.login();
    const int id = server.post("/api/orders", sampleOrder(catalogue(), bars()[3], BrochureKind::beer, 1))
                       .json["order_id"]
                       .get<int>();
    const std::string control = "/demo/orders/" + std::to_string(id) + "/state";
    for (const int state : {7, 10, 11, 12, 6}) {
        ASSERT_EQ(server.post(control, {{"state", state}, {"note", "n"}, {"pending", state == 10}}).status,
                  200);
        const Json row = rowOf(server, id);
        EXPECT_EQ(row["estadoId"], state);
        EXPECT_EQ(row["nota"], "n");
        EXPECT_EQ(row["pendiente"], state == 10);
    }
    EXPECT_EQ(server.post(control, {{"state", 13}}).status, 400);
    EXPECT_EQ(server.post("/demo/orders/99/state", {{"state", 3}}).status, 404);

    server.post("/demo/next-list", {{"pedidos", 7}});
    EXPECT_EQ(server.list().text, R"({"pedidos":7})");
    EXPECT_EQ(server.list().json["pedidos"].size(), 1u);
}

TEST(OrderListOfTheDemoServer, ShowsACloudOrderOfTheHistoryAsItsUsersOnceItIsPrinted) {
    RunningServer server;
    server.login();
    const Json rows = server.list().json["pedidos"];
    for (const Json& row : rows) {
        if (row["estadoId"] != 12 || row["tipoId"] != 1 || row["name_archive_tablet"] == "Bar. La Nube") {
            continue;
        }
        Json order = sampleOrder(catalogue(), bars()[3], BrochureKind::beer, 1);
        order["id"] = row["id"];
        EXPECT_EQ(server.post("/api/orders", order).json["order_id"], row["id"]);
        EXPECT_FALSE(rowOf(server, row["id"].get<int>())["url"].is_null());
    }
    EXPECT_EQ(server.get("/demo/orders").json.size(), 1u);
}

TEST(ClaimOfTheDemoServer, IsAnIncidenceUntilItIsAnsweredAndThenMovesOn) {
    QTemporaryDir folder;
    Database database(folder.filePath("orders.sqlite").toStdString());
    Orders orders(database, 100);
    for (const auto& [road, states] :
         {std::pair{Road::claimed, std::vector{6, 3, 4, 5, 9, 9}}, {Road::demanded, {11, 3, 4, 5, 9, 9}}}) {
        for (size_t stage = 0; stage < states.size(); ++stage) {
            Order order;
            order.created = now() - 99999;
            order.road = road;
            order.note = "recibida";
            order.since = now() - std::int64_t(stage) * 100;
            EXPECT_EQ(int(orders.stateOf(order)), states[stage]);
            EXPECT_EQ(orders.isPending(order), states[stage] == 6);
            EXPECT_EQ(orders.noteOf(order) == "recibida", stage == 0);
        }
    }
}

TEST(ClaimOfTheDemoServer, StandsOnTheOrdersPageAsTextWithItsAnswer) {
    for (const bool answered : {false, true}) {
        Options options = empty();
        options.stateSeconds = answered ? 1 : 1000;
        RunningServer server(options);
        server.login();
        const int id = sentOrder(server, BrochureKind::beer);
        const std::string number = std::to_string(id);
        EXPECT_EQ(server.query("/api/orders/claim", {{"order_id", number}, {"comment", " \n"}}).status, 422);
        EXPECT_EQ(rowOf(server, id)["estadoId"], 5);
        const std::string words = "<script>alert('ñ')</script> & \"dos\"";
        for (const std::string& comment : {words, std::string("y otra más")}) {
            const auto reply =
                server.query("/api/orders/claim", {{"order_id", number}, {"comment", comment}});
            EXPECT_EQ(reply.status, 200) << reply.text;
        }
        const Json stored = server.get("/demo/orders").json[0];
        ASSERT_EQ(stored["messages"].size(), 2u);
        EXPECT_EQ(stored["messages"][0]["body"]["comment"], words);
        const std::string path = "/pedido/" + stored["token"].get<std::string>();
        const char* expected = answered ? "Gracias por avisar" : "Pendiente de respuesta";
        std::string page = server.get(path).text;
        const std::int64_t limit = now() + 20;
        while (page.find(expected) == std::string::npos && now() < limit) {
            page = server.get(path).text;
        }
        EXPECT_NE(page.find(expected), std::string::npos);
        EXPECT_EQ(page.find("<script"), std::string::npos);
        EXPECT_NE(page.find("&lt;script&gt;alert('ñ')&lt;/script&gt; &amp; &quot;dos&quot;"),
                  std::string::npos);
        EXPECT_NE(page.find("y otra más"), std::string::npos);
    }
}

TEST(QrDemandOfTheDemoServer, IsCheckedAgainstBrandFamilyKindAndQuantities) {
    RunningServer server(empty());
    server.login();
    const int beer = sentOrder(server, BrochureKind::beer);   // has blocks
    const int flyer = sentOrder(server, BrochureKind::flyer); // has none
    const int wine = sentOrder(server, BrochureKind::wineA4);
    const auto brandOf = [](Family family) {
        for (const Brand* brand : qrBrands(catalogue().brands())) {
            if (brand->family == family) {
                return std::to_string(qrIdOf(brand->id));
            }
        }
        return std::string();
    };
    const std::string beerQr = brandOf(Family::beer), wineQr = brandOf(Family::wine);
    ASSERT_FALSE(wineQr.empty());
    struct Case {
        int order;
        std::string brand, type, tables, doors, blocks;
        const char* wrong;
    };
    for (const Case& demand : {
             Case{beer, wineQr, "1", "20", "0", "0", "brand_qr_id"},
             Case{wine, beerQr, "1", "20", "0", "0", "brand_qr_id"},
             Case{beer, "4711", "1", "20", "0", "0", "brand_qr_id"},
             Case{beer, beerQr, "3", "20", "0", "0", "type"},
             Case{flyer, beerQr, "2", "0", "0", "5", "type"},
             Case{beer, beerQr, "1", "21", "0", "0", "quantity_qr"},
             Case{beer, beerQr, "1", "0", "3", "0", "quantity_qr_circular"},
             Case{beer, beerQr, "1", "10", "0", "5", "quantity_qr_taco"},
             Case{beer, beerQr, "2", "10", "0", "5", "quantity_qr"},
             Case{beer, beerQr, "2", "0", "0", "5", ""},
             Case{wine, wineQr, "1", "0", "2", "0", ""},
             Case{flyer, beerQr, "1", "0", "0", "0", ""},
         }) {
        const auto reply = server.query("/api/orders/qr", {{"order_id", std::to_string(demand.order)},
                                                           {"brand_qr_id", demand.brand},
                                                           {"type", demand.type},
                                                           {"quantity_qr", demand.tables},
                                                           {"quantity_qr_circular", demand.doors},
                                                           {"quantity_qr_taco", demand.blocks},
                                                           {"comment", ""}});
        const bool fine = std::string(demand.wrong).empty();
        EXPECT_EQ(reply.status, fine ? 200 : 422) << demand.wrong << reply.text;
        EXPECT_TRUE(fine || reply.json["errors"].contains(demand.wrong)) << reply.text;
        EXPECT_EQ(rowOf(server, demand.order)["can_demand_qr"], !fine);
        if (fine) {
            EXPECT_EQ(reply.json["order_state_id"], 11);
            EXPECT_EQ(rowOf(server, demand.order)["estado"], reply.json["order_state_name"]);
        }
    }
}

} // namespace
} // namespace kavor::demo
