#include "UiScene.h"
#include "ui/Icon.h"

#include <QAccessible>
#include <QDir>

#include <gtest/gtest.h>

namespace kavor {

namespace {

// Parts that are only ever made by the component they belong to.
const QStringList kParts = {"Theme", "AppWindow", "PdfPage", "ScrollMark"};

// What a page is made of; with values that leave nothing empty.
const char* const kCrowded = R"(
    FormPage { id: page; anchors.fill: parent
        AppBar { Layout.fillWidth: true; Layout.columnSpan: page.columns; title: "Carta"; backVisible: true; offline: true
            IconButton { inverse: true; icon: "orders"; text: "Pedidos"; badge: 3 } }
        AppButton { text: "Un botón con un texto bastante más largo de lo que cabe"; icon: "print"; Layout.fillWidth: true }
        AppButton { text: "Enviando"; busy: true; kind: "secondary"; Layout.fillWidth: true }
        Chip { text: "Lager"; tappable: true }
        ListRow { Layout.fillWidth: true; text: "Carta de Cervezas"; detail: "Bar La Ola"; icon: "beer"; chevron: true
            trailing: Chip { text: "Pendiente"; dot: Theme.pending } }
        TextRow { Layout.fillWidth: true; label: "Contraseña"; error: "Falta la contraseña."; secret: true }
        TextAreaRow { Layout.fillWidth: true; label: "Observaciones" }
        SearchField { Layout.fillWidth: true; text: "tostada" }
        PriceField { Layout.fillWidth: true; label: "Caña"; displayText: "2,50 €"; editText: "2,5" }
        QuantityField { Layout.fillWidth: true; label: "Ejemplares"; value: 3; maximum: 9 }
        SwitchRow { Layout.fillWidth: true; label: "Mostrar el QR"; help: "En la portada"; checked: true }
        PickerRow { Layout.fillWidth: true; label: "Idioma"; model: ["Castellano"]; currentIndex: 0 }
        Card { Layout.fillWidth: true; tappable: true; accessibleName: "Carta"; SectionTitle { width: parent.width; text: "Carta" } }
        EmptyState { Layout.fillWidth: true; icon: "orders"; title: "Nada"; actionText: "Nueva carta" }
        ThumbnailStrip { Layout.fillWidth: true; model: [{ source: "", text: "Marca" }]; currentIndex: 0 }
        RangeBar { Layout.fillWidth: true; label: "Marcas"; value: 3; minimum: 2; maximum: 8 }
        StepMenu { Layout.fillWidth: true; Layout.columnSpan: page.columns; model: [{ id: 1, text: "Estilo", icon: "style", badge: 2 }] }
    }
)";

QString describe(const QQuickItem* item) {
    QString path = QString::fromLatin1(item->metaObject()->className());
    for (const QQuickItem* at = item; at != nullptr; at = at->parentItem()) {
        if (!at->objectName().isEmpty())
            return path + " in " + at->objectName();
        path += " < " + QString::fromLatin1(at->metaObject()->className());
    }
    return path;
}

void checkReachable(QQuickItem* item) {
    for (QQuickItem* child : item->childItems()) {
        if (!child->isVisible())
            continue;
        checkReachable(child);
        // A field's frame carries the touch height; scopes hand the focus on to what is inside them.
        if (!child->activeFocusOnTab() || child->isFocusScope())
            continue;
        EXPECT_GE(child->height(), 48) << qPrintable(describe(child));
        QAccessibleInterface* voice = QAccessible::queryAccessibleInterface(child);
        ASSERT_NE(voice, nullptr) << qPrintable(describe(child));
        // Qt keeps every text of a password field silent; its label speaks for it.
        EXPECT_TRUE(voice->state().passwordEdit || !voice->text(QAccessible::Name).isEmpty())
            << qPrintable(describe(child));
        EXPECT_NE(voice->role(), QAccessible::NoRole) << qPrintable(describe(child));
    }
}

} // namespace

TEST(Components, AllLoadWithoutAWarning) {
    const QStringList files = QDir(QStringLiteral(":/qt/qml/Kavor/Ui")).entryList({QStringLiteral("*.qml")});
    ASSERT_GT(files.size(), 35);
    for (const QString& file : files) {
        const QString name = file.chopped(4);
        if (kParts.contains(name))
            continue;
        UiScene scene(name + QStringLiteral(" { objectName: \"it\" }"));
        scene.window()->resize(UiScene::kPhone);
        scene.window()->grabWindow();
        EXPECT_TRUE(scene.warnings().isEmpty()) << qPrintable(name + ": " + scene.warnings().join('\n'));
    }
}

TEST(Components, CanAllBeReachedNamedAndTouchedAtEverySize) {
    for (const QSize size : {UiScene::kTablet, QSize(768, 1024), UiScene::kPhone}) {
        UiScene scene(QString::fromUtf8(kCrowded), size);
        checkReachable(scene.window()->contentItem());
        EXPECT_TRUE(scene.warnings().isEmpty()) << qPrintable(scene.warnings().join('\n'));
    }
}

TEST(Icon, DrawsEveryNameOfItsSetAndWarnsOfAnUnknownOne) {
    UiScene scene("Icon { objectName: \"icon\"; x: 10; y: 10; size: 48; name: \"beer\" }");
    const QColor paper = scene.window()->grabWindow().pixelColor(200, 200);
    for (const QString& name : Icon::names()) {
        scene.item("icon")->setProperty("name", name);
        const QImage shot = scene.window()->grabWindow();
        int inked = 0;
        for (int y = 10; y < 58; ++y) {
            for (int x = 10; x < 58; ++x)
                inked += shot.pixelColor(x, y) != paper ? 1 : 0;
        }
        EXPECT_GT(inked, 60) << qPrintable(name);
    }
    scene.item("icon")->setProperty("name", "unicorn");
    EXPECT_EQ(scene.warnings().size(), 1);
}

TEST(Veil, BlocksTapsAndKeysWhileItIsShown) {
    UiScene scene(R"(
        AppButton { objectName: "behind"; focus: true; x: 20; y: 20; text: "Detrás"; onClicked: window.log = window.log.concat("tap") }
        Veil { shown: true; text: "Enviando…"; progress: 0.5 }
    )");
    ASSERT_NE(scene.item("veilView"), nullptr);
    scene.click("behind");
    scene.key(Qt::Key_Space);
    EXPECT_TRUE(scene.log().isEmpty());
    scene.item("veilView")->setProperty("shown", false);
    EXPECT_TRUE(UiScene::waitFor([&] { return !scene.isOnShow("veilView"); }));
    scene.click("behind");
    EXPECT_EQ(scene.log(), QStringList({"tap"}));
}

TEST(Veil, OffersAWayOutByTapAndKeyboardWhenItStandsTooLong) {
    UiScene scene(R"(
        Veil { shown: true; leavable: true; text: "Enviando…"; onAbandoned: window.log = window.log.concat("left") }
    )");
    QQuickItem* veil = scene.item("veilView");
    EXPECT_EQ(veil->property("patience"), 5000);
    scene.key(Qt::Key_Escape);
    EXPECT_FALSE(scene.isOnShow("wayOut")) << "not at once";
    veil->setProperty("patience", 1);
    ASSERT_NE(scene.item("wayOut"), nullptr);
    scene.click("wayOut");
    scene.key(Qt::Key_Escape);
    scene.key(Qt::Key_Tab);
    EXPECT_EQ(scene.focusName(), "wayOut");
    scene.key(Qt::Key_Space);
    EXPECT_EQ(scene.log(), QStringList({"left", "left", "left"}));
    veil->setProperty("patience", 5000);
    for (const bool shown : {false, true})
        veil->setProperty("shown", shown);
    EXPECT_FALSE(scene.isOnShow("wayOut")) << "each veil waits anew";
    veil->setProperty("patience", 1);
    ASSERT_NE(scene.item("wayOut"), nullptr);
    EXPECT_FALSE(scene.value("wayOut", "activeFocus").toBool()) << "Enter does not leave by chance";
}

} // namespace kavor
