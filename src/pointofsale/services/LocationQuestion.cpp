#include "pointofsale/services/LocationQuestion.h"

#include "interaction/Questions.h"

#include <QStringList>

namespace kavor {

LocationQuestion::LocationQuestion(ReverseLocationManager* location, AlertPresenter& alerts, VeiledRun& wait,
                                   QObject* parent)
    : QObject(parent)
    , alerts_(alerts)
    , finder_(location, alerts, wait) {}

void LocationQuestion::ask(const Taken& taken) {
    finder_.find([this, taken](const Placemark& place) { confirm(place, taken); });
}

void LocationQuestion::confirm(const Placemark& place, const Taken& taken) {
    QStringList parts;
    for (const auto& part : {place.postalCode, place.locality, place.state}) {
        if (part && !part->isEmpty())
            parts.append(*part);
    }
    kavor::ask(alerts_, this, QStringLiteral("¿Desea utilizar la siguiente ubicación?"),
               parts.join(QStringLiteral(", ")), {yes([taken, place] { taken(place); }), no()});
}

} // namespace kavor
