#pragma once

#include "documents/PromotionValidity.h"

#include <QObject>
#include <QString>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

namespace kavor {

// When a promotion holds, on a screen: its dates, the switch of the online menu and the days of the week.
class PromotionValidityForm : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the form of a promotion")
    Q_PROPERTY(QString dateFrom READ dateFrom NOTIFY changed)
    Q_PROPERTY(QString dateTo READ dateTo NOTIFY changed)
    Q_PROPERTY(QString dateToError READ dateToError NOTIFY changed)
    Q_PROPERTY(QString today READ today CONSTANT)
    Q_PROPERTY(bool showMenu READ isShowMenu NOTIFY changed)
    // Seven yes or no, from Monday on.
    Q_PROPERTY(QVariantList days READ days NOTIFY changed)
    // "Todos los días", "Entre semana", "lunes y martes".
    Q_PROPERTY(QString daysText READ daysText NOTIFY changed)
    Q_PROPERTY(QString messageConfigurationDaysLabel READ messageConfigurationDaysLabel CONSTANT)
    Q_PROPERTY(bool visualizationDaysVisible READ areDaysVisible NOTIFY daysVisibleChanged)

public:
    // "dd-MM-yy" of today; the hour at which a day begins.
    PromotionValidityForm(QString today, QString hourDayInit, QObject* parent = nullptr);

    void fill(const PromotionValidity& validity);
    [[nodiscard]] const PromotionValidity& value() const { return value_; }

    // A date that was chosen, empty to have none, or the way back without one.
    Q_INVOKABLE void doneActionFrom(const QString& date);
    Q_INVOKABLE void doneActionTo(const QString& date);
    Q_INVOKABLE void switchShowMenu(bool on);
    Q_INVOKABLE void configureDays() { setDaysVisible(true); }
    Q_INVOKABLE void closeConfigureDays() { setDaysVisible(false); }
    // A day of the week from 0, Monday.
    Q_INVOKABLE void toggleDay(int day);
    Q_INVOKABLE void chooseWorkdays() { setDays({1, 2, 3, 4, 5}); }
    Q_INVOKABLE void chooseWeekend() { setDays({6, 7}); }
    Q_INVOKABLE void chooseAllDays() { setDays({1, 2, 3, 4, 5, 6, 7}); }

    [[nodiscard]] QString dateFrom() const;
    [[nodiscard]] QString dateTo() const;
    [[nodiscard]] QString dateToError() const;
    [[nodiscard]] QString today() const { return today_; }
    [[nodiscard]] bool isShowMenu() const { return value_.showMenu; }
    [[nodiscard]] QVariantList days() const;
    [[nodiscard]] QString daysText() const;
    [[nodiscard]] QString messageConfigurationDaysLabel() const;
    [[nodiscard]] bool areDaysVisible() const { return daysVisible_; }

signals:
    void changed();
    void daysVisibleChanged();
    // The user gave something else.
    void edited();

private:
    void setDays(std::vector<Int> days);
    void setDaysVisible(bool visible);
    void take(PromotionValidity value);

    QString today_;
    QString hourDayInit_;
    PromotionValidity value_;
    bool daysVisible_ = false;
};

} // namespace kavor
