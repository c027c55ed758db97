#include "activations/screens/ActivationTexts.h"

#include "interaction/Questions.h"
#include "screens/ResourceImages.h"

#include <QLocale>

#include <algorithm>
#include <limits>
#include <utility>

namespace kavor {

namespace {

QString spanish(QDate day, const QString& form) {
    static const QLocale locale(QLocale::Spanish, QLocale::Spain);
    return locale.toString(day, form);
}

QString longDay(const LocalDateTime& moment) {
    return spanish({moment.year, moment.month, moment.day}, QStringLiteral("d 'de' MMMM 'de' yyyy"));
}

} // namespace

QString noticeText(Int days) {
    if (days <= 0)
        return QStringLiteral("Sin antelación");
    return days == 1 ? QStringLiteral("1 día de antelación")
                     : QStringLiteral("%1 días de antelación").arg(days);
}

QString quotaText(const ActivationQuota& quota) {
    const Int remaining = quota.remaining();
    if (remaining == 0)
        return QStringLiteral("sin cupo");
    return remaining == 1 ? QStringLiteral("queda 1") : QStringLiteral("quedan %1").arg(remaining);
}

QString availabilityText(const ActivationInformation& activation) {
    if (activation.dateFrom && activation.dateTo)
        return QStringLiteral("Del %1 al %2").arg(longDay(*activation.dateFrom), longDay(*activation.dateTo));
    if (activation.dateFrom)
        return QStringLiteral("Desde el ") + longDay(*activation.dateFrom);
    return activation.dateTo ? QStringLiteral("Hasta el ") + longDay(*activation.dateTo) : QString();
}

QString dayText(QDate day, QDate today) {
    return spanish(day, day.year() == today.year() ? QStringLiteral("dddd d 'de' MMMM")
                                                   : QStringLiteral("dddd d 'de' MMMM 'de' yyyy"));
}

QStringList picturesOf(std::vector<ActivationInformation::ImageInfo> images) {
    std::ranges::stable_sort(images, {}, &ActivationInformation::ImageInfo::position);
    QStringList sources;
    for (const auto& each : images)
        sources << resourceImageUrl(each.image);
    return sources;
}

int shownCount(Int count) {
    return int(std::clamp<Int>(count, 0, std::numeric_limits<int>::max()));
}

void askToLeave(AlertPresenter& alerts, QObject* context, std::function<void()> leave) {
    ask(alerts, context, QStringLiteral("Atención"),
        QStringLiteral("Si vuelve atrás, perderá la información introducida de la activación. ¿Desea "
                       "continuar?"),
        {no(), yesDestroy(std::move(leave))});
}

} // namespace kavor
