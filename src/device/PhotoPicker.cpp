#include "device/PhotoPicker.h"

#include "device/Background.h"

#include <QFileInfo>
#include <QImageReader>

#include <utility>

namespace kavor {

FilePhotoPicker::FilePhotoPicker(QString path, QObject* parent)
    : PhotoPicker(parent)
    , path_(std::move(path)) {}

bool FilePhotoPicker::pick(QObject* context, Callback callback) {
    const QFileInfo file(path_);
    if (!file.isFile() || !file.isReadable() || file.size() > largestFile)
        return false;
    runInBackground(
        context != nullptr ? context : this,
        [path = path_]() -> std::optional<QImage> {
            QImageReader reader(path);
            reader.setAutoTransform(true); // cameras store the turn beside the pixels
            QImage image = reader.read();
            return image.isNull() ? std::nullopt : std::optional(std::move(image));
        },
        std::move(callback));
    return true;
}

} // namespace kavor
