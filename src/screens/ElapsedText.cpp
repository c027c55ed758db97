#include "screens/ElapsedText.h"

namespace kavor {

namespace {

constexpr qint64 minute = 60;
constexpr qint64 hour = 60 * minute;
constexpr qint64 day = 24 * hour;

} // namespace

QString countOf(qint64 count, const char* one, const char* many) {
    return QStringLiteral("%1 %2").arg(count).arg(QString::fromUtf8(count == 1 ? one : many));
}

QString elapsedText(qint64 seconds) {
    if (seconds < minute)
        return QStringLiteral("un momento");
    if (seconds < hour)
        return countOf(seconds / minute, "minuto", "minutos");
    if (seconds < day)
        return countOf(seconds / hour, "hora", "horas");
    return countOf(seconds / day, "día", "días");
}

} // namespace kavor
