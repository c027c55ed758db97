#pragma once

#include "http/HttpConnections.h"

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QPair>
#include <QString>
#include <QUrl>

#include <chrono>
#include <functional>

namespace kavor {

class Clock;
class Reachability;
class HttpExchange;

using HttpHeaders = QList<QPair<QByteArray, QByteArray>>;

// How a session carries its requests.
struct SessionConfiguration {
    std::chrono::milliseconds requestTimeout{120'000}; // for the whole request, not for its silences
    HttpHeaders additionalHeaders;                     // on every request
    bool waitsForConnectivity = false;                 // a request starts when the network can be reached
    qint64 answerSizeLimit = 256LL * 1024 * 1024;      // bytes, unpacked
};

struct HttpRequest {
    QByteArray method;
    QUrl url;
    HttpHeaders headers;
    QByteArray body;
    QByteArray contentType;
    std::function<bool()> isWanted = {}; // asked again when it had to wait for the network; empty: it is
};

// How a request ended. The status, headers and body hold what had arrived when a fault ended it.
struct HttpAnswer {
    enum class Fault { None, TimedOut, Transport };
    Fault fault = Fault::None;
    int status = 0; // 0 when no answer came
    HttpHeaders headers;
    QByteArray body;
    QString reason; // of a fault, for the log
};

// A set of connections to the server and the settings of its requests. Each request has its connection to
// itself, so that one that breaks takes no other with it. A GET follows redirects within its own origin, the
// other methods follow none and are never sent twice. Main thread only.
class HttpSession : public QObject {
    Q_OBJECT
public:
    using Callback = std::function<void(const HttpAnswer&)>;

    HttpSession(SessionConfiguration configuration, Clock& clock, Reachability& reachability,
                QObject* parent = nullptr);
    ~HttpSession() override;

    // Sends a request; the callback runs once and later, unless the session is destroyed before or the
    // request was no longer wanted when the network came.
    void send(const HttpRequest& request, Callback callback);
    // Deletes the session as soon as the last of its requests has ended; it gets no further ones.
    void retire();

private:
    void start(HttpExchange& exchange);
    void drop(HttpExchange& exchange);
    void finish(HttpExchange& exchange, const HttpAnswer& answer);
    friend class HttpExchange;

    SessionConfiguration configuration_;
    Clock& clock_;
    Reachability& reachability_;
    HttpConnections reads_; // anything but a GET gets a connection that no request has used
    QList<HttpExchange*> exchanges_;
    bool retiring_ = false;
};

} // namespace kavor
