#pragma once

#include <QString>
#include <QUrl>

class QQmlEngine;

namespace kavor {

// Makes the QML module of the screens known; once for each engine, after registerUi.
void registerScreens(QQmlEngine& engine);

// The view of that name in the module.
QUrl screenView(const QString& name);
inline QUrl screenView(const char* name) {
    return screenView(QString::fromLatin1(name));
}

} // namespace kavor
