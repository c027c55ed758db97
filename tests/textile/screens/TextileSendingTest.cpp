#include "textile/screens/TextileScreensFixture.h"

#include <QThreadPool>

#include <gmock/gmock.h>

namespace kavor {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class TextileSending : public TextileScreens {};

TEST_F(TextileSending, WhatIsMissingIsToldAndLeadsToItsStep) {
    open();
    sending().makeOrderOnServerAction();
    EXPECT_EQ(told(), "Pedido incompleto | El cliente no es válido\nDebe rellenar el texto a mostrar\nEl "
                      "carrito debe contener al menos 6 artículos.\nSeleccione una tipografía válida");
    EXPECT_EQ(sending().missing().size(), 4);
    EXPECT_TRUE(sends().calls.empty());
    sending().goToMissing(2);
    EXPECT_EQ(menu->selectedButton(), Menu::Products);
    sending().previewOrderAction();
    EXPECT_EQ(sending().missing().size(), 4);
    told();
    sending().goToMissing(0);
    EXPECT_EQ(menu->selectedButton(), Menu::Configuration);
}

TEST_F(TextileSending, AnOrderIsPrintedOnceWhateverIsTappedAndEndsItsDraft) {
    openFilled();
    saveAs("Sol");
    ASSERT_TRUE(waitFor([&] { return sends().succeed(answer(12)); }));
    EXPECT_EQ(told(), "Pedido guardado | El pedido se encuentra guardado en local y sincronizado");
    ASSERT_TRUE(waitFor([&] { return file("Sol")->orderIdentifier == 12; }));
    sending().makeOrderOnServerAction();
    EXPECT_TRUE(menu->veil()->isVisible());
    sends().fail(lostAnswer());
    told();
    sending().makeOrderOnServerAction();
    sends().succeed(answer(12)); // taken, and nobody says where
    EXPECT_EQ(told(), "Error | No hay url para ver el pedido realizado. Contacte con soporte.");
    sending().makeOrderOnServerAction();
    EXPECT_EQ(sent(3).save, OrderRequestType::sendToPrint);
    EXPECT_EQ(sent(3).orderIdentifier, 12);
    EXPECT_TRUE(keyOf(1) == keyOf(2) && keyOf(2) == keyOf(3)) << "one order";
    sends().succeed(answer(12, "http://server.example/12"));
    EXPECT_EQ(told(), "Éxito | Pedido realizado correctamente.");
    EXPECT_EQ(sending().makeOrderTitle(), "Ver pedido");
    EXPECT_TRUE(waitFor([&] { return !orders.exists<SaveTextileOrder>("Sol", Directory::draft); }));
    sending().makeOrderOnServerAction();
    EXPECT_THAT(urls.opened, ElementsAre("http://server.example/12"));
    products(); // another step shows it still
    EXPECT_EQ(sending().makeOrderTitle(), "Ver pedido");
    EXPECT_EQ(sends().calls.size(), 4U);

    QStringList words;
    QObject::connect(menu.get(), &Menu::said, [&](const QString& word) { words << word; });
    configuration().editCustomText("Luna");
    EXPECT_FALSE(draft().orderURL);
    EXPECT_TRUE(draft().order.empty() && !draft().customer) << "the first change begins an empty draft";
    EXPECT_EQ(words.size(), 1);
    EXPECT_EQ(sending().makeOrderTitle(), "Realizar pedido");
}

TEST_F(TextileSending, LeavingTheSectionEndsASentDraft) {
    openFilled();
    sending().makeOrderOnServerAction();
    sends().succeed(answer(1, "http://server.example/1"));
    told();
    open();
    EXPECT_TRUE(draft().order.empty());
    EXPECT_EQ(menu->recoveredMessage(), "");
}

TEST_F(TextileSending, TheServersRefusalLeavesTheDraft) {
    openFilled();
    const auto refuse = [&] { sends().fail(failureWith({"El texto no vale"}, 422)); };
    sending().makeOrderOnServerAction();
    refuse();
    EXPECT_EQ(told(), "El pedido no se puede realizar | El texto no vale");
    sending().previewOrderAction();
    refuse();
    EXPECT_EQ(told(), "El pedido no se puede previsualizar | El texto no vale");
    saveAs("Sol");
    ASSERT_TRUE(waitFor([&] { return sends().waiting() == 1; }));
    refuse();
    EXPECT_EQ(told(), "El pedido no se puede sincronizar | El texto no vale");
    EXPECT_EQ(draft().customizedText, "Bar Sol");
    EXPECT_EQ(draft().totalUnits(), 6U);
    EXPECT_TRUE(file("Sol"));
    dieAndOpen();
    EXPECT_EQ(draft().totalUnits(), 6U);
}

TEST_F(TextileSending, SavingTwiceLeavesOneOrderInTheCloudAndOneFile) {
    openFilled();
    saveAs("Sol");
    ASSERT_TRUE(waitFor([&] { return sends().waiting() == 1; }));
    EXPECT_EQ(sent(0).filename, "Sol") << "the name goes in before the order is made";
    sends().fail(lostAnswer());
    told();
    dieAndOpen();
    saveAs("Sol"); // its own file is written over without a question
    ASSERT_TRUE(waitFor([&] { return sends().waiting() == 1; }));
    EXPECT_EQ(keyOf(0), keyOf(1));
    sends().succeed(answer(12));
    told();
    EXPECT_TRUE(waitFor([&] { return file("Sol")->orderIdentifier == 12; }));
    configuration().editCustomText("Luna");
    saveAs("Sol");
    ASSERT_TRUE(waitFor([&] { return sends().waiting() == 1; }));
    EXPECT_EQ(sent(2).orderIdentifier, 12);
    EXPECT_NE(keyOf(2), keyOf(1)) << "another content is another save";
    sends().succeed(answer(12));
    told();
    EXPECT_EQ(orders.list<SaveTextileOrder>(Directory::draft).size(), 1U);
}

TEST_F(TextileSending, AnotherOrdersFileIsWrittenOverOnlyIfTheUserSaysSo) {
    SaveTextileOrder other;
    other.orderInformation.message = "Luna";
    other.orderIdentifier = 40;
    ASSERT_TRUE(orders.create(other, Directory::draft, "Sol"));
    openFilled();
    saveAs("Sol");
    EXPECT_EQ(shown(alerts), "Atención | Ya existe un archivo con ese nombre. ¿desea sobrescribirlo?");
    press("No");
    // The order of the server that bears the same name is not the file's.
    draft().filename = "Sol";
    draft().orderIdentifier = 41;
    saveAs("Sol");
    EXPECT_EQ(shown(alerts), "Atención | Ya existe un archivo con ese nombre. ¿desea sobrescribirlo?");
    press("No");
    sending().makeOrderOnServerAction();
    sends().succeed(answer(41, "http://server.example/41"));
    told();
    QThreadPool::globalInstance()->waitForDone();
    EXPECT_EQ(file("Sol")->orderInformation.message, "Luna");
}

TEST_F(TextileSending, OfflineEachOrderWaitsInTheOutboxOnce) {
    openFilled();
    network.reachable = false;
    const auto print = [&] {
        sending().makeOrderOnServerAction();
        return told();
    };
    EXPECT_EQ(print(),
              "Sin conexión a internet. | Su pedido ha sido guardado en borradores con el nombre \"Sin "
              "enviar\"");
    EXPECT_NE(sending().waitingText(), "");
    EXPECT_EQ(print(), "Sin conexión a internet. | Su pedido ya está en borradores con el nombre \"Sin "
                       "enviar\", pendiente de envío.");
    configuration().editCustomText("Luna");
    EXPECT_EQ(print(),
              "Sin conexión a internet. | Su pedido ha sido guardado en borradores con el nombre \"Sin "
              "enviar(1)\"");
    EXPECT_EQ(file("Sin enviar(1)", Directory::outbox)->save, OrderRequestType::sendToPrint);
    EXPECT_EQ(file("Sin enviar(1)", Directory::outbox)->orderInformation.message, "Luna");
    sending().previewOrderAction();
    EXPECT_EQ(told(), "Error | No hay conexión a internet.");
    saveAs("Luna");
    EXPECT_EQ(told(), "Guardado sólo localmente | Su pedido se encuentra guardado en local, pero no se ha "
                      "podido sincronizar.");
    EXPECT_THAT(sends().calls, IsEmpty());
    EXPECT_EQ(draft().customizedText, "Luna") << "the draft stays";
}

TEST_F(TextileSending, ShowsThePreviewAndTheBudgetAndTakesTheComment) {
    UserProfile profile;
    profile.user.textileInitialBudget = "500,00 €";
    profile.user.textileAvailableBudget = "125,00 €";
    network.requests.profileInformation.always(profile);
    openFilled();
    EXPECT_TRUE(waitFor([&] { return sending().budgetShare() == 0.25; }));
    EXPECT_EQ(sending().budgetText(), "Disponible: 125,00 € de 500,00 €");
    EXPECT_EQ(sending().addedElementsLabel(), "Referencias: 1 unidades: 6");
    EXPECT_EQ(sending().items()->lines()->rows().front().sizes, QStringList({"M: 4 uds. ", "L: 2 uds. "}));
    EXPECT_EQ(sending().brandName(), "Encina");
    sending().editComment("Urgente");
    sending().previewOrderAction();
    EXPECT_EQ(sent(0).save, OrderRequestType::sendPreview);
    EXPECT_EQ(sent(0).orderInformation.orderComment, "Urgente");
    sends().succeed(answer({}));
    EXPECT_EQ(told(), "Error | No hay url que previsualizar. Contacte con soporte.");
    sending().previewOrderAction();
    sends().succeed(answer({}, {}, "http://127.0.0.1:9/a.pdf"));
    EXPECT_TRUE(menu->preview());
    EXPECT_EQ(sending().previewURL(), QUrl("http://127.0.0.1:9/a.pdf"));
}

} // namespace
} // namespace kavor
