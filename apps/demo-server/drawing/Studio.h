#pragma once

#include "catalogue/Catalogue.h"

#include <QByteArray>
#include <QSizeF>

#include <mutex>
#include <optional>
#include <string>
#include <unordered_map>

class QPainter;

namespace kavor::demo {

/// Draws the catalogue's pictures when they are first asked for, and keeps them. Needs a QGuiApplication.
class Studio {
public:
    explicit Studio(const Catalogue& catalogue)
        : catalogue_(catalogue) {}

    /// The picture with this hash as PNG, none when the catalogue names none. Callable from any thread.
    std::optional<QByteArray> png(const std::string& hash);

    /// Size in which a picture is made.
    QSizeF sizeOf(const Picture& picture) const;

    /// Draws a picture into a rectangle of its size.
    void draw(QPainter& painter, const Picture& picture) const;

private:
    const Catalogue& catalogue_;
    std::mutex mutex_;
    std::unordered_map<std::string, QByteArray> made_;
    size_t bytes_ = 0;
};

} // namespace kavor::demo
