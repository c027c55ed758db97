#include "PdfText.h"
#include "RunningServer.h"
#include "catalogue/Activations.h"

#include <QDate>
#include <QRectF>
#include <QTransform>

#include <gtest/gtest.h>

#include <functional>

namespace kavor::demo {
namespace {

constexpr int musicNight = 7; ///< one of it is left

std::string dayFromNow(int days) {
    return QDate::currentDate().addDays(days).toString("dd-MM-yyyy").toStdString();
}

Json partyOf(int activationId, int days = 40) {
    const Activation& activation = *activationOf(activationId);
    Json items = Json::array(), attributes = Json::array();
    for (const ActivationElement& element : elementsOf(activation)) {
        items.push_back({{"id", element.id}});
    }
    for (const ActivationQuestion& question : questionsOf(activation)) {
        attributes.push_back({{"id", question.id}, {"value", question.typeId == 3 ? "2.5" : "Ana 12"}});
    }
    return {{"customer", {{"name", "Bar <Sol>"}, {"full_address", "Calle Mayor 1, Madrid"}}},
            {"activation",
             {{"activation_id", activationId},
              {"date_event", dayFromNow(days)},
              {"time_from", "20:00"},
              {"time_to", "23:30"},
              {"items", std::move(items)},
              {"attributes", std::move(attributes)}}}};
}

/// Where a control of a board stands after it was turned about its middle.
QRectF turned(const Json& record) {
    const QRectF place(record["image_x"].get<int>(), record["image_y"].get<int>(),
                       record["image_w"].get<int>(), record["image_h"].get<int>());
    const QPointF middle = place.center();
    QTransform turn;
    turn.translate(middle.x(), middle.y());
    turn.rotate(record["image_rotate"].get<int>());
    return turn.mapRect(place.translated(-middle));
}

QRectF badge(const Json& record) {
    return {double(record["x_quota"].get<int>()), double(record["y_quota"].get<int>()),
            double(record["w_quota"].get<int>()), double(record["h_quota"].get<int>())};
}

/// What stands on a board, the badge of a control with it, and how wide the board is.
void expectApart(const Json& records, bool withBadges) {
    constexpr double phone = 358, touch = 48; ///< what a phone leaves for the board, and a finger needs
    double width = 0;
    std::vector<QRectF> all;
    for (const Json& record : records) {
        QRectF place = turned(record);
        width = std::max(width, double(record["image_x"].get<int>() + record["image_w"].get<int>()));
        if (withBadges) {
            width = std::max(width, badge(record).right());
            place = place.united(badge(record));
        }
        all.push_back(place);
    }
    for (size_t i = 0; i < all.size(); ++i) {
        EXPECT_GE(all[i].left(), 0);
        EXPECT_GE(all[i].top(), 0);
        EXPECT_GE(all[i].height() * phone / width, touch);
        for (size_t j = i + 1; j < all.size(); ++j) {
            EXPECT_FALSE(all[i].intersects(all[j])) << records[i]["name"] << " and " << records[j]["name"];
        }
    }
}

TEST(ActivationsOfTheDemoCatalogue, StandApartOnTheirBoardsAndAreOfEverySort) {
    const Catalogue catalogue(60, "http://127.0.0.1:1");
    const Json definitions = Json::parse(catalogue.text())["activaciones"]["definiciones"];
    expectApart(definitions, false);
    int single = 0, withoutNotice = 0, ending = 0, rich = 0;
    for (const Json& definition : definitions) {
        expectApart(definition["activaciones"], true);
        single += definition["activaciones"].size() == 1;
        for (const Json& activation : definition["activaciones"]) {
            withoutNotice += activation["previous_days"] == 0;
            const QDate end =
                activation["date_to"].is_null()
                    ? QDate()
                    : QDate::fromString(
                          QString::fromStdString(activation["date_to"].get<std::string>()).left(10),
                          "dd-MM-yyyy");
            ending += end.isValid() && end < QDate::currentDate().addDays(31);
            bool judged = false;
            for (const Json& attribute : activation["atributos"]) {
                judged = judged || attribute.contains("regex");
            }
            rich += judged && activation["items"].size() > 2;
        }
    }
    EXPECT_GE(single, 1);
    EXPECT_GE(withoutNotice, 1);
    EXPECT_EQ(ending, 1);
    EXPECT_GE(rich, 1);
}

TEST(ActivationOfTheDemoServer, IsOrderedOnceUnderItsKeyAndCountsUntilTheQuotaIsFull) {
    RunningServer server;
    server.login();
    const Json order = partyOf(musicNight);
    const auto first = server.post("/api/activations", order, "party");
    const auto again = server.post("/api/activations", order, "party");
    EXPECT_EQ(first.status, 200) << first.text;
    EXPECT_EQ(first.json, again.json);
    EXPECT_EQ(first.json["number_made"], first.json["quota"]);
    EXPECT_EQ(server.get("/demo/orders").json.size(), 1u);
    const auto full = server.post("/api/activations", order, "another");
    EXPECT_EQ(full.status, 422);
    EXPECT_NE(full.text.find("No queda cupo"), std::string::npos);
    for (const Json& entry : server.get("/api/activations/quota").json["activations"]) {
        if (entry["id"] == musicNight) {
            EXPECT_EQ(entry["number_made"], 4);
        }
    }
}

TEST(ActivationOfTheDemoServer, RefusesWhatCannotBe) {
    RunningServer server;
    server.login();
    const auto first = server.post("/api/activations", partyOf(1), "first");
    ASSERT_EQ(first.status, 200) << first.text;
    const std::int64_t id = first.json["order_id"].get<std::int64_t>();
    struct Case {
        const char* member;
        std::function<void(Json&)> change;
    };
    const std::vector<Case> table = {
        {"activation.activation_id", [](Json& order) { order["activation"]["activation_id"] = 99; }},
        {"activation.date_event", [](Json& order) { order["activation"]["date_event"] = dayFromNow(0); }},
        {"activation.date_event", [](Json& order) { order["activation"]["date_event"] = dayFromNow(9); }},
        {"activation.date_event", [](Json& order) { order["activation"]["date_event"] = "31-02-2031"; }},
        {"activation.time_from", [](Json& order) { order["activation"]["time_from"] = "-"; }},
        {"activation.time_to", [](Json& order) { order["activation"]["time_to"] = "20:00"; }},
        {"activation.items[0].id", [](Json& order) { order["activation"]["items"][0]["id"] = 5; }},
        {"activation.items", [](Json& order) { order["activation"]["items"].erase(0); }},
        {"activation.attributes", [](Json& order) { order["activation"]["attributes"].erase(0); }},
        {"activation.attributes[1].id", [](Json& order) { order["activation"]["attributes"][1]["id"] = 5; }},
        {"activation.activation_relation_id",
         [](Json& order) { order["activation"]["activation_relation_id"] = 4711; }},
        {"activation.activation_relation_id",
         [id](Json& order) {
             order["activation"]["activation_relation_id"] = id;
             order["activation"]["date_event"] = dayFromNow(41);
         }},
        {"customer.name", [](Json& order) { order["customer"]["name"] = ""; }},
    };
    for (const Case& each : table) {
        Json order = partyOf(1);
        each.change(order);
        const auto reply = server.post("/api/activations", order);
        EXPECT_EQ(reply.status, 422) << each.member;
        EXPECT_NE(reply.text.find("\"" + std::string(each.member) + "\""), std::string::npos) << reply.text;
    }
    EXPECT_EQ(server.get("/demo/orders").json.size(), 1u);
    EXPECT_EQ(server.post("/api/activations", partyOf(1, 10)).status, 200); // the day of the notice
    EXPECT_EQ(server.post("/api/activations", partyOf(3, 1)).status, 200);  // none is needed
}

TEST(ActivationOfTheDemoServer, NamesEverythingOnPageAndPaperAndTheTieOnBoth) {
    RunningServer server;
    server.login();
    const auto first = server.post("/api/activations", partyOf(1));
    Json second = partyOf(3);
    second["activation"]["activation_relation_id"] = first.json["order_id"];
    const auto tied = server.post("/api/activations", second);
    ASSERT_EQ(tied.status, 200) << tied.text;
    const auto numberOf = [](const Json& answer) { return std::to_string(answer["order_id"].get<int>()); };
    const auto pathOf = [&](const Json& url) {
        return url.get<std::string>().substr(server.baseUrl().size());
    };
    const std::string page = server.get(pathOf(first.json["url"])).text;
    std::string paper;
    for (const Json& order : server.get("/demo/orders").json) {
        if (order["id"] == first.json["order_id"]) {
            paper =
                textOf(QByteArray::fromStdString(server.get(pathOf(order["url_pdf"])).text)).toStdString();
        }
    }
    for (const std::string& part :
         {std::string("De 20:00 a 23:30"), std::string("Calle Mayor 1, Madrid"),
          std::string("Agencia Farolillo Norte"), std::string("Vasos serigrafiados"), std::string("Ana 12"),
          std::string("2.5"), "Tiene asociado el pedido " + numberOf(tied.json)}) {
        EXPECT_NE(page.find(part), std::string::npos) << part;
        EXPECT_NE(paper.find(part), std::string::npos) << part;
    }
    EXPECT_NE(page.find("2 de 4"), std::string::npos);
    EXPECT_NE(page.find("Bar &lt;Sol&gt;"), std::string::npos);
    const std::string other = server.get(pathOf(tied.json["url"])).text;
    EXPECT_NE(other.find("Asociada al pedido " + numberOf(first.json)), std::string::npos);
}

TEST(ActivationOfTheDemoServer, HasOneThatIsOverAndATiedPairFromTheStart) {
    Options options;
    options.orders = 3;
    RunningServer server(options);
    int over = 0, tied = 0;
    for (const Json& order : server.get("/demo/orders?all=1").json) {
        if (order["kind"] != "activation") {
            continue;
        }
        const Json& event = order["body"]["activation"];
        over += QDate::fromString(QString::fromStdString(event["date_event"].get<std::string>()),
                                  "dd-MM-yyyy") < QDate::currentDate();
        tied += event.contains("activation_relation_id");
    }
    EXPECT_EQ(over, 1);
    EXPECT_EQ(tied, 1);
}

} // namespace
} // namespace kavor::demo
