#pragma once

#include "support/TouchDriver.h"

#include <QByteArray>
#include <QFile>
#include <QString>

namespace kavor {

// Ends the step with what should have been, when it is not.
inline void must(bool good, const QString& what) {
    if (!good)
        throw TouchFailure(what.toStdString());
}

inline void writeFile(const QString& path, const QByteArray& content) {
    QFile file(path);
    must(file.open(QIODevice::WriteOnly) && file.write(content) == content.size(),
         QStringLiteral("write ") + path);
}

} // namespace kavor
