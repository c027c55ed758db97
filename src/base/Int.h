#pragma once

#include <cstdint>

namespace kavor {

// The integers of documents.
using Int = std::int64_t;
using UInt = std::uint64_t;

} // namespace kavor
