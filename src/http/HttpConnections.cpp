#include "http/HttpConnections.h"

#include <QNetworkAccessManager>

namespace kavor {

namespace {

// Each manager has a thread of its own.
constexpr std::size_t mostIdle = 4;

} // namespace

bool isWebAddress(const QUrl& url) {
    return url.isValid() && !url.host().isEmpty() &&
           (url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https"));
}

bool isErrorOfStatus(QNetworkReply::NetworkError error, int status) {
    // Qt takes 407 for a proxy that asks for a password, also when the server says it.
    if (error == QNetworkReply::ProxyAuthenticationRequiredError)
        return status == 407;
    const bool hasStatus =
        (error > QNetworkReply::UnknownProxyError && error <= QNetworkReply::UnknownContentError) ||
        error == QNetworkReply::ProtocolInvalidOperationError || error >= QNetworkReply::InternalServerError;
    return hasStatus && status >= 400;
}

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
