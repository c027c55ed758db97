#pragma once

#include "base/Int.h"

#include <optional>
#include <string>
#include <vector>

namespace kavor {

// The body of "promotionOrderSendURL".
struct PromotionOrder {
    struct Email {
        std::string email;
    };
    struct Support {
        Int id = 0;
        Int languageId = 0;
    };
    struct Attribute {
        Int id = 0;
        std::string value;
    };
    struct Customer {
        std::optional<Int> id;
        std::optional<std::string> codTevo;
        std::optional<std::string> name;
    };

    bool save = false; // false for the preview, true for the order
    Int promotionId = 0;
    std::optional<std::string> imageLogo;
    std::vector<Email> emails;
    std::vector<Support> supports;
    std::vector<Attribute> attributes;
    Customer customer;
    std::optional<std::string> dateFrom; // "dd-MM-yy"
    std::optional<std::string> dateTo;
    bool showMenu = false;
    bool showPromotionDay1 = false;
    bool showPromotionDay2 = false;
    bool showPromotionDay3 = false;
    bool showPromotionDay4 = false;
    bool showPromotionDay5 = false;
    bool showPromotionDay6 = false;
    bool showPromotionDay7 = false;
    std::optional<std::string> comment;
};

} // namespace kavor
