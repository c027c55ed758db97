#pragma once

#include "base/LocalDateTime.h"
#include "base/Url.h"
#include "catalogue/Enumerations.h"
#include "documents/OrderSyncState.h"

#include <optional>
#include <string>
#include <vector>

namespace kavor {

// The answer of "retrieveBrochureOrderListURL".
struct OrderList {
    struct Summary {
        std::optional<std::string> total;
        std::optional<std::string> noConfirm;
        std::optional<std::string> noComplete;
    };

    struct Order {
        Int id = 0;
        LocalDateTime date;
        bool canDemandQr = false;
        std::optional<Int> brandQrId;
        std::optional<Int> brandQrType;
        std::string type;
        BrochureType typeId = BrochureType::beer;
        std::optional<std::string> clientCode;
        std::optional<std::string> pdv;
        std::string state;
        OrderState stateId = OrderState::withoutConfirm;
        std::optional<std::string> note;
        std::optional<Url> url;
        std::optional<bool> pending;
        std::optional<std::string> filename;
        std::string token;
        std::optional<OrderSyncState> syncState; // memory only
    };

    struct OrderTextile {
        Int id = 0;
        ApplicationType applicationType = ApplicationType::textil;
        LocalDateTime date;
        std::string token;
        std::optional<Int> sourceIdentifier;
        std::optional<std::string> pdv;
        std::optional<std::string> tevo;
        std::string state;
        OrderState stateId = OrderState::withoutConfirm;
        std::optional<std::string> note;
        std::optional<Url> url;
        std::optional<bool> pending;
        std::optional<std::string> filename;
        Int typographyIdentifier = 0;
        std::optional<OrderSyncState> syncState; // memory only
    };

    Summary summary;
    std::optional<std::vector<Order>> orders;
    std::optional<std::vector<OrderTextile>> textileOrders;
};

} // namespace kavor
