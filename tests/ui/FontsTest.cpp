#include "UiScene.h"

#include <QFont>
#include <QFontDatabase>
#include <QGlyphRun>
#include <QRawFont>
#include <QTextLayout>

#include <gtest/gtest.h>

namespace kavor {

namespace {

// The characters of a text that the window would draw as an empty box.
QString notDrawn(const QString& text) {
    QString missing;
    for (const char32_t character : text.toUcs4()) {
        const QString one = QString::fromUcs4(&character, 1);
        QTextLayout layout(one, QFont(QStringLiteral("Roboto")));
        layout.beginLayout();
        layout.createLine();
        layout.endLayout();
        for (const QGlyphRun& run : layout.glyphRuns()) {
            if (run.glyphIndexes().contains(0))
                missing += one;
        }
    }
    return missing;
}

TEST(Fonts, DrawSignsAndEmojiOnASystemWithoutFonts) {
    const UiScene scene("Item {}"); // brings the fonts of the client
    EXPECT_EQ(notDrawn(QStringLiteral("ÁÑçü€ªº½–—…«»“”")), QString());
    EXPECT_EQ(notDrawn(QStringLiteral("→←↑✓✗★☆☎♥■●▲½⅓≥≠∞№™")), QString());
    EXPECT_EQ(notDrawn(QStringLiteral("🍺🍻🍷🥂🍽😀👍🏻🎉⚽❤⭐🇪🇸🥘🧀")),
              QString());
    // A character that no font of the client has is missing here, or the test would see fonts of the system.
    EXPECT_EQ(notDrawn(QStringLiteral("漢")), QStringLiteral("漢"));
}

} // namespace
} // namespace kavor
