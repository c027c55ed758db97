#include "base/Url.h"

#include <algorithm>

namespace kavor {

bool Url::isValid(std::string_view text) {
    if (text.empty())
        return false;
    const auto unreadable = [](unsigned char c) { return c <= 0x20 || c == 0x7f; };
    if (std::any_of(text.begin(), text.end(), unreadable))
        return false;
    // C1 controls and the no-break space are two bytes in UTF-8 (C2 80 to C2 A0).
    for (std::size_t i = 0; i + 1 < text.size(); ++i) {
        const auto next = static_cast<unsigned char>(text[i + 1]);
        if (static_cast<unsigned char>(text[i]) == 0xC2 && next >= 0x80 && next <= 0xA0)
            return false;
    }
    const auto scheme = text.find("://");
    if (scheme == std::string_view::npos)
        return true;
    std::string_view authority = text.substr(scheme + 3);
    authority = authority.substr(0, authority.find_first_of("/?#"));
    if (const auto user = authority.rfind('@'); user != std::string_view::npos)
        authority.remove_prefix(user + 1);
    if (const auto bracket = authority.rfind(']'); bracket != std::string_view::npos)
        authority.remove_prefix(bracket + 1);
    const auto colon = authority.find(':');
    if (colon == std::string_view::npos)
        return true;
    const std::string_view port = authority.substr(colon + 1);
    if (port.size() > 5 || !std::all_of(port.begin(), port.end(), [](char c) { return c >= '0' && c <= '9'; }))
        return false;
    int value = 0;
    for (const char c : port)
        value = value * 10 + (c - '0');
    return value <= 65535;
}

} // namespace kavor
