#pragma once

#include "base/Enumeration.h"

namespace kavor {

// Where an order lives, as the order list shows it: file on the device and order on the server, file on the
// device only, order on the server only, file in the outbox. Never stored; computed for the list.
#define KAVOR_ORDER_SYNC_STATES(CASE)                                                                        \
    CASE(synced, 0, "Sincronizado", "icon_order_sync")                                                       \
    CASE(savedLocally, 1, "Guardado local", "icon_order_save_local")                                         \
    CASE(cloud, 2, "En la nube", "icon_order_cloud")                                                         \
    CASE(pendingToSend, 3, "Pendiente de envío", "icon_order_pending_send")
KAVOR_ENUMERATION(OrderSyncState, KAVOR_ORDER_SYNC_STATES)

} // namespace kavor
