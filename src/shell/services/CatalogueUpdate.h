#pragma once

#include "interaction/PendingRun.h"

#include <QObject>
#include <QString>

#include <memory>
#include <optional>

namespace kavor {

class AppSingleton;
class Catalogue;
class Clock;
class ResourceUpdateRun;
class ServiceOperations;
class SessionStore;
class UserDefaults;
struct RequestFailure;

// The dashboard's run: fetches the catalogue, puts it with the user's own brands into the session and on the
// disk, then updates pictures and fonts. "UpdatingResourcesDidEnd" is posted at the end of a run that got its
// catalogue.
class CatalogueUpdate : public QObject {
    Q_OBJECT
public:
    struct Services {
        AppSingleton& session;
        ServiceOperations& network;
        ResourceUpdateRun& resources;
        SessionStore& sessions;
        UserDefaults& defaults;
        Clock& clock;
    };
    static constexpr char updatingText[] = "Actualizando información";

    // The services outlive this object.
    explicit CatalogueUpdate(const Services& services, QObject* parent = nullptr);

    // Requests the catalogue. The earlier one stays in memory and on disk until a new one has come whole.
    void start();

    // The run is waited for no longer: no catalogue that comes late is taken, and nothing more is told.
    void leave();

    // How long ago the catalogue was fetched on this device, in seconds; nothing when that is not known.
    [[nodiscard]] std::optional<qint64> secondsSinceFetch() const;

signals:
    // Position of the indicator, from 0 to 1, and the text beside it; an empty text leaves the earlier one.
    void progressChanged(double progress, const QString& message);
    // The answer has come and decoded; it takes the place of the earlier catalogue after this signal.
    void catalogueArrived();
    void failed(const kavor::RequestFailure& failure);

private:
    void arrived(const std::shared_ptr<const Catalogue>& fetched);
    void putInPlace(const std::shared_ptr<const Catalogue>& catalogue);

    Services services_;
    PendingRun run_;
};

} // namespace kavor
