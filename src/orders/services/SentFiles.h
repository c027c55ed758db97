#pragma once

#include "orders/OrderDiskManager.h"

namespace kavor {

struct SaveBrochuresOrder;
struct SaveTextileOrder;

// What becomes of the draft of an order that the server has taken to print.
namespace sent_files {

// Removes the draft of the order's name where it is that order: a name may have been given to another one,
// which nobody has sent. From any thread.
void removeDraft(const OrderDiskManager& orders, const SaveBrochuresOrder& sent);
// The same for an order that waited in the outbox: the user may have gone on with its draft, which stays
// then.
void removeUnchangedDraft(const OrderDiskManager& orders, const SaveBrochuresOrder& sent);
void removeUnchangedDraft(const OrderDiskManager& orders, const SaveTextileOrder& sent);
// A draft that is gone has no changes. Main thread only.
void forgetChanges(const OrderDiskManager& orders, const SaveBrochuresOrder& sent);
void forgetChanges(const OrderDiskManager& orders, const SaveTextileOrder& sent);

} // namespace sent_files

} // namespace kavor
