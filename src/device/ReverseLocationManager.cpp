#include "device/ReverseLocationManager.h"

#include "device/LocationService.h"

#include <QMetaObject>
#include <QPointer>

#include <utility>

namespace kavor {

void NoReverseGeocoder::reverse(const Coordinate&, Callback callback) {
    QMetaObject::invokeMethod(
        this,
        [callback = std::move(callback)] {
            callback(std::nullopt, QStringLiteral("reverse geocoding is not available"));
        },
        Qt::QueuedConnection);
}

ReverseLocationManager::ReverseLocationManager(LocationService& location, ReverseGeocoder& geocoder,
                                               QObject* parent)
    : QObject(parent)
    , location_(location)
    , geocoder_(geocoder) {}

bool ReverseLocationManager::start() {
    if (!forcedPlace_ && !location_.isAvailable())
        return false;
    const auto report = [guard = QPointer<ReverseLocationManager>(this)](
                            const std::optional<Placemark>& placemark, const std::optional<QString>& error) {
        if (guard && guard->onReverseHandler)
            guard->onReverseHandler(placemark, error);
    };
    if (forcedPlace_) {
        QMetaObject::invokeMethod(
            this, [report, place = forcedPlace_] { report(place, std::nullopt); }, Qt::QueuedConnection);
        return true;
    }
    location_.requestLocation(this, [this, report](const LocationAnswer& answer) {
        if (answer.coordinate)
            geocoder_.reverse(*answer.coordinate, report);
        else
            report(std::nullopt, answer.error);
    });
    return true;
}

} // namespace kavor
