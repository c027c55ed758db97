#include "UiScene.h"
#include "ui/TextLimit.h"

#include <gtest/gtest.h>

namespace kavor {

namespace {

// A price field that keeps what it hands over, and a neighbour to leave it for.
const char* const kPrice = R"(
    PriceField { id: price; objectName: "price"; x: 20; y: 20; width: 160
        displayText: "2,50 €"; editText: "2,5"
        onEntered: window.log = window.log.concat("entered")
        onFinished: (text) => window.log = window.log.concat("finished " + text) }
    TextRow { objectName: "other"; x: 20; y: 120; width: 300; label: "Otro" }
)";

QString fieldText(const UiScene& scene, const QString& name) {
    return qvariant_cast<QQuickItem*>(scene.value(name, "field"))->property("text").toString();
}

} // namespace

TEST(PriceField, ShowsCurrencyAtRestAndThePlainNumberWhileEdited) {
    UiScene scene(QString::fromUtf8(kPrice));
    EXPECT_EQ(fieldText(scene, "price"), "2,50 €");
    scene.click("price");
    EXPECT_EQ(fieldText(scene, "price"), "2,5");
    scene.type("9");
    scene.key(Qt::Key_Tab);
    EXPECT_EQ(scene.focusName(), "other");
    EXPECT_EQ(fieldText(scene, "price"), "2,50 €") << "the owner refused the new price";
    EXPECT_EQ(scene.log(), QStringList({"entered", "finished 9"}));
    scene.window()->findChild<QQuickItem*>("price")->setProperty("displayText", "9,00 €");
    EXPECT_EQ(fieldText(scene, "price"), "9,00 €");
    EXPECT_TRUE(scene.warnings().isEmpty());
}

TEST(PriceField, EscapeGivesBackWhatStoodThereAndEnterGoesOn) {
    UiScene scene(QString::fromUtf8(kPrice));
    scene.click("price");
    scene.type("88");
    scene.key(Qt::Key_Escape);
    EXPECT_EQ(fieldText(scene, "price"), "2,5");
    scene.key(Qt::Key_Return);
    EXPECT_EQ(scene.focusName(), "other");
    EXPECT_EQ(scene.log(), QStringList({"entered", "finished 2,5"}));
}

TEST(PriceField, TakesALeadingMinusOnlyWhereItIsSigned) {
    UiScene scene(R"(
        PriceField { objectName: "price"; x: 20; y: 20; width: 160 }
        PriceField { objectName: "margin"; x: 20; y: 120; width: 160; signed: true }
    )");
    struct Case {
        const char* typed;
        const char* price;
        const char* margin;
    };
    for (const Case& each :
         {Case{"-3.5", "3,5", "-3,5"}, {"3-5%", "35", "35"}, {"-1,2,3", "1,23", "-1,23"}}) {
        for (const char* field : {"price", "margin"}) {
            scene.click(field);
            scene.type(each.typed);
            EXPECT_EQ(fieldText(scene, field), *field == 'p' ? each.price : each.margin) << each.typed;
            scene.key(Qt::Key_Escape);
        }
    }
}

TEST(TextRow, HandsItsTextOverBeforeATappedButtonActs) {
    UiScene scene(R"(
        TextRow { objectName: "name"; x: 20; y: 20; width: 300; label: "Nombre"; maximumLength: 5
            onFinished: (text) => window.log = window.log.concat("finished " + text) }
        AppButton { objectName: "send"; x: 20; y: 140; text: "Enviar"; onClicked: window.log = window.log.concat("sent") }
    )");
    scene.click("name");
    scene.type("Marisol");
    scene.click("send");
    EXPECT_EQ(scene.log(), QStringList({"finished Maris", "sent"}));
}

TEST(TextRow, CountsWhatTheUserSeesAsCharactersAgainstItsLimit) {
    struct Case {
        QString before;
        QString text;
        int cursor;
        QString kept;
    };
    const QString flag = QStringLiteral("🇪🇸");
    const QString accent = QString::fromUtf8("e\u0301");
    const TextLimit limit;
    for (const Case& each :
         {Case{"ab", "abc", 3, "abc"}, Case{"abc", "abcd", 4, "abc"}, Case{"abc", "axbc", 2, "abc"},
          Case{"a", "aXYZb", 4, "aXb"}, Case{flag + flag, flag + flag + flag, 12, flag + flag + flag},
          Case{"ae" + flag, "a" + accent + flag, 3, "a" + accent + flag},
          Case{"too long", "too lon", 7, "too lon"}, Case{"long", "xlong", 1, "long"}})
        EXPECT_EQ(limit.typed(each.before, each.text, each.cursor, 3), each.kept) << each.text.toStdString();
    EXPECT_EQ(limit.length(flag + accent), 2);

    UiScene scene(R"(
        Item { id: owner; objectName: "owner"; property string value: "abc" }
        TextRow { objectName: "name"; x: 20; y: 20; width: 300; maximumLength: 3; text: owner.value }
    )");
    scene.click("name");
    scene.key(Qt::Key_Home);
    scene.type("x");
    EXPECT_EQ(fieldText(scene, "name"), "abc");
    scene.window()->findChild<QQuickItem*>("owner")->setProperty("value", "de");
    EXPECT_EQ(fieldText(scene, "name"), "de") << "the owner still says what stands there";
}

TEST(QuantityField, AsksOnlyForValuesWithinItsLimits) {
    UiScene scene(R"(
        QuantityField { id: copies; objectName: "copies"; x: 20; y: 20; value: 2; minimum: 1; maximum: 3
            onEdited: (wanted) => { value = wanted; window.log = window.log.concat(wanted) } }
        TextRow { objectName: "other"; x: 20; y: 120; width: 300 }
    )");
    scene.click("copiesPlus");
    scene.click("copiesPlus");
    scene.click("copiesMinus");
    scene.click("copies");
    scene.type("250");
    EXPECT_EQ(scene.value("copies", "mark"), "De 1 a 3.");
    scene.key(Qt::Key_Tab);
    EXPECT_EQ(scene.log(), QStringList({"3", "2", "3"}));
    EXPECT_EQ(fieldText(scene, "copies"), "3");
    EXPECT_EQ(scene.value("copies", "mark"), "De 1 a 3.") << "3 is not what was typed";
    scene.click("copiesMinus");
    EXPECT_EQ(scene.value("copies", "mark"), "");
}

TEST(FormPage, KeepsTheFieldBeingTypedIntoAboveTheKeyboard) {
    UiScene scene(R"(
        FormPage { objectName: "page"; anchors.fill: parent
            Repeater { model: 12
                TextRow { required property int index; objectName: "row" + index; Layout.fillWidth: true; label: "Campo" } } }
    )",
                  UiScene::kPhone);
    constexpr int kKeyboard = 320;
    scene.click("row7");
    scene.item("page")->setProperty("keyboardHeight", kKeyboard);
    const QQuickItem* row = scene.item("row7");
    const auto bottom = [row] { return row->mapToScene({0, row->height()}).y(); };
    EXPECT_TRUE(UiScene::waitFor([&] { return bottom() <= UiScene::kPhone.height() - kKeyboard; }))
        << bottom();
    for (int tab = 0; tab < 4; ++tab)
        scene.key(Qt::Key_Tab);
    EXPECT_EQ(scene.focusName(), "row11");
    row = scene.item("row11");
    EXPECT_TRUE(UiScene::waitFor([&] { return bottom() <= UiScene::kPhone.height() - kKeyboard; }))
        << bottom();
}

} // namespace kavor
