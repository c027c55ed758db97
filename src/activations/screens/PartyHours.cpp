#include "activations/screens/PartyHours.h"

#include "activations/ActivationForm.h"
#include "interaction/QtText.h"

#include <QTime>

namespace kavor {

namespace {

constexpr int usualStart = 20;
constexpr int usualEnd = 23;

QTime timeOf(const std::optional<std::string>& hour) {
    return hour ? QTime::fromString(fromUtf8(*hour), QStringLiteral("HH:mm")) : QTime();
}

} // namespace

void PartyHours::fill(const std::optional<std::string>& from, const std::optional<std::string>& to) {
    from_ = from;
    to_ = to;
    emit changed();
}

void PartyHours::openFor(Which which) {
    open_ = shown_ = which;
    const bool isStart = which == Which::Start;
    const QTime known = timeOf(isStart ? from_ : to_);
    hour_ = known.isValid() ? known.hour() : isStart ? usualStart : usualEnd;
    minute_ = known.isValid() ? known.minute() : 0;
    emit changed();
}

void PartyHours::pickHour(int hour) {
    if (!QTime::isValid(hour, 0, 0))
        return;
    hour_ = hour;
    emit changed();
}

void PartyHours::pickMinute(int minute) {
    if (!QTime::isValid(0, minute, 0))
        return;
    minute_ = minute;
    emit changed();
}

void PartyHours::select() {
    if (!isOpen())
        return;
    (open_ == Which::Start ? from_ : to_) =
        QTime(hour_, minute_).toString(QStringLiteral("HH:mm")).toStdString();
    open_ = Which::None;
    emit changed();
    emit selected();
}

void PartyHours::cancel() {
    if (!isOpen())
        return;
    open_ = Which::None;
    emit changed();
}

QString PartyHours::startTimeButton() const {
    return fromUtf8(from_.value_or(noHour));
}

QString PartyHours::endTimeButton() const {
    return fromUtf8(to_.value_or(noHour));
}

QString PartyHours::title() const {
    return QStringLiteral("HORA DE ") +
           (shown_ == Which::Start ? QStringLiteral("INICIO") : QStringLiteral("FIN"));
}

QString PartyHours::durationText() const {
    constexpr int minutesOfHour = 60;
    const int minutes = timeOf(from_).secsTo(timeOf(to_)) / minutesOfHour;
    if (!from_ || !to_ || minutes <= 0)
        return {};
    const int rest = minutes % minutesOfHour;
    QString text;
    if (minutes >= minutesOfHour)
        text = QStringLiteral("%1 h").arg(minutes / minutesOfHour);
    if (rest > 0)
        text += (text.isEmpty() ? QString() : QStringLiteral(" ")) + QStringLiteral("%1 min").arg(rest);
    return text;
}

} // namespace kavor
