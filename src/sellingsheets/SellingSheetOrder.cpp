#include "sellingsheets/SellingSheetTables.h"

KAVOR_JSON_DOCUMENT(kavor::SellingSheetOrder)
KAVOR_JSON_DOCUMENT(kavor::SellingSheetOrderListResponse)
