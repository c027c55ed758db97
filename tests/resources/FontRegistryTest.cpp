#include "resources/FontRegistry.h"

#include "support/TemporaryFolder.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

namespace kavor {
namespace {

TEST(FontRegistry, KeepsTheFontDatabaseAsItIsOnceAWindowMayDraw) {
    const QByteArray regular = QByteArray::fromStdString(contentOf(KAVOR_FONTS "/Roboto-Regular.ttf"));
    const QByteArray bold = QByteArray::fromStdString(contentOf(KAVOR_FONTS "/Roboto-Bold.ttf"));
    ASSERT_FALSE(regular.isEmpty() || bold.isEmpty());
    const TemporaryFolder folder;
    put(folder / "regular.ttf", regular.toStdString());
    put(folder / "again.ttf", regular.toStdString());
    put(folder / "junk.ttf", "no font");
    FontRegistry registry;
    registry.addStored(folder / "nowhere");
    registry.addStored(folder.path());

    int changes = 0;
    const auto watching =
        QObject::connect(qGuiApp, &QGuiApplication::fontDatabaseChanged, [&] { ++changes; });
    QStringList told;
    QObject::connect(&registry, &FontRegistry::changed, [&](const QString& name) { told << name; });
    EXPECT_FALSE(registry.registerFont("none", "no font"));
    EXPECT_TRUE(registry.registerFont("plain", regular));
    EXPECT_TRUE(registry.registerFont("plain", regular));
    EXPECT_TRUE(registry.registerFont("heavy", bold));
    EXPECT_FALSE(registry.registerFont("heavy", bold.left(300)));
    EXPECT_EQ(told, (QStringList{"plain", "heavy"})) << "the same bytes change nothing";
    EXPECT_EQ(changes, 0);

    ASSERT_TRUE(registry.font("plain", 17));
    EXPECT_EQ(registry.font("plain", 17)->pixelSize(), 17);
    EXPECT_EQ(registry.family("plain"), "Roboto");
    EXPECT_TRUE(registry.isRegistered("heavy"));
    EXPECT_EQ(registry.font("heavy", 17), std::nullopt) << "it arrived too late for the font database";
    EXPECT_EQ(registry.font("none", 17), std::nullopt);
    registry.unregisterFont("plain");
    EXPECT_EQ(registry.font("plain", 17), std::nullopt);
    EXPECT_EQ(changes, 0);
    QObject::disconnect(watching);
}

TEST(FontRegistry, DrawsAFontThatTheDatabaseDoesNotKnow) {
    FontRegistry registry;
    ASSERT_TRUE(registry.registerFont(
        "late", QByteArray::fromStdString(contentOf(KAVOR_FONTS "/Roboto-Regular.ttf"))));
    const QImage word = registry.picture("late", "Bar", 40, Qt::red);
    const QImage longer = registry.picture("late", "Bar Bar", 40, Qt::red);
    ASSERT_FALSE(word.isNull());
    EXPECT_GT(longer.width(), word.width());
    EXPECT_GE(word.height(), 40);
    int inked = 0;
    for (int y = 0; y < word.height(); ++y) {
        for (int x = 0; x < word.width(); ++x)
            inked += word.pixelColor(x, y).alpha() > 200 && word.pixelColor(x, y).red() > 200 ? 1 : 0;
    }
    EXPECT_GT(inked, word.width() * word.height() / 20);
    EXPECT_LT(inked, word.width() * word.height() / 2);
    EXPECT_TRUE(registry.picture("late", "", 40, Qt::red).isNull());
    EXPECT_TRUE(registry.picture("other", "Bar", 40, Qt::red).isNull());
}

} // namespace
} // namespace kavor
