#include "ui/Ui.h"

#include "ui/PdfPageProvider.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QQmlEngine>

#include <initializer_list>

// Written by the build. In a static library nothing else would keep them.
extern void qml_register_types_Kavor_Ui();

static void initialiseResources() {
    Q_INIT_RESOURCE(qmake_Kavor_Ui);
    Q_INIT_RESOURCE(kavor_ui_raw_qml_0);
    Q_INIT_RESOURCE(kavor_ui_assets);
    Q_INIT_RESOURCE(qmlcache_kavor_ui);
}

namespace kavor {

namespace {

// The fonts of the client, and behind them two that draw the signs and the emoji that users type, so that
// none shows as an empty box on a system without fonts of its own.
void addFonts() {
    for (const char* file :
         {"Roboto-Regular", "Roboto-Medium", "Roboto-Bold", "KavorSymbols", "NotoEmoji-Regular"}) {
        if (QFontDatabase::addApplicationFont(
                QStringLiteral(":/kavor/ui/fonts/%1.ttf").arg(QLatin1String(file))) < 0)
            qWarning("the bundled font %s cannot be read", file);
    }
    const QString family = QStringLiteral("Roboto");
    QFont::insertSubstitutions(family, {QStringLiteral("Kavor Symbols"), QStringLiteral("Noto Emoji")});
    QFont font(family);
    font.setPixelSize(15);
    QGuiApplication::setFont(font);
}

} // namespace

void registerUi(QQmlEngine& engine) {
    static const bool once = [] {
        initialiseResources();
        volatile auto registration = &qml_register_types_Kavor_Ui;
        Q_UNUSED(registration);
        addFonts();
        return true;
    }();
    Q_UNUSED(once);
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    engine.addImageProvider(PdfPageProvider::name(), new PdfPageProvider);
}

} // namespace kavor
