#include "RunCommand.h"
#include "base/StopProcess.h"
#include "support/JsonData.h"
#include "support/TemporaryFolder.h"
#include "textile/SaveTextileOrder.h"
#include "textile/TextileFixture.h"

#include <gtest/gtest.h>

namespace kavor {
namespace {

class TextileCommandsTest : public ::testing::Test {
protected:
    TextileCommandsTest() {
        CatalogueBuilder builder;
        addTextile(builder);
        putCatalogue(builder);
        LoginResult answer;
        answer.msg = "ok";
        put(loginFile, *json::encode(answer));
        AppSingleton::shared().setFolders(folder.path(), folder.path());
    }
    ~TextileCommandsTest() override { leaveTextile(); }

    void putCatalogue(const CatalogueBuilder& builder) const {
        std::string document = *json::encode(builder.information);
        for (auto at = document.find("\"path\":\"\""); at != std::string::npos;
             at = document.find("\"path\":\"\""))
            document.insert(at + 8, "p.png"); // the builder names no pictures; a document must
        put(catalogue, document);
    }
    Outcome run(const std::string& command, const std::vector<std::string>& more = {}) const {
        std::vector<std::string> arguments{"textile", command, file, "--catalogue", catalogue};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return kavorctl(arguments);
    }

    TemporaryFolder folder;
    std::string catalogue = folder / "catalogue.json";
    std::string loginFile = folder / "login.json";
    std::string file = folder / "Camisetas.zvo";
    std::vector<std::string> login{"--login", loginFile};
    // An old draft: the articles of two combinations mixed, one that left the catalogue, one of no units.
    JsonData order = JsonData::of(R"({"save": true, "name_archive_tablet": "Bar Sol", "id": 7,
        "order": {"message": "Sol", "application_type_id": 21, "typography_id": 9, "orderComment": "",
                  "lines": [{"textil_id": 103, "quantity": 2}, {"textil_id": 101, "quantity": 0},
                            {"textil_id": 999, "quantity": 8}, {"textil_id": 100, "quantity": 3}]},
        "customer": {"tevo": "77", "name": "", "email": "a@b.example"}})");
};

TEST_F(TextileCommandsTest, AnOrderIsDecodedAndRebuiltAsTheDraftHoldsIt) {
    put(file, order.text());
    const Outcome decoded = kavorctl({"textile", "decode", file});
    EXPECT_EQ(decoded.status, ctl::fine) << decoded.err;
    EXPECT_EQ(JsonData::of(decoded.out).text(true), JsonData::of(order.text()).set("save", "1").text(true));
    std::vector<std::string> more = login;
    more.insert(more.end(), {"--save", "cloud"});
    const Outcome rebuilt = run("rebuild", more);
    EXPECT_EQ(rebuilt.status, ctl::fine) << rebuilt.err;
    JsonData expected = JsonData::of(order.text()).set("save", "3");
    expected.set("order.lines", R"([{"textil_id": 101, "quantity": 0}, {"textil_id": 100, "quantity": 3},
                                    {"textil_id": 103, "quantity": 2}])");
    EXPECT_EQ(JsonData::of(rebuilt.out).text(true), expected.text(true));
}

TEST_F(TextileCommandsTest, AnOrderIsCheckedAndToldOf) {
    put(file, order.text());
    const Outcome checked = run("check", login);
    EXPECT_EQ(checked.status, ctl::orderHasMessages) << checked.err;
    EXPECT_EQ(checked.out, "Debe rellenar primero el nombre del establecimiento.\n"
                           "Debe introducir un teléfono.\n"
                           "El carrito debe contener al menos 6 artículos.\n"
                           "Seleccione una tipografía válida\n");
    EXPECT_EQ(run("show").out, "Textil Vino \"Bar Sol\"\nPedido: 7\nCódigo cliente: 77\nEmail: a@b.example\n"
                               "Texto: Sol\nTipografía: (fuera de catálogo)\n"
                               "- Encina, Camiseta, Hombre, Negro\n    M: 0\n    S: 3\n"
                               "- Encina, Camiseta, Hombre, Blanco\n    S: 2\n"
                               "Fuera de catálogo: 1\nUnidades: 5\n");
}

TEST_F(TextileCommandsTest, TheServersAnswerBecomesAnOrderDocument) {
    put(file, R"({"code": 200, "msg": "", "customer": {"tevo": "77", "placeLocalityId": 3},
        "order": {"id": 41, "application_type_id": 8, "token": "t", "order_copy_id": 40,
                  "fecha": "20-11-2026 10:00:00", "estadoId": 12, "estado": "En la nube", "pendiente": false,
                  "nota": "Con cuidado", "name_archive_tablet": "Bar Sol", "typography_id": 2,
                  "lines": [{"textil_id": 999, "quantity": 8}]}})");
    const Outcome converted = run("from-answer");
    EXPECT_EQ(converted.status, ctl::fine) << converted.err;
    EXPECT_EQ(JsonData::of(converted.out).text(true),
              JsonData::of(R"({"save": 1, "id": 41, "name_archive_tablet": "Bar Sol",
                               "customer": {"tevo": "77", "placeLocalityId": 3},
                               "order": {"message": "", "application_type_id": 8, "typography_id": 2,
                                         "orderComment": "Con cuidado",
                                         "lines": [{"textil_id": 999, "quantity": 8}]}})")
                  .text(true));
}

// A file of its own making that can't be read stops the client; here it is told.
TEST_F(TextileCommandsTest, AWrongRecordIsToldWithItsPlaceAndAMissingSubtreeStops) {
    for (const auto& [place, value] :
         {std::pair("save", "4"), std::pair("save", "\"1\""), std::pair("order.lines", "null"),
          std::pair("order.application_type_id", "22"), std::pair("customer.id", "\"3\"")}) {
        put(file, JsonData::of(order.text()).set(place, value).text());
        const Outcome outcome = run("check", login);
        EXPECT_EQ(outcome.status, ctl::unreadableInput) << place << outcome.out;
        EXPECT_NE(outcome.err.find("Camisetas.zvo: " + std::string(place)), std::string::npos) << outcome.err;
    }
    put(file, order.text());
    putCatalogue(CatalogueBuilder());
    EXPECT_EXIT(std::exit(run("check", login).status), ::testing::ExitedWithCode(stoppedExitStatus), "");
}

} // namespace
} // namespace kavor
