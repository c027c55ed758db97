#include "documents/OrderSyncState.h"

namespace kavor {

std::string_view label(OrderSyncState state) {
    switch (state) {
    case OrderSyncState::synced:
        return "Sincronizado";
    case OrderSyncState::savedLocally:
        return "Guardado local";
    case OrderSyncState::cloud:
        return "En la nube";
    case OrderSyncState::pendingToSend:
        return "Pendiente de envío";
    }
    return "";
}

std::string_view iconName(OrderSyncState state) {
    switch (state) {
    case OrderSyncState::synced:
        return "icon_order_sync";
    case OrderSyncState::savedLocally:
        return "icon_order_save_local";
    case OrderSyncState::cloud:
        return "icon_order_cloud";
    case OrderSyncState::pendingToSend:
        return "icon_order_pending_send";
    }
    return "";
}

} // namespace kavor
