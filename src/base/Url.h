#pragma once

#ifndef Q_MOC_RUN // its parser stops at concepts
#include <compare>
#endif
#include <string>
#include <string_view>

namespace kavor {

// A URL as a server document gives it. Its text is not empty and has no blanks or control characters; its
// port, when it names one, is a number up to 65535. A relative path is a URL too.
struct Url {
    std::string text;
    auto operator<=>(const Url&) const = default;

    // Whether a text forms a URL.
    static bool isValid(std::string_view text);
};

} // namespace kavor
