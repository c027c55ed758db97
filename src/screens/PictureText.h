#pragma once

#include <QImage>

#include <string>
#include <string_view>

// Pictures as orders carry them: the text "data:image/png;base64," and the picture as PNG. QML shows them by
// dataImageUrl.
namespace kavor::picture_text {

// Empty for no picture. One that is larger is made smaller, to this longest side in pixels; 0 leaves it.
std::string of(const QImage& picture, int longestSide = 0);
// A picture of any kind in such a text as a PNG; the text itself where it is one, empty when it is no picture
// that this device can read.
std::string asPng(std::string_view text);

} // namespace kavor::picture_text
