#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <optional>

class QGeoPositionInfoSource;

namespace kavor {

struct Coordinate {
    double latitude = 0; // degrees
    double longitude = 0;
};

// Either a position or why there is none.
struct LocationAnswer {
    std::optional<Coordinate> coordinate;
    std::optional<QString> error;
};

// The device's position.
class LocationService : public QObject {
    Q_OBJECT
public:
    using Callback = std::function<void(const LocationAnswer&)>;

    using QObject::QObject;
    // Whether the device has location services and they are switched on.
    [[nodiscard]] virtual bool isAvailable() const = 0;
    // Asks once, with the best accuracy. The callback runs later; it is dropped with its context.
    virtual void requestLocation(QObject* context, Callback callback) = 0;
};

// The position source of the system, looked for when it is first asked for: finding it takes longer than a
// frame.
class QtLocationService : public LocationService {
    Q_OBJECT
public:
    static constexpr int timeout = 30'000; // milliseconds

    using LocationService::LocationService;
    [[nodiscard]] bool isAvailable() const override;
    void requestLocation(QObject* context, Callback callback) override;

private:
    // nullptr on a device without a position source.
    QGeoPositionInfoSource* source() const;

    mutable std::optional<QGeoPositionInfoSource*> source_;
};

} // namespace kavor
