#include "RunCommand.h"
#include "activations/ActivationFixture.h"
#include "base/json/Json.h"
#include "support/JsonData.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace kavor {
namespace {

class ActivationCommands : public ::testing::Test {
protected:
    TemporaryFolder folder;
    std::string catalogue = folder / "catalogue.json";
    std::string file = folder / "order.json";
    CatalogueBuilder builder;

    ActivationCommands() {
        addActivations(builder);
        writeCatalogue();
    }
    void writeCatalogue() const {
        std::string document = *json::encode(builder.information);
        for (auto at = document.find("\"path\":\"\""); at != std::string::npos;
             at = document.find("\"path\":\"\""))
            document.insert(at + 8, "p.png"); // the builder names no pictures; a document must
        put(catalogue, document);
    }
    [[nodiscard]] ActivationOrder order() const {
        const auto& concert = builder.information.activations->definitionsList[0].activationsList[0];
        return makeActivationOrder(completeForm(), concert, concert.itemsList);
    }
    Outcome check(const ActivationOrder& order) const {
        put(file, *json::encode(order));
        return kavorctl({"activation", "check", file, "--catalogue", catalogue});
    }
    Outcome day(const std::string& day, const std::string& activation, const std::string& now) const {
        return kavorctl(
            {"activation", "day", day, "--activation", activation, "--catalogue", catalogue, "--now", now});
    }
};

TEST_F(ActivationCommands, ListWhatTheCatalogueOffers) {
    EXPECT_EQ(kavorctl({"activation", "list", "--catalogue", catalogue}).out,
              "21\tRoble\tConcierto\t1/3\t10\n22\tRoble\tCata\t2/2\t0\n31\tRoble\tTerraza\t0/1\t2\n");
    const auto rows = JsonData::of(kavorctl({"activation", "list", "--catalogue", catalogue, "--json"}).out);
    EXPECT_NE(rows.text(true).find("\"previousDays\""), std::string::npos);
}

TEST_F(ActivationCommands, CheckAnOrderByItsSixSentences) {
    EXPECT_EQ(check(order()).status, 0);
    ActivationOrder bare;
    bare.activationInfo.activationId = 21;
    bare.activationInfo.hourFrom = bare.activationInfo.hourTo = "-";
    Outcome outcome = check(bare);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out, "No hay seleccionada ninguna fecha.\n"
                           "No hay seleccionada ninguna hora de inicio.\n"
                           "No hay seleccionada ninguna hora de finalización.\n"
                           "No has introducido el nombre del establecimiento.\n"
                           "No has introducido ninguna ubicación.\n"
                           "El campo Precio es obligatorio.\n");
    ActivationOrder another = order();
    another.activationInfo.activationId = 9;
    EXPECT_EQ(check(another).status, ctl::unreadableInput);
    put(file, R"({"customer":{"name":"A","full_address":"B","cod_tevo":"7"},"activation":{}})");
    outcome = kavorctl({"activation", "decode", file});
    EXPECT_EQ(outcome.status, ctl::unreadableInput);
    EXPECT_EQ(outcome.err, file + ": customer.cod_tevo: expected integer, found string\n");
    put(file, *json::encode(order()));
    EXPECT_EQ(JsonData::of(kavorctl({"activation", "decode", file}).out).text(true),
              JsonData::of(contentOf(file)).text(true));
}

TEST_F(ActivationCommands, JudgeADay) {
    EXPECT_EQ(day("02-12-2026", "21", "22-11-2026 23:59").out, "");
    EXPECT_EQ(day("02-12-2026", "21", "22-11-2026 23:59").status, 0);
    Outcome outcome = day("01-12-2026", "21", "22-11-2026 00:00");
    EXPECT_EQ(outcome.out, "Los días previos para solicitar una fiesta son 10\n");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(day("22-11-2026", "22", "22-11-2026 00:00").out,
              "No es posible seleccionar una fecha anterior a la actual\n");
    EXPECT_EQ(
        kavorctl({"activation", "day", "01-01-2001", "--activation", "22", "--catalogue", catalogue}).status,
        1);
    EXPECT_EQ(day("2-12-2026", "21", "22-11-2026 00:00").status, ctl::wrongUsage);
    EXPECT_EQ(day("02-12-2026", "21", "22-11-2026").status, ctl::wrongUsage);
    EXPECT_EQ(day("02-12-2026", "9", "22-11-2026 00:00").status, ctl::unreadableInput);
}

TEST_F(ActivationCommands, StopWithoutActivationsInTheCatalogue) {
    builder.information.activations.reset();
    writeCatalogue();
    EXPECT_EXIT(kavorctl({"activation", "list", "--catalogue", catalogue}), ::testing::ExitedWithCode(70),
                "activaciones");
    EXPECT_EXIT(day("02-12-2026", "21", "22-11-2026 00:00"), ::testing::ExitedWithCode(70), "activaciones");
}

} // namespace
} // namespace kavor
