#include "textile/UnitsText.h"

#include <algorithm>
#include <charconv>
#include <string>

namespace kavor {

namespace {

bool isDigit(char letter) {
    return letter >= '0' && letter <= '9';
}

// Points stand before groups of three digits, the first group has one to three.
bool isGrouped(std::string_view text) {
    constexpr std::size_t group = 4; // with its point
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isPlaceOfPoint = (text.size() - i) % group == 0;
        if (isPlaceOfPoint ? text[i] != '.' || i == 0 : !isDigit(text[i]))
            return false;
    }
    return !text.empty();
}

} // namespace

std::optional<UInt> unitsOf(std::string_view text) {
    std::string digits(text);
    if (isGrouped(text))
        std::erase(digits, '.');
    UInt units = 0;
    const char* const end = digits.data() + digits.size();
    const auto [read, error] = std::from_chars(digits.data(), end, units);
    const bool good = std::ranges::all_of(digits, isDigit) && error == std::errc() && read == end;
    return good ? std::optional(units) : std::nullopt;
}

} // namespace kavor
