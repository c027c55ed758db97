#pragma once

#include <vector>

class QNetworkAccessManager;
class QObject;

namespace kavor {

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
