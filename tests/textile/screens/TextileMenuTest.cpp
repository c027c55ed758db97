#include "textile/screens/TextileScreensFixture.h"

#include <gmock/gmock.h>

namespace kavor {
namespace {

using ::testing::ElementsAre;

class TextileMenu : public TextileScreens {
protected:
    auto& lookUps() { return network.requests.getCustomerDataFromTevoCode; }
    PointOfSaleForm& form() { return *configuration().customer(); }
    std::vector<std::string> typographies() {
        std::vector<std::string> all;
        for (const TextileChoice& row : configuration().typographies()->rows())
            all.push_back((row.selected ? "*" : "") + row.title.toStdString() + ": " +
                          row.lettering["text"].toString().toStdString());
        return all;
    }
    QVariantMap button(int id) {
        for (const QVariant& each : menu->menuButtons()) {
            if (each.toMap()["id"].toInt() == id)
                return each.toMap();
        }
        return {};
    }
};

TEST_F(TextileMenu, AFieldThatWasEditedIsWrittenAsItStandsAndOneThatWasNotStaysUnset) {
    open();
    EXPECT_FALSE(draft().customer);
    EXPECT_EQ(form().tevoLabel(), "Código cliente*");
    EXPECT_EQ(form().tevoAviseLabel(), "Si no conoces el código cliente, no lo informes.");
    form().editText("establishmentNameTextField", "Bar Sol");
    EXPECT_EQ(draft().customer->name, "Bar Sol");
    EXPECT_FALSE(draft().customer->contactName || draft().customer->tevo);
    form().editText("establishmentNameTextField", "");
    form().editText("contactNameTextField", "Ana");
    form().finishText("contactNameTextField", "");
    EXPECT_EQ(draft().customer->name, "");
    EXPECT_EQ(draft().customer->contactName, "");
    dieAndOpen();
    form().editText("provinceTextField", "Lugo");
    EXPECT_EQ(draft().customer->name, "") << "still emptied, and so judged";
    EXPECT_EQ(draft().customer->placeProvinceName, "Lugo");
    EXPECT_FALSE(draft().customer->email);
}

TEST_F(TextileMenu, ALookUpBringsAllOfTheCustomerAndSaysWhyWhenItDoesNot) {
    open();
    network.reachable = false;
    form().searchTEVOCodeAction();
    EXPECT_EQ(told(), "Atención | Es necesario conexión a internet");
    network.reachable = true;
    form().searchTEVOCodeAction();
    EXPECT_EQ(told(), "Atención | Debe introducir un código tevo.");
    form().editText("tevoTextField", "77");
    form().searchTEVOCodeAction();
    lookUps().fail(failureWith({"No se puede"}));
    EXPECT_EQ(told(), "Error al recuperar cliente | No se puede");
    form().searchTEVOCodeAction();
    lookUps().succeed({});
    EXPECT_EQ(told(), "Atención | El cliente introducido no existe");
    form().searchTEVOCodeAction();
    Customer found;
    found.id = 5;
    found.name = "Bar Luna";
    found.contact = "Ana";
    found.email = "a@b.example";
    found.telephone = "600";
    found.tevo = "00077";
    found.placePostalCode = "27001";
    found.placeLocality = "Lugo";
    found.placeLocalityId = 8;
    found.placeProvinceId = 27;
    found.placeProvinceName = "Lugo";
    lookUps().succeed({found, Customer()});
    SaveTextileOrder::Customer all{5,      "Bar Luna", "Ana", "a@b.example", "600", "00077", "27001",
                                   "Lugo", 8,          27,    "Lugo"};
    EXPECT_EQ(draft().customer, all);
    EXPECT_EQ(menu->subtitle(), "Bar Luna");
    form().editText("municipalityTextField", "Sarria");
    EXPECT_FALSE(draft().customer->placeLocalityId);
    EXPECT_EQ(draft().customer->placeProvinceId, 27);
    EXPECT_EQ(draft().customer->id, 5);
    form().editText("establishmentNameTextField", "Bar Sol");
    EXPECT_FALSE(draft().customer->id);
}

TEST_F(TextileMenu, TypographiesWriteTheBarsOwnTextAndOneIsChosen) {
    open();
    EXPECT_THAT(typographies(), ElementsAre("Pacifico: Tu texto", "Roboto: Tu texto"));
    form().editText("establishmentNameTextField", "Bar Sol");
    EXPECT_THAT(typographies(), ElementsAre("Pacifico: Bar Sol", "Roboto: Bar Sol"));
    configuration().editCustomText("¡Fiestas!");
    configuration().selectTypography("1");
    EXPECT_THAT(typographies(), ElementsAre("Pacifico: ¡Fiestas!", "*Roboto: ¡Fiestas!"));
    configuration().selectTypography("9");
    EXPECT_EQ(told(), "Error | No se ha podido seleccionar la tipografía.");
    EXPECT_EQ(draft().typographyIdentifier, 1);
    EXPECT_EQ(configuration().customTextHelp(), "9 de 10 caracteres");
    configuration().editCustomText("¡Fiestas de verano!");
    EXPECT_EQ(configuration().customTextError(),
              "El texto a mostrar debe de tener una longitud máxima de 10 (son 19)");
}

TEST_F(TextileMenu, AFontOfTheDeviceIsUsedAfterAStartWithoutANetwork) {
    ASSERT_TRUE(std::filesystem::create_directories(fontUpdater.folder()));
    const std::filesystem::path font(KAVOR_FONTS "/Roboto-Bold.ttf");
    ASSERT_TRUE(std::filesystem::copy_file(font, fontUpdater.folder() / "Pacifico.ttf"));
    network.reachable = false;
    fonts.addStored(fontUpdater.folder());
    open();
    const auto family = [&](std::size_t row) {
        return configuration().typographies()->rows()[row].lettering["family"].toString();
    };
    EXPECT_TRUE(waitFor([&] { return !family(0).isEmpty(); }));
    EXPECT_EQ(family(1), "") << "is not on the device";
}

TEST_F(TextileMenu, TheResetBeginsAnEmptyDraftOnTheStepOnShow) {
    openFilled(Menu::Products);
    EXPECT_TRUE(button(Menu::Products)["done"].toBool() && button(Menu::Configuration)["done"].toBool());
    menu->buttonPushedAction(Menu::Reset);
    EXPECT_EQ(shown(alerts), "Atención | ¿Desea borrar todos los datos introducidos en la carta actual?");
    press("No");
    EXPECT_EQ(draft().totalUnits(), 6U);
    menu->buttonPushedAction(Menu::Reset);
    press("Sí");
    EXPECT_EQ(menu->selectedButton(), Menu::Products);
    EXPECT_EQ(products().cart()->lines()->count(), 0);
    EXPECT_FALSE(button(Menu::Configuration)["done"].toBool());
    dieAndOpen();
    EXPECT_TRUE(draft().order.empty() && !draft().customer);
}

TEST_F(TextileMenu, TheOtherSectionAsksBeforeItTakesAFilledCart) {
    openFilled();
    EXPECT_EQ(menu->title(), "Textil");
    dieAndOpen(ApplicationType::textilWine);
    EXPECT_EQ(menu->title(), "Textil Vino");
    EXPECT_EQ(menu->recoveredMessage(), "Se ha recuperado el pedido de textil en curso");
    EXPECT_EQ(shown(alerts), "Atención | ¿Desea borrar todos los datos introducidos en la carta actual?");
    press("No");
    EXPECT_EQ(draft().totalUnits(), 6U);
    dieAndOpen(ApplicationType::textilWine);
    EXPECT_FALSE(alerts.isVisible()) << "it was kept for this section";
    dieAndOpen();
    press("Sí");
    EXPECT_TRUE(draft().order.empty() && !draft().customer);
    draft().customizedText = "Sol";
    UnfinishedTextile::shared().keep();
    dieAndOpen(ApplicationType::textilWine);
    EXPECT_FALSE(alerts.isVisible()) << "an empty cart";
    EXPECT_EQ(draft().customizedText, "Sol");
}

TEST_F(TextileMenu, WithoutATextileCatalogueThereIsNothingToDo) {
    fillTextile(draft());
    UnfinishedTextile::shared().keep();
    builder.information.textile.reset();
    enterTextile(builder);
    open().buttonPushedAction(Menu::Send);
    EXPECT_FALSE(menu->isInCatalogue() || menu->activeViewController());
    EXPECT_TRUE(menu->menuButtons().isEmpty());
    EXPECT_EQ(draft().totalUnits(), 6U) << "for another catalogue";
}

} // namespace
} // namespace kavor
