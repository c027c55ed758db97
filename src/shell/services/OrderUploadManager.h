#pragma once

#include "base/NotificationCenter.h"
#include "brochures/engine/SaveBrochuresOrder.h"

#include <QObject>

#include <memory>
#include <string>
#include <vector>

namespace kavor {

class DispatchGroup;
class ServiceOperations;

// Sends the device's brochure order files to the server as a diagnostic, one after the other, beginning with
// the last of the list. "UploadOrder" sends the next one; "UploadingOrderChangedProgress" tells (done,
// total).
class OrderUploadManager : public QObject {
    Q_OBJECT
public:
    struct NamedOrder {
        std::string fileName; // with the extension
        SaveBrochuresOrder order;
    };
    // The key of the pair (done, total) in the notification.
    static constexpr char progressKey[] = "object";

    // Leaves the group, while it lives, once for each order. The other collaborators outlive the manager.
    OrderUploadManager(std::vector<NamedOrder> orders, const std::shared_ptr<DispatchGroup>& group,
                       ServiceOperations& network, NotificationCenter& notifications,
                       QObject* parent = nullptr);

private:
    void uploadOrder();
    void orderDone();

    std::vector<NamedOrder> orders_;
    std::size_t totalNumberOfOrders_;
    std::weak_ptr<DispatchGroup> dispatchGroup_;
    ServiceOperations& network_;
    NotificationCenter& notifications_;
    NotificationCenter::Subscription subscription_;
};

} // namespace kavor
