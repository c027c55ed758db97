#include "UiScene.h"
#include "interaction/AlertPresenter.h"

#include <gtest/gtest.h>

namespace kavor {

namespace {

using Role = AlertButton::Role;

class AlertHost : public testing::Test {
protected:
    void show(AlertRequest request) {
        presenter_.present(std::move(request), nullptr,
                           [this](const AlertAnswer& answer) { answers_.append(answer); });
        EXPECT_TRUE(UiScene::waitFor([this] { return scene_.isOnShow("alertButton0"); }));
    }
    static AlertRequest question() {
        return {.title = "Atención",
                .text = "¿Eliminar?",
                .buttons = {{"Eliminar", Role::Destructive}, {"No", Role::Cancel}, {"Guardar", Role::Normal}},
                .textField = {},
                .choices = {}};
    }
    [[nodiscard]] bool isGone() {
        return UiScene::waitFor([this] { return !scene_.isOnShow("alertButton0"); });
    }

    AlertPresenter presenter_;
    // The button behind has the focus when an alert comes.
    UiScene scene_{"AppButton { objectName: \"behind\"; x: 10; y: 10; text: \"Detrás\"\n"
                   "onClicked: window.log = [\"behind\"] }\n"
                   "AlertHost { presenter: alerts }",
                   UiScene::kTablet,
                   {{"alerts", &presenter_}}};
    QList<AlertAnswer> answers_;
};

} // namespace

TEST_F(AlertHost, AnswersTheTappedButtonAndBlocksWhatIsBehind) {
    scene_.key(Qt::Key_Tab);
    ASSERT_EQ(scene_.focusName(), "behind");
    show(question());
    const QQuickItem* behind = scene_.item("behind");
    const QPointF place = behind->mapToScene({behind->width() / 2, behind->height() / 2});
    scene_.tap(place.toPoint());
    EXPECT_TRUE(scene_.log().isEmpty());
    scene_.click("alertButton0");
    ASSERT_EQ(answers_.size(), 1);
    EXPECT_EQ(answers_.first().button, 0);
    EXPECT_TRUE(isGone());
    EXPECT_TRUE(UiScene::waitFor([this] { return scene_.focusName() == "behind"; }))
        << "the focus comes back";
    scene_.click("behind");
    EXPECT_EQ(scene_.log(), QStringList({"behind"}));
    EXPECT_TRUE(scene_.warnings().isEmpty());
}

TEST_F(AlertHost, MakesEscapeTheCancelButtonAndNeverADestructiveButtonTheDefault) {
    show(question());
    EXPECT_TRUE(UiScene::waitFor([this] { return scene_.focusName() == "alertButton2"; }))
        << "the normal button";
    scene_.key(Qt::Key_Escape);
    EXPECT_TRUE(isGone());

    AlertRequest noNormal = question();
    noNormal.buttons.removeLast();
    show(noNormal);
    EXPECT_TRUE(UiScene::waitFor([this] { return scene_.focusName() == "alertButton1"; }))
        << "the cancel button";
    scene_.key(Qt::Key_Return);

    ASSERT_EQ(answers_.size(), 2);
    EXPECT_EQ(answers_[0].button, 1);
    EXPECT_EQ(answers_[1].button, 1);
}

TEST_F(AlertHost, KeepsTheTabKeyAmongItsButtons) {
    show(question());
    ASSERT_TRUE(UiScene::waitFor([this] { return scene_.focusName() == "alertButton2"; }));
    QStringList visited;
    for (int step = 0; step < 3; ++step) {
        scene_.key(Qt::Key_Tab);
        visited.append(scene_.focusName());
    }
    EXPECT_EQ(visited, QStringList({"alertButton0", "alertButton1", "alertButton2"}));
}

TEST_F(AlertHost, HandsOverTheTypedTextAndStartsTheNextAlertAfresh) {
    AlertRequest name = question();
    name.textField = AlertTextField{"Nombre", "Bar", 6};
    show(name);
    show(name);
    ASSERT_TRUE(UiScene::waitFor([this] { return scene_.focusName() == "alertTextField"; }));
    scene_.type("La Marina");
    scene_.key(Qt::Key_Return);
    ASSERT_EQ(answers_.size(), 1);
    EXPECT_EQ(answers_[0].button, 2);
    EXPECT_EQ(answers_[0].text, "La Mar");
    EXPECT_TRUE(UiScene::waitFor([this] { return scene_.value("alertTextField", "text") == "Bar"; }));
    scene_.click("alertButton2");
    EXPECT_EQ(answers_.last().text, "Bar");
}

TEST_F(AlertHost, GoesOnWithATextOnlyWhereThereIsOne) {
    AlertRequest address = question();
    address.buttons = {{"Usar", Role::Normal}, {"Cancelar", Role::Cancel}};
    address.textField = AlertTextField{"Dirección", "", 0};
    show(address);
    ASSERT_TRUE(UiScene::waitFor([this] { return scene_.focusName() == "alertTextField"; }));
    EXPECT_EQ(scene_.value("alertButton0", "enabled"), false);
    scene_.type(" ");
    scene_.key(Qt::Key_Return);
    EXPECT_TRUE(answers_.isEmpty());
    scene_.type("Calle Mayor");
    EXPECT_EQ(scene_.value("alertButton0", "enabled"), true);
    scene_.key(Qt::Key_Return);
    ASSERT_EQ(answers_.size(), 1);
    EXPECT_EQ(answers_[0].text, " Calle Mayor");
    show(address);
    scene_.key(Qt::Key_Escape);
    EXPECT_EQ(answers_.last().button, 1) << "the way out needs none";
}

TEST_F(AlertHost, AnswersAChoiceByTapAndByKeyboard) {
    AlertRequest choices = question();
    choices.choices = {"Uno", "Dos", "Tres"};
    show(choices);
    scene_.click("alertChoice1");
    EXPECT_TRUE(isGone());
    show(choices);
    ASSERT_TRUE(UiScene::waitFor([this] { return scene_.isOnShow("alertChoice2"); }));
    scene_.key(Qt::Key_Down);
    scene_.key(Qt::Key_Down);
    scene_.key(Qt::Key_Return);
    ASSERT_EQ(answers_.size(), 2);
    EXPECT_EQ(answers_[0].choice, 1);
    EXPECT_EQ(answers_[1].choice, 2);
}

TEST_F(AlertHost, KeepsItsButtonsOnAPhoneHoweverLongTheText) {
    scene_.window()->resize(390, 640);
    AlertRequest longText = question();
    longText.text = QStringLiteral("Debe seleccionar al menos un formato para la marca.\n").repeated(80);
    show(longText);
    for (const char* name : {"alertButton0", "alertButton1", "alertButton2"}) {
        const QQuickItem* button = scene_.item(name);
        const auto inside = [button] {
            return QRectF(0, 0, 390, 640).contains(button->mapRectToScene(button->boundingRect()));
        };
        EXPECT_TRUE(UiScene::waitFor(inside)) << name;
    }
}

} // namespace kavor
