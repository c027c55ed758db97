#include "base/Url.h"

#include "base/EightBytes.h"

#include <algorithm>
#include <cstdint>

namespace kavor {

namespace {

// Not 0 when eight bytes hold one that is no visible ASCII character.
std::uint64_t unusualIn(std::uint64_t bytes) {
    constexpr std::uint64_t each = 0x0101010101010101U;
    constexpr std::uint64_t high = each * 0x80;
    return ((bytes - each * 0x21) | (bytes + each) | bytes) & high; // below 0x21, 0x7F, above 0x7F
}

// Catalogues hold a hundred thousand addresses, nearly all of them plain.
bool isPlain(std::string_view text) {
    return isFreeOf(text, unusualIn);
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

bool hasValidPort(std::string_view authority) {
    const std::string_view port = portOf(authority);
    if (port.size() > 5 ||
        !std::all_of(port.begin(), port.end(), [](char c) { return c >= '0' && c <= '9'; }))
        return false;
    int value = 0;
    for (const char c : port)
        value = value * 10 + (c - '0');
    return value <= 65535;
}

} // namespace

bool Url::isValid(std::string_view text) {
    // The beginning of the last good address, to the slash behind the host: a catalogue's are all on one.
    thread_local std::string knownOrigin;
    if (!knownOrigin.empty() && text.starts_with(knownOrigin)) {
        const std::string_view rest = text.substr(knownOrigin.size());
        return isPlain(rest) || isReadable(rest);
    }
    if (text.empty() || !(isPlain(text) || isReadable(text)))
        return false;
    // Two slashes name a host when they stand at the beginning or behind the scheme's colon.
    const auto slash = text.find_first_of("/?#");
    if (slash == std::string_view::npos || !text.substr(slash).starts_with("//") ||
        (slash > 0 && text[slash - 1] != ':'))
        return true;
    const std::size_t host = slash + 2;
    if (!hasValidPort(text.substr(host)))
        return false;
    if (const auto end = text.find_first_of("/?#", host); end != std::string_view::npos && text[end] == '/')
        knownOrigin = text.substr(0, end + 1);
    return true;
}

} // namespace kavor
