#pragma once

#include "base/Int.h"
#include "base/Url.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kavor {

// A selling sheet: the draft, the body of "sellingSheetOrderSendURL" and a record of the server's list at
// once.
struct SellingSheetOrder {
    // A module of the sheet.
    struct Item {
        Int identifier = 0;
        std::optional<std::string> promotionCode;
        Int position = 0;
        Int productIdentifier1 = 0;
        Int productBox1 = 0;
        std::optional<Int> productIdentifier2;
        std::optional<Int> productBox2;
        double price = 0;

        bool operator==(const Item&) const = default;
    };

    static constexpr std::string_view folderName = "SellingSheetOrder";
    static constexpr bool onlyWrittenHere = true;

    Int identifier = 0;
    std::optional<bool> save; // written when set, never read back
    std::string orderToken;
    std::string createdAt;
    Int styleIdentifier = 0;
    std::string orderName;
    std::string title;
    std::optional<std::string> subtitle;
    bool areTaxesIncluded = false;
    std::string fromDate; // "yyyy-MM-dd"
    std::string toDate;
    bool isNRVLogoIncluded = false;
    std::optional<std::string> distributionLogo;
    std::optional<std::string> distributionLogoURL;
    std::optional<std::string> freeText;
    bool showOneModulePerPage = false;
    std::optional<Url> PDFURL;
    std::optional<std::string> emailToSend1;
    std::optional<std::string> emailToSend2;
    std::optional<std::string> emailToSend3;
    std::vector<Item> items;

    bool operator==(const SellingSheetOrder&) const = default;
};

// The answer of "sellingSheetOrderListURL".
struct SellingSheetOrderListResponse {
    std::vector<SellingSheetOrder> orders;
};

} // namespace kavor
