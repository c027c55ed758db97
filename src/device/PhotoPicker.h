#pragma once

#include <QImage>
#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <tl/expected.hpp>

namespace kavor {

// The user's photo library.
class PhotoPicker : public QObject {
    Q_OBJECT
public:
    // The chosen photo, upright, or nothing when the user chose none.
    using Callback = std::function<void(const std::optional<QImage>&)>;

    using QObject::QObject;
    // False when the library cannot be opened; the callback then never runs. It is dropped with its context.
    virtual bool pick(QObject* context, Callback callback) = 0;
};

// Why a picture file gives no photo.
enum class PhotoFault { tooLarge, unreadable };

inline constexpr qint64 largestPhotoFile = 64LL * 1024 * 1024; // bytes

// The photo in a file, upright as its camera says, and no larger than anything here needs. For any thread.
tl::expected<QImage, PhotoFault> readPhoto(const QString& path);
// The patterns of the picture files that can be read here, such as "*.png".
QStringList photoNameFilters();

} // namespace kavor
