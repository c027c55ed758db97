#include "resources/PlainDownloader.h"

#include "base/Log.h"

#include <QMetaObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QPointer>

#include <algorithm>
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
    request.setRawHeader("Accept-Language", acceptLanguage);
    return request;
}

std::optional<QUrl> redirectTarget(const QNetworkReply* reply) {
    const QVariant target = reply->attribute(QNetworkRequest::RedirectionTargetAttribute);
    return target.isValid() ? std::optional(reply->url().resolved(target.toUrl())) : std::nullopt;
}

} // namespace

PlainDownloader::PlainDownloader(QObject* parent, int timeoutMilliseconds)
    : QObject(parent)
    , timeoutMilliseconds_(timeoutMilliseconds) {}

PlainDownloader::~PlainDownloader() = default;

PlainDownloader::Ticket PlainDownloader::get(const QUrl& url, QObject* context, Callback callback,
                                             qint64 sizeLimit, Lane lane) {
    ++running_[url];
    const auto bound = [guard = QPointer<QObject>(context), isBound = context != nullptr,
                        callback = std::move(callback)](const DownloadResult& result) {
        if (!isBound || guard)
            callback(result);
    };
    enter(std::make_shared<Job>(Job{++lastTicket_, url, sizeLimit, lane, bound}));
    return lastTicket_;
}

void PlainDownloader::hasten(Ticket ticket, Lane lane) {
    for (Queue& queue : lanes_) {
        const auto found =
            std::ranges::find(queue.waiting, ticket, [](const auto& job) { return job->ticket; });
        if (found == queue.waiting.end())
            continue;
        const JobPointer job = *found;
        queue.waiting.erase(found);
        job->lane = lane;
        enter(job);
        return;
    }
}

void PlainDownloader::enter(const JobPointer& job) {
    queueOf(job->lane).waiting.push_back(job);
    startNext(job->lane);
}

void PlainDownloader::startNext(Lane lane) {
    Queue& queue = queueOf(lane);
    while (!queue.waiting.empty() && queue.running < laneWidths[std::size_t(lane)]) {
        const JobPointer job = queue.waiting.front();
        queue.waiting.pop_front();
        ++queue.running;
        send(job->url, job);
    }
}

void PlainDownloader::send(const QUrl& url, const JobPointer& job) {
    if (!isWebAddress(url)) {
        DownloadResult refused;
        refused.transportError = QStringLiteral("unsupported URL");
        QMetaObject::invokeMethod(
            this, [this, job, refused] { finish(job, refused); }, Qt::QueuedConnection);
        return;
    }
    QNetworkReply* reply = connections_.take()->get(requestFor(url, timeoutMilliseconds_));
    watchSize(reply, job);
    connect(reply, &QNetworkReply::finished, this, [this, reply, url, job] { received(reply, url, job); });
}

void PlainDownloader::received(QNetworkReply* reply, const QUrl& url, const JobPointer& job) {
    DownloadResult result = resultOf(reply);
    const auto next = redirectTarget(reply);
    reply->deleteLater();
    connections_.giveBack(reply->manager(), !result.transportError);
    if (result.transportError || !next) {
        finish(job, result);
    } else if (++job->redirects > mostRedirects || (url.scheme() == https && next->scheme() != https)) {
        result.transportError = QStringLiteral("a redirect that is not followed");
        finish(job, result);
    } else {
        send(*next, job);
    }
}

void PlainDownloader::finish(const JobPointer& job, const DownloadResult& result) {
    if (--running_[job->url] == 0)
        running_.remove(job->url);
    --queueOf(job->lane).running;
    startNext(job->lane);
    job->callback(result);
}

void PlainDownloader::watchSize(QNetworkReply* reply, const JobPointer& job) {
    const auto stop = [reply, job](qint64 size) {
        if (size <= job->sizeLimit || reply->property(tooLargeProperty).toBool())
            return;
        logLine("Not downloaded, above the limit of " + std::to_string(job->sizeLimit) +
                " bytes: " + job->url.toString(QUrl::RemoveQuery | QUrl::RemoveUserInfo).toStdString());
        reply->setProperty(tooLargeProperty, true);
        reply->abort();
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
    if (reply->error() != QNetworkReply::NoError &&
        !isErrorOfStatus(reply->error(), result.status.value_or(0))) {
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
