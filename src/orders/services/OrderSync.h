#pragma once

#include <memory>

namespace kavor {

class BackgroundTask;

// The synchronisation of orders with the cloud, as the send step needs it.
class OrderSync {
public:
    virtual ~OrderSync() = default;
    // Plans the next background run and queues the current draft.
    virtual void startOrderSync() = 0;
};

// The same, as the application's life cycle needs it.
class BackgroundOrderSync : public OrderSync {
public:
    static constexpr char taskIdentifier[] = "com.Kavor.brochures";

    // Asks the platform for a background run anew.
    virtual void replanBrochureSync() = 0;
    // Asks the platform for a background run.
    virtual void scheduleBrochureSync() = 0;
    // One background run.
    virtual void handleBrochureSync(const std::shared_ptr<BackgroundTask>& task) = 0;
};

} // namespace kavor
