#include "device/LocationService.h"

#include <QGeoPositionInfoSource>
#include <QMetaObject>
#include <QPointer>

#include <memory>
#include <utility>

namespace kavor {

QGeoPositionInfoSource* QtLocationService::source() const {
    if (!source_) {
        source_ = QGeoPositionInfoSource::createDefaultSource(const_cast<QtLocationService*>(this));
        if (*source_)
            (*source_)->setPreferredPositioningMethods(QGeoPositionInfoSource::AllPositioningMethods);
    }
    return *source_;
}

bool QtLocationService::isAvailable() const {
    return source() &&
           source()->supportedPositioningMethods() != QGeoPositionInfoSource::NoPositioningMethods;
}

void QtLocationService::requestLocation(QObject* context, Callback callback) {
    // One request: whatever answers first ends it, and its connections go with it.
    auto* request = new QObject(this);
    const auto finish = [request, bound = context != nullptr, guard = QPointer<QObject>(context),
                         callback = std::move(callback)](const LocationAnswer& answer) {
        request->disconnect();
        request->deleteLater();
        if (!bound || guard)
            callback(answer);
    };
    if (!isAvailable()) {
        QMetaObject::invokeMethod(
            request,
            [finish] {
                finish({std::nullopt, QStringLiteral("location is not available")});
            },
            Qt::QueuedConnection);
        return;
    }
    auto done = std::make_shared<bool>(false);
    connect(source(), &QGeoPositionInfoSource::positionUpdated, request,
            [finish, done](const QGeoPositionInfo& info) {
                if (!std::exchange(*done, true))
                    finish({Coordinate{info.coordinate().latitude(), info.coordinate().longitude()}, {}});
            });
    connect(source(), &QGeoPositionInfoSource::errorOccurred, request,
            [finish, done](QGeoPositionInfoSource::Error error) {
                if (!std::exchange(*done, true))
                    finish({std::nullopt, QStringLiteral("location error %1").arg(int(error))});
            });
    source()->requestUpdate(timeout);
}

} // namespace kavor
