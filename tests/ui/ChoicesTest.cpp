#include "UiScene.h"

#include <gtest/gtest.h>

namespace kavor {

namespace {

const char* const kPicker = R"(
    PickerRow { id: picker; objectName: "language"; x: 20; y: 20; width: 320; label: "Idioma"
        model: ["Castellano", "Catalán", "Euskera"]; currentIndex: 1
        onActivated: (index) => { currentIndex = index; window.log = window.log.concat(index) } }
)";

const char* const kCarousel = R"(
    Carousel { objectName: "styles"; anchors.fill: parent; itemWidth: 220; model: 5; currentIndex: 1
        delegate: Rectangle { required property int index; objectName: "card" + index; width: 220; height: ListView.view.height }
        onSelected: (index) => window.log = window.log.concat("selected " + index)
        onTapped: (index) => window.log = window.log.concat("tapped " + index) }
)";

bool isShowing(const UiScene& scene, int index) {
    return UiScene::waitFor([&] { return scene.value("styles", "currentIndex").toInt() == index; });
}

} // namespace

TEST(PickerRow, OffersItsListOnTabletAndPhoneAndAnswersTheTappedEntry) {
    for (const QSize size : {UiScene::kTablet, UiScene::kPhone}) {
        UiScene scene(QString::fromUtf8(kPicker), size);
        scene.click("language");
        const QQuickItem* option = scene.item("languageOption2");
        ASSERT_NE(option, nullptr);
        const QRectF place = option->mapRectToScene(option->boundingRect());
        EXPECT_TRUE(QRectF({0, 0}, size).contains(place)) << size.width();
        EXPECT_GE(place.height(), 48);
        scene.click("languageOption2");
        EXPECT_TRUE(UiScene::waitFor([&] { return !scene.isOnShow("languageOption2"); }));
        EXPECT_EQ(scene.log(), QStringList({"2"}));
        EXPECT_EQ(scene.value("language", "currentText").toString(), "Euskera");
        EXPECT_TRUE(scene.warnings().isEmpty());
    }
}

TEST(PickerRow, IsWorkedByKeyboardAndClosedByEscape) {
    UiScene scene(QString::fromUtf8(kPicker));
    scene.key(Qt::Key_Tab);
    scene.key(Qt::Key_Space);
    ASSERT_NE(scene.item("languageOption0"), nullptr);
    ASSERT_TRUE(UiScene::waitFor([&] { return scene.value("language", "opened").toBool(); }));
    scene.key(Qt::Key_Down);
    scene.key(Qt::Key_Return);
    EXPECT_TRUE(UiScene::waitFor([&] { return !scene.isOnShow("languageOption0"); }));
    EXPECT_EQ(scene.focusName(), "language");
    scene.key(Qt::Key_Space);
    ASSERT_TRUE(UiScene::waitFor([&] { return scene.value("language", "opened").toBool(); }));
    scene.key(Qt::Key_Escape);
    EXPECT_TRUE(UiScene::waitFor([&] { return !scene.isOnShow("languageOption0"); }));
    EXPECT_EQ(scene.log(), QStringList({"2"}));
}

TEST(PickerRow, FindsAnEntryOfALongListWithoutItsAccents) {
    UiScene scene(R"(
        PickerRow { objectName: "town"; x: 20; y: 20; width: 320; label: "Localidad"
            model: { const all = []; for (let i = 0; i < 40; ++i) all.push("Pueblo " + i); all.push("Ávila"); return all }
            onActivated: (index) => window.log = window.log.concat(index) }
    )");
    scene.click("town");
    scene.click("townSearch");
    scene.type("avi");
    EXPECT_TRUE(UiScene::waitFor([&] { return !scene.isOnShow("townOption0"); }));
    scene.click("townOption40");
    EXPECT_EQ(scene.log(), QStringList({"40"}));
}

TEST(Carousel, MovesByArrowKeysAndStopsAtItsEnds) {
    UiScene scene(QString::fromUtf8(kCarousel));
    scene.key(Qt::Key_Tab);
    scene.key(Qt::Key_Right);
    EXPECT_TRUE(isShowing(scene, 2));
    scene.key(Qt::Key_End);
    EXPECT_TRUE(isShowing(scene, 4));
    scene.key(Qt::Key_Right);
    scene.key(Qt::Key_Home);
    EXPECT_TRUE(isShowing(scene, 0));
    scene.key(Qt::Key_Left);
    scene.key(Qt::Key_Return);
    EXPECT_EQ(scene.log(), QStringList({"selected 2", "selected 4", "selected 0", "tapped 0"}));
}

TEST(Carousel, ShowsTheKeyboardsFocusAndNotAFingers) {
    UiScene scene(QString::fromUtf8(kCarousel) + QStringLiteral("AppButton { objectName: \"below\" }"));
    EXPECT_FALSE(scene.isOnShow("stylesRing"));
    scene.tap({UiScene::kTablet.width() / 2, 300});
    scene.click("stylesNext");
    EXPECT_TRUE(scene.value("styles", "activeFocus").toBool());
    EXPECT_FALSE(scene.isOnShow("stylesRing"));
    scene.key(Qt::Key_Tab);
    EXPECT_EQ(scene.focusName(), "below") << "the buttons are no stops of their own";
    scene.key(Qt::Key_Backtab);
    EXPECT_TRUE(scene.isOnShow("stylesRing"));
    scene.key(Qt::Key_Return);
    EXPECT_EQ(scene.log().last(), "tapped 2");
}

TEST(Carousel, SnapsToACardAfterASwipe) {
    UiScene scene(QString::fromUtf8(kCarousel), UiScene::kPhone);
    scene.swipe({300, 400}, {80, 400});
    const QQuickItem* list = qvariant_cast<QQuickItem*>(scene.value("styles", "view"));
    ASSERT_TRUE(
        UiScene::waitFor([&] { return !list->property("moving").toBool() && !scene.log().isEmpty(); }));
    const int shown = scene.value("styles", "currentIndex").toInt();
    EXPECT_GT(shown, 1);
    EXPECT_EQ(scene.log(), QStringList({QStringLiteral("selected %1").arg(shown)}));
    const QQuickItem* card = scene.item(QStringLiteral("card%1").arg(shown));
    const auto offMiddle = [&] {
        return qAbs(card->mapToScene({card->width() / 2, 0}).x() - UiScene::kPhone.width() / 2.0);
    };
    EXPECT_TRUE(UiScene::waitFor([&] { return offMiddle() < 2; })) << offMiddle();
}

TEST(Carousel, TakesATapOnANeighbourAndOnTheCardInTheMiddle) {
    UiScene scene(QString::fromUtf8(kCarousel));
    scene.tap({UiScene::kTablet.width() / 2 + 236, 300});
    EXPECT_TRUE(isShowing(scene, 2));
    const QQuickItem* card = scene.item("card2");
    EXPECT_TRUE(UiScene::waitFor([&] { return qAbs(card->mapToScene({110, 0}).x() - 512) < 2; }));
    scene.tap({UiScene::kTablet.width() / 2, 300});
    scene.click("stylesPrevious");
    EXPECT_EQ(scene.log(), QStringList({"selected 2", "tapped 2", "selected 1"}));
}

TEST(StepMenu, KeepsItsEntriesAndTheFocusWhenTheModelIsReplaced) {
    for (const QSize size : {UiScene::kTablet, UiScene::kPhone}) {
        UiScene scene(R"(
            property string page: "b"
            StepMenu { objectName: "menu"; width: parent.width
                model: ["a", "b", "c"].map((id) => ({ id: id, text: "Paso " + id, icon: "beer", selected: id === window.page, visible: id !== "b" }))
                onTapped: (id) => window.page = id }
        )",
                      size);
        const QQuickItem* before = scene.item("menuEntryc");
        EXPECT_FALSE(scene.isOnShow("menuEntryb"));
        scene.click("menuEntryc");
        EXPECT_EQ(scene.window()->property("page").toString(), "c");
        EXPECT_EQ(scene.item("menuEntryc"), before);
        EXPECT_EQ(scene.focusName(), "menuEntryc");
        EXPECT_TRUE(scene.value("menuEntryc", "selected").toBool());
    }
}

TEST(Carousel, ItsButtonsStandBesideTheCards) {
    for (const int width : {1024, 620, 390}) {
        UiScene scene(QString::fromUtf8(kCarousel), {width, 400});
        const auto* view = scene.item("styles")->property("view").value<QQuickItem*>();
        for (const char* name : {"stylesPrevious", "stylesNext"}) {
            if (const QQuickItem* button = scene.isOnShow(name) ? scene.item(name) : nullptr) {
                EXPECT_FALSE(view->mapRectToScene(view->boundingRect())
                                 .intersects(button->mapRectToScene(button->boundingRect())))
                    << name << width;
            }
        }
        EXPECT_EQ(scene.isOnShow("stylesNext"), width > 600) << width;
    }
}

} // namespace kavor
