#include "screens/Kit.h"

#include <QQmlEngine>

// Written by the build. In a static library nothing else would keep them.
extern void qml_register_types_Kavor_Kit();

static void initialiseResources() {
    Q_INIT_RESOURCE(qmake_Kavor_Kit);
    Q_INIT_RESOURCE(kavor_kit_raw_qml_0);
    Q_INIT_RESOURCE(qmlcache_kavor_kit);
}

namespace kavor {

void registerKit(QQmlEngine& engine) {
    initialiseResources();
    volatile auto registration = &qml_register_types_Kavor_Kit;
    Q_UNUSED(registration);
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
}

} // namespace kavor
