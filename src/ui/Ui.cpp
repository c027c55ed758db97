#include "ui/Ui.h"

#include "ui/PdfPageProvider.h"

#include <QFontDatabase>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QQmlEngine>

// Written by the build. In a static library nothing else would keep them.
extern void qml_register_types_Kavor_Ui();

static void initialiseResources() {
    static const bool once = [] {
        Q_INIT_RESOURCE(qmake_Kavor_Ui);
        Q_INIT_RESOURCE(kavor_ui_raw_qml_0);
        Q_INIT_RESOURCE(kavor_ui_assets);
        Q_INIT_RESOURCE(qmlcache_kavor_ui);
        return true;
    }();
    Q_UNUSED(once);
}

namespace kavor {

namespace {

void addFonts() {
    for (const char* weight : {"Regular", "Medium", "Bold"}) {
        if (QFontDatabase::addApplicationFont(QStringLiteral(":/kavor/ui/fonts/Roboto-%1.ttf").arg(weight)) <
            0)
            qWarning("the bundled font Roboto %s cannot be read", weight);
    }
    QFont font(QStringLiteral("Roboto"));
    font.setPixelSize(15);
    QGuiApplication::setFont(font);
    // The first text has the system look through all its fonts: here, and not while the window is made.
    static_cast<void>(QFontMetrics(font).height());
}

} // namespace

void registerUi(QQmlEngine& engine) {
    initialiseResources();
    volatile auto registration = &qml_register_types_Kavor_Ui;
    Q_UNUSED(registration);
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    engine.addImageProvider(PdfPageProvider::name(), new PdfPageProvider);
}

void useBundledFonts() {
    static const bool once = [] {
        initialiseResources();
        addFonts();
        return true;
    }();
    Q_UNUSED(once);
}

} // namespace kavor
