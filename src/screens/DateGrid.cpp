#include "screens/DateGrid.h"

#include <QLocale>

#include <algorithm>

namespace kavor {

namespace {

constexpr int shownDays = 42;
constexpr int century = 2000;

const QLocale& spanish() {
    static const QLocale locale(QLocale::Spanish, QLocale::Spain);
    return locale;
}

} // namespace

QDate DateGrid::read(const QString& text) {
    const QDate date = QDate::fromString(text, QStringLiteral("dd-MM-yy"));
    if (!date.isValid() || text.size() != 8)
        return {};
    return QDate(century + date.year() % 100, date.month(), date.day());
}

QString DateGrid::write(QDate date) {
    return date.isValid() ? date.toString(QStringLiteral("dd-MM-yy")) : QString();
}

QDate DateGrid::cursor() const {
    const QDate start = today_.isValid() ? today_ : QDate(century, 1, 1);
    const QDate wanted = date_.isValid() ? date_ : start;
    return minimum_.isValid() ? std::max(wanted, minimum_) : wanted;
}

void DateGrid::setDate(const QString& date) {
    date_ = read(date);
    emit changed();
}

void DateGrid::setToday(const QString& today) {
    today_ = read(today);
    emit changed();
}

void DateGrid::setMinimum(const QString& minimum) {
    minimum_ = read(minimum);
    emit changed();
}

void DateGrid::moveDays(int days) {
    moveTo(cursor().addDays(days));
}

void DateGrid::moveMonths(int months) {
    moveTo(cursor().addMonths(months));
}

// The form has two digits for the year.
void DateGrid::moveTo(QDate date) {
    if (date.year() < century || date.year() >= century + 100)
        return;
    date_ = date;
    emit changed();
}

QString DateGrid::title() const {
    const QDate at = cursor();
    QString month = spanish().standaloneMonthName(at.month());
    month[0] = month[0].toUpper();
    return QStringLiteral("%1 de %2").arg(month).arg(at.year());
}

bool DateGrid::hasFormer() const {
    return !minimum_.isValid() || minimum_ < QDate(cursor().year(), cursor().month(), 1);
}

QVariantList DateGrid::days() const {
    const QDate at = cursor();
    const QDate first(at.year(), at.month(), 1);
    const QDate start = first.addDays(1 - first.dayOfWeek());
    QVariantList all;
    for (int place = 0; place < shownDays; ++place) {
        const QDate day = start.addDays(place);
        all << QVariantMap{
            {QStringLiteral("day"), day.day()},
            {QStringLiteral("date"), write(day)},
            {QStringLiteral("name"), spanish().toString(day, QStringLiteral("dddd, d 'de' MMMM 'de' yyyy"))},
            {QStringLiteral("inMonth"), day.month() == at.month()},
            {QStringLiteral("isToday"), day == today_},
            {QStringLiteral("current"), day == at},
            {QStringLiteral("offered"), !minimum_.isValid() || day >= minimum_}};
    }
    return all;
}

} // namespace kavor
