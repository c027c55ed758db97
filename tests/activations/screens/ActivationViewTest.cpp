#include "activations/screens/ActivationScreensFixture.h"
#include "shell/screens/Screens.h"
#include "ui/UiScene.h"

namespace kavor {
namespace {

// The real views on their stack in a window, worked by touch and by keys.
class ActivationViews : public ActivationScreens {
protected:
    static constexpr QSize sizes[] = {{1024, 768}, {768, 1024}, {390, 844}};
    std::unique_ptr<UiScene> scene;

    void TearDown() override {
        scene.reset();
        ActivationScreens::TearDown();
    }
    // The section from its start, for a user of its own.
    void open(QSize size) {
        static int user = 0;
        session.userEmail = "views" + std::to_string(++user);
        scene.reset();
        openSection();
        screens->replaceAll({screenView("ActivationsBrandSelectionView"),
                             new ActivationsBrandSelectionViewController(*services)});
        QQmlEngine registering;
        registerScreens(registering); // for the whole process
        scene = std::make_unique<UiScene>(
            QStringLiteral("Repeater { id: stack; anchors.fill: parent; model: shownScreens\n"
                           "Loader { required property url view; required property QtObject controller\n"
                           "required property int index; anchors.fill: parent\n"
                           "visible: index === stack.count - 1; enabled: visible; focus: visible\n"
                           "onLoaded: item.focus = true\n"
                           "Component.onCompleted: setSource(view, { controller: controller }) } }\n"
                           "AlertHost { anchors.fill: parent; presenter: alerts }"),
            size, QHash<QString, QObject*>{{"shownScreens", screens.get()}, {"alerts", &alerts}});
    }
    void scrollTo(const char* page, const char* name) const {
        QQuickItem* flickable = scene->item(page);
        const QQuickItem* item = scene->item(name);
        ASSERT_TRUE(flickable && item) << name;
        const double at = item->mapToItem(flickable, {}).y() + flickable->property("contentY").toDouble();
        const double last = flickable->property("contentHeight").toDouble() - flickable->height();
        flickable->setProperty("contentY", std::clamp(at - 120, 0.0, std::max(0.0, last)));
    }
    void click(const char* name, const char* page = nullptr) const {
        if (page)
            scrollTo(page, name);
        scene->click(name);
    }
    void type(const char* name, const QString& text) const {
        QQuickItem* item = scene->item(name);
        ASSERT_NE(item, nullptr) << name;
        item->forceActiveFocus(Qt::TabFocusReason);
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
    void chooseHour(const char* button, const char* hour) const {
        click(button, "sendPage");
        scene->click(hour);
        scene->click("hourSheetSelect");
        EXPECT_TRUE(UiScene::waitFor([&] { return !scene->isOnShow("hourSheetSelect"); }));
    }
};

TEST_F(ActivationViews, APartyIsOrderedByTouchAtEachSize) {
    network.requests.activationUserQuota.always({{{21, 3, 2}, {22, 2, 2}}});
    for (const QSize size : sizes) {
        sends().calls.clear();
        open(size);
        click("brand1");
        ASSERT_TRUE(UiScene::waitFor([&] { return top<ActivationsSelectionViewController>() != nullptr; }));
        ASSERT_TRUE(UiScene::waitFor([&] { return !choice().veil()->isVisible(); }));
        EXPECT_EQ(scene->value("selectedName", "text"), "Toca una activación para ver de qué se trata");
        click("activation21", "activationBoardPage");
        EXPECT_EQ(scene->value("selectedName", "text"), "Concierto");
        expectInside({"quotaBadge21", "selectedQuota", "nextButton"}, size);
        click("nextButton");
        expectInside({"item1", "quotaRing"}, size);
        click("item1", "elementsPage");
        EXPECT_EQ(scene->value("elementsTitle", "detail"), "2 de 3");
        click("item0", "elementsPage");
        EXPECT_NE(told().find("es obligatorio"), std::string::npos);
        click("nextButton");
        expectInside({"partyDay1", "startTimeButton", "locationRow", "sendButton"}, size);
        click("partyDay1", "sendPage");
        EXPECT_NE(told().find("Los días previos"), std::string::npos);
        click("partyDay5", "sendPage");
        chooseHour("startTimeButton", "hour20");
        EXPECT_EQ(scene->value("startTimeButtonText", "text"), "20:00");
        chooseHour("endTimeButton", "hour19");
        EXPECT_NE(told().find("ha de ser anterior"), std::string::npos);
        chooseHour("endTimeButton", "hour23");
        type("attribute0", "2,5");
        type("establishmentNameTextField", "Bar Sol");
        type("tevoTextField", "77");
        EXPECT_EQ(form().form().name, "Bar Sol");
        click("locationRow", "sendPage");
        scene->type("Mayor 1");
        scene->click("alertButton0");
        network.requests.searchMaps.succeed({{address("Calle Mayor 1, Madrid", "28013", "Madrid")}});
        scene->click("alertChoice0");
        EXPECT_EQ(scene->value("locationString", "text"), "Calle Mayor 1, Madrid");
        click("sendButton");
        expectInside({"summarySend", "summaryCancel"}, size);
        scene->click("summarySend");
        ASSERT_EQ(sends().calls.size(), 1U);
        EXPECT_EQ(order(0).activationInfo.attributesList->front().value, "2.5");
        EXPECT_EQ(order(0).activationInfo.itemList->size(), 2U);
        EXPECT_EQ(order(0).customer.cobrixCode, 77);
        sends().succeed(answer(345, "http://127.0.0.1:9/345"));
        EXPECT_NE(told().find("Ya no dispones de cupo"), std::string::npos);
        EXPECT_EQ(scene->value("sendButton", "text"), "Previsualizar");
        EXPECT_EQ(scene->value("sentText", "text"), "Pedido 345 realizado");
        expectInside({"addToCalendar", "sentText"}, size);
        EXPECT_FALSE(scene->value("startTimeButton", "enabled").toBool());
        EXPECT_EQ(warnings(), QStringList());
    }
}

TEST_F(ActivationViews, TheCalendarIsWorkedByKeysAndInertForATiedOrder) {
    open(sizes[2]);
    openForm(21, {{{21, 9, 1}}});
    QQuickItem* month = scene->item("partyMonth");
    ASSERT_NE(month, nullptr);
    month->forceActiveFocus(Qt::TabFocusReason);
    scene->key(Qt::Key_Return); // the first possible day is under the cursor
    EXPECT_EQ(form().form().partyDate, "02-12-2026");
    scene->key(Qt::Key_Down);
    scene->key(Qt::Key_Right);
    scene->key(Qt::Key_Space);
    EXPECT_EQ(form().form().partyDate, "10-12-2026");
    scene->key(Qt::Key_PageUp);
    EXPECT_EQ(scene->value("monthTitle", "text"), "Noviembre de 2026");
    scene->key(Qt::Key_PageDown);
    complete();
    send();
    sends().succeed(answer(345, "http://127.0.0.1:9/345"));
    press(alerts, "Sí");
    EXPECT_EQ(scene->value("tieText", "text"), "Asociada al pedido 345");
    EXPECT_FALSE(scene->value("partyDay12", "enabled").toBool());
    EXPECT_TRUE(scene->isOnShow("changeActivation"));
    scene->item("startTimeButton")->forceActiveFocus(Qt::TabFocusReason);
    scene->key(Qt::Key_Escape);
    EXPECT_NE(told().find("perderá la información"), std::string::npos);
    EXPECT_EQ(warnings(), QStringList());
}

TEST_F(ActivationViews, TheDetailsAndAnEmptyBrandAreShown) {
    open(sizes[0]);
    click("brand3");
    EXPECT_TRUE(scene->isOnShow("activationsEmpty"));
    choice().closeSceneAction();
    brands().selectBrand(2);
    click("detailButton");
    EXPECT_TRUE(UiScene::waitFor([&] { return scene->isOnShow("dismissPreview"); }));
    scene->key(Qt::Key_Escape);
    EXPECT_TRUE(UiScene::waitFor([&] { return scene->isOnShow("elementsTitle"); }));
    EXPECT_EQ(warnings(), QStringList());
}

} // namespace
} // namespace kavor
