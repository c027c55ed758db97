#include "activations/ActivationFixture.h"
#include "activations/ActivationMemory.h"
#include "activations/PartyCalendarFile.h"
#include "activations/PartyDates.h"
#include "base/json/Json.h"
#include "session/AppSingleton.h"

#include <gmock/gmock.h>

namespace kavor {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class ActivationOrders : public ::testing::Test {
protected:
    CatalogueBuilder builder;
    ActivationForm form = completeForm();
    std::vector<bool> selected{true, true, true};

    ActivationOrders() { addActivations(builder); }
    ~ActivationOrders() override { AppSingleton::shared().userEmail.reset(); }

    const ActivationInformation& activation(std::size_t definition = 0, std::size_t place = 0) const {
        return builder.information.activations->definitionsList[definition].activationsList[place];
    }
    ActivationOrder order() const {
        return makeActivationOrder(form, activation(), chosenItems(activation(), selected));
    }
    std::vector<std::string> errors() const { return activationErrors(order(), activation().attributesList); }
};

TEST_F(ActivationOrders, HoldWhatWasGivenAndLeaveEmptyTextsOut) {
    selected = {false, false, true}; // the first one is required
    form.attributesToSend = {{99, "de otra"}, {52, "2.5"}, {51, ""}};
    EXPECT_EQ(
        *json::encode(order()),
        R"({"customer":{"name":"Bar Sol","full_address":"Calle Mayor 1, Madrid",)"
        R"("placePostalCode":"28013","placeLocality":"Madrid"},)"
        R"("activation":{"activation_id":21,"date_event":"02-12-2026","time_from":"20:00",)"
        R"("time_to":"23:30","items":[{"id":211},{"id":213}],"attributes":[{"id":52,"value":"2.5"}]}})");
    form.code = "0077";
    form.attributesToSend = {{52, "3"}, {51, "80"}};
    form.comment = "Ruido hasta las 23";
    form.otherActivationRelationIdentifier = 5;
    const auto full = order();
    EXPECT_EQ(full.customer.cobrixCode, 77);
    EXPECT_EQ(full.activationInfo.attributesList->front().id, 51);
    EXPECT_EQ(full.activationInfo.comment, "Ruido hasta las 23");
    EXPECT_EQ(full.activationInfo.otherActivationRelationIdentifier, 5);
    for (const char* noInteger : {"", "12a", "-3", "1.2", " 4", "99999999999999999999"}) {
        form.code = noInteger;
        EXPECT_EQ(order().customer.cobrixCode, std::nullopt) << noInteger;
    }
}

TEST_F(ActivationOrders, LackSixThingsAtMostAndSayThemInOrder) {
    EXPECT_TRUE(errors().empty());
    form = {};
    EXPECT_THAT(errors(),
                ElementsAre("No hay seleccionada ninguna fecha.",
                            "No hay seleccionada ninguna hora de inicio.",
                            "No hay seleccionada ninguna hora de finalización.",
                            "No has introducido el nombre del establecimiento.",
                            "No has introducido ninguna ubicación.", "El campo Precio es obligatorio."));
    form = completeForm();
    form.attributesToSend[52] = " "; // only emptiness counts
    form.hourFrom = "23:59";         // not looked at again
    EXPECT_TRUE(errors().empty());
}

TEST_F(ActivationOrders, AreOnADayFromTomorrowOnOrFromTheNoticeOn) {
    const auto refusal = [](const char* day, Int notice, const char* now = "22-11-2026 18:30:00") {
        return dayRefusal(partyDay(day).value(), LocalDateTime::parse(now).value(), notice).value_or("");
    };
    const std::string past = "No es posible seleccionar una fecha anterior a la actual";
    const std::string notice = "Los días previos para solicitar una fiesta son ";
    EXPECT_EQ(refusal("21-11-2026", 10), past);
    EXPECT_EQ(refusal("22-11-2026", 0), past); // today
    EXPECT_EQ(refusal("22-11-2026", 0, "22-11-2026 00:00:00"), past);
    EXPECT_EQ(refusal("23-11-2026", 0, "22-11-2026 23:59:59"), "");
    EXPECT_EQ(refusal("01-12-2026", 10), notice + "10");
    EXPECT_EQ(refusal("01-12-2026", 10, "22-11-2026 00:00:00"), notice + "10");
    EXPECT_EQ(refusal("02-12-2026", 10, "22-11-2026 23:59:59"), "");
    EXPECT_EQ(refusal("01-03-2027", 1200), notice + "1200") << "four digits stand ungrouped in Spanish";
    EXPECT_EQ(refusal("01-03-2027", 12000), notice + "12.000");
    EXPECT_EQ(refusal("23-11-2026", -4), "");
    for (const char* none : {"1-12-2026", "31-11-2026", "01/12/2026", "01-12-26", ""})
        EXPECT_FALSE(partyDay(none)) << none;
    EXPECT_TRUE(endsBeforeItStarts("20:00", "20:00"));
    EXPECT_FALSE(endsBeforeItStarts("09:30", "10:00"));
    EXPECT_FALSE(endsBeforeItStarts(std::nullopt, "10:00"));
}

TEST_F(ActivationOrders, JudgeAValueByTheExpressionAnywhereInIt) {
    const auto& price = activation().attributesList[0];
    const auto& seats = activation().attributesList[1];
    EXPECT_EQ(storedValue(price, "1,2,5"), "1.2.5");
    EXPECT_EQ(storedValue(seats, "1,5"), "1,5");
    EXPECT_FALSE(missesFormat(price, storedValue(price, "2,5")));
    EXPECT_TRUE(missesFormat(price, "2,5"));
    EXPECT_FALSE(missesFormat(price, ""));
    EXPECT_FALSE(missesFormat(seats, "unas 80 personas"));
    EXPECT_TRUE(missesFormat(seats, "muchas"));
    auto odd = seats;
    odd.fieldValidation = "([0-9]"; // broken
    EXPECT_FALSE(missesFormat(odd, "x"));
    odd.fieldValidation = R"(^[\p{Lu}&&[^Ñ]]\w++$)"; // a set difference, which is ICU's own
    EXPECT_FALSE(missesFormat(odd, "Ébano"));
    EXPECT_TRUE(missesFormat(odd, "Ñandú"));
    odd.fieldValidation = "^(a+)+$"; // takes for ever on what it does not match
    EXPECT_FALSE(missesFormat(odd, std::string(60, 'a') + "b"));
}

TEST_F(ActivationOrders, CountUpOnceAndBelongToTheAccount) {
    AppSingleton::shared().userEmail = "ana@x.example";
    auto& quotas = ActivationMemory::shared().quotas;
    EXPECT_EQ(quotas.of(activation()), (ActivationQuota{3, 1}));
    quotas.count(activation(), {}, true);
    EXPECT_EQ(quotas.of(activation()), (ActivationQuota{3, 2}));
    quotas.count(activation(), {}, false); // the same order once more
    EXPECT_EQ(quotas.of(activation()), (ActivationQuota{3, 2}));
    SaveBrochuresOrderActivationResponse answer;
    answer.quota = 2;
    quotas.count(activation(), answer, true);
    EXPECT_EQ(quotas.of(activation()), (ActivationQuota{2, 3}));
    EXPECT_FALSE(quotas.of(activation()).hasRoom());
    EXPECT_EQ(quotas.of(activation()).remaining(), 0);
    answer.numberMade = 1;
    quotas.count(activation(), answer, true);
    EXPECT_EQ(quotas.of(activation()), (ActivationQuota{2, 1}));
    quotas.take({{{21, 5, 4}, {21, 9, 9}, {999, 1, 1}}});
    EXPECT_EQ(quotas.of(activation()), (ActivationQuota{5, 4}));
    EXPECT_EQ(quotas.of(activation(0, 1)), (ActivationQuota{2, 2}));
    AppSingleton::shared().userEmail = "luis@x.example";
    EXPECT_EQ(ActivationMemory::shared().quotas.of(activation()), (ActivationQuota{3, 1}));
}

TEST_F(ActivationOrders, AreTiedWithThePlaceAndTheDayOfTheFirst) {
    form.code = "77";
    form.contact = "Ana";
    form.comment = form.favoriteSteward = form.localInformation = "x";
    const ActivationForm second = formOf(tiedOrder(order(), 345), form.attributesToSend);
    ActivationForm wanted = form;
    wanted.hourFrom = wanted.hourTo = std::nullopt;
    wanted.comment = wanted.favoriteSteward = wanted.localInformation = "";
    wanted.otherActivationRelationIdentifier = 345;
    EXPECT_EQ(second, wanted);
}

TEST_F(ActivationOrders, StandInACalendarFileWithLinesThatAreNotTooLong) {
    form.place.fullAddress = "Calle de la Ñora; portal 1, " + std::string(40, 'z') + "ñññññññññññ";
    form.hourTo = "01:00"; // after midnight
    const std::string file =
        calendarFile({{order(), "Concierto", "Agencia Norte", 345}}, LocalDateTime{2026, 11, 22, 10, 0, 0});
    EXPECT_THAT(file, HasSubstr("DTSTART:20261202T200000\r\nDTEND:20261203T010000\r\n"));
    EXPECT_THAT(file, HasSubstr("SUMMARY:Concierto · Bar Sol\r\n"));
    std::string unfolded = file;
    for (auto at = unfolded.find("\r\n "); at != std::string::npos; at = unfolded.find("\r\n "))
        unfolded.erase(at, 3);
    EXPECT_THAT(unfolded, HasSubstr("LOCATION:Calle de la Ñora\\; portal 1\\, zzz"));
    EXPECT_THAT(unfolded, HasSubstr("ñññññññññññ\r\n"));
    std::size_t begin = 0;
    for (auto end = file.find("\r\n"); end != std::string::npos; end = file.find("\r\n", begin)) {
        EXPECT_LE(end - begin, 75U);
        EXPECT_NE(static_cast<unsigned char>(file[begin]) & 0xC0U, 0x80U) << "a character was cut";
        begin = end + 2;
    }
    EXPECT_EQ(begin, file.size());
}

} // namespace
} // namespace kavor
