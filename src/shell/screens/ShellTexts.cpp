#include "shell/screens/ShellTexts.h"

#include "screens/ElapsedText.h"
#include "session/AppSingleton.h"

namespace kavor {

QString versionText(const AppSingleton& session) {
    return QStringLiteral("v %1.%2").arg(QString::fromStdString(session.version),
                                         QString::fromStdString(session.compilation));
}

QString catalogueAgeText(std::optional<qint64> seconds) {
    return seconds ? QStringLiteral("Catálogo actualizado hace ") + elapsedText(*seconds) : QString();
}

QString unsentOrdersText(int count) {
    return count > 0 ? countOf(count, "pedido sin enviar", "pedidos sin enviar") : QString();
}

} // namespace kavor
