#include "activations/screens/ActivationScreensFixture.h"

#include <gmock/gmock.h>

namespace kavor {
namespace {

using ::testing::HasSubstr;

using ActivationSend = ActivationScreens;

constexpr const char* orderPage = "http://server.example/pedidos/345";

TEST_F(ActivationSend, ADayIsTakenOrRefusedByTheNotice) {
    openForm();
    PartyCalendar& calendar = *form().calendar();
    EXPECT_EQ(calendar.firstDayText(), "Primer día posible: miércoles 2 de diciembre");
    EXPECT_EQ(calendar.title(), "Diciembre de 2026");
    calendar.moveMonths(-1);
    calendar.tap("22-11-2026"); // today
    EXPECT_EQ(told(), "Disponibilidad de fiesta | No es posible seleccionar una fecha anterior a la actual");
    EXPECT_EQ(calendar.title(), "Noviembre de 2026");
    calendar.tap("01-12-2026");
    EXPECT_EQ(told(), "Disponibilidad de fiesta | Los días previos para solicitar una fiesta son 10");
    EXPECT_EQ(form().form().partyDate, std::nullopt);
    calendar.tap("02-12-2026");
    EXPECT_EQ(form().form().partyDate, "02-12-2026");
    calendar.tap("01-12-2026"); // refused: the former one stays
    told();
    EXPECT_EQ(form().form().partyDate, "02-12-2026");
    clock.advance(std::chrono::hours(6)); // midnight passes
    calendar.tap("02-12-2026");
    EXPECT_THAT(told(), HasSubstr("Los días previos"));
}

TEST_F(ActivationSend, DaysOutsideTheSeasonAreDimAndCanBeTapped) {
    brands().selectBrand(2);
    elements().nextAction();
    PartyCalendar& calendar = *form().calendar();
    EXPECT_EQ(calendar.availability(), "Del 1 de diciembre de 2026 al 31 de diciembre de 2026");
    const auto dayOf = [&](const QString& date) {
        for (const QVariant& day : calendar.days()) {
            if (day.toMap()["date"] == date)
                return day.toMap();
        }
        return QVariantMap();
    };
    EXPECT_TRUE(dayOf("22-11-2026")["isToday"].toBool() && dayOf("23-11-2026")["notice"].toBool());
    EXPECT_FALSE(dayOf("24-11-2026")["notice"].toBool());
    EXPECT_TRUE(dayOf("30-11-2026")["outside"].toBool());
    EXPECT_FALSE(dayOf("01-12-2026")["outside"].toBool());
    calendar.tap("30-11-2026");
    EXPECT_EQ(form().form().partyDate, "30-11-2026");
}

TEST_F(ActivationSend, HoursTheWrongWayRoundAreToldOfAndStay) {
    openForm();
    PartyHours& hours = *form().hours();
    EXPECT_EQ(hours.startTimeButton(), "-");
    hours.openEnd();
    EXPECT_EQ(hours.title(), "HORA DE FIN");
    hours.pickHour(9);
    hours.pickMinute(30);
    hours.select();
    EXPECT_FALSE(alerts.isVisible());
    hours.openStart();
    hours.cancel();
    EXPECT_EQ(hours.startTimeButton(), "-");
    hours.openStart();
    EXPECT_EQ(hours.title(), "HORA DE INICIO");
    hours.pickHour(9);
    hours.pickMinute(30);
    hours.select();
    EXPECT_EQ(told(), "Atención | La hora de inicio ha de ser anterior a la de finalización.");
    EXPECT_EQ(form().form().hourFrom, "09:30");
    hours.openEnd();
    hours.pickHour(12);
    hours.select();
    EXPECT_FALSE(alerts.isVisible());
    EXPECT_EQ(hours.durationText(), "3 h");
}

TEST_F(ActivationSend, APlaceIsFoundByItsAddressAndOfferedAgain) {
    openForm();
    form().locationAction();
    EXPECT_EQ(alerts.title(), "Indique la dirección completa (incluyendo número)");
    network.reachable = false;
    press(alerts, "Usar", "Mayor 1");
    EXPECT_EQ(told(), "Error | No hay conexión a internet.");
    network.reachable = true;
    form().locationAction();
    press(alerts, "Usar", "Mayor 1");
    network.requests.searchMaps.fail(failureWith({"Sin mapas"}));
    EXPECT_EQ(told(), "No se puede obtener una lista de ubicaciones a partir de la dirección. | Sin mapas");
    choosePlace();
    EXPECT_EQ(form().locationDetail(), "28013 Madrid");
    form().locationAction();
    press(alerts, "Usar", "Faro");
    EXPECT_EQ(std::get<0>(network.requests.searchMaps.calls.back()), "Faro");
    network.requests.searchMaps.succeed({{address("El faro"), address("Otro")}});
    EXPECT_EQ(alerts.title(), "Seleccione la opción más aproximada");
    EXPECT_EQ(alerts.choices(), QStringList({"El faro", "Otro"}));
    press(alerts, "Cancelar");
    EXPECT_EQ(form().locationString(), "Calle Mayor 1, Madrid");
    form().locationAction();
    press(alerts, "Usar", "Faro");
    network.requests.searchMaps.succeed({{address("El faro")}});
    alerts.answerChoice(0);
    EXPECT_EQ(form().form().place, (PartyPlace{"El faro", std::nullopt, std::nullopt}));
    EXPECT_EQ(form().earlierPlaces(), QStringList({"Calle Mayor 1, Madrid"}));
    form().useEarlierPlace(0);
    EXPECT_EQ(form().form().place.postalCode, "28013");
}

TEST_F(ActivationSend, WhatIsMissingStandsInOneAlertAndNothingIsSent) {
    openForm();
    network.reachable = false; // the check comes first
    form().sendAction();
    EXPECT_EQ(told(), "Atención | No hay seleccionada ninguna fecha.\n"
                      "No hay seleccionada ninguna hora de inicio.\n"
                      "No hay seleccionada ninguna hora de finalización.\n"
                      "No has introducido el nombre del establecimiento.\n"
                      "No has introducido ninguna ubicación.\n"
                      "El campo Precio es obligatorio.");
    network.reachable = true;
    complete();
    network.reachable = false;
    form().sendAction();
    EXPECT_EQ(told(), "Error | No hay conexión a internet.");
    EXPECT_FALSE(form().isSummaryVisible());
    EXPECT_TRUE(sends().calls.empty());
}

TEST_F(ActivationSend, APriceIsSentWithAPointAndAWrongFormatIsToldOfOnce) {
    openForm();
    complete();
    EXPECT_FALSE(alerts.isVisible());
    form().attributes()->type(1, "muchas");
    form().attributes()->finish(1, "muchas");
    EXPECT_EQ(told(), "Atención | El formato para este campo es un número de personas");
    form().attributes()->finish(1, "muchas"); // Enter, and then the field is left
    EXPECT_FALSE(alerts.isVisible());
    form().customer()->editText("tevoTextField", "B12");
    EXPECT_NE(form().codeNote(), "");
    send();
    ASSERT_EQ(sends().calls.size(), 1U);
    const auto& sent = order(0).activationInfo;
    EXPECT_EQ(sent.attributesList->at(0).value, "muchas"); // it stays, and is not judged again
    EXPECT_EQ(sent.attributesList->at(1).value, "2.5");
    EXPECT_EQ(order(0).customer.cobrixCode, std::nullopt);
    EXPECT_EQ(sent.itemList->size(), 3U);
}

TEST_F(ActivationSend, TheWholeJobCountsUpAndOpensTheOrderAfterwards) {
    builder.information.activations->definitionsList[0]
        .activationsList[0]
        .canBeRelatedWithAnotherActivations = false;
    openSection();
    openForm();
    complete();
    form().sendAction();
    ASSERT_TRUE(form().isSummaryVisible());
    EXPECT_EQ(form().summary()[1].toMap()["text"], "sábado 5 de diciembre");
    form().confirmSend();
    form().confirmSend(); // a second tap
    ASSERT_EQ(sends().calls.size(), 1U);
    sends().succeed(answer(345, orderPage));
    EXPECT_EQ(told(), " | Pedido realizado correctamente. ");
    EXPECT_TRUE(form().isSent());
    EXPECT_EQ(form().numberMade(), 2);
    form().sendAction();
    EXPECT_EQ(urls.opened, QStringList({orderPage}));
    EXPECT_EQ(sends().calls.size(), 1U);
    form().addToCalendar();
    EXPECT_THAT(told(), HasSubstr("Descargas/activacion-345.ics"));
    EXPECT_THAT(files.content.toStdString(), HasSubstr("DTSTART:20261205T200000"));
    files.works = false;
    form().addToCalendar();
    EXPECT_THAT(told(), HasSubstr("no se ha podido guardar"));
    form().closeSceneAction(); // nothing is lost
    EXPECT_EQ(elements().numberMade(), 2);
    elements().closeSceneAction();
    press(alerts, "Sí");
    auto* board = choice().presentButtons();
    EXPECT_EQ(board->data(board->index(0), ActivationBoardModel::BadgeTextRole), "2/3");
    EXPECT_TRUE(std::filesystem::is_empty(folder.path())) << "a file was written";
}

TEST_F(ActivationSend, ALostAnswerOrAFailureLeavesTheFormAndASecondTapIsTheSameOrder) {
    openForm();
    complete();
    send();
    sends().fail(lostAnswer());
    EXPECT_THAT(told(), HasSubstr("El pedido no se puede realizar"));
    form().closeSceneAction();
    EXPECT_THAT(shown(alerts), HasSubstr("perderá la información introducida"));
    press(alerts, "No");
    send();
    EXPECT_EQ(key(1), key(0));
    sends().fail(failureWith({"La fecha no es válida."}, 422));
    EXPECT_EQ(told(), "El pedido no se puede realizar | La fecha no es válida.");
    EXPECT_FALSE(form().isSent());
    send();
    EXPECT_NE(key(2), key(0)); // the refusal was an answer
    form().closeSceneAction();
    press(alerts, "Sí");
    EXPECT_NE(top<ActivationElementsSelectionViewController>(), nullptr);
    EXPECT_TRUE(std::filesystem::is_empty(folder.path())) << "a file was written";
    elements().nextAction();
    complete();
    send(); // the same order once more, though nobody answered the one before
    EXPECT_EQ(key(3), key(2));
}

TEST_F(ActivationSend, AnAnswerWithoutAnAddressIsASuccessAndAnErrorAndCountsOnce) {
    openForm(21, {{{21, 9, 1}}});
    complete();
    send();
    sends().succeed(answer(std::nullopt)); // no number either: no tie is offered
    EXPECT_EQ(told(), " | Pedido realizado correctamente. ");
    EXPECT_EQ(told(), "Error | No hay url para ver el pedido realizado. Contacte con soporte.");
    EXPECT_FALSE(form().isSent());
    EXPECT_EQ(form().numberMade(), 2);
    send();
    EXPECT_EQ(key(1), key(0));
    sends().succeed(answer(std::nullopt, orderPage));
    EXPECT_EQ(told(), " | Pedido realizado correctamente. ");
    EXPECT_TRUE(form().isSent());
    EXPECT_EQ(form().numberMade(), 2);
}

TEST_F(ActivationSend, TheLastOfTheQuotaSaysSoAndOffersNoTie) {
    openForm(21, {{{21, 2, 1}}});
    complete();
    send();
    sends().succeed(answer(345, orderPage, 2));
    EXPECT_EQ(told(), " | Pedido realizado correctamente. \n\nYa no dispones de cupo para realizar más "
                      "activaciones de este tipo");
    EXPECT_FALSE(alerts.isVisible());
    EXPECT_TRUE(form().isSent());
}

TEST_F(ActivationSend, ATiedOrderKeepsDayAndPlaceAndItsCalendarIsInert) {
    openForm(21, {{{21, 9, 1}}});
    complete();
    form().editComment("Ruido");
    send();
    sends().succeed(answer(345, orderPage));
    EXPECT_EQ(shown(alerts),
              "Pedido realizado con éxito | ¿Desea asociar una activación a la activación realizada?");
    EXPECT_EQ(alerts.current()->buttons[1].role, AlertButton::Role::Destructive);
    press(alerts, "Sí");
    EXPECT_FALSE(alerts.isVisible());
    EXPECT_FALSE(form().isSent());
    EXPECT_TRUE(form().isDateblocked());
    EXPECT_EQ(form().tieText(), "Asociada al pedido 345");
    EXPECT_EQ(form().hours()->startTimeButton(), "-");
    EXPECT_EQ(form().comment(), "");
    form().calendar()->tap("12-12-2026");
    form().calendar()->moveMonths(1);
    EXPECT_EQ(form().calendar()->title(), "Diciembre de 2026");
    form().closeSceneAction(); // what is begun would be lost
    EXPECT_TRUE(press(alerts, "No"));
    chooseHours(12, 15);
    send();
    const auto& second = order(1).activationInfo;
    EXPECT_EQ(second.otherActivationRelationIdentifier, 345);
    EXPECT_EQ(second.dateEvent, "05-12-2026");
    EXPECT_EQ(second.hourFrom, "12:00");
    EXPECT_EQ(second.comment, std::nullopt);
    EXPECT_EQ(second.attributesList->at(0).value, "2.5");
    EXPECT_EQ(order(1).customer.postalCode, "28013");
    EXPECT_NE(key(1), key(0));
    sends().succeed(answer(346, orderPage));
    press(alerts, "Sí"); // a chain
    EXPECT_EQ(form().tieText(), "Asociada al pedido 346");
    form().addToCalendar();
    EXPECT_EQ(files.content.count("BEGIN:VEVENT"), 2);
}

TEST_F(ActivationSend, ATieLeadsBackThroughTheChoiceOfAnotherActivation) {
    openForm(21, {{{22, 9, 0}}});
    complete();
    form().changeActivation(); // only for an order that is tied
    ASSERT_NE(top<ActivationsSendViewController>(), nullptr);
    send();
    sends().succeed(answer(345, orderPage));
    press(alerts, "Sí");
    form().changeActivation();
    ASSERT_NE(top<ActivationsSelectionViewController>(), nullptr);
    EXPECT_EQ(screens->rowCount(), 3);
    choice().closeSceneAction();
    EXPECT_TRUE(press(alerts, "No"));
    network.requests.activationUserQuota.succeed({});
    choice().selectActivation(22);
    choice().nextAction();
    EXPECT_EQ(elements().tieText(), "Asociada al pedido 345");
    elements().nextAction();
    EXPECT_TRUE(form().isDateblocked());
    EXPECT_EQ(form().locationString(), "Calle Mayor 1, Madrid");
    chooseHours(12, 15);
    send();
    const auto& second = order(1).activationInfo;
    EXPECT_EQ(second.activationId, 22);
    EXPECT_EQ(second.dateEvent, "05-12-2026");
    EXPECT_EQ(second.otherActivationRelationIdentifier, 345);
    EXPECT_TRUE(second.attributesList->empty()); // it asks for none
}

} // namespace
} // namespace kavor
