#pragma once

#include "orders/OrderDiskManager.h"

#include <compare>
#include <string>

namespace kavor {

// A file of the device: what it holds, its folder and its plain name.
struct OrderFile {
    enum class Kind { Brochure, Textile };

    Kind kind = Kind::Brochure;
    OrderDiskManager::DirectoryName directory = OrderDiskManager::DirectoryName::draft;
    std::string plainName;

    [[nodiscard]] std::string fileName() const { return OrderDiskManager::fileName(plainName); }
    auto operator<=>(const OrderFile&) const = default;
};

} // namespace kavor
