#include "device/PlainDownloader.h"

#include <QMetaObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QPointer>

#include <utility>

namespace kavor {

namespace {

constexpr int mostRedirects = 10;
constexpr QLatin1String https("https");
constexpr char tooLargeProperty[] = "kavorTooLarge";

QNetworkRequest requestFor(const QUrl& url, int timeoutMilliseconds) {
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    // Qt mixes the headers of a redirect with those of the answer that follows, so each hop is a request of
    // its own.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    request.setTransferTimeout(timeoutMilliseconds);
    // Without compression the length of the body can be checked against the announced one.
    request.setRawHeader("Accept-Encoding", "identity");
    return request;
}

// Qt reports an HTTP error status as an error of the reply; only the others are errors of the transport.
bool isTransportError(QNetworkReply::NetworkError error, const std::optional<int>& status) {
    if (error == QNetworkReply::NoError)
        return false;
    const bool comesFromStatus =
        (error > QNetworkReply::UnknownProxyError && error <= QNetworkReply::UnknownContentError) ||
        error == QNetworkReply::ProtocolInvalidOperationError || error >= QNetworkReply::InternalServerError;
    return !(comesFromStatus && status && *status >= 400);
}

std::optional<QUrl> redirectTarget(const QNetworkReply* reply) {
    const QVariant target = reply->attribute(QNetworkRequest::RedirectionTargetAttribute);
    return target.isValid() ? std::optional(reply->url().resolved(target.toUrl())) : std::nullopt;
}

bool isWebAddress(const QUrl& url) {
    return url.isValid() && !url.host().isEmpty() &&
           (url.scheme() == QLatin1String("http") || url.scheme() == https);
}

} // namespace

PlainDownloader::PlainDownloader(QObject* parent, int timeoutMilliseconds)
    : QObject(parent)
    , manager_(new QNetworkAccessManager(this))
    , timeoutMilliseconds_(timeoutMilliseconds) {}

PlainDownloader::~PlainDownloader() = default;

void PlainDownloader::get(const QUrl& url, QObject* context, Callback callback, qint64 sizeLimit) {
    ++running_[url];
    const auto bound = [guard = QPointer<QObject>(context), isBound = context != nullptr,
                        callback = std::move(callback)](const DownloadResult& result) {
        if (!isBound || guard)
            callback(result);
    };
    send(url, {url, sizeLimit, 0, bound});
}

void PlainDownloader::send(const QUrl& url, Job job) {
    if (!isWebAddress(url)) {
        DownloadResult refused;
        refused.transportError = QStringLiteral("unsupported URL");
        QMetaObject::invokeMethod(
            this, [this, job, refused] { finish(job, refused); }, Qt::QueuedConnection);
        return;
    }
    QNetworkReply* reply = manager_->get(requestFor(url, timeoutMilliseconds_));
    watchSize(reply, job.sizeLimit);
    connect(reply, &QNetworkReply::finished, this, [this, reply, url, job = std::move(job)]() mutable {
        reply->deleteLater();
        DownloadResult result = resultOf(reply);
        const auto next = redirectTarget(reply);
        if (result.transportError || !next) {
            finish(job, result);
        } else if (++job.redirects > mostRedirects || (url.scheme() == https && next->scheme() != https)) {
            result.transportError = QStringLiteral("a redirect that is not followed");
            finish(job, result);
        } else {
            send(*next, std::move(job));
        }
    });
}

void PlainDownloader::finish(const Job& job, const DownloadResult& result) {
    if (--running_[job.url] == 0)
        running_.remove(job.url);
    job.callback(result);
}

void PlainDownloader::watchSize(QNetworkReply* reply, qint64 sizeLimit) {
    const auto stop = [reply, sizeLimit](qint64 size) {
        if (size > sizeLimit) {
            reply->setProperty(tooLargeProperty, true);
            reply->abort();
        }
    };
    connect(reply, &QNetworkReply::metaDataChanged, this,
            [reply, stop] { stop(reply->header(QNetworkRequest::ContentLengthHeader).toLongLong()); });
    connect(reply, &QNetworkReply::readyRead, this, [reply, stop] { stop(reply->bytesAvailable()); });
}

DownloadResult PlainDownloader::resultOf(QNetworkReply* reply) const {
    DownloadResult result;
    const QVariant status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute);
    if (status.isValid())
        result.status = status.toInt();
    if (reply->property(tooLargeProperty).toBool()) {
        result.transportError = QStringLiteral("the body exceeds the size limit");
        return result;
    }
    if (isTransportError(reply->error(), result.status)) {
        result.transportError = reply->errorString();
        return result;
    }
    if (reply->isOpen())
        result.body = reply->readAll();
    const QVariant length = reply->header(QNetworkRequest::ContentLengthHeader);
    const QByteArray encoding = reply->rawHeader("Content-Encoding").trimmed().toLower();
    result.lengthIsVerified = length.isValid() && length.toLongLong() == result.body.size();
    if (length.isValid() && !result.lengthIsVerified)
        result.transportError = QStringLiteral("the body was cut short");
    else if (!encoding.isEmpty() && encoding != "identity")
        result.transportError = QStringLiteral("the body came in an encoding that was not asked for");
    if (result.transportError)
        result.body.clear();
    return result;
}

} // namespace kavor
