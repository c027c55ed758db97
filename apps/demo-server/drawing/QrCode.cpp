#include "drawing/QrCode.h"

#include <qrencode.h>

#include <memory>

namespace kavor::demo {

void drawQrCode(QPainter& painter, const QRectF& square, const std::string& content, const QColor& ink) {
    const std::unique_ptr<QRcode, decltype(&QRcode_free)> code(
        QRcode_encodeString(content.c_str(), 0, QR_ECLEVEL_M, QR_MODE_8, 1), &QRcode_free);
    if (!code) {
        return;
    }
    constexpr int quiet = 3;
    const double cell = square.width() / (code->width + 2 * quiet);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(square, Qt::white);
    for (int y = 0; y < code->width; ++y) {
        for (int x = 0; x < code->width; ++x) {
            if (code->data[y * code->width + x] & 1) {
                painter.fillRect(QRectF(square.left() + (x + quiet) * cell, square.top() + (y + quiet) * cell,
                                        cell * 1.02, cell * 1.02),
                                 ink);
            }
        }
    }
    painter.restore();
}

} // namespace kavor::demo
