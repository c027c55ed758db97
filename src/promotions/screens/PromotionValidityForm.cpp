#include "promotions/screens/PromotionValidityForm.h"

#include "interaction/QtText.h"
#include "screens/DateGrid.h"

#include <array>
#include <utility>

namespace kavor {

namespace {

constexpr Int weekDays = 7;
constexpr std::array dayNames{"lunes", "martes", "miércoles", "jueves", "viernes", "sábado", "domingo"};

} // namespace

PromotionValidityForm::PromotionValidityForm(QString today, QString hourDayInit, QObject* parent)
    : QObject(parent)
    , today_(std::move(today))
    , hourDayInit_(std::move(hourDayInit)) {}

void PromotionValidityForm::fill(const PromotionValidity& validity) {
    value_ = validity;
    emit changed();
}

void PromotionValidityForm::take(PromotionValidity value) {
    if (value_ == value)
        return;
    value_ = std::move(value);
    emit changed();
    emit edited();
}

void PromotionValidityForm::doneActionFrom(const QString& date) {
    PromotionValidity value = value_;
    value.dateFrom = date.toStdString();
    take(std::move(value));
}

void PromotionValidityForm::doneActionTo(const QString& date) {
    PromotionValidity value = value_;
    value.dateTo = date.toStdString();
    take(std::move(value));
}

void PromotionValidityForm::switchShowMenu(bool on) {
    PromotionValidity value = value_;
    value.showMenu = on;
    take(std::move(value));
}

void PromotionValidityForm::toggleDay(int day) {
    if (day < 0 || day >= weekDays)
        return;
    std::vector<Int> days;
    for (Int each = 1; each <= weekDays; ++each) {
        if (value_.showsOn(each) != (each == day + 1))
            days.push_back(each);
    }
    setDays(std::move(days));
}

void PromotionValidityForm::setDays(std::vector<Int> days) {
    PromotionValidity value = value_;
    value.days = std::move(days);
    take(std::move(value));
}

void PromotionValidityForm::setDaysVisible(bool visible) {
    if (std::exchange(daysVisible_, visible) != visible)
        emit daysVisibleChanged();
}

QString PromotionValidityForm::dateFrom() const {
    return fromUtf8(value_.dateFrom);
}

QString PromotionValidityForm::dateTo() const {
    return fromUtf8(value_.dateTo);
}

QString PromotionValidityForm::dateToError() const {
    const QDate from = DateGrid::read(dateFrom());
    const QDate to = DateGrid::read(dateTo());
    return from.isValid() && to.isValid() && to < from ? QStringLiteral("Termina antes de empezar.")
                                                       : QString();
}

QVariantList PromotionValidityForm::days() const {
    QVariantList days;
    for (Int day = 1; day <= weekDays; ++day)
        days << value_.showsOn(day);
    return days;
}

QString PromotionValidityForm::daysText() const {
    if (value_.days == std::vector<Int>{1, 2, 3, 4, 5})
        return QStringLiteral("Entre semana");
    if (value_.days == std::vector<Int>{6, 7})
        return QStringLiteral("Fin de semana");
    if (Int(value_.days.size()) == weekDays)
        return QStringLiteral("Todos los días");
    QStringList names;
    for (const Int day : value_.days) {
        if (day >= 1 && day <= weekDays)
            names << QString::fromUtf8(dayNames[std::size_t(day) - 1]);
    }
    if (names.isEmpty())
        return QStringLiteral("Ningún día");
    const QString last = names.takeLast();
    return names.isEmpty() ? last : names.join(QStringLiteral(", ")) + QStringLiteral(" y ") + last;
}

QString PromotionValidityForm::messageConfigurationDaysLabel() const {
    return QStringLiteral(
               "Días en los que se mostrará la promoción (para adaptarnos al horario de hostelería los días "
               "empiezan y terminan a las ") +
           hourDayInit_ + QStringLiteral(" de la mañana)");
}

} // namespace kavor
