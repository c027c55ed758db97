#pragma once

#include "catalogue/ActivationsInformation.h"

#include <QDate>
#include <QObject>
#include <QString>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

namespace kavor {

// The calendar in which the day of a party is chosen: a month of six weeks from Monday on, with the days that
// are too early, those of notice, and those on which the activation is not on offer. It only shows; a tap is
// judged by the form. Days are texts of the form "dd-MM-yyyy".
class PartyCalendar : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the form of an activation")
    Q_PROPERTY(QString title READ title NOTIFY changed) // "Diciembre de 2026"
    // 42 days: {day, date, name, inMonth, isToday, past, notice, outside, selected, current} each.
    Q_PROPERTY(QVariantList days READ days NOTIFY changed)
    // "Primer día posible: lunes 2 de diciembre"
    Q_PROPERTY(QString firstDayText READ firstDayText NOTIFY changed)
    // When the activation is on offer; empty for always.
    Q_PROPERTY(QString availabilityText READ availability CONSTANT)
    // "sábado 5 de diciembre"; empty without a day.
    Q_PROPERTY(QString partyDateText READ partyDateText NOTIFY changed)
    Q_PROPERTY(bool former READ hasFormer NOTIFY changed)
    Q_PROPERTY(bool blocked READ isBlocked NOTIFY changed)

public:
    // The activation outlives the calendar.
    explicit PartyCalendar(const ActivationInformation& activation, QObject* parent = nullptr);

    void setToday(QDate today);
    // The chosen day, none for a text that is no day; its month comes on show.
    void setPartyDate(const QString& date);
    void setBlocked(bool blocked);

    // The day under the keyboard's cursor, and the month that is on show, go so far on.
    Q_INVOKABLE void moveDays(int days);
    Q_INVOKABLE void moveMonths(int months);
    // A tap on a day, or Enter on the one under the cursor.
    Q_INVOKABLE void tap(const QString& date);
    Q_INVOKABLE void tapCurrent() { tap(written(cursor_)); }

    [[nodiscard]] QString title() const;
    [[nodiscard]] QVariantList days() const;
    [[nodiscard]] QString firstDayText() const;
    [[nodiscard]] QString availability() const;
    [[nodiscard]] QString partyDateText() const;
    [[nodiscard]] bool hasFormer() const;
    [[nodiscard]] bool isBlocked() const { return blocked_; }

signals:
    void changed();
    void tapped(const QString& date);

private:
    static QString written(QDate date);
    [[nodiscard]] QDate firstDay() const;
    [[nodiscard]] bool isOutside(QDate day) const;
    void moveTo(QDate day);

    const ActivationInformation& activation_;
    QDate today_;
    QDate cursor_;
    QDate selected_;
    bool blocked_ = false;
};

} // namespace kavor
