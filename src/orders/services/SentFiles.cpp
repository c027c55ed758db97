#include "orders/services/SentFiles.h"

#include "brochures/engine/SaveBrochuresOrder.h"
#include "orders/DraftsWithChanges.h"
#include "orders/services/SameOrder.h"
#include "orders/services/SendIntent.h"
#include "textile/SaveTextileOrder.h"

namespace kavor::sent_files {

namespace {

constexpr auto draft = OrderDiskManager::DirectoryName::draft;

template <class Order, class IsSent>
void removeDraftThat(const OrderDiskManager& orders, const Order& sent, IsSent isSent) {
    if (!sent.filename)
        return;
    const std::string file = OrderDiskManager::fileName(*sent.filename);
    const auto kept = orders.retrieve<Order>(file, draft);
    if (kept && isSent(*kept))
        orders.remove<Order>(file, draft);
}

// What the order asks for, whoever prints it.
std::string contentOf(SaveBrochuresOrder order) {
    order.save = OrderRequestType::sendToPrint;
    order.printedMyself = false;
    return SendContent(std::move(order)).text();
}
std::string contentOf(SaveTextileOrder order) {
    order.save = OrderRequestType::sendToPrint;
    return SendContent(std::move(order)).text();
}

template <class Order>
void forgetChangesOf(const OrderDiskManager& orders, const Order& sent, OrderFile::Kind kind) {
    if (sent.filename && !orders.exists<Order>(*sent.filename, draft))
        DraftsWithChanges::shared().remove(nameOfChanged(kind, *sent.filename));
}

} // namespace

void removeDraft(const OrderDiskManager& orders, const SaveBrochuresOrder& sent) {
    removeDraftThat(orders, sent, [&](const auto& kept) { return isThatOrder(kept, sent); });
}

void removeUnchangedDraft(const OrderDiskManager& orders, const SaveBrochuresOrder& sent) {
    removeDraftThat(orders, sent, [&](const auto& kept) { return contentOf(kept) == contentOf(sent); });
}

void removeUnchangedDraft(const OrderDiskManager& orders, const SaveTextileOrder& sent) {
    removeDraftThat(orders, sent, [&](const auto& kept) { return contentOf(kept) == contentOf(sent); });
}

void forgetChanges(const OrderDiskManager& orders, const SaveBrochuresOrder& sent) {
    forgetChangesOf(orders, sent, OrderFile::Kind::Brochure);
}

void forgetChanges(const OrderDiskManager& orders, const SaveTextileOrder& sent) {
    forgetChangesOf(orders, sent, OrderFile::Kind::Textile);
}

} // namespace kavor::sent_files
