#include "sellingsheets/screens/SheetScreensFixture.h"

#include <QImage>

namespace kavor {
namespace {

using ::testing::ElementsAre;
using ::testing::StartsWith;
using Form = DataViewController;
using ModuleForm = ModifySingleModuleViewController;

class SheetForm : public SheetScreens {
protected:
    Form& newSheet() {
        open();
        list->newSheetAction();
        return *top<Form>();
    }
    static void complete(Form& form) {
        form.edit(Form::SheetName, "Terraza");
        form.edit(Form::Title, "Verde");
        form.chooseDate(Form::Starting, "01-06-24");
        form.chooseDate(Form::Ending, "30-06-24");
        form.edit(Form::Email2, "dos@bar.es");
    }
    ModuleForm& newModule() {
        top<Form>()->modulesAction();
        top<ModulesManagementController>()->newModuleAction();
        return *top<ModuleForm>();
    }
};

TEST_F(SheetForm, MessagesWriteNothingAndCostNothing) {
    Form& form = newSheet();
    form.edit(Form::Title, "Verano");
    form.saveAction();
    EXPECT_EQ(told(), "Error | El título está vacío o se ha excedido el número de caracteres posibles.\n"
                      "El nombre de la hoja está vacío.\nIntroduce al menos una dirección de email.");
    EXPECT_TRUE(draftNames().empty());
    EXPECT_TRUE(isKept());
    EXPECT_TRUE(form.isTitleTooLong());
    EXPECT_EQ(form.titleCount(), "6 de 5 caracteres");
}

TEST_F(SheetForm, ASavedSheetIsADraftNamedAfterItsMoment) {
    putDraft("2024-06-06-07-08-09");
    Form& form = newSheet();
    complete(form);
    EXPECT_EQ(form.startingDate(), "01/06/2024");
    form.toggle(Form::ModulePerPage, true);
    form.chooseStyle(1);
    form.saveAction();
    EXPECT_TRUE(isListOnShow());
    EXPECT_FALSE(isKept());
    const auto stored = draft("2024-06-06-07-08-09(1)");
    ASSERT_TRUE(stored);
    EXPECT_EQ(stored->fromDate, "2024-06-01");
    EXPECT_EQ(stored->styleIdentifier, 31);
    EXPECT_TRUE(stored->showOneModulePerPage && stored->isNRVLogoIncluded);
    EXPECT_EQ(stored->emailToSend1, "");
    settle();
    list->openDraft("2024-06-06-07-08-09(1)");
    list->openDraft("2024-06-06-07-08-09(1)"); // a second tap
    EXPECT_EQ(top<Form>()->rememberedEmails(), QStringList()) << "the one that is known stands in a field";
    top<Form>()->edit(Form::Email2, "");
    EXPECT_EQ(top<Form>()->rememberedEmails(), QStringList("dos@bar.es"));
    top<Form>()->takeEmail("dos@bar.es");
    EXPECT_EQ(top<Form>()->emailTextField1(), "dos@bar.es");
    top<Form>()->saveAction();
    EXPECT_TRUE(isListOnShow());
    EXPECT_EQ(draftNames().size(), 2U) << "written anew under its own name";
    EXPECT_EQ(draft("2024-06-06-07-08-09(1)")->emailToSend1, "dos@bar.es");
}

TEST_F(SheetForm, TheSheetInWorkComesBackWithTheSection) {
    Form& form = newSheet();
    form.edit(Form::Title, "Verde");
    ModuleForm& module = newModule();
    module.edit(ModuleForm::Price, "60");
    module.saveAction();
    ASSERT_TRUE(isKept());
    screens.reset(); // the window closed, or the process ended
    StyleSingleton::shared() = {};
    open();
    ASSERT_NE(top<Form>(), nullptr);
    EXPECT_EQ(top<Form>()->recoveredMessage(), "Se ha recuperado la hoja en curso");
    EXPECT_EQ(top<Form>()->titleTextField(), "Verde");
    EXPECT_EQ(top<Form>()->modulesText(), "1 módulo");
    top<Form>()->closeSceneAction();
    EXPECT_EQ(shown(alerts), "Atención | La hoja tiene cambios sin guardar.");
    EXPECT_TRUE(press(alerts, "Seguir editando"));
    EXPECT_TRUE(isKept());
    top<Form>()->closeSceneAction();
    EXPECT_TRUE(press(alerts, "Salir sin guardar"));
    EXPECT_TRUE(isListOnShow());
    EXPECT_FALSE(isKept());
    list->newSheetAction();
    top<Form>()->closeSceneAction();
    EXPECT_TRUE(isListOnShow()) << "an untouched sheet asks nothing";
}

TEST_F(SheetForm, SendingStoresTheDraftFirstAndRemovesItAfterTheAnswer) {
    Form& form = newSheet();
    complete(form);
    form.sendAction();
    EXPECT_TRUE(isListOnShow());
    EXPECT_EQ(draftNames().size(), 1U);
    ASSERT_EQ(sends().calls.size(), 1U);
    EXPECT_EQ(std::get<0>(sends().calls[0]).orderName, "Terraza");
    GenericOrderResponse answer;
    answer.PDFURL = Url{"http://127.0.0.1:9/1.pdf"};
    sends().succeed(answer);
    EXPECT_EQ(shown(alerts), "Éxito | Pedido realizado correctamente.");
    EXPECT_TRUE(press(alerts, "Ver el PDF"));
    EXPECT_NE(list->preview(), nullptr);
    EXPECT_TRUE(draftNames().empty());
    EXPECT_FALSE(isKept());
}

TEST_F(SheetForm, APreviewAsksWithoutStoring) {
    Form& form = newSheet();
    complete(form);
    form.previewAction();
    ASSERT_EQ(sends().calls.size(), 1U);
    EXPECT_EQ(std::get<0>(sends().calls[0]).save, false);
    EXPECT_TRUE(draftNames().empty());
    GenericOrderResponse answer;
    answer.PDFURL = Url{"http://127.0.0.1:9/1.pdf"};
    sends().succeed(answer);
    EXPECT_NE(form.preview(), nullptr);
}

TEST_F(SheetForm, AStyleThatLeftStaysUntilAnotherIsChosen) {
    SellingSheetOrder sheet = completeSheet();
    sheet.styleIdentifier = 99;
    sheet.distributionLogoURL = "/old.png";
    putDraft("uno", sheet);
    open();
    list->openDraft("uno");
    Form& form = *top<Form>();
    EXPECT_EQ(form.style(), -1);
    EXPECT_THAT(form.styleHint().toStdString(), StartsWith("El estilo de esta hoja"));
    QImage photo(4, 4, QImage::Format_RGB32);
    photo.fill(Qt::blue);
    photos.photo = photo;
    form.logo()->searchLogoInGallery();
    ASSERT_TRUE(waitFor([&] { return !form.logo()->imageLogo().isEmpty(); }));
    form.saveAction();
    EXPECT_EQ(draft("uno")->styleIdentifier, 99);
    EXPECT_THAT(draft("uno")->distributionLogo.value_or(""), StartsWith("data:image/png;base64,"));
    EXPECT_EQ(draft("uno")->distributionLogoURL, std::nullopt);
}

TEST_F(SheetForm, ThreeWrongValuesInAModuleAreToldAtOnce) {
    newSheet();
    ModuleForm& module = newModule();
    EXPECT_EQ(module.title(), "Módulo nuevo");
    module.switchSecondaryBottle(true);
    module.edit(ModuleForm::PrimaryBoxes, "0");
    module.edit(ModuleForm::SecondaryBoxes, "dos");
    module.edit(ModuleForm::Price, "");
    module.saveAction();
    EXPECT_EQ(alerts.current()->buttons.front().text, "OK");
    EXPECT_EQ(told(), "Información | El número de cajas primario no es correcto.\n"
                      "El número de cajas secundario no es correcto.\nEl precio del módulo no es correcto.");
    module.switchSecondaryBottle(false);
    module.edit(ModuleForm::PrimaryBoxes, "2");
    module.edit(ModuleForm::Price, "59.9");
    EXPECT_EQ(module.pricePerBottleTextField(), "1,248");
    EXPECT_EQ(module.programmePrice(), QStringLiteral("Programa: 3,00\u00a0€"));
    module.closeSceneAction();
    EXPECT_EQ(told(), "Atención | ¿Salir sin guardar los cambios del módulo?");
    module.saveAction();
    module.saveAction(); // a second tap
    ASSERT_EQ(StyleSingleton::shared().editingOrder->items.size(), 1U);
    EXPECT_EQ(StyleSingleton::shared().editingOrder->items[0],
              (SellingSheetOrder::Item{1, "", 0, 110, 2, std::nullopt, std::nullopt, 59.9}));
}

TEST_F(SheetForm, ModulesAreEditedDuplicatedMovedAndRemoved) {
    putDraft("uno");
    open();
    list->openDraft("uno");
    top<Form>()->modulesAction();
    auto& modules = *top<ModulesManagementController>();
    modules.editModuleAction(0);
    EXPECT_EQ(top<ModuleForm>()->secondaryBoxes(), "1");
    EXPECT_EQ(top<ModuleForm>()->modulePrice(), "60");
    top<ModuleForm>()->primary()->chooseFormat(1);
    EXPECT_EQ(top<ModuleForm>()->pricePerBottleTextField(), "-");
    top<ModuleForm>()->switchSecondaryBottle(false);
    top<ModuleForm>()->saveAction();
    modules.duplicateAction(0);
    modules.moveAction(0, 1);
    modules.moveAction(1, 1); // there is none below
    const auto item = [](Int id) { return SellingSheetOrder::Item{id, "REF", 3, 111, 2, {}, {}, 60}; };
    EXPECT_THAT(modules.modulesList(), ElementsAre(item(8), item(7)));
    modules.removeAction(0);
    EXPECT_EQ(shown(alerts), "Atención | ¿Desea eliminar el módulo?");
    EXPECT_TRUE(press(alerts, "No"));
    modules.removeAction(0);
    EXPECT_TRUE(press(alerts, "Sí"));
    modules.closeSceneAction();
    top<Form>()->saveAction();
    EXPECT_THAT(draft("uno")->items, ElementsAre(item(7)));
}

TEST_F(SheetForm, AModuleWhoseFormatLeftOpensAtTheFirstOneAndSaysSo) {
    SellingSheetOrder sheet = completeSheet();
    sheet.items[0].productIdentifier1 = 4711;
    sheet.items[0].productIdentifier2 = 101; // there, but not for sheets
    putDraft("uno", sheet);
    open();
    list->openDraft("uno");
    top<Form>()->modulesAction();
    top<ModulesManagementController>()->editModuleAction(0);
    EXPECT_EQ(top<ModuleForm>()->notice().count("ya no está en el catálogo"), 2);
    EXPECT_EQ(top<ModuleForm>()->primary()->chosen().format->id, 110);
    EXPECT_EQ(top<ModuleForm>()->secondary()->chosen().format->id, 110);
}

} // namespace
} // namespace kavor
