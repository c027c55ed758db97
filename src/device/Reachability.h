#pragma once

#include <QObject>

namespace kavor {

// Whether the network can be reached. A screen asks before it starts a request.
class Reachability : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool reachable READ isReachable NOTIFY changed)
public:
    using QObject::QObject;
    [[nodiscard]] virtual bool isReachable() const = 0;

signals:
    void changed();
};

// What the system's network information says: only a definite "disconnected" means offline, for there may be
// no backend, or one that does not know. KAVOR_OFFLINE=1 in the environment forces offline.
class QtReachability : public Reachability {
    Q_OBJECT
public:
    explicit QtReachability(QObject* parent = nullptr);
    [[nodiscard]] bool isReachable() const override { return reachable_; }

    // Makes the client believe that it is offline, or ends that.
    void setForcedOffline(bool forced);

private:
    void update();

    bool forcedOffline_ = false;
    bool reachable_ = true;
};

} // namespace kavor
