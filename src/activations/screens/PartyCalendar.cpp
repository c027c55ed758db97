#include "activations/screens/PartyCalendar.h"

#include "activations/PartyDates.h"
#include "activations/screens/ActivationTexts.h"

#include <QLocale>

#include <algorithm>

namespace kavor {

namespace {

constexpr int shownDays = 42;

const QLocale& spanish() {
    static const QLocale locale(QLocale::Spanish, QLocale::Spain);
    return locale;
}

QDate dateOf(const LocalDateTime& moment) {
    return {moment.year, moment.month, moment.day};
}

} // namespace

PartyCalendar::PartyCalendar(const ActivationInformation& activation, QObject* parent)
    : QObject(parent)
    , activation_(activation) {}

QString PartyCalendar::written(QDate date) {
    return date.toString(QStringLiteral("dd-MM-yyyy"));
}

void PartyCalendar::setToday(QDate today) {
    if (today_ == today)
        return;
    today_ = today;
    if (!cursor_.isValid())
        cursor_ = firstDay();
    emit changed();
}

void PartyCalendar::setPartyDate(const QString& date) {
    selected_ = QDate::fromString(date, QStringLiteral("dd-MM-yyyy"));
    if (selected_.isValid())
        cursor_ = selected_;
    emit changed();
}

void PartyCalendar::setBlocked(bool blocked) {
    blocked_ = blocked;
    emit changed();
}

QDate PartyCalendar::firstDay() const {
    constexpr Int farthest = 36500; // of what a calendar can show
    return today_.addDays(std::min(daysToFirstDay(activation_.antelationDays), farthest));
}

bool PartyCalendar::isOutside(QDate day) const {
    return (activation_.dateFrom && day < dateOf(*activation_.dateFrom)) ||
           (activation_.dateTo && day > dateOf(*activation_.dateTo));
}

void PartyCalendar::moveDays(int days) {
    moveTo(cursor_.addDays(days));
}

void PartyCalendar::moveMonths(int months) {
    moveTo(cursor_.addMonths(months));
}

void PartyCalendar::moveTo(QDate day) {
    constexpr int lastYear = 9999; // the form has four digits
    if (blocked_ || !day.isValid() || day.year() > lastYear || day < QDate(today_.year(), today_.month(), 1))
        return;
    cursor_ = day;
    emit changed();
}

void PartyCalendar::tap(const QString& date) {
    const QDate day = QDate::fromString(date, QStringLiteral("dd-MM-yyyy"));
    if (blocked_ || !day.isValid())
        return;
    const QDate page = cursor_;
    emit tapped(date);
    if (selected_ != day) // refused: the page stays
        cursor_ = page;
    emit changed();
}

QString PartyCalendar::title() const {
    QString month = spanish().standaloneMonthName(cursor_.month());
    if (!month.isEmpty())
        month[0] = month[0].toUpper();
    return QStringLiteral("%1 de %2").arg(month).arg(cursor_.year());
}

bool PartyCalendar::hasFormer() const {
    return !blocked_ && QDate(cursor_.year(), cursor_.month(), 1) > today_;
}

QString PartyCalendar::firstDayText() const {
    return QStringLiteral("Primer día posible: ") + dayText(firstDay(), today_);
}

QString PartyCalendar::availability() const {
    return availabilityText(activation_);
}

QString PartyCalendar::partyDateText() const {
    return selected_.isValid() ? dayText(selected_, today_) : QString();
}

QVariantList PartyCalendar::days() const {
    const QDate first(cursor_.year(), cursor_.month(), 1);
    const QDate start = first.addDays(1 - first.dayOfWeek());
    const QDate possible = firstDay();
    QVariantList all;
    for (int place = 0; place < shownDays; ++place) {
        const QDate day = start.addDays(place);
        all << QVariantMap{
            {QStringLiteral("day"), day.day()},
            {QStringLiteral("date"), written(day)},
            {QStringLiteral("name"), spanish().toString(day, QStringLiteral("dddd, d 'de' MMMM 'de' yyyy"))},
            {QStringLiteral("inMonth"), day.month() == cursor_.month()},
            {QStringLiteral("isToday"), day == today_},
            {QStringLiteral("past"), day < today_},
            {QStringLiteral("notice"), day >= today_ && day < possible},
            {QStringLiteral("outside"), isOutside(day)},
            {QStringLiteral("selected"), day == selected_},
            {QStringLiteral("current"), day == cursor_}};
    }
    return all;
}

} // namespace kavor
