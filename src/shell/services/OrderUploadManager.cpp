#include "shell/services/OrderUploadManager.h"

#include "documents/Answers.h"
#include "network/ServiceOperations.h"
#include "shell/services/DispatchGroup.h"

#include <utility>

namespace kavor {

OrderUploadManager::OrderUploadManager(std::vector<NamedOrder> orders,
                                       const std::shared_ptr<DispatchGroup>& group,
                                       ServiceOperations& network, NotificationCenter& notifications,
                                       QObject* parent)
    : QObject(parent)
    , orders_(std::move(orders))
    , totalNumberOfOrders_(orders_.size())
    , dispatchGroup_(group)
    , network_(network)
    , notifications_(notifications)
    , subscription_(notifications.observe(notification::uploadOrder,
                                          [this](const NotificationInfo&) { uploadOrder(); })) {}

void OrderUploadManager::uploadOrder() {
    if (orders_.empty())
        return;
    const NamedOrder next = std::move(orders_.back());
    orders_.pop_back();
    // A failure is not told to the user: the upload helps the support staff only.
    network_.sendRawOrder(next.order, QString::fromStdString(next.fileName),
                          {this, [this](const SimpleResponse&) { orderDone(); },
                           [this](const RequestFailure&) { orderDone(); }});
}

void OrderUploadManager::orderDone() {
    // The next order is taken off the list before the count is told, so the count runs one ahead. It is
    // meant.
    notifications_.post(notification::uploadOrder);
    const auto total = std::int64_t(totalNumberOfOrders_);
    notifications_.post(notification::uploadingOrderChangedProgress,
                        {{progressKey, std::pair(total - std::int64_t(orders_.size()), total)}});
    if (const auto group = dispatchGroup_.lock())
        group->leave();
}

} // namespace kavor
