#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <optional>
#include <utility>

namespace kavor {

class LocationService;
struct Coordinate;

// The address of a position.
struct Placemark {
    std::optional<QString> postalCode;
    std::optional<QString> locality;
    std::optional<QString> state;
    std::optional<QString> street;
};

// Turns a position into an address.
class ReverseGeocoder : public QObject {
    Q_OBJECT
public:
    // A placemark, or none with an error, or none of both where nothing is known of the place.
    using Callback =
        std::function<void(const std::optional<Placemark>&, const std::optional<QString>& error)>;

    using QObject::QObject;
    // The callback runs later.
    virtual void reverse(const Coordinate& coordinate, Callback callback) = 0;
};

// A device without an address service: every question ends in an error.
class NoReverseGeocoder : public ReverseGeocoder {
    Q_OBJECT
public:
    using ReverseGeocoder::ReverseGeocoder;
    void reverse(const Coordinate& coordinate, Callback callback) override;
};

// Asks the device for its position once and reports its address.
class ReverseLocationManager : public QObject {
    Q_OBJECT
public:
    using Handler = ReverseGeocoder::Callback;

    // Both collaborators outlive it.
    ReverseLocationManager(LocationService& location, ReverseGeocoder& geocoder, QObject* parent = nullptr);

    // Gets each answer, until replaced.
    Handler onReverseHandler;

    // False, and no answer follows, when location is not available on this device.
    bool start();
    // Makes the client believe that the device stands there, or ends that.
    void setForcedPlace(std::optional<Placemark> place) { forcedPlace_ = std::move(place); }

private:
    LocationService& location_;
    ReverseGeocoder& geocoder_;
    std::optional<Placemark> forcedPlace_;
};

} // namespace kavor
