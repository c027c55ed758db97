#include "shell/screens/Screens.h"
#include "textile/screens/TextileScreensFixture.h"
#include "ui/UiScene.h"

namespace kavor {
namespace {

// The real views in a window, worked by keys and fingers.
class TextileViews : public TextileScreens {
protected:
    static constexpr QSize sizes[] = {{1024, 768}, {768, 1024}, {390, 844}};
    std::unique_ptr<UiScene> scene;

    void TearDown() override {
        scene.reset();
        TextileScreens::TearDown();
    }
    void show(QSize size) {
        scene.reset();
        open();
        QQmlEngine registering;
        registerScreens(registering); // for the whole process
        scene = std::make_unique<UiScene>(
            QStringLiteral("Loader { anchors.fill: parent; focus: true\n"
                           "Component.onCompleted: setSource(\"%1\", { controller: shownScreen }) }\n"
                           "AlertHost { anchors.fill: parent; presenter: alerts }")
                .arg(screenView("TextileMenuView").toString()),
            size, QHash<QString, QObject*>{{"shownScreen", menu.get()}, {"alerts", &alerts}});
    }
    void focus(const QString& name) const {
        QQuickItem* item = scene->item(name);
        ASSERT_NE(item, nullptr) << name.toStdString();
        item->forceActiveFocus(Qt::TabFocusReason);
    }
    void press(const QString& name, Qt::Key key = Qt::Key_Space) const {
        focus(name);
        scene->key(key);
    }
    void type(const QString& name, const QString& text) const {
        focus(name);
        scene->type(text);
    }
    // But for the pictures of the catalogue, which nobody provides here.
    [[nodiscard]] QStringList warnings() const {
        QStringList all = scene->warnings();
        all.removeIf([](const QString& line) { return line.contains("Invalid image provider"); });
        return all;
    }
    void expectInside(std::initializer_list<const char*> names, QSize size) const {
        for (const char* name : names) {
            const QQuickItem* item = scene->item(name);
            ASSERT_NE(item, nullptr) << name;
            EXPECT_GE(item->mapToScene({}).x(), 0) << name;
            EXPECT_LE(item->mapToScene({item->width(), 0}).x(), size.width()) << name;
        }
    }
};

TEST_F(TextileViews, AnOrderIsMadeByKeysAtEachSize) {
    for (const QSize size : sizes) {
        UnfinishedTextile::shared().beginAnew();
        sends().calls.clear();
        show(size);
        type("tevoTextField", "77");
        type("contactEmailTextField", "a@b.example");
        type("contactTelephoneTextField", "600");
        type("customTextTextField", "Bar Sol");
        press("typography1");
        expectInside({"searchTEVOCode", "customTextTextField", "typography0", "locateDevice"}, size);
        press("menuEntry2");
        press("textileBrand0");
        press("textileFormat1");
        press("textileColor1");
        type("sizeFieldM", "abc");
        scene->key(Qt::Key_Return);
        EXPECT_EQ(scene->value("sizeFieldM", "text"), "0");
        press("addToCart");
        EXPECT_EQ(told(), "Atención | No hay tallas elegidas.");
        type("sizeFieldM", "4");
        press("sizePlusL");
        press("sizePlusL");
        press("addToCart");
        expectInside({"cartLine0", "addToCart", "sizePlusL", "sizeMinusL", "garmentPicture"}, size);
        EXPECT_EQ(scene->value("addedElementsLabel", "text"), "Referencias: 1 unidades: 6");
        press("menuEntry3");
        expectInside({"sendItem0", "makeOrderOnServer", "storeOrderOnDisk", "orderComment"}, size);
        press("makeOrderOnServer");
        ASSERT_EQ(sends().calls.size(), 1U);
        EXPECT_EQ(sent(0).orderInformation.orderLines.size(), 2U);
        sends().succeed(answer(7, "http://server.example/7"));
        EXPECT_EQ(told(), "Éxito | Pedido realizado correctamente.");
        EXPECT_TRUE(UiScene::waitFor([&] { return scene->isOnShow("orderSentCard"); }));
        EXPECT_EQ(warnings(), QStringList());
    }
}

TEST_F(TextileViews, AFieldThatGoesWithItsStepWritesNothingIntoTheDraftThatFollows) {
    show(sizes[0]);
    type("customTextTextField", "Bar Sol");
    menu->buttonPushedAction(Menu::Reset);
    kavor::press(alerts, QStringLiteral("Sí"));
    EXPECT_TRUE(UiScene::waitFor([&] { return scene->value("customTextTextField", "text") == ""; }));
    EXPECT_FALSE(draft().customizedText);
    press("menuEntry2");
    press("textileBrand0");
    press("textileFormat0");
    press("textileColor0");
    type("sizeFieldS", "7");
    menu->buttonPushedAction(Menu::Reset);
    kavor::press(alerts, QStringLiteral("Sí"));
    EXPECT_TRUE(UiScene::waitFor([&] { return !scene->isOnShow("sizeFieldS"); }));
    EXPECT_TRUE(draft().selectedSizes.empty() && !draft().selectedBrandIdentifier);
}

TEST_F(TextileViews, ALineOfTheCartGoesByASwipeUpTheBinAndTheDeleteKey) {
    for (const QSize size : sizes) {
        fillTextile(draft());
        UnfinishedTextile::shared().keep();
        show(size);
        press("menuEntry2");
        const QQuickItem* line = scene->item("cartLine0");
        ASSERT_NE(line, nullptr);
        const QPoint middle = line->mapToScene({line->width() / 3, line->height() / 2}).toPoint();
        scene->swipe(middle, middle - QPoint(0, 80));
        EXPECT_TRUE(UiScene::waitFor([&] { return alerts.isVisible(); }));
        EXPECT_EQ(told(), "Atención | ¿Desea borrar el ítem?"); // no
        press("cartLine0", Qt::Key_Delete);
        EXPECT_EQ(told(), "Atención | ¿Desea borrar el ítem?");
        const QQuickItem* bin = scene->item("cartLine0Delete");
        ASSERT_NE(bin, nullptr);
        EXPECT_GE(std::min(bin->width(), bin->height()), 48);
        scene->click("cartLine0Delete");
        kavor::press(alerts, QStringLiteral("Sí"));
        EXPECT_TRUE(UiScene::waitFor([&] { return !scene->isOnShow("cartLine0"); }));
        expectInside({"undoDelete"}, size);
        press("undoDelete");
        EXPECT_TRUE(UiScene::waitFor([&] { return scene->isOnShow("cartLine0"); }));
        EXPECT_EQ(warnings(), QStringList());
    }
}

} // namespace
} // namespace kavor
