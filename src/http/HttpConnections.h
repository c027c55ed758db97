#pragma once

#include <QNetworkReply>
#include <QUrl>

#include <vector>

class QNetworkAccessManager;
class QObject;

namespace kavor {

// What the server is asked to write in.
inline constexpr char acceptLanguage[] = "es-ES,es;q=0.9";

// Whether it is an http or https address of a host.
bool isWebAddress(const QUrl& url);
// Whether an error of a reply is an HTTP status of 400 and above whose answer is there. Qt has an error for
// each of them, and the other errors are faults of the transport.
bool isErrorOfStatus(QNetworkReply::NetworkError error, int status);

// Connections to the servers. Qt gives one manager six connections to a host, queues what is more, and fails
// the queue with a connection that breaks. So each manager from here carries one request at a time, and none
// waits for another or falls with it. Main thread only.
class HttpConnections {
public:
    // The owner, which outlives this object, gets the managers as children.
    explicit HttpConnections(QObject* owner)
        : owner_(owner) {}

    // A manager that carries nothing, with the connection that its last request left open, if one is at hand.
    [[nodiscard]] QNetworkAccessManager* take();
    // Its request is over. Unless that went well the connection is not used again.
    void giveBack(QNetworkAccessManager* manager, bool wentWell);

private:
    QObject* owner_;
    std::vector<QNetworkAccessManager*> idle_;
};

} // namespace kavor
