#pragma once

#include "base/Int.h"

#include <array>
#include <compare>
#include <cstddef>
#include <functional>

namespace kavor {

// Three numbers as one key: a brand, a format and a model of clothing.
struct TripleTuple {
    Int a = 0;
    Int b = 0;
    Int c = 0;
    auto operator<=>(const TripleTuple&) const = default;
};

// Of a key made of several numbers, over all of them in their order.
template <std::size_t N>
std::size_t hashOf(const std::array<Int, N>& numbers) {
    std::size_t seed = N;
    for (const Int number : numbers)
        seed = (seed ^ std::hash<Int>()(number)) * 0x9E3779B97F4A7C15ULL + (seed >> 29U);
    return seed;
}

} // namespace kavor

template <>
struct std::hash<kavor::TripleTuple> {
    std::size_t operator()(const kavor::TripleTuple& key) const noexcept {
        return kavor::hashOf(std::array{key.a, key.b, key.c});
    }
};
