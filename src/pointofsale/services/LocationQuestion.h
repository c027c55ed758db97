#pragma once

#include "device/ReverseLocationManager.h"

#include <QObject>

#include <functional>

namespace kavor {

class AlertPresenter;
class VeiledRun;

// Finds where the device is, behind a veil, and asks the user whether the place is the one that is meant.
class LocationQuestion : public QObject {
    Q_OBJECT
public:
    using Taken = std::function<void(const Placemark&)>;

    // What it works with outlives it. A device without location has no manager.
    LocationQuestion(ReverseLocationManager* location, AlertPresenter& alerts, VeiledRun& wait,
                     QObject* parent = nullptr);

    // Nothing is taken when the user says no, leaves the veil, or the place can't be had, which is told.
    void ask(const Taken& taken);

private:
    bool start(QObject* run, const Taken& taken);
    void retry(const Taken& taken);
    void confirm(const Placemark& place, const Taken& taken);

    ReverseLocationManager* location_;
    AlertPresenter& alerts_;
    VeiledRun& wait_;
};

} // namespace kavor
