#include "sellingsheets/screens/SheetScreensFixture.h"
#include "shell/screens/Screens.h"
#include "ui/UiScene.h"

namespace kavor {
namespace {

// The real views in a window, worked by keys and taps.
class SheetViews : public SheetScreens {
protected:
    static constexpr QSize sizes[] = {{1024, 768}, {768, 1024}, {390, 844}};
    std::unique_ptr<UiScene> scene;

    void TearDown() override {
        scene.reset();
        SheetScreens::TearDown();
    }
    // The screen on top of the stack.
    void show(QSize size) {
        scene.reset();
        QQmlEngine registering;
        registerScreens(registering); // for the whole process
        const QUrl view = isListOnShow() ? screenView("SellingSheetListView") : screens->top()->view;
        scene = std::make_unique<UiScene>(
            QStringLiteral("Loader { anchors.fill: parent; focus: true\n"
                           "onLoaded: item.focus = true\n"
                           "Component.onCompleted: setSource(\"%1\", { controller: shownScreen }) }\n"
                           "AlertHost { anchors.fill: parent; presenter: alerts }")
                .arg(view.toString()),
            size, QHash<QString, QObject*>{{"shownScreen", screens->top()->controller}, {"alerts", &alerts}});
    }
    void type(const QString& name, const QString& text) const {
        QQuickItem* item = scene->item(name);
        ASSERT_NE(item, nullptr) << name.toStdString();
        item->forceActiveFocus(Qt::TabFocusReason);
        scene->key(Qt::Key_A, Qt::ControlModifier);
        scene->type(text);
    }
    void press(const QString& name) const {
        QQuickItem* item = scene->item(name);
        ASSERT_NE(item, nullptr) << name.toStdString();
        item->forceActiveFocus(Qt::TabFocusReason);
        scene->key(Qt::Key_Space);
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

TEST_F(SheetViews, TheListOffersEachSheetItsActionsAtEachSize) {
    putDraft("uno");
    for (const QSize& size : sizes) {
        scene.reset();
        open({sentSheet(4)});
        show(size);
        expectInside({"newSheet", "sheetuno", "sendSheet", "copySheet", "stateChip"}, size);
        press("sheetuno");
        EXPECT_NE(top<DataViewController>(), nullptr);
        top<DataViewController>()->closeSceneAction();
        if (scene->isOnShow("sentTab"))
            press("sentTab");
        expectInside({"sheet4", "deleteSheet"}, size);
        EXPECT_EQ(warnings(), QStringList());
    }
}

TEST_F(SheetViews, ASheetIsWrittenByKeysAndItsPageGrowsAtEachSize) {
    for (const QSize& size : sizes) {
        scene.reset();
        open();
        list->newSheetAction();
        show(size);
        expectInside({"sheetNameTextField", "startingDate", "endingDate", "sendSheetAction", "sheetPage"},
                     size);
        EXPECT_TRUE(scene->isOnShow("pageEmpty"));
        type("sheetNameTextField", "Terraza");
        type("titleTextField", "Verde");
        type("freeTextField", "Hasta fin de existencias"); // more than fits
        type("emailTextField1", "ana@bar.es");
        press("taxesIncludedWarningSwitch");
        const auto& sheet = *StyleSingleton::shared().editingOrder;
        EXPECT_TRUE(sheet.orderName == "Terraza" && sheet.title == "Verde" && sheet.areTaxesIncluded);
        EXPECT_EQ(sheet.freeText, "Hasta fin ");
        EXPECT_EQ(scene->value("pageTitle", "text"), "Verde");
        press("modulesAction");
        EXPECT_EQ(warnings(), QStringList());

        show(size);
        press("newModuleAction");
        EXPECT_EQ(warnings(), QStringList());
        show(size);
        expectInside({"primaryProductBoxes", "secondaryBottleSwitch", "modulePrice", "saveModule"}, size);
        type("primaryProductBoxes", "2");
        type("modulePrice", "60");
        EXPECT_EQ(scene->value("pricePerBottleTextField", "text"), "1,25");
        press("secondaryBottleSwitch");
        EXPECT_EQ(scene->value("pricePerBottleTextField", "text"), "0,833");
        expectInside({"secondaryProductBoxes"}, size);
        EXPECT_EQ(warnings(), QStringList());
        press("saveModule");

        show(size);
        expectInside({"singleModule0", "duplicateModule", "editModule", "newModuleAction"}, size);
        press("duplicateModule");
        EXPECT_TRUE(scene->isOnShow("singleModule1"));
        EXPECT_EQ(warnings(), QStringList());
        press("modulesDone");

        show(size);
        EXPECT_TRUE(scene->item("pageModule1"));
        EXPECT_EQ(warnings(), QStringList());
        press("saveSheetAction");
        EXPECT_EQ(draftNames().size(), std::size_t(&size - sizes + 1));
    }
}

} // namespace
} // namespace kavor
