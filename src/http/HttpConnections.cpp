#include "http/HttpConnections.h"

#include <QNetworkAccessManager>

namespace kavor {

namespace {

// Each manager has a thread of its own.
constexpr std::size_t mostIdle = 4;

} // namespace

QNetworkAccessManager* HttpConnections::take() {
    if (idle_.empty())
        return new QNetworkAccessManager(owner_);
    QNetworkAccessManager* manager = idle_.back();
    idle_.pop_back();
    return manager;
}

void HttpConnections::giveBack(QNetworkAccessManager* manager, bool wentWell) {
    if (wentWell && idle_.size() < mostIdle)
        idle_.push_back(manager);
    else
        manager->deleteLater();
}

} // namespace kavor
