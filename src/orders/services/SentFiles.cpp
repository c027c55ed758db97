#include "orders/services/SentFiles.h"

#include "brochures/engine/SaveBrochuresOrder.h"
#include "orders/DraftsWithChanges.h"
#include "orders/services/SameOrder.h"
#include "orders/services/SendIntent.h"

namespace kavor::sent_files {

namespace {

constexpr auto draft = OrderDiskManager::DirectoryName::draft;

template <class IsSent>
void removeDraftThat(const OrderDiskManager& orders, const SaveBrochuresOrder& sent, IsSent isSent) {
    if (!sent.filename)
        return;
    const std::string file = OrderDiskManager::fileName(*sent.filename);
    const auto kept = orders.retrieve<SaveBrochuresOrder>(file, draft);
    if (kept && isSent(*kept))
        orders.remove<SaveBrochuresOrder>(file, draft);
}

// What the order asks for, whoever prints it.
std::string contentOf(SaveBrochuresOrder order) {
    order.save = OrderRequestType::sendToPrint;
    order.printedMyself = false;
    return SendContent(std::move(order)).text();
}

} // namespace

void removeDraft(const OrderDiskManager& orders, const SaveBrochuresOrder& sent) {
    removeDraftThat(orders, sent, [&](const auto& kept) { return isThatOrder(kept, sent); });
}

void removeUnchangedDraft(const OrderDiskManager& orders, const SaveBrochuresOrder& sent) {
    removeDraftThat(orders, sent, [&](const auto& kept) { return contentOf(kept) == contentOf(sent); });
}

void forgetChanges(const OrderDiskManager& orders, const SaveBrochuresOrder& sent) {
    if (sent.filename && !orders.exists<SaveBrochuresOrder>(*sent.filename, draft))
        DraftsWithChanges::shared().remove(*sent.filename);
}

} // namespace kavor::sent_files
