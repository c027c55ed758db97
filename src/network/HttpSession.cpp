#include "network/HttpSession.h"

#include "device/Clock.h"
#include "device/Reachability.h"
#include "network/OneTimeBody.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>

#include <optional>
#include <utility>

namespace kavor {

// One request on its way.
class HttpExchange : public QObject {
public:
    HttpExchange(HttpSession& session, HttpRequest request, HttpSession::Callback callback)
        : QObject(&session)
        , session_(session)
        , request_(std::move(request))
        , callback_(std::move(callback)) {
        deadline_ = session_.clock_.after(session_.configuration_.requestTimeout, this, [this] {
            end(HttpAnswer::Fault::TimedOut, QStringLiteral("timed out"));
        });
    }

    void start();
    void fail(const QString& reason) { end(HttpAnswer::Fault::Transport, reason); }
    // Lets go of the connection; the callback is not run any more.
    void release();
    [[nodiscard]] bool isStarted() const { return reply_ != nullptr; }
    [[nodiscard]] bool isWanted() const { return !request_.isWanted || request_.isWanted(); }
    HttpSession::Callback takeCallback() { return std::move(callback_); }

private:
    [[nodiscard]] QNetworkRequest networkRequest() const;
    void watch();
    void checkHead();
    void collect();
    [[nodiscard]] bool exceedsLimit(qint64 size) const {
        return size > session_.configuration_.answerSizeLimit;
    }
    void failAsTooLarge() { fail(QStringLiteral("the body exceeds the size limit")); }
    void replyFinished();
    [[nodiscard]] std::optional<QUrl> redirection() const;
    void releaseReply();
    [[nodiscard]] std::optional<QString> fault() const;
    void end(HttpAnswer::Fault fault, const QString& reason);

    HttpSession& session_;
    HttpRequest request_;
    HttpSession::Callback callback_;
    QNetworkReply* reply_ = nullptr;
    QByteArray body_;
    int redirects_ = 0;
    Clock::TimerId deadline_ = 0;
};

namespace {

constexpr int mostRedirects = 5;

// When the server closes the connection right behind its answer, or answers 307, Qt may want to send the body
// once more and says that it cannot; the answer itself is there.
bool answerIsThere(QNetworkReply::NetworkError error, int status) {
    if (error == QNetworkReply::NoError || error == QNetworkReply::ContentReSendError)
        return status != 0;
    return isErrorOfStatus(error, status);
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

} // namespace

QNetworkRequest HttpExchange::networkRequest() const {
    const bool reads = request_.method == "GET";
    QNetworkRequest request(request_.url);
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    request.setDecompressedSafetyCheckThreshold(session_.configuration_.answerSizeLimit);
    request.setRawHeader("Accept-Language", acceptLanguage);
    for (const HttpHeaders& headers : {session_.configuration_.additionalHeaders, request_.headers}) {
        for (const auto& [name, value] : headers)
            request.setRawHeader(name, oneLine(value));
    }
    if (!reads) {
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
    if (request_.method == "GET") {
        reply_ = session_.reads_.take()->get(networkRequest());
    } else {
        // A manager of its own has no connection that an earlier request left behind: such a one may have
        // gone stale, and a write is never sent a second time.
        auto* connections = new QNetworkAccessManager(this);
        auto* body = new OneTimeBody(request_.body, this);
        reply_ = connections->sendCustomRequest(networkRequest(), request_.method, body);
    }
    watch();
}

void HttpExchange::watch() {
    connect(reply_, &QNetworkReply::metaDataChanged, this, [this] { checkHead(); });
    connect(reply_, &QNetworkReply::readyRead, this, [this] { collect(); });
    connect(reply_, &QNetworkReply::finished, this, [this] { replyFinished(); });
}

void HttpExchange::checkHead() {
    if (exceedsLimit(reply_->header(QNetworkRequest::ContentLengthHeader).toLongLong()))
        failAsTooLarge();
}

void HttpExchange::collect() {
    if (!exceedsLimit(body_.size() + reply_->bytesAvailable()))
        body_ += reply_->readAll();
    else
        failAsTooLarge();
}

std::optional<QString> HttpExchange::fault() const {
    const int status = reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (!answerIsThere(reply_->error(), status))
        return reply_->errorString();
    const QVariant length = reply_->header(QNetworkRequest::ContentLengthHeader);
    const bool packed = !reply_->rawHeader("Content-Encoding").isEmpty();
    if (length.isValid() && !packed && status < 300 && length.toLongLong() != body_.size())
        return QStringLiteral("the body was cut short");
    return std::nullopt;
}

// Where a read goes on, if it is sent on within its own origin.
std::optional<QUrl> HttpExchange::redirection() const {
    const int status = reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const bool redirects = status == 301 || status == 302 || status == 303 || status == 307 || status == 308;
    const QByteArray location = reply_->rawHeader("Location");
    if (request_.method != "GET" || !redirects || location.isEmpty() || redirects_ >= mostRedirects)
        return std::nullopt;
    const QUrl target = request_.url.resolved(QUrl::fromEncoded(location));
    return isWebAddress(target) && isSameOrigin(target, request_.url) ? std::optional(target) : std::nullopt;
}

void HttpExchange::replyFinished() {
    if (const auto target = redirection()) {
        ++redirects_;
        request_.url = *target;
        body_.clear();
        releaseReply();
        start();
        return;
    }
    if (reply_->isOpen())
        body_ += reply_->readAll();
    const auto reason = fault();
    end(reason ? HttpAnswer::Fault::Transport : HttpAnswer::Fault::None, reason.value_or(QString()));
}

void HttpExchange::end(HttpAnswer::Fault fault, const QString& reason) {
    HttpAnswer answer;
    answer.fault = fault;
    answer.reason = reason;
    answer.body = std::move(body_);
    if (reply_ != nullptr) {
        answer.status = reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        answer.headers = reply_->rawHeaderPairs();
    }
    release();
    session_.finish(*this, answer);
}

void HttpExchange::release() {
    session_.clock_.cancel(deadline_);
    releaseReply();
}

void HttpExchange::releaseReply() {
    QNetworkReply* reply = std::exchange(reply_, nullptr);
    if (reply == nullptr)
        return;
    const bool isFinished = reply->isFinished();
    reply->disconnect(this);
    if (!isFinished)
        reply->abort();
    reply->deleteLater();
    if (request_.method == "GET")
        session_.reads_.giveBack(reply->manager(), isFinished && reply->error() == QNetworkReply::NoError);
}

HttpSession::HttpSession(SessionConfiguration configuration, Clock& clock, Reachability& reachability,
                         QObject* parent)
    : QObject(parent)
    , configuration_(std::move(configuration))
    , clock_(clock)
    , reachability_(reachability)
    , reads_(this) {
    connect(&reachability_, &Reachability::changed, this, [this] {
        for (HttpExchange* exchange : QList(exchanges_)) {
            if (!exchange->isStarted())
                exchange->isWanted() ? start(*exchange) : drop(*exchange);
        }
    });
}

HttpSession::~HttpSession() {
    for (HttpExchange* exchange : std::exchange(exchanges_, {})) {
        exchange->release();
        exchange->deleteLater();
    }
}

void HttpSession::send(const HttpRequest& request, Callback callback) {
    auto* exchange = new HttpExchange(*this, request, std::move(callback));
    exchanges_.append(exchange);
    start(*exchange);
}

void HttpSession::start(HttpExchange& exchange) {
    if (!configuration_.waitsForConnectivity || reachability_.isReachable())
        exchange.start();
}

void HttpSession::drop(HttpExchange& exchange) {
    exchange.release();
    exchanges_.removeOne(&exchange);
    exchange.deleteLater();
    if (retiring_)
        retire();
}

void HttpSession::finish(HttpExchange& exchange, const HttpAnswer& answer) {
    if (!exchanges_.removeOne(&exchange))
        return;
    exchange.deleteLater();
    if (retiring_)
        retire();
    exchange.takeCallback()(answer); // whose end may be that of this session too
}

void HttpSession::retire() {
    retiring_ = true;
    if (exchanges_.isEmpty())
        deleteLater();
}

} // namespace kavor
