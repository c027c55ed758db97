#pragma once

#include "sellingsheets/SellingSheetOrder.h"
#include "support/CatalogueBuilder.h"

namespace kavor {

// Adds two styles, their positions unlike their numbers, and offers some of the formats: 110 in boxes of 24
// and 111 that is no bottle (brand 11), 100 in boxes of 12 (brand 10).
inline void addSheets(CatalogueBuilder& builder) {
    SellingSheet sheets;
    sheets.validations = {5, 4, 10};
    sheets.styles = {{31, "Pizarra", 2, {"k31", "/pizarra.png", 3}},
                     {32, "Verano", 1, {"k32", "/verano.png", 3}}};
    builder.information.sellingSheet = sheets;
    for (Product& brand : builder.information.products) {
        for (auto& format : brand.productList) {
            format.showOnSellingSheet = format.id == 110 || format.id == 111 || format.id == 100;
            format.isBottle = format.id != 111;
            if (format.id == 110)
                format.bottlesPerBox = 24;
            if (format.id == 100)
                format.bottlesPerBox = 12;
        }
    }
}

// A sheet that nothing keeps from being sent.
inline SellingSheetOrder completeSheet() {
    SellingSheetOrder sheet;
    sheet.styleIdentifier = 31;
    sheet.orderName = "A";
    sheet.title = "Verde";
    sheet.fromDate = "2024-06-01";
    sheet.toDate = "2024-06-30";
    sheet.emailToSend1 = "uno@bar.es";
    sheet.emailToSend2 = sheet.emailToSend3 = "";
    sheet.items = {{7, "REF", 3, 110, 2, 100, 1, 60.0}};
    return sheet;
}

} // namespace kavor
