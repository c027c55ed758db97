#include "shell/screens/Screens.h"

#include "screens/Kit.h"

#include <QQmlEngine>

// Written by the build. In a static library nothing else would keep them.
extern void qml_register_types_Kavor_Screens();

static void initialiseResources() {
    Q_INIT_RESOURCE(qmake_Kavor_Screens);
    Q_INIT_RESOURCE(kavor_screens_raw_qml_0);
    Q_INIT_RESOURCE(qmlcache_kavor_screens);
}

namespace kavor {

void registerScreens(QQmlEngine& engine) {
    registerKit(engine);
    initialiseResources();
    volatile auto registration = &qml_register_types_Kavor_Screens;
    Q_UNUSED(registration);
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
}

QUrl screenView(const QString& name) {
    return QUrl(QStringLiteral("qrc:/qt/qml/Kavor/Screens/%1.qml").arg(name));
}

} // namespace kavor
