#pragma once

#include "device/ReverseLocationManager.h"

#include <QObject>

#include <functional>

namespace kavor {

class AlertPresenter;
class VeiledRun;

// Finds where the device is, behind a veil, and tells the user where it can't.
class LocationFinder : public QObject {
    Q_OBJECT
public:
    using Found = std::function<void(const Placemark&)>;

    // What it works with outlives it. A device without location has no manager.
    LocationFinder(ReverseLocationManager* location, AlertPresenter& alerts, VeiledRun& wait,
                   QObject* parent = nullptr);

    // The veil is gone when one of both is called, and when neither is: the user left it, nothing is known of
    // the place, or it can't be had. `unavailable` follows what the user is told of a device without
    // location.
    void find(const Found& found, const std::function<void()>& unavailable = {});
    // Tells that the place can't be had, and looks for it again if the user wants it.
    void retry(const Found& found, const std::function<void()>& unavailable = {});

private:
    bool start(QObject* run, const Found& found, const std::function<void()>& unavailable);

    ReverseLocationManager* location_;
    AlertPresenter& alerts_;
    VeiledRun& wait_;
};

} // namespace kavor
