#include "RunCommand.h"
#include "base/json/Json.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/engine/TemporalBrochure.h"
#include "orders/OrderDiskManager.h"
#include "orders/OrderList.h"
#include "session/AppSingleton.h"
#include "support/CatalogueBuilder.h"
#include "support/TemporaryFolder.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>
#include <map>
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

    // A draft of a kind with everything that its document can keep.
    static SaveBrochuresOrder fullOrder(BrochureType kind) {
        auto& session = AppSingleton::shared();
        session.applicationInformation = CatalogueBuilder().take();
        session.actualSection = SectionIdentifier::brochure(kind);
        auto draft = BrochureIntermediateData::replaceTemporalBrochure();
        EXPECT_TRUE(draft->setLanguages(1, 2));
        EXPECT_TRUE(draft->setSecondPrice(PriceType::terrace));
        draft->selectedNumberOfBrochures = {20, 10};
        draft->selectedStyleIdentifier = CatalogueBuilder::styleOf(kind);
        draft->customerInformation.emplace().name = "Bar Ñandú";
        draft->fileName = "Bar Ñandú";
        const Int brand = CatalogueBuilder::isWine(kind) ? 12 : 11;
        const Int format = CatalogueBuilder::isWine(kind) ? 120 : 110;
        EXPECT_TRUE(draft->setFormatSelected(true, format, brand));
        EXPECT_TRUE(draft->setPrice(PriceType::main, format, brand, 4.25));
        EXPECT_TRUE(draft->setVolume(33, format, brand));
        EXPECT_TRUE(draft->setFormatHighlighted(true, format, brand).success);
        if (kind == BrochureType::beverage || kind == BrochureType::menu) {
            const Int own = draft->addBeverageCategory("Zumos");
            const auto juice = draft->addBeverageProduct("Naranja", own);
            EXPECT_TRUE(draft->setBeverageFormatSelected(true, "Vaso", *juice, own));
            EXPECT_TRUE(draft->setBeveragePrice(2.5, false, "Vaso", *juice, own));
            draft->addBeverageCategory("Batidos");
        }
        if (kind == BrochureType::chalkboard) {
            EXPECT_TRUE(draft->setBlackboardFormat(1));
            EXPECT_TRUE(draft->setBlackboardType(1));
        }
        return draft->makeOrder(OrderRequestType::saveCloud, false);
    }

    TemporaryFolder folder;
    std::string catalogue = folder / "catalogue.json";
    std::string loginFile = folder / "login.json";
    std::string file = folder / "Bar Ñandú.zvo";
};

TEST_F(CommandsTest, RebuildsTheSameDocumentForEveryKind) {
    for (const BrochureType kind : CatalogueBuilder::kinds) {
        const std::string document = *json::encodePretty(fullOrder(kind)) + "\n";
        put(file, document);
        const Outcome outcome = kavorctl(withSession({"order", "rebuild", file, "--save", "cloud"}));
        EXPECT_EQ(outcome.status, 0) << outcome.err;
        EXPECT_EQ(outcome.out, document) << caseName(kind);
    }
}

TEST_F(CommandsTest, ChecksAnOrderWithTheRulesOfTheClient) {
    put(file, *json::encodePretty(fullOrder(BrochureType::beer)));
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
        {{"nonsense"}, "nonsense"},
        {{"orders", "nonsense"}, "nonsense"},
        {{"--nonsense", "order", "decode", file}, "--nonsense"},
        {{"orders", "merge", "--nonsense"}, "--nonsense"},
        {{"logout", "nonsense"}, "nonsense"},
        {{"order", "rebuild", file}, "--catalogue"},
        {{"--documents", "", "logout"}, "--documents"},
        {{"--documents=", "logout"}, "--documents"},
        {{"--configuration", "--json", "logout"}, "--configuration"},
        {{"orders", "merge", "--local", "--answer", "a", "--catalogue", "c"}, "--local"},
        {{"catalogue", "check", ""}, "FILE"},
        {{"login", ""}, "ACCOUNT"},
        {{"order", "from-answer", "", "--row", "1", "--catalogue", "c"}, "FILE"},
        {{}, "subcommand"}};
    for (const auto& [arguments, word] : table) {
        const Outcome outcome = kavorctl(arguments);
        EXPECT_EQ(outcome.status, ctl::wrongUsage) << word;
        EXPECT_NE(outcome.err.find(word), std::string::npos) << word << " in " << outcome.err;
    }
    EXPECT_EQ(kavorctl({"--help"}).status, ctl::fine);
}

TEST_F(CommandsTest, NamesWhatACatalogueLacksForTheRules) {
    GTEST_FLAG_SET(death_test_style, "threadsafe"); // the application object has threads
    put(file, *json::encodePretty(fullOrder(BrochureType::beer)));
    auto information = *json::decode<ApplicationInformation>(contentOf(catalogue));
    std::erase_if(information.brochures->types,
                  [](const auto& type) { return type.id == BrochureType::beer; });
    put(catalogue, *json::encode(information));
    EXPECT_EXIT(kavorctl(withSession({"order", "check", file})), ::testing::ExitedWithCode(70),
                "brochure type 1\n");
    information.brochures.reset();
    put(catalogue, *json::encode(information));
    EXPECT_EXIT(kavorctl(withSession({"order", "check", file})), ::testing::ExitedWithCode(70),
                "brochure catalogue\n");
}

TEST_F(CommandsTest, ReadsADocumentFromAPipeAndRefusesAFolder) {
    put(file, *json::encodePretty(fullOrder(BrochureType::beer)));
    const Outcome expected = kavorctl({"order", "decode", file});
    const std::string pipe = folder / "pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    std::thread writer([&] { std::ofstream(pipe) << contentOf(file); });
    EXPECT_EQ(kavorctl({"order", "decode", pipe}).out, expected.out);
    writer.join();
    EXPECT_EQ(kavorctl({"order", "decode", folder.path()}).status, ctl::unreadableInput);
}

TEST_F(CommandsTest, ShowsAnOrderToAReader) {
    put(file, *json::encodePretty(fullOrder(BrochureType::menu)));
    const Outcome outcome = kavorctl({"order", "show", file, "--catalogue", catalogue});
    for (const char* expected : {"Carta de Menú \"Bar Ñandú\"\n", "Local: Bar Ñandú\n",
                                 "Idioma: Castellano\n", "Nº de cartas (Barra): 20\n", "- Encina\n",
                                 "Tercio, 33 cl, Barra 4,25", "destacado", "Zumos", "Naranja, Vaso 2,50"})
        EXPECT_NE(outcome.out.find(expected), std::string::npos) << expected << "\n" << outcome.out;
}

TEST_F(CommandsTest, CountsAndEncodesTheCatalogueAgain) {
    const Outcome counts = kavorctl({"catalogue", "check", catalogue});
    EXPECT_NE(counts.out.find("productos 3\nproductos.productlist 5\n"), std::string::npos) << counts.out;
    EXPECT_TRUE(kavorctl({"catalogue", "encode", catalogue}).out == contentOf(catalogue) + "\n");
}

// Sums up the records of each list of records in a document, by the list's place.
void countLists(const QJsonValue& value, const QString& place, std::map<QString, qsizetype>& counts) {
    for (const QJsonValue& item : value.toArray())
        countLists(item, place, counts);
    const QJsonObject object = value.toObject();
    for (auto member = object.begin(); member != object.end(); ++member) {
        const QString name = place.isEmpty() ? member.key() : place + '.' + member.key();
        if (member->isArray() && member->toArray().first().isObject())
            counts[name] += member->toArray().size();
        countLists(*member, name, counts);
    }
}

TEST_F(CommandsTest, CountsEveryListOfRecords) {
    const std::string document = KAVOR_TEST_DATA "/catalogue.json";
    std::map<QString, qsizetype> expected;
    countLists(QJsonDocument::fromJson(QByteArray::fromStdString(contentOf(document))).object(), {},
               expected);
    ASSERT_GT(expected.size(), 50U);
    const Outcome outcome = kavorctl({"--json", "catalogue", "check", document});
    const auto found = QJsonDocument::fromJson(QByteArray::fromStdString(outcome.out)).object();
    for (const auto& [kind, count] : expected)
        EXPECT_EQ(found[kind].toInteger(-1), count) << kind.toStdString();
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
    const std::string document = *json::encodePretty(fullOrder(BrochureType::beer));
    put(drafts / "a\xff.zvo", document); // a name of other bytes than UTF-8
    put(drafts / ".tmp-0-0", "left by a dead writer");
    const Outcome outcome = kavorctl(merge);
    EXPECT_NE(outcome.out.find("\"filename\": \"a\uFFFD\""), std::string::npos) << outcome.out << outcome.err;
    EXPECT_TRUE(std::filesystem::exists(drafts / ".tmp-0-0"));
    EXPECT_FALSE(std::filesystem::exists(folder / "local/orders/outbox_orders"));
}

} // namespace
} // namespace kavor
