#include "base/Url.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace kavor {

namespace {

// Not 0 when eight bytes hold a control character, a blank, or the first byte (C2) of a control character in
// UTF-8.
std::uint64_t unreadableIn(std::uint64_t bytes) {
    constexpr std::uint64_t each = 0x0101010101010101U;
    constexpr std::uint64_t high = each * 0x80;
    const auto anyZero = [](std::uint64_t value) { return (value - each) & ~value & high; };
    const std::uint64_t below = (bytes - each * 0x21) & ~bytes & high;
    return below | anyZero(bytes ^ (each * 0x7F)) | anyZero(bytes ^ (each * 0xC2));
}

// Catalogues hold a hundred thousand addresses, nearly all of them plain.
bool isPlain(std::string_view text) {
    if (text.size() < sizeof(std::uint64_t))
        return false;
    const auto wordAt = [text](std::size_t place) {
        std::uint64_t bytes = 0;
        std::memcpy(&bytes, text.data() + place, sizeof bytes);
        return bytes;
    };
    const std::size_t last = text.size() - sizeof(std::uint64_t);
    std::uint64_t found = unreadableIn(wordAt(last));
    for (std::size_t i = 0; i < last; i += sizeof(std::uint64_t))
        found |= unreadableIn(wordAt(i));
    return found == 0;
}

bool isReadable(std::string_view text) {
    const auto unreadable = [](unsigned char c) { return c <= 0x20 || c == 0x7f; };
    if (std::any_of(text.begin(), text.end(), unreadable))
        return false;
    // C1 controls and the no-break space are two bytes in UTF-8 (C2 80 to C2 A0).
    for (std::size_t i = 0; i + 1 < text.size(); ++i) {
        const auto next = static_cast<unsigned char>(text[i + 1]);
        if (static_cast<unsigned char>(text[i]) == 0xC2 && next >= 0x80 && next <= 0xA0)
            return false;
    }
    return true;
}

// What stands behind the host's colon, without user and bracketed address; nothing without a colon.
std::string_view portOf(std::string_view authority) {
    std::size_t colon = std::string_view::npos;
    std::size_t i = 0;
    for (; i < authority.size(); ++i) {
        const char c = authority[i];
        if (c == '/' || c == '?' || c == '#')
            break;
        if (c == '@' || c == ']')
            colon = std::string_view::npos;
        else if (c == ':' && colon == std::string_view::npos)
            colon = i;
    }
    return colon == std::string_view::npos ? std::string_view() : authority.substr(colon + 1, i - colon - 1);
}

} // namespace

bool Url::isValid(std::string_view text) {
    if (text.empty() || !(isPlain(text) || isReadable(text)))
        return false;
    const auto scheme = text.find("://");
    if (scheme == std::string_view::npos)
        return true;
    const std::string_view port = portOf(text.substr(scheme + 3));
    if (port.size() > 5 ||
        !std::all_of(port.begin(), port.end(), [](char c) { return c >= '0' && c <= '9'; }))
        return false;
    int value = 0;
    for (const char c : port)
        value = value * 10 + (c - '0');
    return value <= 65535;
}

} // namespace kavor
