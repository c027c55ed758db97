#include "textile/screens/TextileScreensFixture.h"

#include <gmock/gmock.h>

namespace kavor {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class TextileProducts : public TextileScreens {
protected:
    TextileProductsViewController* step = nullptr;

    void SetUp() override {
        TextileScreens::SetUp();
        open();
        step = &products();
    }
    static std::vector<std::string> titles(TextileChoiceModel* model) {
        std::vector<std::string> all;
        for (const TextileChoice& row : model->rows())
            all.push_back((row.selected ? "*" : "") + row.title.toStdString());
        return all;
    }
    std::vector<std::string> sizes() const {
        std::vector<std::string> all;
        for (const TextileSizeRow& row : step->sizes()->rows())
            all.push_back((row.code + " " + row.text).toStdString());
        return all;
    }
    void choose(const char* brand, const char* format, const char* color) {
        step->selectBrand(QString::fromLatin1(brand));
        step->selectFormatAndGender(QString::fromLatin1(format));
        step->selectColor(QString::fromLatin1(color));
    }
    std::string add() {
        step->addToCartAction();
        return alerts.isVisible() ? told() : std::string();
    }
    std::vector<std::string> cart() const {
        std::vector<std::string> all;
        for (const TextileCartRow& row : step->cart()->lines()->rows())
            all.push_back((row.detail + ": " + row.sizes.join(QString())).trimmed().toStdString());
        return all;
    }
};

TEST_F(TextileProducts, OffersWhatTheSectionHasByPositionAndNamesWhatIsMissing) {
    EXPECT_THAT(titles(step->brands()), ElementsAre("Encina", "Roble")) << "the wine is another section";
    EXPECT_THAT(titles(step->formats()), IsEmpty());
    EXPECT_EQ(step->garment()["image"], "sinseleccion");
    EXPECT_EQ(step->selectionText(), "Elige una marca");
    step->selectBrand("11");
    EXPECT_THAT(titles(step->formats()), ElementsAre("Camiseta · Mujer", "Camiseta · Hombre"));
    EXPECT_TRUE(step->formats()->rows().front().image.contains("garment110"))
        << "the first gives the picture";
    step->selectFormatAndGender("1-1");
    EXPECT_THAT(titles(step->colors()), ElementsAre("Blanco", "Negro"));
    EXPECT_THAT(sizes(), IsEmpty());
    step->selectColor("2");
    EXPECT_THAT(sizes(), ElementsAre("S 0", "M 0", "L 0"));
    EXPECT_THAT(titles(step->colors()), ElementsAre("*Blanco", "Negro"));
    EXPECT_TRUE(step->garment()["image"].toString().contains("garment103"));
    step->selectFormatAndGender("1-2");
    step->selectColor("1");
    EXPECT_THAT(sizes(), ElementsAre("S 0")) << "what is not on offer by default is not offered";
    step->selectColor("3");
    EXPECT_EQ(told(), "Atención | No se ha podido seleccionar el color deseado.");
    step->selectFormatAndGender("2-1");
    EXPECT_EQ(told(), "Atención | No se ha podido seleccionar correctamente el elemento.");
}

TEST_F(TextileProducts, RefusesInOrderToAddAndChangesNothingThen) {
    EXPECT_EQ(add(), "Atención | No has seleccionado ninguna marca todavía.");
    step->selectBrand("11");
    EXPECT_EQ(add(), "Atención | No has seleccionado ningún formato todavía.");
    step->selectFormatAndGender("1-1");
    EXPECT_EQ(add(), "Atención | No has seleccionado ningún color.");
    step->selectColor("1");
    EXPECT_EQ(add(), "Atención | No hay tallas elegidas.");
    step->finishUnits(2, "0");
    EXPECT_EQ(add(), "Atención | No hay tallas elegidas.");
    draft().selectedSizes = {{2, 4}, {77, 0}};
    EXPECT_EQ(add(), "Atención | No hay tallas elegidas.") << "a size that the catalogue lacks";
    draft().selectedSizes = {{2, 4}};
    EXPECT_EQ(add(), "");
    choose("10", "2-1", "3");
    EXPECT_EQ(add(), "Atención | No hay tallas elegidas.") << "before the rule of one brand";
    step->finishUnits(4, "1");
    EXPECT_EQ(add(), "Atención | El pedido solamente puede ser de una marca.");
    EXPECT_THAT(cart(), ElementsAre("Encina · Negro: M: 4 uds."));
}

TEST_F(TextileProducts, ReadsUnitsWithOrWithoutPointsAndAnythingElseAsZero) {
    choose("11", "1-1", "1");
    const std::pair<const char*, const char*> cases[] = {
        {"7", "M 7"},  {"12000", "M 12.000"}, {"1.200", "M 1200"}, {"abc", "M 0"},
        {"", "M 0"},   {"12.00", "M 0"},      {"-3", "M 0"},       {"1,5", "M 0"},
        {" 4", "M 0"}, {".200", "M 0"},       {"0012", "M 12"},    {"18446744073709551616", "M 0"}};
    for (const auto& [typed, shown] : cases) {
        step->finishUnits(2, "9");
        step->finishUnits(2, QString::fromLatin1(typed));
        EXPECT_EQ(sizes()[1], shown) << typed;
    }
    step->stepUnits(2, 1);
    step->stepUnits(3, 1);
    step->stepUnits(3, -1);
    step->stepUnits(3, -1);
    EXPECT_THAT(sizes(), ElementsAre("S 0", "M 1", "L 0"));
    EXPECT_EQ(step->sizesTotal(), "1 unidad");
    step->editUnits(1, "3");
    step->editUnits(1, "3x"); // still being typed
    EXPECT_EQ(draft().selectedSizes[1], 3U);
}

TEST_F(TextileProducts, AddsAndChangesALineAndKeepsWhatWasTypedUntilAnotherSelection) {
    choose("11", "1-1", "1");
    step->finishUnits(2, "4");
    step->finishUnits(1, "2");
    EXPECT_EQ(step->addTitle(), "Añadir al carrito");
    EXPECT_EQ(add(), "");
    EXPECT_EQ(step->addTitle(), "Cambiar en el carrito");
    EXPECT_THAT(sizes(), ElementsAre("S 2", "M 4", "L 0"));
    step->finishUnits(1, "0"); // beside a positive one it goes
    EXPECT_EQ(add(), "Atención | Cantidad modificada correctamente.");
    EXPECT_THAT(cart(), ElementsAre("Encina · Negro: M: 4 uds."));
    EXPECT_EQ(step->cart()->summary(), "Referencias: 1 unidades: 4");
    EXPECT_EQ(step->cart()->minimumText(), "Faltan 2 para el mínimo de 6");
    step->finishUnits(3, "9");
    step->selectColor("2");
    EXPECT_THAT(sizes(), ElementsAre("S 0", "M 0", "L 0"));
    step->selectCartLine(step->cart()->lines()->rows().front().key);
    EXPECT_THAT(sizes(), ElementsAre("S 0", "M 4", "L 0")) << "the cart's, nothing typed";
}

TEST_F(TextileProducts, PreselectsTheLastColourOfAFormatIfItIsStillThere) {
    choose("11", "1-1", "2");
    step->selectFormatAndGender("1-2");
    EXPECT_FALSE(draft().selectedColorIdentifier);
    step->selectFormatAndGender("1-1");
    EXPECT_EQ(draft().selectedColorIdentifier, 2);
    std::erase_if(builder.information.textile->items,
                  [](const Textile::Item& each) { return each.colorIdentifier == 2; });
    enterTextile(builder);
    menu->buttonPushedAction(Menu::Configuration);
    products().selectFormatAndGender("1-1");
    EXPECT_FALSE(draft().selectedColorIdentifier);
    EXPECT_FALSE(alerts.isVisible()) << "silently";
}

TEST_F(TextileProducts, ALineGoesAfterAQuestionAndComesBackWhereItWas) {
    draft().order = {{{11, 1, 1, 1}, {{1, 2}, {2, 3}}}, {{11, 1, 2, 1}, {{1, 5}}}};
    menu->buttonPushedAction(Menu::Send);
    step = &products();
    TextileCart* const strip = step->cart();
    const QString first = strip->lines()->rows().front().key;
    strip->helpAction();
    EXPECT_EQ(told(), "Atención | Deslice hacia arriba para eliminar el elemento.");
    strip->askToDelete(first);
    EXPECT_EQ(shown(alerts), "Atención | ¿Desea borrar el ítem?");
    press("No");
    EXPECT_EQ(cart().size(), 2U);
    strip->askToDelete(first);
    press("Sí");
    EXPECT_EQ(cart().size(), 1U);
    EXPECT_EQ(strip->undoText(), "Se ha quitado «Camiseta · Hombre»");
    strip->undoDelete();
    EXPECT_EQ(draft().order.front(), (Draft::OrderItem{{11, 1, 1, 1}, {{1, 2}, {2, 3}}}));
    EXPECT_EQ(strip->undoText(), "");
    strip->askToDelete(first);
    press("Sí");
    clock.advance(TextileCart::undoTime);
    EXPECT_EQ(strip->undoText(), "") << "not for ever";

    // An article left the catalogue while the cart is on show.
    std::erase_if(builder.information.textile->items,
                  [](const Textile::Item& each) { return each.identifier == 110; });
    enterTextile(builder);
    strip->askToDelete(strip->lines()->rows().front().key);
    press("Sí");
    EXPECT_EQ(told(), "Error | No se ha podido borrar el ítem deseado.");
    EXPECT_EQ(draft().totalUnits(), 5U);
    menu->buttonPushedAction(Menu::Send);
    EXPECT_EQ(told(), "Atención | Algunos artículos del carrito ya no están en el catálogo y se han quitado "
                      "del pedido.");
    EXPECT_TRUE(draft().order.empty());
}

} // namespace
} // namespace kavor
