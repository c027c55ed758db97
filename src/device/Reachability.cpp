#include "device/Reachability.h"

#include <QNetworkInformation>

#include <utility>

namespace kavor {

QtReachability::QtReachability(QObject* parent)
    : Reachability(parent)
    , forcedOffline_(qEnvironmentVariableIntValue("KAVOR_OFFLINE") == 1) {
    if (QNetworkInformation::loadBackendByFeatures(QNetworkInformation::Feature::Reachability)) {
        connect(QNetworkInformation::instance(), &QNetworkInformation::reachabilityChanged, this,
                &QtReachability::update);
    }
    update();
}

void QtReachability::setForcedOffline(bool forced) {
    forcedOffline_ = forced;
    update();
}

void QtReachability::update() {
    const QNetworkInformation* information = QNetworkInformation::instance();
    const bool disconnected =
        information && information->reachability() == QNetworkInformation::Reachability::Disconnected;
    const bool reachable = !forcedOffline_ && !disconnected;
    if (std::exchange(reachable_, reachable) != reachable)
        emit changed();
}

} // namespace kavor
