#include "shell/services/CatalogueUpdate.h"

#include "catalogue/Catalogue.h"
#include "catalogue/services/ResourceUpdateRun.h"
#include "device/Clock.h"
#include "device/UserDefaults.h"
#include "network/ServiceOperations.h"
#include "shell/AppSingleton.h"
#include "shell/services/SessionStore.h"

namespace kavor {

namespace {

constexpr char fetchedAt[] = "catalogueFetchedAt"; // seconds since the epoch

} // namespace

CatalogueUpdate::CatalogueUpdate(const Services& services, QObject* parent)
    : QObject(parent)
    , services_(services) {}

void CatalogueUpdate::start() {
    const auto arrived = [this](const std::shared_ptr<const Catalogue>& catalogue) {
        emit catalogueArrived();
        services_.session.applicationInformation = catalogue;
        services_.defaults.setInteger(QLatin1String(fetchedAt), services_.clock.now().toSecsSinceEpoch());
        // A device that dies keeps what it fetched.
        services_.sessions.storeInBackground();
        emit progressChanged(2.0 / 3, {});
        services_.resources.start(catalogue->information(), [this](int count, int total) {
            emit progressChanged(ResourceUpdateRun::fraction(count, total),
                                 ResourceUpdateRun::label(count, total));
        });
    };
    const auto refused = [this](const RequestFailure& failure) {
        emit failed(failure.messages.value_or(QStringList()));
    };
    services_.network.appInformation({run_.begin(), arrived, refused});
}

void CatalogueUpdate::leave() {
    run_.end();
    services_.resources.leave();
}

std::optional<qint64> CatalogueUpdate::secondsSinceFetch() const {
    const auto moment = services_.defaults.integer(QLatin1String(fetchedAt));
    if (!moment)
        return std::nullopt;
    return std::max<qint64>(0, services_.clock.now().toSecsSinceEpoch() - *moment);
}

} // namespace kavor
