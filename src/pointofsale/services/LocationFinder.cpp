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
    if (start(wait_.begin("Buscando la ubicación…"), found))
        return;
    wait_.end();
    alerts_.inform({}, QStringLiteral("No se puede utilizar la ubicación, está deshabilitada."), this,
                   unavailable);
}

bool LocationFinder::start(QObject* run, const Found& found) {
    if (!location_)
        return false;
    location_->onReverseHandler = [this, found, guard = QPointer(run)](const auto& place, const auto& error) {
        if (!guard)
            return;
        wait_.end();
        if (place)
            found(*place);
        else if (error)
            retry(found);
    };
    return location_->start();
}

void LocationFinder::retry(const Found& found) {
    ask(alerts_, this, QStringLiteral("Error"),
        QStringLiteral("No se ha podido obtener la localización. Habilite los permisos de "
                       "ubicación para la app."),
        {{QStringLiteral("Reintentar"), AlertButton::Role::Normal, [this, found] { find(found); }},
         {QStringLiteral("Cancelar"), AlertButton::Role::Cancel, {}}});
}

} // namespace kavor
