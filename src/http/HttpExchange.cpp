#include "http/HttpExchange.h"

#include "http/HttpConnections.h"
#include "http/OneTimeBody.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>

#include <algorithm>
#include <utility>

namespace kavor {

namespace {

constexpr int mostRedirects = 10;
// What the server is asked to write in.
constexpr char acceptLanguage[] = "es-ES,es;q=0.9";

bool isWebAddress(const QUrl& url) {
    return url.isValid() && !url.host().isEmpty() &&
           (url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https"));
}

bool isSameOrigin(const QUrl& a, const QUrl& b) {
    const auto port = [](const QUrl& url) {
        return url.port(url.scheme() == QLatin1String("https") ? 443 : 80);
    };
    return a.scheme() == b.scheme() && a.host() == b.host() && port(a) == port(b);
}

// A header's value never carries a line end.
QByteArray oneLine(QByteArray value) {
    value.removeIf([](char c) { return c == '\r' || c == '\n' || c == '\0'; });
    return value;
}

std::optional<qint64> announcedLength(const QNetworkReply& reply) {
    const QVariant length = reply.header(QNetworkRequest::ContentLengthHeader);
    return length.isValid() ? std::optional(length.toLongLong()) : std::nullopt;
}

bool isPacked(const QNetworkReply& reply) {
    const QByteArray encoding = reply.rawHeader("Content-Encoding").trimmed().toLower();
    return !encoding.isEmpty() && encoding != "identity";
}

} // namespace

HttpExchange::HttpExchange(HttpConnections& connections, const HttpRules& rules, HttpRequest request,
                           Callback callback, QObject* parent)
    : QObject(parent)
    , connections_(connections)
    , rules_(rules)
    , request_(std::move(request))
    , callback_(std::move(callback)) {}

QNetworkRequest HttpExchange::networkRequest() const {
    QNetworkRequest request(request_.url);
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    // Qt mixes the headers of a redirect with those of the answer that follows.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    request.setDecompressedSafetyCheckThreshold(rules_.answerSizeLimit);
    request.setTransferTimeout(rules_.silenceLimit);
    request.setRawHeader("Accept-Language", acceptLanguage);
    if (!rules_.asksForPacked)
        request.setRawHeader("Accept-Encoding", "identity");
    for (const auto& [name, value] : request_.headers)
        request.setRawHeader(name, oneLine(value));
    if (!reads()) {
        request.setRawHeader("Connection", "close");
        request.setHeader(QNetworkRequest::ContentTypeHeader, request_.contentType);
        request.setHeader(QNetworkRequest::ContentLengthHeader, request_.body.size());
        request.setAttribute(QNetworkRequest::DoNotBufferUploadDataAttribute, true);
    }
    return request;
}

void HttpExchange::start() {
    if (!isWebAddress(request_.url)) {
        QMetaObject::invokeMethod(
            this, [this] { fail(QStringLiteral("not a web address")); }, Qt::QueuedConnection);
        return;
    }
    if (reads()) {
        reply_ = connections_.take()->get(networkRequest());
    } else {
        // A manager of its own has no connection that an earlier request left behind: such a one may have
        // gone stale, and a write is never sent a second time.
        auto* connection = new QNetworkAccessManager(this);
        auto* body = new OneTimeBody(request_.body, this);
        reply_ = connection->sendCustomRequest(networkRequest(), request_.method, body);
    }
    connect(reply_, &QNetworkReply::metaDataChanged, this,
            [this] { collect(announcedLength(*reply_).value_or(0)); });
    connect(reply_, &QNetworkReply::readyRead, this, [this] { collect(0); });
    connect(reply_, &QNetworkReply::finished, this, [this] { replyFinished(); });
}

int HttpExchange::status() const {
    return reply_ != nullptr ? reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() : 0;
}

void HttpExchange::collect(qint64 announced) {
    isTooLarge_ =
        std::max<qint64>(announced, body_.size() + reply_->bytesAvailable()) > rules_.answerSizeLimit;
    if (isTooLarge_)
        fail(QStringLiteral("the body exceeds the size limit"));
    else
        body_ += reply_->readAll();
}

std::optional<QString> HttpExchange::fault() const {
    // The status of an error says enough, whatever became of its body and of the connection.
    if (status() >= 400)
        return std::nullopt;
    // When the server closes the connection right behind its answer, or answers 307, Qt may want to send the
    // body once more and says that it cannot; the answer itself is there.
    const bool isThere =
        reply_->error() == QNetworkReply::NoError || reply_->error() == QNetworkReply::ContentReSendError;
    if (!isThere || status() == 0)
        return reply_->errorString();
    if (status() >= 300)
        return std::nullopt;
    if (isPacked(*reply_))
        return rules_.asksForPacked
                   ? std::nullopt
                   : std::optional(QStringLiteral("the body came in an encoding that was not asked for"));
    if (announcedLength(*reply_).value_or(body_.size()) != body_.size())
        return QStringLiteral("the body was cut short");
    return std::nullopt;
}

// Where the answer leads, if it leads elsewhere.
std::optional<QUrl> HttpExchange::redirection() const {
    const int code = status();
    const QByteArray location = reply_->rawHeader("Location");
    if ((code != 301 && code != 302 && code != 303 && code != 307 && code != 308) || location.isEmpty())
        return std::nullopt;
    return request_.url.resolved(QUrl::fromEncoded(location));
}

bool HttpExchange::isFollowed(const QUrl& target) const {
    if (!reads() || redirects_ >= mostRedirects || !isWebAddress(target))
        return false;
    if (rules_.redirects == HttpRules::Redirects::AnyHost)
        return target.scheme() == request_.url.scheme() || target.scheme() == QLatin1String("https");
    return isSameOrigin(target, request_.url);
}

void HttpExchange::replyFinished() {
    if (const auto target = redirection(); target && isFollowed(*target)) {
        ++redirects_;
        releaseReply(reply_->error() == QNetworkReply::NoError);
        request_.url = *target;
        body_.clear();
        start();
        return;
    }
    if (reply_->isOpen())
        body_ += reply_->readAll();
    const auto reason = fault();
    end(reason ? HttpAnswer::Fault::Transport : HttpAnswer::Fault::None, reason.value_or(QString()));
}

void HttpExchange::end(HttpAnswer::Fault fault, const QString& reason) {
    const Callback callback = std::exchange(callback_, {});
    if (!callback)
        return;
    HttpAnswer answer{fault, status(), {}, std::move(body_), reason, isTooLarge_};
    if (reply_ != nullptr) {
        answer.headers = reply_->rawHeaderPairs();
        answer.isRedirect = redirection().has_value();
        answer.lengthIsVerified = announcedLength(*reply_) == answer.body.size();
        // A connection whose server has asked for a password would answer it in our name.
        releaseReply(fault == HttpAnswer::Fault::None && answer.status != 401 && answer.status != 407 &&
                     (answer.lengthIsVerified || reply_->error() == QNetworkReply::NoError));
    }
    deleteLater();
    callback(answer); // whose end may be that of the exchange too
}

void HttpExchange::releaseReply(bool wentWell) {
    QNetworkReply* reply = std::exchange(reply_, nullptr);
    reply->disconnect(this);
    if (!reply->isFinished())
        reply->abort();
    reply->deleteLater();
    if (reads())
        connections_.giveBack(reply->manager(), wentWell);
}

} // namespace kavor
