#include "RunCommand.h"
#include "base/json/Json.h"
#include "sellingsheets/SheetFixture.h"
#include "support/JsonData.h"
#include "support/ScriptedServer.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <iostream>

namespace kavor {
namespace {

using ::testing::HasSubstr;

class SheetCommands : public ::testing::Test {
protected:
    TemporaryFolder folder;
    std::string file = folder / "hoja.zvo";
    std::string catalogue = folder / "catalogue.json";
    SellingSheetOrder sheet = completeSheet();

    void SetUp() override {
        CatalogueBuilder builder;
        addSheets(builder);
        putCatalogue(builder);
    }
    void putCatalogue(const CatalogueBuilder& builder) const {
        std::string document = *json::encode(builder.information);
        for (auto at = document.find("\"path\":\"\""); at != std::string::npos;
             at = document.find("\"path\":\"\""))
            document.insert(at + 8, "p.png");
        put(catalogue, document);
    }
    [[nodiscard]] Outcome check() const {
        put(file, *json::encode(sheet));
        return kavorctl({"sheet", "check", file, "--catalogue", catalogue});
    }
};

TEST_F(SheetCommands, CheckPrintsTheOneTextAsItStands) {
    Outcome outcome = check();
    EXPECT_EQ(outcome.status, ctl::fine) << outcome.err;
    EXPECT_EQ(outcome.out, "");
    sheet.title = "";
    sheet.toDate = sheet.fromDate;
    outcome = check();
    EXPECT_EQ(outcome.status, ctl::orderHasMessages);
    EXPECT_EQ(outcome.out, "El título está vacío.\nLa fecha de inicio es igual a la de entrega.\n");
}

TEST_F(SheetCommands, CheckStopsOnlyForACatalogueWithoutSheets) {
    putCatalogue(CatalogueBuilder());
    EXPECT_EXIT(check(), ::testing::ExitedWithCode(70), "selling sheet catalogue");
    put(file, R"({"id": 1})");
    const Outcome outcome = kavorctl({"sheet", "check", file, "--catalogue", catalogue});
    EXPECT_EQ(outcome.status, ctl::unreadableInput) << "a wrong record comes first, and is no reason to stop";
    EXPECT_THAT(outcome.err, HasSubstr("hoja.zvo: token"));
}

TEST_F(SheetCommands, DecodeKeepsEveryMemberButSave) {
    sheet.identifier = 9;
    sheet.subtitle = "b";
    sheet.freeText = "";
    sheet.distributionLogo = "data:image/png;base64,AA==";
    sheet.distributionLogoURL = "no es una url";
    sheet.PDFURL = Url{"/hoja.pdf"};
    const JsonData document = JsonData::of(*json::encode(sheet));
    JsonData saved = document;
    put(file, saved.set("save", "true").text());
    const Outcome outcome = kavorctl({"sheet", "decode", file});
    EXPECT_EQ(outcome.status, ctl::fine) << outcome.err;
    EXPECT_EQ(JsonData::of(outcome.out).text(true), document.text(true));
    EXPECT_LT(outcome.out.find("\"created_at\""), outcome.out.find("\"title\"")) << "sorted keys";
}

TEST_F(SheetCommands, AWrongRecordIsNamedAndEndsNothing) {
    const JsonData document = JsonData::of(*json::encode(sheet));
    struct Fault {
        const char* member;
        const char* value;
        const char* said;
    };
    for (const Fault& fault : {Fault{"title", "null", "title"}, Fault{"id", "\"9\"", "id"},
                               Fault{"taxes_included", "1", "taxes_included"},
                               Fault{"email_to_send2", "7", "email_to_send2"}, Fault{"items", "{}", "items"},
                               Fault{"url_pdf", "\"\"", "url_pdf"}, Fault{"style_id", "1.5", "style_id"}}) {
        JsonData wrong = document;
        put(file, wrong.set(fault.member, fault.value).text());
        const Outcome outcome = kavorctl({"sheet", "decode", file});
        EXPECT_EQ(outcome.status, ctl::unreadableInput) << fault.member << outcome.out;
        EXPECT_THAT(outcome.err, HasSubstr(fault.said));
    }
}

TEST_F(SheetCommands, ShowNamesProductsAndThePriceOfABottle) {
    sheet.items.push_back({8, {}, 4, 4711, 1, {}, {}, 5});
    put(file, *json::encode(sheet));
    const Outcome outcome = kavorctl({"sheet", "show", file, "--catalogue", catalogue});
    EXPECT_EQ(outcome.status, ctl::fine) << outcome.err;
    EXPECT_THAT(outcome.out, HasSubstr("Estilo: Pizarra\nVigencia: 2024-06-01 / 2024-06-30\n"));
    EXPECT_THAT(outcome.out, HasSubstr("- 2 cajas de Encina Tercio y 1 caja de Roble Tercio, 60,00 €, 1,00 € "
                                       "por botella, ref. REF\n"
                                       "- 1 caja de (fuera de catálogo), 5,00 €\n"));
}

class SheetCommandsOnline : public SheetCommands {
protected:
    ScriptedServer server;

    void SetUp() override {
        SheetCommands::SetUp();
        qputenv("KAVOR_KEYCHAIN", "file");
        QByteArray configuration = QByteArray::fromStdString(
            contentOf(KAVOR_TEST_DATA "/../../apps/kavor/NetworkConfiguration.plist"));
        configuration.replace("http://127.0.0.1:8480", server.address().toUtf8());
        folder.put("conf.plist", configuration.toStdString());
        server.answer("/api/login", ScriptedAnswer::json(R"({"msg":"ok","token":"T1"})"));
        std::istringstream typed("secreta\n");
        std::streambuf* const former = std::cin.rdbuf(typed.rdbuf());
        std::cin.clear();
        EXPECT_EQ(online({"login", "ana"}).status, ctl::fine);
        std::cin.rdbuf(former);
    }
    void TearDown() override {
        qunsetenv("KAVOR_OFFLINE");
        qunsetenv("KAVOR_KEYCHAIN");
    }
    [[nodiscard]] Outcome online(std::vector<std::string> arguments) const {
        arguments.insert(arguments.end(), {"--configuration", folder / "conf.plist", "--documents",
                                           folder / "documents", "--caches", folder / "caches"});
        return kavorctl(arguments);
    }
    void answerList() {
        sheet.identifier = 6;
        sheet.orderToken = "x==";
        server.answer("/api/sheets/list", ScriptedAnswer::json(QByteArray::fromStdString(
                                              *json::encode(SellingSheetOrderListResponse{{sheet}}))));
    }
};

TEST_F(SheetCommandsOnline, SendSaysWhatTheServerIsToDoAndWhatItRefused) {
    put(file, *json::encode(sheet));
    server.answer("/api/sheets", ScriptedAnswer::json(R"({"url":"/a.pdf","order_id":6})"));
    for (const char* save : {"print", "preview"})
        EXPECT_EQ(online({"sheet", "send", file, "--save", save, "--intent", "uno"}).status, ctl::fine);
    const auto requests = server.requestsTo("/api/sheets");
    ASSERT_EQ(requests.size(), 2);
    EXPECT_THAT(requests[0].body.toStdString(), HasSubstr("\"save\": true"));
    EXPECT_THAT(requests[1].body.toStdString(), HasSubstr("\"save\": false"));
    EXPECT_NE(requests[0].header("idempotency-key"), requests[1].header("idempotency-key"));
    server.answer("/api/sheets", ScriptedAnswer::json(R"({"errors":{"title":["No"]}})"));
    EXPECT_EQ(online({"sheet", "send", file, "--save", "print"}).status, ctl::requestFailed);
}

TEST_F(SheetCommandsOnline, DeleteTakesTheTokenFromTheList) {
    answerList();
    server.answer("/api/sheets/delete", ScriptedAnswer::json("{}"));
    const Outcome outcome = online({"sheet", "delete", "6"});
    EXPECT_EQ(outcome.status, ctl::fine) << outcome.err;
    const auto requests = server.requestsTo("/api/sheets/delete");
    ASSERT_EQ(requests.size(), 1);
    EXPECT_THAT(requests[0].target.toStdString(), HasSubstr("?order_id=6&order_token=x%3D%3D"));
    EXPECT_EQ(online({"sheet", "delete", "7"}).status, ctl::unreadableInput);
    EXPECT_EQ(online({"sheet", "list"}).out, "6\tA\tVerde\t2024-06-01 / 2024-06-30\t-\n");
    const JsonData row = JsonData::of(online({"sheet", "list", "--json"}).out);
    EXPECT_THAT(row.text(), HasSubstr("\"modules\": 1"));
    qputenv("KAVOR_OFFLINE", "1");
    EXPECT_EQ(online({"sheet", "delete", "6"}).status, ctl::requestFailed);
}

} // namespace
} // namespace kavor
