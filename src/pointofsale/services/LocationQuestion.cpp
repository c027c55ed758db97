#include "pointofsale/services/LocationQuestion.h"

#include "interaction/Questions.h"
#include "interaction/VeiledRun.h"

#include <QPointer>
#include <QStringList>

namespace kavor {

LocationQuestion::LocationQuestion(ReverseLocationManager* location, AlertPresenter& alerts, VeiledRun& wait,
                                   QObject* parent)
    : QObject(parent)
    , location_(location)
    , alerts_(alerts)
    , wait_(wait) {}

void LocationQuestion::ask(const Taken& taken) {
    if (start(wait_.begin("Buscando la ubicación…"), taken))
        return;
    wait_.end();
    alerts_.inform({}, QStringLiteral("No se puede utilizar la ubicación, está deshabilitada."));
}

bool LocationQuestion::start(QObject* run, const Taken& taken) {
    if (!location_)
        return false;
    location_->onReverseHandler = [this, taken, guard = QPointer(run)](const auto& place, const auto& error) {
        if (!guard || (!place && !error))
            return;
        wait_.end();
        if (place)
            confirm(*place, taken);
        else
            retry(taken);
    };
    return location_->start();
}

void LocationQuestion::retry(const Taken& taken) {
    kavor::ask(alerts_, this, QStringLiteral("Error"),
               QStringLiteral("No se ha podido obtener la localización. Habilite los permisos de "
                              "ubicación para la app."),
               {{QStringLiteral("Reintentar"), AlertButton::Role::Cancel, [this, taken] { ask(taken); }},
                {QStringLiteral("Cancelar"), AlertButton::Role::Normal, {}}});
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
