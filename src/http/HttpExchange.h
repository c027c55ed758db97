#pragma once

#include <QByteArray>
#include <QList>
#include <QNetworkRequest>
#include <QObject>
#include <QPair>
#include <QString>
#include <QUrl>

#include <functional>
#include <optional>

class QNetworkReply;

namespace kavor {

class HttpConnections;

using HttpHeaders = QList<QPair<QByteArray, QByteArray>>;

// What is asked of a server.
struct HttpRequest {
    QByteArray method = "GET";
    QUrl url;
    HttpHeaders headers = {};
    QByteArray body = {};
    QByteArray contentType = {};
};

// How a request ended. The status, headers and body hold what had arrived when a fault ended it.
struct HttpAnswer {
    enum class Fault { None, TimedOut, Transport };
    Fault fault = Fault::None;
    int status = 0; // 0 when no answer came
    HttpHeaders headers;
    QByteArray body;
    QString reason;                // of a fault, for the log
    bool isTooLarge = false;       // the fault is a body above the limit
    bool isRedirect = false;       // the answer leads elsewhere, where the rules do not follow
    bool lengthIsVerified = false; // the server announced the length, and the body has it
};

// What holds for an exchange. The rules that have no choice are told at HttpExchange.
struct HttpRules {
    enum class Redirects {
        WithinOrigin, // for what carries a token
        AnyHost,      // but never out of TLS
    };
    Redirects redirects = Redirects::WithinOrigin;
    bool asksForPacked = true;  // without it a packed body is a fault
    qint64 answerSizeLimit = 0; // bytes, unpacked
    int silenceLimit = 0;       // milliseconds without a byte; 0: none
};

// One request from its start to its answer. An HTTP status is an answer, also that of an error; what breaks
// off below it, a body that is shorter than announced, and one above the limit are faults. A GET follows
// redirects as far as the rules allow, each hop as a request of its own; the other methods follow none, have
// a connection that no request has used, and are never sent twice. No cookies. Main thread only.
class HttpExchange : public QObject {
public:
    using Callback = std::function<void(const HttpAnswer&)>;

    // The callback runs once, never inside start(), and the exchange deletes itself then; who deletes it
    // before hears nothing. The connections outlive it.
    HttpExchange(HttpConnections& connections, const HttpRules& rules, HttpRequest request, Callback callback,
                 QObject* parent);

    void start();
    // Ends it now, as timed out.
    void timeOut() { end(HttpAnswer::Fault::TimedOut, QStringLiteral("timed out")); }

private:
    [[nodiscard]] bool reads() const { return request_.method == "GET"; }
    [[nodiscard]] QNetworkRequest networkRequest() const;
    [[nodiscard]] int status() const;
    void collect(qint64 announced);
    void replyFinished();
    [[nodiscard]] std::optional<QUrl> redirection() const;
    [[nodiscard]] bool isFollowed(const QUrl& target) const;
    [[nodiscard]] std::optional<QString> fault() const;
    void fail(const QString& reason) { end(HttpAnswer::Fault::Transport, reason); }
    void end(HttpAnswer::Fault fault, const QString& reason);
    void releaseReply(bool wentWell);

    HttpConnections& connections_;
    HttpRules rules_;
    HttpRequest request_;
    Callback callback_;
    QNetworkReply* reply_ = nullptr;
    QByteArray body_;
    int redirects_ = 0;
    bool isTooLarge_ = false;
};

} // namespace kavor
