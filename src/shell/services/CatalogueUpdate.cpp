#include "shell/services/CatalogueUpdate.h"

#include "catalogue/Catalogue.h"
#include "device/Background.h"
#include "device/Clock.h"
#include "device/UserDefaults.h"
#include "network/ServiceOperations.h"
#include "resources/ResourceUpdateRun.h"
#include "session/AppSingleton.h"
#include "session/services/SessionStore.h"

namespace kavor {

namespace {

constexpr char fetchedAt[] = "catalogueFetchedAt"; // seconds since the epoch

} // namespace

CatalogueUpdate::CatalogueUpdate(const Services& services, QObject* parent)
    : QObject(parent)
    , services_(services) {}

void CatalogueUpdate::start() {
    services_.network.appInformation(
        {run_.begin(), [this](const std::shared_ptr<const Catalogue>& fetched) { arrived(fetched); },
         [this](const RequestFailure& failure) { emit failed(failure); }});
}

void CatalogueUpdate::arrived(const std::shared_ptr<const Catalogue>& fetched) {
    const auto& former = services_.session.applicationInformation;
    if (!former || former->ownBrands().empty())
        return putInPlace(fetched);
    // Copying a large catalogue takes longer than a frame. The brands are those of the moment of the change.
    runInBackground(
        run_.context(), [fetched] { return std::make_shared<Catalogue>(*fetched); },
        [this](const std::shared_ptr<Catalogue>& copy) {
            if (const auto& now = services_.session.applicationInformation)
                copy->addProducts(now->ownBrands());
            putInPlace(copy);
        });
}

void CatalogueUpdate::putInPlace(const std::shared_ptr<const Catalogue>& catalogue) {
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
