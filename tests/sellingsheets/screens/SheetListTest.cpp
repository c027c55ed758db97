#include "sellingsheets/screens/SheetScreensFixture.h"
#include "support/ScriptedServer.h"

#include <QBuffer>
#include <QImage>

#include <chrono>
#include <filesystem>
#include <fstream>

namespace kavor {
namespace {

using ::testing::ElementsAre;
using ::testing::StartsWith;

class SheetList : public SheetScreens {
protected:
    [[nodiscard]] static std::vector<std::string> keys(const SheetListModel* model) {
        std::vector<std::string> all;
        for (const auto& row : model->rows())
            all.push_back(row.key.toStdString());
        return all;
    }
};

TEST_F(SheetList, DraftsStandWhateverTheServerSays) {
    putDraft("uno");
    network.reachable = false;
    open();
    EXPECT_THAT(keys(list->drafts()), ElementsAre("uno"));
    EXPECT_EQ(alerts.current()->buttons.front().text, "Ver pedidos guardados localmente");
    EXPECT_EQ(told(), "Error | No hay conexión a internet.");
    network.reachable = true;
    list->refresh();
    requests().sellingSheetOrderList.fail(failureWith({"no"}, 500));
    EXPECT_EQ(shown(alerts), "Incidencia | Error en la carga de datos");
    EXPECT_TRUE(press(alerts, "Intentar de nuevo"));
    requests().sellingSheetOrderList.fail(lostAnswer(RequestError::Kind::Decoding));
    EXPECT_TRUE(press(alerts, "Trabajar en local"));
    list->refresh();
    requests().sellingSheetOrderList.succeed({{sentSheet(9), sentSheet(4)}});
    EXPECT_THAT(keys(list->sent()), ElementsAre("9", "4")) << "in the server's order";
    EXPECT_FALSE(alerts.isVisible());
}

TEST_F(SheetList, ReadableDraftsAreShownBesideOneThatIsNot) {
    putDraft("uno");
    SellingSheetOrder old = completeSheet();
    old.toDate = "2024-06-05";
    putDraft("dos", old);
    const auto drafts = folder.path() / "orders/draft_orders/SellingSheetOrder";
    const auto writtenAt = std::filesystem::last_write_time(drafts / "dos.zvo");
    std::filesystem::last_write_time(drafts / "uno.zvo", writtenAt - std::chrono::hours(1));
    std::ofstream(drafts / "torn.zvo") << "{\"id\": ";
    open();
    EXPECT_EQ(told(), "Error | No se han podido obtener los pedidos de disco.");
    ASSERT_EQ(list->drafts()->rows().size(), 2U);
    EXPECT_EQ(list->drafts()->rows()[0].state, "caducada") << "the latest file comes first";
    EXPECT_EQ(list->drafts()->rows()[1].state, "vigente");
    list->refresh();
    settle();
    EXPECT_FALSE(alerts.isVisible()) << "told once";
}

TEST_F(SheetList, AWrongRecordInAFileStopsTheProcess) {
    std::ofstream(folder.path() / "orders/draft_orders/SellingSheetOrder/wrong.zvo") << R"({"id": 1})";
    EXPECT_EXIT(open(), ::testing::ExitedWithCode(70), "token");
}

TEST_F(SheetList, ADraftIsSentOnceHoweverOftenTheAnswerIsLost) {
    putDraft("uno");
    open();
    list->sendDraft("uno");
    sends().fail(lostAnswer());
    EXPECT_THAT(told(), StartsWith("El pedido no se puede realizar | "));
    EXPECT_TRUE(draft("uno"));
    open(); // another process
    list->sendDraft("uno");
    ASSERT_EQ(sends().calls.size(), 2U);
    EXPECT_EQ(std::get<1>(sends().calls[0]), std::get<1>(sends().calls[1]));
    EXPECT_EQ(std::get<0>(sends().calls[1]).save, true);
    sends().succeed({});
    EXPECT_EQ(told(), "Éxito | Pedido realizado correctamente.");
    settle();
    EXPECT_FALSE(draft("uno"));
    EXPECT_EQ(list->drafts()->count(), 0);
    EXPECT_EQ(requests().sellingSheetOrderList.waiting(), 1) << "the list is loaded anew";
}

TEST_F(SheetList, ARefusalLeavesTheDraftAndAChangedOneIsAnotherOrder) {
    putDraft("uno");
    open();
    list->sendDraft("uno");
    sends().fail(failureWith({"date_to: no"}, 422));
    EXPECT_EQ(told(), "El pedido no se puede realizar | date_to: no");
    GenericOrderResponse refusing;
    refusing.errors.emplace();
    (*refusing.errors)["title"] = {"Título no"};
    list->sendDraft("uno");
    sends().succeed(refusing);
    EXPECT_EQ(told(), "El pedido no se puede realizar | Título no");
    EXPECT_TRUE(draft("uno"));
    list->openDraft("uno");
    top<DataViewController>()->edit(DataViewController::Title, "Rojo");
    top<DataViewController>()->sendAction();
    EXPECT_TRUE(isListOnShow());
    EXPECT_NE(std::get<1>(sends().calls[0]), std::get<1>(sends().calls[2]));
}

TEST_F(SheetList, AnIncompleteDraftOrNoNetworkSendsNothing) {
    SellingSheetOrder sheet = completeSheet();
    sheet.title = "";
    sheet.orderName = "";
    putDraft("uno", sheet);
    putDraft("dos");
    open();
    list->sendDraft("uno");
    EXPECT_EQ(told(), "Error | El título está vacío.\nEl nombre de la hoja está vacío.");
    network.reachable = false;
    list->sendDraft("dos");
    EXPECT_EQ(told(), "Error | No hay conexión a internet.");
    EXPECT_TRUE(sends().calls.empty());
}

TEST_F(SheetList, AFileThatCannotBeRemovedAfterTheSendIsTold) {
    putDraft("uno");
    open();
    list->sendDraft("uno");
    const auto path = folder.path() / "orders/draft_orders/SellingSheetOrder/uno.zvo";
    std::filesystem::remove(path);
    std::filesystem::create_directories(path / "in the way");
    sends().succeed({});
    EXPECT_EQ(told(), "Error | No se ha podido borrar el pedido almacenado en el iPad, pero sí se ha enviado "
                      "a servidor.");
    std::filesystem::remove_all(path);
    settle();
}

TEST_F(SheetList, ASentSheetIsShownByItsDocumentOrAsksForOne) {
    SellingSheetOrder withDocument = sentSheet(4);
    withDocument.PDFURL = Url{"http://127.0.0.1:9/4.pdf"};
    open({withDocument, sentSheet(5)});
    list->previewSent("4");
    EXPECT_TRUE(sends().calls.empty());
    ASSERT_NE(list->preview(), nullptr);
    list->preview()->dismissAction();
    list->previewSent("5");
    ASSERT_EQ(sends().calls.size(), 1U);
    EXPECT_EQ(std::get<0>(sends().calls[0]).save, false);
    GenericOrderResponse answer;
    answer.PDFURL = Url{"http://127.0.0.1:9/5.pdf"};
    sends().succeed(answer);
    EXPECT_NE(list->preview(), nullptr);
    list->preview()->dismissAction();
    list->previewSent("5");
    sends().fail(failureWith({"no"}));
    EXPECT_EQ(told(), "El pedido no se puede previsualizar | no");
    network.reachable = false;
    list->previewSent("4");
    EXPECT_EQ(told(), "Error | No hay conexión a internet.");
}

TEST_F(SheetList, ACopyTakesTheLogoAlongOrSaysThatItCouldNot) {
    ScriptedServer server;
    QImage picture(8, 4, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    buffer.open(QIODevice::WriteOnly);
    ASSERT_TRUE(picture.save(&buffer, "JPG"));
    ScriptedAnswer logo = ScriptedAnswer::json(jpeg);
    server.answer("/logo.jpg", logo);
    SellingSheetOrder sheet = sentSheet(4);
    sheet.distributionLogoURL = server.address("/logo.jpg").toStdString();
    SellingSheetOrder without = sentSheet(5);
    without.distributionLogoURL = server.address("/gone.png").toStdString();
    open({sheet, without});
    list->copySent("4");
    list->copySent("4"); // a second tap
    ASSERT_TRUE(waitFor([&] { return !draftNames().empty(); }));
    list->copySent("5");
    ASSERT_TRUE(waitFor([&] { return alerts.isVisible(); }));
    EXPECT_EQ(told(), "Atención | No se ha podido obtener el logotipo. La copia se ha guardado en borradores "
                      "sin él.");
    EXPECT_THAT(draftNames(), ElementsAre("2024-06-06-07-08-09", "2024-06-06-07-08-09(1)"));
    const auto copy = draft("2024-06-06-07-08-09");
    EXPECT_EQ(copy->orderName, "A (copia)");
    EXPECT_EQ(copy->identifier, 0);
    EXPECT_THAT(copy->distributionLogo.value_or(""), StartsWith("data:image/png;base64,iVBOR"));
    EXPECT_EQ(draft("2024-06-06-07-08-09(1)")->distributionLogo, std::nullopt);
    settle();
    list->copyDraft("2024-06-06-07-08-09");
    list->copyDraft("2024-06-06-07-08-09"); // a second tap
    EXPECT_EQ(draft("2024-06-06-07-08-09(2)")->distributionLogo, copy->distributionLogo);
    EXPECT_EQ(draftNames().size(), 3U);
    clock.advance(std::chrono::seconds(1));
    list->copyDraft("2024-06-06-07-08-09");
    EXPECT_EQ(draftNames().size(), 4U);
}

TEST_F(SheetList, ADraftIsDeletedOnceTheUserSaysSo) {
    putDraft("uno");
    open();
    list->deleteDraft("uno");
    EXPECT_EQ(shown(alerts), " | ¿Desea eliminar el borrador?");
    EXPECT_TRUE(press(alerts, "Cancelar"));
    EXPECT_TRUE(draft("uno"));
    list->deleteDraft("uno");
    EXPECT_TRUE(press(alerts, "Borrar"));
    settle();
    EXPECT_EQ(list->drafts()->count(), 0);
    EXPECT_TRUE(draftNames().empty());
}

TEST_F(SheetList, ASentSheetIsDeletedAtTheServerOrTriedAgain) {
    open({sentSheet(4), sentSheet(5)});
    const auto remove = [this] {
        list->deleteSent("4");
        EXPECT_EQ(shown(alerts), " | ¿Desea eliminar el pedido enviado?");
        EXPECT_TRUE(press(alerts, "Borrar"));
    };
    network.reachable = false;
    remove();
    EXPECT_EQ(told(), "Error | No hay conexión a internet.");
    network.reachable = true;
    remove();
    auto& deletions = requests().sellingSheetOrderDelete;
    deletions.fail(failureWith({"no"}, 500));
    EXPECT_EQ(shown(alerts), "Incidencia | No se ha podido cancelar el pedido en servidor.");
    EXPECT_TRUE(press(alerts, "Intentar de nuevo"));
    deletions.fail(lostAnswer());
    EXPECT_TRUE(press(alerts, "Intentar más tarde"));
    EXPECT_EQ(list->sent()->count(), 2);
    remove();
    EXPECT_EQ(deletions.calls.back(), (std::tuple<Int, QString>(4, "t4")));
    deletions.succeed({});
    EXPECT_EQ(alerts.current()->buttons.front().text, "Continuar");
    EXPECT_EQ(told(), " | Pedido cancelado correctamente");
    EXPECT_EQ(list->sent()->count(), 1);
}

TEST_F(SheetList, WithoutItsPartOfTheCatalogueNothingOpensAndNothingStops) {
    putDraft("uno");
    builder.information.sellingSheet.reset();
    session.applicationInformation = builder.take();
    open();
    list->newSheetAction();
    EXPECT_EQ(told(), "Atención | El catálogo no contiene hojas vendedoras.");
    list->sendDraft("uno");
    EXPECT_EQ(told(), "Atención | El catálogo no contiene hojas vendedoras.");
    EXPECT_TRUE(isListOnShow());
}

} // namespace
} // namespace kavor
