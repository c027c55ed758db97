#pragma once

#include <QDate>
#include <QObject>
#include <QString>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

namespace kavor {

// A month as a calendar shows it: six weeks from Monday on, with one day under the cursor. Dates are texts of
// the form "dd-MM-yy"; any other text is no date.
class DateGrid : public QObject {
    Q_OBJECT
    QML_ELEMENT
    // The day under the cursor; without one the calendar starts with today, or with the first day that may be
    // chosen.
    Q_PROPERTY(QString date READ date WRITE setDate NOTIFY changed)
    Q_PROPERTY(QString today READ today WRITE setToday NOTIFY changed)
    // The first day that may be chosen; none for any.
    Q_PROPERTY(QString minimum READ minimum WRITE setMinimum NOTIFY changed)
    Q_PROPERTY(QString title READ title NOTIFY changed) // "Mayo de 2026"
    // 42 days: {day, date, name, inMonth, isToday, current, offered} each.
    Q_PROPERTY(QVariantList days READ days NOTIFY changed)
    // Whether a day before this month may be chosen.
    Q_PROPERTY(bool former READ hasFormer NOTIFY changed)

public:
    using QObject::QObject;

    // The date of a text; one that is not valid for no date.
    static QDate read(const QString& text);
    static QString write(QDate date);

    // The cursor goes so many days or months on; never before the first day that may be chosen.
    Q_INVOKABLE void moveDays(int days);
    Q_INVOKABLE void moveMonths(int months);

    [[nodiscard]] QString date() const { return write(cursor()); }
    void setDate(const QString& date);
    [[nodiscard]] QString today() const { return write(today_); }
    void setToday(const QString& today);
    [[nodiscard]] QString minimum() const { return write(minimum_); }
    void setMinimum(const QString& minimum);
    [[nodiscard]] QString title() const;
    [[nodiscard]] QVariantList days() const;
    [[nodiscard]] bool hasFormer() const;

signals:
    void changed();

private:
    [[nodiscard]] QDate cursor() const;
    void moveTo(QDate date);

    QDate date_;
    QDate today_;
    QDate minimum_;
};

} // namespace kavor
