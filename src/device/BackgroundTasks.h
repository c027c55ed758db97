#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <optional>

namespace kavor {

class Clock;
class Reachability;

struct BackgroundRequest {
    QString identifier;
    bool needsNetwork = false;
    std::chrono::milliseconds earliestBegin{0}; // from the moment of submission
};

// One run that the platform granted. It ends by complete, once; later calls do nothing. When its time is up,
// the expiration handler runs and is expected to complete it.
class BackgroundTask {
public:
    BackgroundTask(QString identifier, std::function<void(bool)> completed);
    [[nodiscard]] const QString& identifier() const { return identifier_; }
    void setExpirationHandler(std::function<void()> handler) { expiration_ = std::move(handler); }
    void complete(bool success);
    [[nodiscard]] bool isComplete() const { return !completed_; }
    // Called by the platform.
    void expire();

private:
    QString identifier_;
    std::function<void()> expiration_;
    std::function<void(bool)> completed_;
};

// Work that the platform starts at a moment of its choice. One pending request for each identifier: a new one
// replaces it.
class BackgroundTasks {
public:
    using Handler = std::function<void(const std::shared_ptr<BackgroundTask>&)>;

    virtual ~BackgroundTasks() = default;
    virtual void registerHandler(const QString& identifier, Handler handler) = 0;
    // Nothing, or why the request was refused (no handler is registered for its identifier).
    virtual std::optional<QString> submit(const BackgroundRequest& request) = 0;
    virtual void cancel(const QString& identifier) = 0;
    virtual void cancelAll() = 0;
};

// Background tasks by timer while the client runs. A run begins when its earliest moment and the pause after
// the request have come, the interval since the last run of the identifier is over, where it asks for that
// the network is there, and the gate lets it pass.
class TimerBackgroundTasks : public QObject, public BackgroundTasks {
    Q_OBJECT
public:
    struct Pace {
        std::chrono::milliseconds betweenRuns = std::chrono::minutes(15);
        std::chrono::milliseconds budget = std::chrono::minutes(3); // a run that takes longer expires
        // The client is in front when it asks for a run, and may be sending the same things itself.
        std::chrono::milliseconds afterRequest = std::chrono::minutes(4);
        std::chrono::milliseconds atGate = std::chrono::seconds(30); // until a closed gate is asked again
    };

    TimerBackgroundTasks(Clock& clock, Reachability& reachability, Pace pace, QObject* parent = nullptr);
    // Asked before each run: whether it may begin now. Open when never set.
    void setGate(std::function<bool()> gate) { gate_ = std::move(gate); }
    void registerHandler(const QString& identifier, Handler handler) override;
    std::optional<QString> submit(const BackgroundRequest& request) override;
    void cancel(const QString& identifier) override;
    void cancelAll() override;

private:
    struct Pending {
        BackgroundRequest request;
        quint64 timer = 0;
        bool due = false;
    };

    void becomeDue(const QString& identifier);
    void startIfPossible(const QString& identifier);
    void start(const QString& identifier);

    Clock& clock_;
    Reachability& reachability_;
    Pace pace_;
    std::function<bool()> gate_;
    std::map<QString, Handler> handlers_;
    std::map<QString, Pending> pending_;
    std::map<QString, qint64> lastRun_; // milliseconds since the epoch
    std::map<QString, std::shared_ptr<BackgroundTask>> running_;
};

} // namespace kavor
