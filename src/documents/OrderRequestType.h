#pragma once

#include "base/Enumeration.h"

namespace kavor {

// What the server is to do with a saved order: the key "save" of order documents.
#define KAVOR_ORDER_REQUEST_TYPES(CASE)                                                                      \
    CASE(sendToPrint, 1)                                                                                     \
    CASE(sendPreview, 2)                                                                                     \
    CASE(saveCloud, 3)
KAVOR_ENUMERATION(OrderRequestType, KAVOR_ORDER_REQUEST_TYPES)

} // namespace kavor
