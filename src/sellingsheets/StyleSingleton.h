#pragma once

#include "sellingsheets/SellingSheetOrder.h"

#include <optional>
#include <string>

namespace kavor {

// The selling sheet in work, carried between the screens of the section. Main thread only.
struct StyleSingleton {
    std::optional<SellingSheetOrder> editingOrder;
    std::optional<std::string> orderFilename; // the plain name of its draft; none while it was never stored

    static StyleSingleton& shared();
};

} // namespace kavor
