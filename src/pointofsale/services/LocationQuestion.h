#pragma once

#include "pointofsale/services/LocationFinder.h"

namespace kavor {

// Finds where the device is and asks the user whether the place is the one that is meant.
class LocationQuestion : public QObject {
    Q_OBJECT
public:
    using Taken = LocationFinder::Found;

    // What it works with outlives it. A device without location has no manager.
    LocationQuestion(ReverseLocationManager* location, AlertPresenter& alerts, VeiledRun& wait,
                     QObject* parent = nullptr);

    // Nothing is taken when the user says no, leaves the veil, or the place can't be had, which is told.
    void ask(const Taken& taken);

private:
    void confirm(const Placemark& place, const Taken& taken);

    AlertPresenter& alerts_;
    LocationFinder finder_;
};

} // namespace kavor
