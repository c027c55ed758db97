#pragma once

#include <cstdint>
#include <cstring>
#include <string_view>

namespace kavor {

// Whether no eight bytes of a text hold what a function finds in them (it answers 0 when there is nothing).
// False for a text of fewer than eight bytes, which is not looked at. The last eight may be looked at twice.
template <class Find>
bool isFreeOf(std::string_view text, Find find) {
    if (text.size() < sizeof(std::uint64_t))
        return false;
    const auto wordAt = [text](std::size_t place) {
        std::uint64_t bytes = 0;
        std::memcpy(&bytes, text.data() + place, sizeof bytes);
        return bytes;
    };
    const std::size_t last = text.size() - sizeof(std::uint64_t);
    std::uint64_t found = find(wordAt(last));
    for (std::size_t i = 0; i < last; i += sizeof(std::uint64_t))
        found |= find(wordAt(i));
    return found == 0;
}

} // namespace kavor
