#pragma once

#include "device/Clock.h"
#include "http/HttpConnections.h"
#include "http/HttpExchange.h"

#include <QObject>

#include <chrono>
#include <functional>
#include <memory>
#include <vector>

namespace kavor {

class Reachability;

// How a session carries its requests.
struct SessionConfiguration {
    std::chrono::milliseconds requestTimeout{120'000}; // for the whole request, not for its silences
    HttpHeaders additionalHeaders;                     // on every request
    bool waitsForConnectivity = false;                 // a request starts when the network can be reached
    qint64 answerSizeLimit = 256LL * 1024 * 1024;      // bytes, unpacked
};

// A set of connections to the server and the settings of its requests. Each request has its connection to
// itself, so that one that breaks takes no other with it. Main thread only.
class HttpSession : public QObject {
    Q_OBJECT
public:
    using Callback = HttpExchange::Callback;
    using IsWanted = std::function<bool()>;

    HttpSession(SessionConfiguration configuration, Clock& clock, Reachability& reachability,
                QObject* parent = nullptr);

    // Sends a request; the callback runs once and later, unless the session is destroyed before or the
    // request was no longer wanted when the network came for which it had to wait.
    void send(HttpRequest request, Callback callback, IsWanted isWanted);
    // Deletes the session as soon as the last of its requests has ended; it gets no further ones.
    void retire();

private:
    // A request that has not ended.
    struct Sent {
        Callback callback;
        IsWanted isWanted;
        HttpExchange* exchange = nullptr;
        Clock::TimerId deadline = 0;
    };
    using SentPointer = std::shared_ptr<Sent>;

    void startOrWait(const SentPointer& sent);
    void networkChanged();
    void forget(const SentPointer& sent);

    SessionConfiguration configuration_;
    Clock& clock_;
    Reachability& reachability_;
    HttpConnections connections_;
    std::vector<SentPointer> waiting_; // for the network
    int open_ = 0;                     // requests that have not ended
    bool retiring_ = false;
};

} // namespace kavor
