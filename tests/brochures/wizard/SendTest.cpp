#include "brochures/wizard/WizardFixture.h"
#include "brochures/wizard/send/BrochureSendSummary.h"
#include "brochures/wizard/send/BrochureSendViewController.h"
#include "orders/services/SendIntent.h"
#include "screens/WebPreviewViewController.h"
#include "support/ScriptedServer.h"

namespace kavor {
namespace {

using Directory = OrderDiskManager::DirectoryName;
using Order = SaveBrochuresOrder;

class SendTest : public WizardTest {
protected:
    std::unique_ptr<BrochureSendViewController> step;
    bool veil = false;
    NotificationCenter::Subscription observer = NotificationCenter::shared().observe(
        notification::visibilityVeilView,
        [this](const NotificationInfo& info) { veil = std::get<bool>(info.at("show")); });

    BrochureSendViewController& open() {
        draft().brochureTypeParameters = parametersOf(*session.brochureType()); // the frame's work
        step = std::make_unique<BrochureSendViewController>(services, nullptr);
        step->viewDidLoad();
        step->viewWillAppear();
        return *step;
    }
    void saveAs(const QString& name) {
        step->saveOrderAction();
        EXPECT_TRUE(press("Guardar", name));
    }
    // The key of the last request.
    [[nodiscard]] QByteArray lastKey() const { return std::get<1>(network.requests.saveOrder.calls.back()); }
    bool alertComes() {
        return waitFor([this] { return alerts.isVisible() && !veil; });
    }
    [[nodiscard]] BrochureSendSummary summary() const {
        return BrochureSendSummary::of(draft(), session.catalogue());
    }
};

TEST_F(SendTest, AnEmptyDraftIsAllWarnings) {
    enter(BrochureType::beer, [](Brochures::Type& type) {
        type.parameters->allowOrderSheet = true;
        type.parameters->withPennantBrand = true;
    });
    draft().includeDigitalBrochure = draft().printDigitalBrochure = false;
    EXPECT_EQ(summary(),
              (BrochureSendSummary{
                  "",
                  "Nombre del local no especificado\nComandero: no seleccionado\n"
                  "Banderín de marca: no seleccionado\n",
                  "",
                  "Nombre del cliente sin especificar\nEmail del cliente sin especificar\n"
                  "Teléfono de contacto del cliente sin especificar\nIdioma principal sin especificar\n"
                  "Nº de cartas sin especificar\n"}));
    draft().includePaperBrochure = false;
    draft().printDigitalBrochure = true; // counts for nothing without any brochure
    EXPECT_TRUE(summary().orderDataInfoRightWarning.ends_with("\nNº de unidades sin especificar\n"));
    EXPECT_EQ(summary().orderDataInfoRight, "");
}

TEST_F(SendTest, AFullDraftIsSummedUpLineByLine) {
    enter(BrochureType::beer, [](Brochures::Type& type) {
        type.parameters->allowOrderSheet = type.parameters->withPennantBrand = type.parameters->withPennants =
            true;
        type.parameters->printSecondPrice = true;
        type.parameters->freeTextNumberOfFields = 2;
    });
    completeDraft();
    auto& customer = *draft().customerInformation;
    customer.localPhone = "910";
    customer.url = "olmo.example";
    customer.instagram = "@olmo";
    customer.freeText1 = "uno";
    customer.freeText2 = "";
    customer.freeText3 = "beyond the kind's fields";
    draft().setLanguages(1, 2);
    draft().setOrderSheet(8);
    draft().setPennantBrand(9);
    draft().setSecondPrice(PriceType::terrace);
    draft().selectedNumberOfBrochures = {12345, std::nullopt};
    draft().includeDigitalBrochure = draft().printDigitalBrochure = true;
    draft().selectedQuantityQr = 20;
    EXPECT_EQ(summary(),
              (BrochureSendSummary{"910\nolmo.example\n@olmo\nuno\nComandero: Comanda (CM-1)\n"
                                   "Banderín de marca: Brava \n",
                                   "",
                                   "Ana\nolmo@bar.example\n600\nCastellano\nCatalán\nNº de cartas: 12.345\n"
                                   "Nº vinilos mesa: 20\nNº vinilos puerta: 0\nPedido con banderines",
                                   "Nº de cartas de Terraza sin especificar\n"}));
    draft().selectedNumberOfBrochures->secondary = 7;
    draft().brandQrTypeSelected = 1;
    EXPECT_NE(summary().orderDataInfoRight.find("Nº de cartas de Terraza: 7\nNº tacos de madera: 0\n"),
              std::string::npos);
}

TEST_F(SendTest, ButtonsFollowTheKind) {
    struct Case {
        BrochureType type;
        bool withPrinter;
        const char* title;
        bool kavor;
        bool myself;
        const char* help;
    };
    for (const Case& each :
         {Case{BrochureType::video, false, "Realizar pedido", false, false, "la imprime usted"},
          Case{BrochureType::encarte, false, "Realizar pedido sin impresión", true, false,
               "la imprime usted"},
          Case{BrochureType::beer, true, "Realizar pedido con impresión", true, true, "la imprimimos"}}) {
        enter(each.type, [&](Brochures::Type& type) { type.parameters->withPrinter = each.withPrinter; });
        open();
        EXPECT_EQ(step->makeOrderButtonTitle().toStdString(), each.title);
        EXPECT_EQ(step->isPrintedKavorButtonVisible(), each.kavor);
        EXPECT_EQ(step->isPrintedMyselfVisible(), each.myself);
        EXPECT_NE(step->buidOrderWithoutPrintedTitle(), step->makeOrderButtonTitle());
        step->printedKavorAction();
        EXPECT_EQ(alert(), std::string("Información | ") + each.help);
        press("Aceptar");
    }
}

TEST_F(SendTest, AnIncompleteDraftMayBeKept) {
    open();
    EXPECT_FALSE(draft().validationErrors().empty());
    saveAs("a medias");
    ASSERT_TRUE(waitFor([&] { return network.requests.saveOrder.waiting() == 1; }));
    EXPECT_TRUE(orders.exists<Order>("a medias", Directory::draft));
}

TEST_F(SendTest, WhoPrintsStandsInTheOrder) {
    completeDraft();
    open();
    step->sendOrderMyselfAction();
    step->sendOrderAction();
    EXPECT_TRUE(std::get<0>(network.requests.saveOrder.calls.at(0)).printedMyself);
    EXPECT_FALSE(std::get<0>(network.requests.saveOrder.calls.at(1)).printedMyself);
}

TEST_F(SendTest, AnUnchangedOrderWaitsInTheOutboxOnceHoweverOftenItIsTapped) {
    completeDraft();
    network.reachable = false;
    open();
    const auto tap = [&] {
        step->sendOrderAction();
        EXPECT_TRUE(alertComes());
        const std::string told = alert();
        press("Aceptar");
        return told;
    };
    const auto files = [&] { return orders.list<Order>(Directory::outbox).size(); };
    const std::string waits =
        "Sin conexión a internet. | Su pedido ya está en borradores con el nombre \"Sin "
        "enviar\", pendiente de envío.";
    tap();
    EXPECT_EQ(tap(), waits);
    TemporalBrochure::shared().flush(); // the same after a restart
    BrochureIntermediateData::replaceTemporalBrochure();
    ASSERT_TRUE(TemporalBrochure::shared().restoreDraft());
    open();
    const auto saysThatItWaits = [&] { return step->waitingText().contains(QStringLiteral("«Sin enviar»")); };
    EXPECT_TRUE(waitFor(saysThatItWaits));
    EXPECT_EQ(tap(), waits);
    EXPECT_EQ(files(), 1U);

    draft().setPrice(PriceType::main, knownFormat, knownBrand, 3);
    open();
    EXPECT_TRUE(waitFor(saysThatItWaits)) << "it waits as it was ordered";
    EXPECT_NE(tap(), waits);
    EXPECT_EQ(files(), 2U);
    // A file that the user erased waits no longer.
    ASSERT_TRUE(orders.remove<Order>("Sin enviar(1).zvo", Directory::outbox));
    EXPECT_NE(tap(), waits);
    EXPECT_EQ(files(), 2U);
}

// ---- One order, one key

TEST_F(SendTest, ASecondTapAfterALostAnswerKeepsTheKeyAndAnAnswerEndsIt) {
    struct Case {
        RequestFailure failure;
        bool keeps;
    };
    using Kind = RequestError::Kind;
    completeDraft();
    for (const Case& each : {Case{lostAnswer(Kind::Transport), true}, Case{lostAnswer(Kind::TimedOut), true},
                             Case{lostAnswer(Kind::Decoding), true}, Case{failureWith({}, 502), true},
                             Case{failureWith({}, 504), true}, Case{failureWith({"motivo"}, 422), false},
                             Case{failureWith({}, 500), false}}) {
        for (auto action :
             {&BrochureSendViewController::sendOrderAction, &BrochureSendViewController::previewAction}) {
            (open().*action)();
            const QByteArray first = lastKey();
            EXPECT_FALSE(first.isEmpty());
            network.requests.saveOrder.fail(each.failure);
            (open().*action)(); // the step was left and shown again
            EXPECT_EQ(lastKey() == first, each.keeps) << each.failure.error.status;
            network.requests.saveOrder.fail(failureWith({}));
            while (alerts.isVisible())
                press("Aceptar");
        }
    }
}

TEST_F(SendTest, ACloudSaveThatGoesBackToAnEarlierContentIsTakenByTheServer) {
    completeDraft();
    open();
    std::vector<QByteArray> keys;
    for (const double price : {2.0, 3.0, 2.0}) {
        draft().setPrice(PriceType::main, knownFormat, knownBrand, price);
        saveAs("mi carta");
        press("Sí");
        ASSERT_TRUE(waitFor([&] { return network.requests.saveOrder.waiting() == 1; }));
        keys.push_back(lastKey());
        if (price == 2)
            network.requests.saveOrder.fail(lostAnswer());
        else
            network.requests.saveOrder.succeed({});
        press("Aceptar");
    }
    EXPECT_NE(keys[2], keys[0]) << "the server would only repeat its answer, and keep the second content";
}

TEST_F(SendTest, NeitherTheServersNumbersNorAFileNameMakeAnotherOrder) {
    completeDraft();
    open().sendOrderAction();
    const QByteArray first = lastKey();
    network.requests.saveOrder.fail(lostAnswer());
    press("Aceptar");
    saveAs("por si acaso");
    ASSERT_TRUE(waitFor([&] { return network.requests.saveOrder.waiting() == 1; }));
    SaveBrochuresOrderResponse stored;
    stored.orderId = 41;
    stored.customerId = 42;
    network.requests.saveOrder.succeed(stored);
    press("Aceptar");
    EXPECT_EQ(draft().orderIdentifier, 41);
    EXPECT_EQ(draft().customerInformation->id, 42);
    step->sendOrderAction();
    EXPECT_EQ(lastKey(), first);
    network.requests.saveOrder.succeed({}); // taken, but nobody says where it is
    press("Aceptar");
    step->sendOrderAction();
    EXPECT_EQ(lastKey(), first);
}

TEST_F(SendTest, ACloudSaveGoesUnderTheKeyOfItsFile) {
    completeDraft();
    open();
    saveAs("mi carta");
    ASSERT_TRUE(waitFor([&] { return network.requests.saveOrder.waiting() == 1; }));
    const auto file = orders.retrieve<KeptOrder>("mi carta.zvo", Directory::draft);
    ASSERT_TRUE(file);
    EXPECT_EQ(send_intent::keyOfFile(*file, Directory::draft, "mi carta.zvo", {}), lastKey());
}

TEST_F(SendTest, AnOutboxFileIsTheOrderThatMayBeAtTheServerAndElseOneOfItsOwn) {
    completeDraft();
    open();
    const auto queue = [&](const char* name, void (BrochureSendViewController::*action)() =
                                                 &BrochureSendViewController::sendOrderAction) {
        network.reachable = false;
        (step.get()->*action)();
        EXPECT_TRUE(alertComes());
        press("Aceptar");
        network.reachable = true;
        const std::string file = OrderDiskManager::fileName(name);
        const auto order = orders.retrieve<KeptOrder>(file, Directory::outbox);
        const auto moment = orders.moment<KeptOrder>(file, Directory::outbox);
        return order && moment ? send_intent::keyOfFile(*order, Directory::outbox, file, *moment)
                               : QByteArray();
    };
    const QByteArray queued = queue("Sin enviar");
    step->sendOrderAction();
    EXPECT_EQ(lastKey(), queued) << "sent from here, it is the order of the file";
    network.requests.saveOrder.fail(lostAnswer());
    press("Aceptar");
    ASSERT_TRUE(orders.remove<Order>("Sin enviar.zvo", Directory::outbox));
    EXPECT_EQ(queue("Sin enviar"), queued);

    step->sendOrderMyselfAction(); // who prints is not read back from a file
    const QByteArray myself = lastKey();
    network.requests.saveOrder.fail(lostAnswer());
    press("Aceptar");
    EXPECT_NE(myself, queued);
    EXPECT_EQ(queue("Sin enviar(1)", &BrochureSendViewController::sendOrderMyselfAction), myself);
}

TEST_F(SendTest, TheCommentForSupportOutlivesTheProcessWithTheMenuAndWithItsFile) {
    completeDraft();
    open().finishSupportComment("con cuidado");
    TemporalBrochure::shared().flush();
    BrochureIntermediateData::replaceTemporalBrochure();
    ASSERT_TRUE(TemporalBrochure::shared().restoreDraft());
    EXPECT_EQ(draft().supportComment, "con cuidado");
    open();
    saveAs("con nota");
    ASSERT_TRUE(waitFor([&] { return network.requests.saveOrder.waiting() == 1; }));
    const auto kept = orders.retrieve<KeptOrder>("con nota.zvo", Directory::draft);
    ASSERT_TRUE(kept);
    EXPECT_EQ(kept->supportComment, "con cuidado");
}

TEST_F(SendTest, ADocumentOnTheDeviceIsShownFromThere) {
    put(folder / "caches" / "PDFCache" / "a.pdf", "%PDF");
    const WebPreviewViewController preview(QUrl("http://127.0.0.1:9/pdf/a.pdf"), "", downloader, clock,
                                           nullptr);
    EXPECT_TRUE(preview.source().isLocalFile());
    EXPECT_FALSE(preview.isLoading());
}

TEST_F(SendTest, ADocumentThatDoesNotComeInTimeFailsForGoodUntilItIsAskedForAgain) {
    ScriptedServer server;
    server.answer("/a.pdf", ScriptedAnswer::bytes("%PDF", "application/pdf"));
    server.hold();
    WebPreviewViewController preview(server.url("/a.pdf"), "", downloader, clock, nullptr);
    EXPECT_TRUE(preview.isLoading());
    ASSERT_TRUE(waitFor([&] { return server.waiting() > 0; }));
    clock.advance(std::chrono::seconds(WebPreviewViewController::timeOutSeconds));
    EXPECT_TRUE(preview.hasFailed());
    server.release();
    ASSERT_TRUE(waitFor([&] { return !downloader.isFetching(server.url("/a.pdf")); }));
    EXPECT_TRUE(preview.hasFailed());
    preview.load();
    ASSERT_TRUE(waitFor([&] { return !preview.isLoading(); }));
    EXPECT_TRUE(preview.source().isLocalFile() || preview.bytes() == "%PDF");
}

TEST_F(SendTest, AnAnswerToASendThatWasLeftChangesNothing) {
    completeDraft();
    TemporalBrochure::shared().write(draft());
    open();
    const auto leave = [&] {
        EXPECT_TRUE(veil);
        NotificationCenter::shared().post(notification::veilViewLeft);
        EXPECT_FALSE(veil);
    };
    SaveBrochuresOrderResponse answer;
    answer.orderId = 41;
    answer.urlOrder = Url{"http://server.example/order/1"};

    step->sendOrderAction();
    leave();
    EXPECT_EQ(alert(), "Atención | Es posible que el pedido ya se haya realizado; si lo envía de nuevo sin "
                       "cambiarlo, no se realizará dos veces.");
    press("Aceptar");
    network.requests.saveOrder.succeed(answer);
    EXPECT_FALSE(step->isOrderSent());
    EXPECT_TRUE(temporaryCopy());

    saveAs("mi carta");
    ASSERT_TRUE(waitFor([&] { return network.requests.saveOrder.waiting() == 1; }));
    leave();
    EXPECT_EQ(sync.planned, 1);
    press("Aceptar");
    network.requests.saveOrder.succeed(answer);
    EXPECT_FALSE(draft().orderIdentifier);
    EXPECT_FALSE(alerts.isVisible());
    NotificationCenter::shared().post(notification::veilViewLeft); // nothing is waited for
    EXPECT_FALSE(alerts.isVisible());
}

} // namespace
} // namespace kavor
