#include "RunCommand.h"
#include "base/json/Json.h"
#include "brochures/engine/SaveBrochuresOrder.h"
#include "orders/OrderDiskManager.h"
#include "orders/OrderList.h"
#include "promotions/PromotionOrder.h"
#include "session/AppSingleton.h"
#include "support/CatalogueBuilder.h"
#include "support/JsonData.h"
#include "support/TemporaryFolder.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>
#include <thread>

namespace kavor {
namespace {

class CommandsTest : public ::testing::Test {
protected:
    CommandsTest() {
        // The builder names no pictures; a document must.
        std::string document = *json::encode(CatalogueBuilder().information);
        for (auto at = document.find("\"path\":\"\""); at != std::string::npos;
             at = document.find("\"path\":\"\""))
            document.insert(at + 8, "p.png");
        put(catalogue, document);
        LoginResult login;
        login.msg = "ok";
        put(loginFile, *json::encode(login));
        AppSingleton::shared().setFolders(folder.path(), folder.path());
    }

    std::vector<std::string> withSession(std::vector<std::string> arguments) const {
        arguments.insert(arguments.end(), {"--catalogue", catalogue, "--login", loginFile});
        return arguments;
    }

    // An order with everything that its document can keep.
    static JsonData fullOrder() {
        return JsonData::ofFile(KAVOR_TEST_DATA "/beer_order.json").set("save", "3");
    }

    TemporaryFolder folder;
    std::string catalogue = folder / "catalogue.json";
    std::string loginFile = folder / "login.json";
    std::string file = folder / "Bar Ñandú.zvo";
};

TEST_F(CommandsTest, RebuildsTheSameDocument) {
    put(file, fullOrder().set("name_archive_tablet", "\"Bar Ñandú\"").text()); // as its file is called
    const Outcome outcome = kavorctl(withSession({"order", "rebuild", file, "--save", "cloud"}));
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(JsonData::of(outcome.out).text(true), JsonData::of(contentOf(file)).text(true));
}

TEST_F(CommandsTest, ChecksAnOrderWithTheRulesOfTheClient) {
    put(file, fullOrder().set("menu.customer.email", "\"\"").text());
    const Outcome bad = kavorctl(withSession({"order", "check", file}));
    EXPECT_EQ(bad.status, ctl::orderHasMessages);
    EXPECT_NE(bad.out.find("El email es obligatorio.\n"), std::string::npos) << bad.out;
    EXPECT_EQ(bad.out.back(), '\n');
    const Outcome list = kavorctl(withSession({"order", "check", file, "--json"}));
    std::string lines;
    for (const auto& each : QJsonDocument::fromJson(QByteArray::fromStdString(list.out)).array())
        lines += each.toString().toStdString() + "\n";
    EXPECT_EQ(lines, bad.out);
    EXPECT_EQ(kavorctl(withSession({"order", "warnings", file})).status, ctl::fine);
    EXPECT_EQ(kavorctl(withSession({"order", "warnings", file, "--json"})).out, "[]\n");
}

TEST_F(CommandsTest, ListsThePromotionsOnOfferAndChecksTheOrderOfOne) {
    CatalogueBuilder builder;
    Posters posters;
    posters.classifications = {{1, 1, "Verano"}};
    const HashedResource picture{"poster", Url{"http://server.example/poster.png"}, 3};
    Posters::Promotion summer{7, 10, "Roble", 1, "Cartel", 1, "Dos por uno", "", 2, false, {}, {}, {}};
    summer.languages = {{2, "Català", false, picture}, {1, "Castellano", true, picture}};
    summer.supports = {{5, 1, "A3", 1}};
    summer.attributes = {{3, "Precio", 10, 3, {}}};
    Posters::Promotion plain{8, 11,   "Encina", 1,  "Cartel", std::nullopt, "Happy hour", "",
                             1, true, {},       {}, {}};
    plain.languages = {{1, "Castellano", true, picture}};
    posters.promotions = {summer, plain};
    builder.information.promotion = posters;
    builder.brochures().promotions = posters;
    std::string document = *json::encode(builder.information);
    for (auto at = document.find("\"path\":\"\""); at != std::string::npos;
         at = document.find("\"path\":\"\""))
        document.insert(at + 8, "p.png");
    put(catalogue, document);

    const auto list = [this](const std::vector<std::string>& more) {
        std::vector<std::string> arguments{"promotion", "list", "--catalogue", catalogue};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return kavorctl(arguments).out;
    };
    const std::string summerLines = "7\t1\tDos por uno\tRoble\tVerano\n7\t2\tDos por uno\tRoble\tVerano\n";
    EXPECT_EQ(list({}), "8\t1\tHappy hour\tEncina\t-\n" + summerLines);
    EXPECT_EQ(list({"--menu"}), "8\t1\tHappy hour\tEncina\t-\n");
    EXPECT_EQ(list({"--brand", "10", "--classification", "1"}), summerLines);
    EXPECT_EQ(list({"--brand", "11", "--classification", "1"}), "");

    LoginResult login;
    login.msg = "ok";
    login.customerCodeRequired = true;
    put(loginFile, *json::encode(login));
    PromotionOrder order;
    order.promotionId = 7;
    order.attributes = {{3, "dos"}};
    put(file, *json::encode(order));
    Outcome outcome = kavorctl(withSession({"promotion", "check", file}));
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out,
              "El código cliente debe informarse.\nEl nombre del establecimiento es obligatorio.\n"
              "No hay ningún formato seleccionado, seleccione al menos uno.\n"
              "El precio no es válido.\n");
    order.attributes = {{3, "2,5"}};
    order.supports = {{5, 1}};
    order.customer = {std::nullopt, "B1", "Bar Olmo"};
    put(file, *json::encode(order));
    EXPECT_EQ(kavorctl(withSession({"promotion", "check", file})).status, 0);
    outcome = kavorctl({"promotion", "decode", file});
    EXPECT_EQ(JsonData::of(outcome.out).text(true), JsonData::of(contentOf(file)).text(true));
    order.promotionId = 9;
    put(file, *json::encode(order));
    outcome = kavorctl(withSession({"promotion", "check", file}));
    EXPECT_EQ(outcome.status, 2) << outcome.err;
    EXPECT_EQ(kavorctl({"promotion", "send", file, "--save", "cloud"}).status, ctl::wrongUsage);
}

TEST_F(CommandsTest, NamesTheFileAndThePlaceOfAFault) {
    put(file, R"({"save":3,"order_lines":[{"price":1,"quantity":"diez"}],"menu":{}})");
    const Outcome order = kavorctl({"order", "decode", file});
    EXPECT_EQ(order.status, ctl::unreadableInput);
    EXPECT_EQ(order.err, file + ": order_lines[0].quantity: expected integer, found string\n");
    const Outcome missing = kavorctl({"catalogue", "check", "/nirgendwo.json"});
    EXPECT_EQ(missing.status, ctl::unreadableInput);
    EXPECT_EQ(missing.err, "/nirgendwo.json: No such file or directory\n");
}

TEST_F(CommandsTest, NamesTheWordThatIsWrong) {
    const std::vector<std::pair<std::vector<std::string>, std::string>> table{
        {{"orders", "nonsense"}, "nonsense"},
        {{"--nonsense", "order", "decode", file}, "--nonsense"},
        {{"order", "rebuild", file}, "--catalogue"},
        {{"--documents", "", "logout"}, "--documents"},
        {{"--configuration", "--json", "logout"}, "--configuration"},
        {{"catalogue", "check", ""}, "FILE"},
        {{}, "subcommand"}};
    for (const auto& [arguments, word] : table) {
        const Outcome outcome = kavorctl(arguments);
        EXPECT_EQ(outcome.status, ctl::wrongUsage) << word;
        EXPECT_NE(outcome.err.find(word), std::string::npos) << word << " in " << outcome.err;
    }
    EXPECT_EQ(kavorctl({"--help"}).status, ctl::fine);
}

TEST_F(CommandsTest, ReadsADocumentFromAPipeAndRefusesAFolder) {
    put(file, fullOrder().text());
    const Outcome expected = kavorctl({"order", "decode", file});
    const std::string pipe = folder / "pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    std::thread writer([&] { std::ofstream(pipe) << contentOf(file); });
    EXPECT_EQ(kavorctl({"order", "decode", pipe}).out, expected.out);
    writer.join();
    EXPECT_EQ(kavorctl({"order", "decode", folder.path()}).status, ctl::unreadableInput);
}

TEST_F(CommandsTest, ShowsAnOrderToAReader) {
    put(file, fullOrder().text());
    const Outcome outcome = kavorctl({"order", "show", file, "--catalogue", catalogue});
    for (const char* expected :
         {"Local: Bar La Esquina\n", "Idioma: Castellano\n", "Nº de cartas (Barra): 10\n", "- Encina\n",
          "Tercio, 33 cl, Barra 2,50", "destacado"})
        EXPECT_NE(outcome.out.find(expected), std::string::npos) << expected << "\n" << outcome.out;
}

TEST_F(CommandsTest, CountsAndEncodesTheCatalogueAgain) {
    const Outcome counts = kavorctl({"catalogue", "check", catalogue});
    EXPECT_NE(counts.out.find("productos 3\nproductos.productlist 5\n"), std::string::npos) << counts.out;
    EXPECT_TRUE(kavorctl({"catalogue", "encode", catalogue}).out == contentOf(catalogue) + "\n");
}

TEST_F(CommandsTest, MergesAFolderWithAStoredAnswer) {
    const OrderDiskManager orders(folder.path());
    SaveBrochuresOrder order;
    order.orderIdentifier = 8;
    ASSERT_TRUE(orders.create(order, OrderDiskManager::DirectoryName::draft, "Local"));
    std::filesystem::last_write_time(folder / "orders/draft_orders/SaveBrochuresOrder/Local.zvo",
                                     std::filesystem::file_time_type::clock::now());
    const std::string answer = folder / "answer.json";
    put(answer, R"({"resumen":{},"pedidos":[
        {"id":8,"fecha":"02-03-2020 10:11:12","can_demand_qr":false,"tipo":"x","tipoId":1,"estado":"x","estadoId":12,
         "name_archive_tablet":"Local","token":"t"},
        {"id":9,"fecha":"02-03-2020 10:11:12","can_demand_qr":false,"tipo":"x","tipoId":5,"estado":"x","estadoId":12,
         "name_archive_tablet":"Nube","token":"t"}]})");
    const Outcome outcome = kavorctl({"orders", "merge", "--local", folder.path(), "--answer", answer,
                                      "--catalogue", catalogue, "--json"});
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_NE(outcome.out.find(
                  "\"filename\": \"Local\",\n    \"section\": \"Brochure(beer)\",\n    \"serverId\": 8,\n"
                  "    \"syncState\": \"synced\""),
              std::string::npos)
        << outcome.out;
    EXPECT_NE(outcome.out.find("\"date\": \"02-03-2020 10:11:12\",\n    \"filename\": \"Nube\",\n"
                               "    \"section\": \"Brochure(chalkboard)\",\n    \"serverId\": 9"),
              std::string::npos)
        << outcome.out;
}

TEST_F(CommandsTest, MergingChangesNothingInTheFolder) {
    const std::string answer = folder / "answer.json";
    put(answer, R"({"resumen":{}})");
    const std::string local = folder / "local";
    const std::vector<std::string> merge{"orders",  "merge", "--json",      "--answer", answer,
                                         "--local", local,   "--catalogue", catalogue};
    const Outcome missing = kavorctl(merge);
    EXPECT_EQ(missing.status, ctl::unreadableInput);
    EXPECT_EQ(missing.err, local + "/orders: No such file or directory\n");
    EXPECT_FALSE(std::filesystem::exists(local));

    const auto drafts = folder / "local/orders/draft_orders/SaveBrochuresOrder";
    const std::string document = fullOrder().text();
    put(drafts / "a\xff.zvo", document); // a name of other bytes than UTF-8
    put(drafts / ".tmp-0-0", "left by a dead writer");
    const Outcome outcome = kavorctl(merge);
    EXPECT_NE(outcome.out.find("\"filename\": \"a\uFFFD\""), std::string::npos) << outcome.out << outcome.err;
    EXPECT_TRUE(std::filesystem::exists(drafts / ".tmp-0-0"));
    EXPECT_FALSE(std::filesystem::exists(folder / "local/orders/outbox_orders"));
}

} // namespace
} // namespace kavor
