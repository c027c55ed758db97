#pragma once

#include "activations/ActivationMemory.h"
#include "catalogue/ActivationsInformation.h"

#include <QDate>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

class QObject;

namespace kavor {

class AlertPresenter;

// What several screens of activations say.

// "Sin antelación", "1 día de antelación", "10 días de antelación".
QString noticeText(Int days);
// "sin cupo", "queda 1", "quedan 2".
QString quotaText(const ActivationQuota& quota);
// When an activation is on offer: "Del 1 de diciembre de 2026 al ...", "Desde el ...", "Hasta el ..."; empty
// for one that always is.
QString availabilityText(const ActivationInformation& activation);
// "lunes 2 de diciembre"; with the year when it is another one than that of today.
QString dayText(QDate day, QDate today);
// The sources of pictures, by position.
QStringList picturesOf(std::vector<ActivationInformation::ImageInfo> images);
// A number of the catalogue as a view takes it.
int shownCount(Int count);
// Asks whether what was given of an activation may be lost; leave hears a yes.
void askToLeave(AlertPresenter& alerts, QObject* context, std::function<void()> leave);

} // namespace kavor
