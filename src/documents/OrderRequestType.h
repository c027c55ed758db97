#pragma once

#include "base/Int.h"

namespace kavor {

// What the server is to do with a saved order: the key "save" of order documents.
enum class OrderRequestType : Int { sendToPrint = 1, sendPreview = 2, saveCloud = 3 };

} // namespace kavor
