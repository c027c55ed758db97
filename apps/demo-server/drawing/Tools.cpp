#include "drawing/Tools.h"

#include <QFontMetricsF>

#include <algorithm>

namespace kavor::demo {

QColor colour(int rgb, int alpha) {
    return QColor((rgb >> 16) & 0xFF, (rgb >> 8) & 0xFF, rgb & 0xFF, alpha);
}

QColor inkOn(const QColor& ground) {
    const double light = 0.299 * ground.red() + 0.587 * ground.green() + 0.114 * ground.blue();
    return light > 150 ? colour(0x20262B) : colour(0xFFFFFF);
}

QColor mixed(const QColor& one, const QColor& other, double share) {
    const auto blend = [share](int a, int b) { return int(a + (b - a) * share); };
    return QColor(blend(one.red(), other.red()), blend(one.green(), other.green()),
                  blend(one.blue(), other.blue()), blend(one.alpha(), other.alpha()));
}

QFont face(Face face, double pixels, bool bold) {
    QFont font;
    switch (face) {
    case Face::body:
        font.setFamilies({"Cabin", "Roboto", "DejaVu Sans"});
        break;
    case Face::title:
        font.setFamilies({"Comfortaa", "Roboto", "DejaVu Sans"});
        break;
    case Face::script:
        font.setFamilies({"Lobster Two", "Dancing Script", "DejaVu Serif"});
        font.setItalic(true);
        bold = true;
        break;
    case Face::round:
        font.setFamilies({"Quicksand", "Roboto", "DejaVu Sans"});
        break;
    }
    font.setPixelSize(std::max(1, int(pixels)));
    font.setBold(bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    // Alternate letters of the script face have no character of their own: a PDF's text could not be read
    // out.
    font.setStyleStrategy(QFont::PreferNoShaping);
    return font;
}

Canvas::Canvas(QPainter& painter, const QRectF& target, QSizeF size)
    : painter_(painter) {
    painter_.save();
    const double scale = std::min(target.width() / size.width(), target.height() / size.height());
    painter_.translate(target.center().x() - size.width() * scale / 2,
                       target.center().y() - size.height() * scale / 2);
    painter_.scale(scale, scale);
}

Canvas::~Canvas() {
    painter_.restore();
}

void drawFitted(QPainter& painter, const QRectF& rectangle, int flags, const QString& text, QFont font) {
    while (font.pixelSize() > 4) {
        const QRectF needed = QFontMetricsF(font).boundingRect(rectangle, flags, text);
        if (needed.width() <= rectangle.width() + 0.5 && needed.height() <= rectangle.height() + 0.5) {
            break;
        }
        font.setPixelSize(std::max(4, int(font.pixelSize() * 0.94)));
    }
    painter.setFont(font);
    painter.drawText(rectangle, flags, text);
}

} // namespace kavor::demo
