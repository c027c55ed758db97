#include "resources/PictureText.h"

#include <QBuffer>
#include <QByteArray>

#include <algorithm>
#include <string_view>

namespace kavor {

namespace {

constexpr std::string_view prefix = "data:image/png;base64,";

std::string written(const QImage& picture) {
    QByteArray png;
    QBuffer buffer(&png);
    if (picture.isNull() || !buffer.open(QIODevice::WriteOnly) || !picture.save(&buffer, "PNG"))
        return {};
    return std::string(prefix) + png.toBase64().toStdString();
}

} // namespace

std::string pngDataText(const QImage& picture, int longestSide) {
    return written(
        std::max(picture.width(), picture.height()) > longestSide
            ? picture.scaled(longestSide, longestSide, Qt::KeepAspectRatio, Qt::SmoothTransformation)
            : picture);
}

std::string pngDataText(const std::optional<std::string>& dataText) {
    const auto comma = dataText ? dataText->find(',') : std::string::npos;
    if (comma == std::string::npos)
        return {};
    const auto bytes = QByteArray::fromBase64(QByteArray::fromStdString(dataText->substr(comma + 1)));
    if (dataText->starts_with(prefix) && bytes.startsWith("\x89PNG"))
        return *dataText;
    return written(QImage::fromData(bytes));
}

} // namespace kavor
