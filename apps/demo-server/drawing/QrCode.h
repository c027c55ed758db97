#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>

#include <string>

namespace kavor::demo {

/// Draws a QR code with its quiet zone on white; draws nothing when the text is too long for one.
void drawQrCode(QPainter& painter, const QRectF& square, const std::string& content, const QColor& ink);

} // namespace kavor::demo
