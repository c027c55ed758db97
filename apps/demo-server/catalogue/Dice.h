#pragma once

#include <cstdint>
#include <string_view>

namespace kavor::demo {

/// A small generator whose throws depend on its seed alone, so that every run makes the same catalogue.
class Dice {
public:
    explicit Dice(std::uint64_t seed)
        : state_(seed * 0x9E3779B97F4A7C15ull + 0x632BE59BD9B4E019ull) {}

    std::uint64_t next() {
        std::uint64_t z = (state_ += 0x9E3779B97F4A7C15ull);
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
        return z ^ (z >> 31);
    }

    /// A number from 0 to limit - 1.
    int below(int limit) { return limit > 0 ? int(next() % std::uint64_t(limit)) : 0; }

    /// A number from 0 to just below 1.
    double fraction() { return double(next() >> 11) / double(1ull << 53); }

private:
    std::uint64_t state_;
};

/// A 64-bit mark of a text (FNV-1a).
inline std::uint64_t markOf(std::string_view text, std::uint64_t start = 0xCBF29CE484222325ull) {
    for (const unsigned char byte : text) {
        start = (start ^ byte) * 0x100000001B3ull;
    }
    return start;
}

} // namespace kavor::demo
