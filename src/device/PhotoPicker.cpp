#include "device/PhotoPicker.h"

#include <QFileInfo>
#include <QImageReader>

#include <algorithm>

namespace kavor {

namespace {

constexpr int largestSide = 2048;                  // pixels; a larger photo is read at this size
constexpr qint64 mostPixels = 200LL * 1000 * 1000; // of a photo that is read at all

bool isDrawing(const QByteArray& format) {
    return format.startsWith("svg");
}

} // namespace

tl::expected<QImage, PhotoFault> readPhoto(const QString& path) {
    const QFileInfo file(path);
    if (!file.isFile() || !file.isReadable())
        return tl::unexpected(PhotoFault::unreadable);
    if (file.size() > largestPhotoFile)
        return tl::unexpected(PhotoFault::tooLarge);
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true); // the name may lie
    reader.setAutoTransform(true);           // cameras store the turn beside the pixels
    const QSize size = reader.size();
    if (qint64(size.width()) * size.height() > mostPixels)
        return tl::unexpected(PhotoFault::tooLarge);
    if (std::max(size.width(), size.height()) > largestSide || (size.isValid() && isDrawing(reader.format())))
        reader.setScaledSize(size.scaled(largestSide, largestSide, Qt::KeepAspectRatio).expandedTo({1, 1}));
    QImage image = reader.read();
    if (image.isNull())
        return tl::unexpected(PhotoFault::unreadable);
    return image;
}

QStringList photoNameFilters() {
    const auto readable = QImageReader::supportedImageFormats();
    QStringList filters;
    for (const char* format : {"png", "jpg", "jpeg", "webp", "svg"}) {
        if (readable.contains(format))
            filters << QStringLiteral("*.") + QLatin1String(format);
    }
    return filters;
}

} // namespace kavor
