#pragma once

#include "base/LocalDateTime.h"
#include "base/Url.h"
#include "catalogue/Enumerations.h"
#include "documents/OrderRequestType.h"
#include "documents/OrderSyncState.h"
#include "documents/UnansweredSend.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kavor {

// The body of "createTextileOrder" and the content of a textile draft file.
struct SaveTextileOrder {
    struct Order {
        struct OrderLine {
            Int textileId = 0;
            UInt quantity = 0;
        };

        std::string message;
        ApplicationType applicationType = ApplicationType::textil;
        std::optional<Int> typographyId;
        std::optional<std::string> orderComment;
        std::vector<OrderLine> orderLines;
    };

    struct Customer {
        std::optional<Int> id;
        std::optional<std::string> name;
        std::optional<std::string> contactName;
        std::optional<std::string> email;
        std::optional<std::string> telephone;
        std::optional<std::string> tevo;
        std::optional<std::string> placePostalCode;
        std::optional<std::string> placeLocality;
        std::optional<Int> placeLocalityId;
        std::optional<Int> placeProvinceId;
        std::optional<std::string> placeProvinceName;

        bool operator==(const Customer&) const = default;
    };

    static constexpr std::string_view folderName = "SaveTextileOrder";
    static constexpr bool onlyWrittenHere = true;

    OrderRequestType save = OrderRequestType::saveCloud;
    Order orderInformation;
    std::optional<Customer> customer;
    std::optional<std::string> filename;
    std::optional<Int> orderIdentifier;
    std::optional<OrderSyncState> syncState; // memory only
};

// The order as its file holds it, with what only the device knows.
struct KeptTextileOrder : SaveTextileOrder {
    std::optional<UnansweredSends> unansweredSends = std::nullopt; // absent rather than empty
};

struct SaveTextileOrderResponse {
    std::optional<Url> urlPDF;
    std::optional<Url> urlOrder;
    std::optional<Int> orderId;
};

// The answer of "retrieveTextileOrder".
struct RetrieveTextileOrderResponse {
    struct Order {
        Int id = 0;
        ApplicationType applicationType = ApplicationType::textil;
        std::string token;
        std::optional<Int> sourceIdentifier;
        LocalDateTime date;
        std::optional<std::string> pdv;
        Int stateIdentifier = 0;
        std::string state;
        std::optional<std::string> orderComment;
        std::optional<std::string> url;
        bool pending = false;
        std::optional<std::string> filename;
        std::optional<Int> typographyId;
        std::optional<std::string> message;
        std::vector<SaveTextileOrder::Order::OrderLine> orderLineList;
    };

    Int code = 0;
    std::string errorMessage;
    std::optional<SaveTextileOrder::Customer> customerInformation;
    Order orderInformation;
};

} // namespace kavor
