#include "shell/screens/ShellTexts.h"

#include "session/AppSingleton.h"

namespace kavor {

namespace {

constexpr qint64 minute = 60;
constexpr qint64 hour = 60 * minute;
constexpr qint64 day = 24 * hour;

QString countOf(qint64 count, const char* one, const char* many) {
    return QStringLiteral("%1 %2").arg(count).arg(QString::fromUtf8(count == 1 ? one : many));
}

QString ago(qint64 seconds) {
    if (seconds < minute)
        return QStringLiteral("un momento");
    if (seconds < hour)
        return countOf(seconds / minute, "minuto", "minutos");
    if (seconds < day)
        return countOf(seconds / hour, "hora", "horas");
    return countOf(seconds / day, "día", "días");
}

} // namespace

QString versionText(const AppSingleton& session) {
    return QStringLiteral("v %1.%2").arg(QString::fromStdString(session.version),
                                         QString::fromStdString(session.compilation));
}

QString catalogueAgeText(std::optional<qint64> seconds) {
    return seconds ? QStringLiteral("Catálogo actualizado hace ") + ago(*seconds) : QString();
}

QString unsentOrdersText(int count) {
    return count > 0 ? countOf(count, "pedido sin enviar", "pedidos sin enviar") : QString();
}

} // namespace kavor
