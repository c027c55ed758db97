#include "screens/PictureText.h"

#include <QBuffer>

#include <algorithm>

namespace kavor::picture_text {

namespace {

constexpr std::string_view pngPrefix = "data:image/png;base64,";

} // namespace

std::string of(const QImage& picture, int longestSide) {
    const bool large = longestSide > 0 && std::max(picture.width(), picture.height()) > longestSide;
    const QImage fitting =
        large ? picture.scaled(longestSide, longestSide, Qt::KeepAspectRatio, Qt::SmoothTransformation)
              : picture;
    QByteArray png;
    QBuffer buffer(&png);
    if (fitting.isNull() || !buffer.open(QIODevice::WriteOnly) || !fitting.save(&buffer, "PNG"))
        return {};
    return std::string(pngPrefix) + png.toBase64().toStdString();
}

std::string asPng(std::string_view text) {
    const auto comma = text.find(',');
    if (comma == std::string_view::npos)
        return {};
    const auto base64 = text.substr(comma + 1);
    const auto bytes = QByteArray::fromBase64(QByteArray(base64.data(), qsizetype(base64.size())));
    if (text.starts_with(pngPrefix) && bytes.startsWith("\x89PNG"))
        return std::string(text);
    return of(QImage::fromData(bytes));
}

} // namespace kavor::picture_text
