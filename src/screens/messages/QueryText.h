#pragma once

#include <QString>

namespace kavor {

// A text that travels in the address of a request, which servers don't take at any length.
namespace query_text {

inline constexpr qsizetype most = 7500; // bytes, percent-encoded

// The longest beginning of the text that fits; no letter is torn.
QString fitting(const QString& text);
// How full it is, for the user: "6120/7500"; empty while there is plenty of room.
QString counter(const QString& text);

} // namespace query_text

} // namespace kavor
