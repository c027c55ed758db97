#include "sellingsheets/screens/SheetDates.h"

#include "interaction/QtText.h"

namespace kavor::sheet_dates {

namespace {

constexpr char storedForm[] = "yyyy-MM-dd";

} // namespace

QDate read(const std::string& stored) {
    return QDate::fromString(fromUtf8(stored), QLatin1String(storedForm));
}

std::string write(QDate date) {
    return date.isValid() ? date.toString(QLatin1String(storedForm)).toStdString() : std::string();
}

QString shown(const std::string& stored) {
    const QDate date = read(stored);
    return date.isValid() ? date.toString(QStringLiteral("dd/MM/yyyy")) : QString();
}

QString validity(const std::string& from, const std::string& to) {
    const QString first = shown(from);
    const QString last = shown(to);
    if (first.isEmpty())
        return last.isEmpty() ? QString() : QStringLiteral("Hasta el %1").arg(last);
    return last.isEmpty() ? QStringLiteral("Desde el %1").arg(first)
                          : QStringLiteral("Del %1 al %2").arg(first, last);
}

} // namespace kavor::sheet_dates
