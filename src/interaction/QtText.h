#pragma once

#include <QString>

#include <string_view>

namespace kavor {

inline QString fromUtf8(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}

} // namespace kavor
