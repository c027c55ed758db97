#pragma once

#include <QImage>

#include <optional>
#include <string>

namespace kavor {

// A picture as it travels inside an order, "data:image/png;base64,...", made smaller where a side is longer
// than the given pixels; empty when it can't be written. For any thread.
std::string pngDataText(const QImage& picture, int longestSide);
// The picture in the base64 after the first comma of a data text, as PNG; empty when there is none.
std::string pngDataText(const std::optional<std::string>& dataText);

} // namespace kavor
