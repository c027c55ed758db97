#include "PdfText.h"
#include "RunningServer.h"
#include "server/Customers.h"
#include "server/SampleOrder.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <set>
#include <vector>

namespace kavor::demo {
namespace {

/// Two combinations of the first brand, twelve units.
Json clothes() {
    const Catalogue catalogue(60, "http://127.0.0.1:1");
    const Json& articles = catalogue.textile()["textil"];
    Json order = sampleTextileOrder(catalogue, bars().front(), 8, 0);
    order["order"]["lines"] = Json::array();
    for (const size_t place : {size_t(0), size_t(1), articles.size() / 2}) {
        order["order"]["lines"].push_back({{"textil_id", articles[place]["id"]}, {"quantity", 4}});
    }
    return order;
}

TEST(ClothesOfTheDemoCatalogue, AreUnevenAsReality) {
    const Catalogue catalogue(60, "http://127.0.0.1:1");
    std::map<std::vector<int>, std::set<int>> sizes;
    int earlierSeason = 0, inItsPlace = 0;
    for (const Json& article : catalogue.textile()["textil"]) {
        sizes[{article["type_id"].get<int>(), article["model_id"].get<int>(), article["color_id"].get<int>()}]
            .insert(article["size_id"].get<int>());
        earlierSeason += !article["by_default"].get<bool>();
        inItsPlace += article["position"] == article["id"];
    }
    std::set<size_t> numbers;
    for (const auto& [combination, its] : sizes) {
        EXPECT_EQ(its.size() == 1, combination.front() == 3) << "aprons alone come in one size";
        numbers.insert(its.size());
    }
    EXPECT_GT(numbers.size(), 2U);
    EXPECT_GT(earlierSeason, 0);
    EXPECT_LT(inItsPlace, 5);
}

TEST(ClothesOfTheDemoServer, APrintedOrderNamesTheMemberThatIsWrongAndAKeptOneMayBeUnfinished) {
    RunningServer server;
    server.login();
    const std::string tooLong(26, 'x');
    using Change = std::function<void(Json&)>;
    const std::vector<std::pair<std::string, Change>> faults = {
        {"order.lines.1.textil_id", [](Json& order) { order["lines"][1]["textil_id"] = 999'999; }},
        {"order.lines.0.quantity", [](Json& order) { order["lines"][0]["quantity"] = 0; }},
        {"order.lines", [](Json& order) { order["lines"].erase(0); }},
        {"order.message", [&](Json& order) { order["message"] = tooLong; }},
        {"order.message", [](Json& order) { order["message"] = ""; }},
        {"order.typography_id", [](Json& order) { order["typography_id"] = 77; }},
        {"order.typography_id", [](Json& order) { order.erase("typography_id"); }}};
    for (const auto& [member, change] : faults) {
        Json order = clothes();
        change(order["order"]);
        for (const int save : {1, 2}) {
            order["save"] = save;
            const auto reply = server.post("/api/textile", order);
            EXPECT_EQ(reply.status, 422) << member;
            EXPECT_TRUE(reply.json["errors"].contains(member)) << reply.text;
        }
        order["save"] = 3;
        EXPECT_EQ(server.post("/api/textile", order).status, 200) << member;
    }
    Json families = clothes();
    families["order"]["message"] = "Bar 👨‍👩‍👧‍👦👨‍👩‍👧‍👦"; // six characters
    EXPECT_EQ(server.post("/api/textile", families).status, 200);
}

TEST(ClothesOfTheDemoServer, ThePdfHasACardForEachCombination) {
    RunningServer server;
    server.login();
    Json order = clothes();
    order["order"]["message"] = "Peña del Río";
    const auto reply = server.post("/api/textile", order);
    ASSERT_EQ(reply.status, 200) << reply.text;
    const std::string address = reply.json["url_pdf"].get<std::string>();
    const auto words =
        textOf(QByteArray::fromStdString(server.get(address.substr(server.baseUrl().size())).text));
    for (const char* expected : {"Peña del Río", "2 referencias", "12 unidades", "XS", "4 uds."}) {
        EXPECT_TRUE(words.contains(expected)) << expected << '\n' << words.toStdString();
    }
}

} // namespace
} // namespace kavor::demo
