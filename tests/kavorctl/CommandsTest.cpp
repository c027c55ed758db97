#include "Commands.h"

#include "base/json/Json.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/engine/TemporalBrochure.h"
#include "orders/OrderDiskManager.h"
#include "orders/OrderList.h"
#include "shell/AppSingleton.h"
#include "support/CatalogueBuilder.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <sstream>

namespace kavor {
namespace {

struct Outcome {
    int status = 0;
    std::string out;
    std::string err;
};

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

    static Outcome kavorctl(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "kavorctl");
        std::vector<const char*> argv;
        for (const auto& argument : arguments)
            argv.push_back(argument.c_str());
        std::ostringstream out;
        std::ostringstream err;
        const int status = ctl::run(static_cast<int>(argv.size()), argv.data(), out, err);
        return {status, out.str(), err.str()};
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
    EXPECT_EQ(kavorctl(withSession({"order", "warnings", file})).status, ctl::fine);
}

TEST_F(CommandsTest, NamesTheFileAndThePlaceOfAFault) {
    put(file, R"({"save":3,"order_lines":[{"price":1,"quantity":"diez"}],"menu":{}})");
    const Outcome order = kavorctl({"order", "decode", file});
    EXPECT_EQ(order.status, ctl::unreadableInput);
    EXPECT_EQ(order.err, file + ": order_lines[0].quantity: expected integer, found string\n");
    const Outcome missing = kavorctl({"catalogue", "check", "/nirgendwo.json"});
    EXPECT_EQ(missing.status, ctl::unreadableInput);
    EXPECT_EQ(missing.err, "/nirgendwo.json: No such file or directory\n");
    EXPECT_EQ(kavorctl({"order", "rebuild", file}).status, ctl::wrongUsage);
    EXPECT_EQ(kavorctl({}).status, ctl::wrongUsage);
    EXPECT_EQ(kavorctl({"--help"}).status, ctl::fine);
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

} // namespace
} // namespace kavor
