#pragma once

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <string>

namespace kavor::demo {

/// A colour from 0xRRGGBB.
QColor colour(int rgb, int alpha = 255);
/// Black or white ink, whichever reads better on a ground.
QColor inkOn(const QColor& ground);
QColor mixed(const QColor& one, const QColor& other, double share);

/// Typefaces of the drawings; Debian's open fonts, with the standard ones in their place when missing.
enum class Face { body, title, script, round };
QFont face(Face face, double pixels, bool bold = false);

/// Draws into a canvas of its own size, fitted into a target and centred there, until it goes out of scope.
class Canvas {
public:
    Canvas(QPainter& painter, const QRectF& target, QSizeF size);
    ~Canvas();
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

private:
    QPainter& painter_;
};

/// Writes a line (or wrapped lines with Qt::TextWordWrap), made smaller until it fits the rectangle.
void drawFitted(QPainter& painter, const QRectF& rectangle, int flags, const QString& text, QFont font);

inline QString text(const std::string& utf8) {
    return QString::fromStdString(utf8);
}

} // namespace kavor::demo
