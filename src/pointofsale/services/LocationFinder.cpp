#include "pointofsale/services/LocationFinder.h"

#include "interaction/Questions.h"
#include "interaction/VeiledRun.h"

#include <QPointer>

namespace kavor {

LocationFinder::LocationFinder(ReverseLocationManager* location, AlertPresenter& alerts, VeiledRun& wait,
                               QObject* parent)
    : QObject(parent)
    , location_(location)
    , alerts_(alerts)
    , wait_(wait) {}

void LocationFinder::find(const Found& found, const std::function<void()>& unavailable) {
    if (start(wait_.begin("Buscando la ubicación…"), found, unavailable))
        return;
    wait_.end();
    alerts_.inform({}, QStringLiteral("No se puede utilizar la ubicación, está deshabilitada."), this,
                   unavailable);
}

bool LocationFinder::start(QObject* run, const Found& found, const std::function<void()>& unavailable) {
    if (!location_)
        return false;
    location_->onReverseHandler = [this, found, unavailable, guard = QPointer(run)](const auto& place,
                                                                                    const auto& error) {
        if (!guard)
            return;
        wait_.end();
        if (place)
            found(*place);
        else if (error)
            retry(found, unavailable);
    };
    return location_->start();
}

void LocationFinder::retry(const Found& found, const std::function<void()>& unavailable) {
    ask(alerts_, this, QStringLiteral("Error"),
        QStringLiteral("No se ha podido obtener la localización. Habilite los permisos de "
                       "ubicación para la app."),
        {{QStringLiteral("Reintentar"), AlertButton::Role::Normal,
          [this, found, unavailable] { find(found, unavailable); }},
         {QStringLiteral("Cancelar"), AlertButton::Role::Cancel, {}}});
}

} // namespace kavor
