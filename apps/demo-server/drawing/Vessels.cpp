#include "drawing/Vessels.h"

#include "drawing/Emblems.h"
#include "drawing/Tools.h"

#include <QImage>
#include <QPaintEngine>
#include <QPainterPath>
#include <QPolygonF>

#include <array>

namespace kavor::demo {

namespace {

// All vessels are drawn on a canvas of 400 by 1000 and stand on its line 980.
constexpr double floorLine = 980;

/// Half of an upright outline from top to bottom, mirrored to a closed path.
QPainterPath mirrored(const QPainterPath& half) {
    QTransform mirror;
    mirror.translate(400, 0);
    mirror.scale(-1, 1);
    QPainterPath path = half;
    path.connectPath(mirror.map(half).toReversed());
    path.closeSubpath();
    return path;
}

QPainterPath longNeck() {
    QPainterPath half(QPointF(156, 70));
    half.lineTo(154, 290);
    half.cubicTo(152, 390, 76, 400, 76, 520);
    half.lineTo(76, 950);
    half.quadTo(76, floorLine, 110, floorLine);
    return mirrored(half);
}

QPainterPath stubby() {
    QPainterPath half(QPointF(152, 330));
    half.lineTo(150, 430);
    half.cubicTo(148, 520, 88, 520, 88, 620);
    half.lineTo(88, 950);
    half.quadTo(88, floorLine, 118, floorLine);
    return mirrored(half);
}

QPainterPath bordeaux(double width, double top) {
    QPainterPath half(QPointF(162, top));
    half.lineTo(160, top + 250);
    half.cubicTo(158, top + 330, 200 - width, top + 320, 200 - width, top + 410);
    half.lineTo(200 - width, 954);
    half.quadTo(200 - width, floorLine, 230 - width, floorLine);
    return mirrored(half);
}

QPainterPath curvy() {
    QPainterPath half(QPointF(158, 240));
    half.lineTo(156, 350);
    half.cubicTo(154, 440, 92, 460, 92, 560);
    half.cubicTo(92, 650, 116, 680, 112, 760);
    half.cubicTo(108, 840, 92, 860, 94, 940);
    half.quadTo(96, floorLine, 124, floorLine);
    return mirrored(half);
}

void drawShadow(QPainter& painter, double halfWidth) {
    QRadialGradient shade(QPointF(200, floorLine), halfWidth);
    shade.setColorAt(0, QColor(0, 0, 0, 80));
    shade.setColorAt(1, QColor(0, 0, 0, 0));
    painter.save();
    painter.translate(200, floorLine);
    painter.scale(1, 0.12);
    painter.translate(-200, -floorLine);
    painter.setPen(Qt::NoPen);
    painter.setBrush(shade);
    painter.drawEllipse(QPointF(200, floorLine), halfWidth, halfWidth);
    painter.restore();
}

QLinearGradient rounded(const QColor& tone, double left, double right) {
    QLinearGradient gradient(left, 0, right, 0);
    gradient.setColorAt(0.0, mixed(tone, Qt::black, 0.45));
    gradient.setColorAt(0.18, mixed(tone, Qt::white, 0.10));
    gradient.setColorAt(0.38, mixed(tone, Qt::white, 0.22));
    gradient.setColorAt(0.7, tone);
    gradient.setColorAt(1.0, mixed(tone, Qt::black, 0.5));
    return gradient;
}

void drawGloss(QPainter& painter, const QPainterPath& body, const QRectF& strip) {
    painter.save();
    painter.setClipPath(body);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 255, 255, 70));
    painter.drawRoundedRect(strip, strip.width() / 2, strip.width() / 2);
    painter.setBrush(QColor(255, 255, 255, 28));
    painter.drawRoundedRect(strip.translated(strip.width() * 1.6, 0), strip.width() / 2, strip.width() / 2);
    painter.restore();
}

QPainterPath labelPath(int shape, const QRectF& area) {
    QPainterPath path;
    switch (shape) {
    case 1:
        path.addEllipse(area.adjusted(-4, -14, 4, 14));
        return path;
    case 2:
        path.moveTo(area.topLeft());
        path.quadTo(area.center().x(), area.top() - 46, area.right(), area.top());
        path.lineTo(area.bottomRight());
        path.quadTo(area.center().x(), area.bottom() + 46, area.left(), area.bottom());
        path.closeSubpath();
        return path;
    case 3:
        path.addRoundedRect(area.adjusted(14, -10, -14, 10), 26, 26);
        return path;
    default:
        path.addRect(area);
        return path;
    }
}

void drawLabelPattern(QPainter& painter, const Look& look, const QRectF& area) {
    const QColor tone = mixed(colour(look.paper), colour(look.accent), 0.35);
    painter.setPen(QPen(tone, 3));
    const double step = 22;
    switch (look.pattern % 4) {
    case 0:
        for (double x = area.left() - area.height(); x < area.right(); x += step) {
            painter.drawLine(QPointF(x, area.bottom()), QPointF(x + area.height(), area.top()));
        }
        break;
    case 1:
        painter.setPen(Qt::NoPen);
        painter.setBrush(tone);
        for (double y = area.top(); y < area.bottom(); y += step) {
            for (double x = area.left(); x < area.right(); x += step) {
                painter.drawEllipse(QPointF(x, y), 3, 3);
            }
        }
        break;
    case 2:
        for (double y = area.top(); y < area.bottom(); y += step) {
            painter.drawLine(QPointF(area.left(), y), QPointF(area.right(), y));
        }
        break;
    default:
        for (int ray = 0; ray < 24; ++ray) {
            QTransform spin;
            spin.translate(area.center().x(), area.center().y());
            spin.rotate(ray * 15);
            painter.drawLine(spin.map(QPointF(30, 0)), spin.map(QPointF(260, 0)));
        }
    }
}

/// A paper label over the body, clipped to it and shaded at the sides.
void drawLabel(QPainter& painter, const Look& look, const QPainterPath& body, const QRectF& area) {
    const QPainterPath label = labelPath(look.label, area).intersected(body);
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour(look.paper));
    painter.drawPath(label);
    painter.setClipPath(label);
    drawLabelPattern(painter, look, area.adjusted(-10, -50, 10, 50));
    const QRectF band(area.left() - 10, area.bottom() - area.height() * 0.3, area.width() + 20,
                      area.height() * 0.3 + 60);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour(look.base));
    painter.drawRect(band);
    painter.setBrush(colour(look.accent));
    painter.drawRect(QRectF(band.left(), band.top() - 7, band.width(), 7));
    painter.restore();

    const double mark = area.height() * 0.56;
    drawMark(painter, QRectF(area.center().x() - mark / 2, area.top() + area.height() * 0.06, mark, mark),
             look);
    painter.setPen(inkOn(colour(look.base)));
    drawFitted(painter, QRectF(area.left() + 16, band.top() + 3, area.width() - 32, area.height() * 0.28),
               Qt::AlignCenter, text(look.name),
               look.label % 2 == 0 ? face(Face::script, 60) : face(Face::title, 44, true));

    QLinearGradient shade(area.left(), 0, area.right(), 0);
    shade.setColorAt(0, QColor(0, 0, 0, 90));
    shade.setColorAt(0.2, QColor(0, 0, 0, 0));
    shade.setColorAt(0.75, QColor(0, 0, 0, 0));
    shade.setColorAt(1, QColor(0, 0, 0, 110));
    painter.setPen(Qt::NoPen);
    painter.setBrush(shade);
    painter.drawPath(label);
}

void drawCap(QPainter& painter, const Look& look, double top, double halfWidth) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(rounded(colour(look.accent), 200 - halfWidth, 200 + halfWidth));
    painter.drawRoundedRect(QRectF(200 - halfWidth, top, halfWidth * 2, 40), 8, 8);
    painter.setBrush(QColor(0, 0, 0, 50));
    for (double x = 200 - halfWidth + 6; x < 200 + halfWidth - 4; x += 13) {
        painter.drawRect(QRectF(x, top + 22, 4, 18));
    }
}

void drawNeckBand(QPainter& painter, const Look& look, const QPainterPath& body, const QRectF& band) {
    painter.save();
    painter.setClipPath(body);
    painter.setPen(Qt::NoPen);
    painter.setBrush(rounded(colour(look.base), 150, 250));
    painter.drawRect(band);
    painter.setBrush(colour(look.accent));
    painter.drawRect(QRectF(band.left(), band.bottom() - 8, band.width(), 8));
    painter.restore();
}

void drawBottle(QPainter& painter, const Look& look, const QPainterPath& body, const QRectF& label,
                double capTop, double capWidth, const QRectF& neck) {
    drawShadow(painter, label.width() * 0.75);
    painter.setPen(Qt::NoPen);
    painter.setBrush(rounded(colour(look.bottleGlass), label.left(), label.right()));
    painter.drawPath(body);
    drawNeckBand(painter, look, body, neck);
    drawCap(painter, look, capTop, capWidth);
    drawLabel(painter, look, body, label);
    drawGloss(painter, body, QRectF(label.left() + 20, capTop + 60, 16, 960 - capTop));
}

void drawWineBottle(QPainter& painter, const Look& look, double width, double top) {
    const QPainterPath body = bordeaux(width, top);
    const QRectF label(200 - width, 640, width * 2, 210);
    drawShadow(painter, width * 1.5);
    painter.setPen(Qt::NoPen);
    painter.setBrush(rounded(colour(look.bottleGlass), 200 - width, 200 + width));
    painter.drawPath(body);
    painter.setBrush(rounded(colour(look.base), 150, 250));
    painter.drawRoundedRect(QRectF(156, top - 14, 88, 190), 8, 8);
    painter.setBrush(colour(look.accent));
    painter.drawRect(QRectF(156, top + 150, 88, 8));
    drawLabel(painter, look, body, label);
    drawGloss(painter, body, QRectF(200 - width + 18, top + 230, 15, 700));
}

void drawCan(QPainter& painter, const Look& look, double top) {
    const QRectF area(84, top + 26, 232, floorLine - top - 52);
    QPainterPath body(QPointF(108, top));
    body.lineTo(292, top);
    body.lineTo(316, top + 34);
    body.lineTo(316, floorLine - 34);
    body.lineTo(294, floorLine);
    body.lineTo(106, floorLine);
    body.lineTo(84, floorLine - 34);
    body.lineTo(84, top + 34);
    body.closeSubpath();
    drawShadow(painter, 170);
    painter.setPen(Qt::NoPen);
    painter.setBrush(rounded(QColor(0xC8, 0xCC, 0xD0), 84, 316));
    painter.drawPath(body);
    QPainterPath printed;
    printed.addRect(area);
    painter.setBrush(rounded(colour(look.base), 84, 316));
    painter.drawPath(printed);
    painter.save();
    painter.setClipPath(printed);
    painter.setOpacity(0.5);
    Look tone = look;
    tone.paper = look.base;
    drawLabelPattern(painter, tone, area);
    painter.restore();
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour(look.accent));
    painter.drawRect(QRectF(84, area.top() + 26, 232, 10));
    painter.drawRect(QRectF(84, area.bottom() - 36, 232, 10));
    const double mark = 170;
    drawMark(painter, QRectF(200 - mark / 2, area.center().y() - mark * 0.85, mark, mark), look);
    painter.setPen(inkOn(colour(look.base)));
    drawFitted(painter, QRectF(96, area.center().y() + mark * 0.25, 208, 86), Qt::AlignCenter,
               text(look.name), face(Face::script, 66));
    drawGloss(painter, printed, QRectF(104, area.top(), 20, area.height()));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xE6, 0xE9, 0xEC));
    painter.drawRoundedRect(QRectF(106, top - 12, 188, 18), 8, 8);
}

struct Glass {
    double top, topHalf, bottomHalf, foam;
    bool foot = false;
};

void drawLiquid(QPainter& painter, const Look& look, const QPainterPath& body, const QRectF& bounds) {
    QLinearGradient tone(bounds.left(), 0, bounds.right(), 0);
    const QColor liquid = colour(look.liquid);
    tone.setColorAt(0, mixed(liquid, Qt::black, 0.25));
    tone.setColorAt(0.3, mixed(liquid, Qt::white, 0.25));
    tone.setColorAt(0.75, liquid);
    tone.setColorAt(1, mixed(liquid, Qt::black, 0.3));
    painter.setPen(Qt::NoPen);
    painter.setBrush(tone);
    painter.drawPath(body);
    painter.save();
    painter.setClipPath(body);
    painter.setBrush(QColor(255, 255, 255, 90));
    for (int i = 0; i < 22; ++i) {
        const double x = bounds.left() + 20 + (i * 53 % 100) / 100.0 * (bounds.width() - 40);
        const double y = bounds.top() + 40 + (i * 37 % 100) / 100.0 * (bounds.height() - 60);
        painter.drawEllipse(QPointF(x, y), 3 + i % 3, 3 + i % 3);
    }
    painter.restore();
}

void drawFoam(QPainter& painter, double top, double half, double height) {
    if (height <= 0) {
        return;
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xFF, 0xFB, 0xF0));
    painter.drawRoundedRect(QRectF(200 - half, top - 8, half * 2, height), 22, 22);
    for (int i = 0; i < 5; ++i) {
        const double x = 200 - half + half * 2 * (i + 0.5) / 5;
        painter.drawEllipse(QPointF(x, top - 6), half * 0.27, half * (0.2 + 0.04 * (i % 2)));
    }
    painter.setBrush(QColor(0xE9, 0xDF, 0xC8, 150));
    for (int i = 0; i < 4; ++i) {
        painter.drawEllipse(QPointF(200 - half * 0.6 + half * 0.4 * i, top + height * 0.55), 7, 5);
    }
}

void drawGlass(QPainter& painter, const Look& look, const Glass& glass) {
    const double bottom = glass.foot ? 900 : 962;
    QPainterPath inside(QPointF(200 - glass.topHalf, glass.top));
    inside.cubicTo(200 - glass.topHalf, bottom - 160, 200 - glass.bottomHalf, bottom - 80,
                   200 - glass.bottomHalf, bottom);
    inside.lineTo(200 + glass.bottomHalf, bottom);
    inside.cubicTo(200 + glass.bottomHalf, bottom - 80, 200 + glass.topHalf, bottom - 160,
                   200 + glass.topHalf, glass.top);
    inside.closeSubpath();
    drawShadow(painter, glass.topHalf * 1.3);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xDF, 0xE8, 0xEA));
    if (glass.foot) {
        painter.drawRect(QRectF(186, 890, 28, 60));
        painter.drawRoundedRect(QRectF(110, 946, 180, 34), 14, 14);
    } else {
        painter.drawRoundedRect(QRectF(200 - glass.bottomHalf - 6, 950, glass.bottomHalf * 2 + 12, 30), 12,
                                12);
    }
    drawLiquid(painter, look, inside, inside.boundingRect());
    drawFoam(painter, glass.top, glass.topHalf + 4, glass.foam);
    const double mark = glass.topHalf * 1.15;
    drawMark(painter, QRectF(200 - mark / 2, (glass.top + bottom) / 2 - mark * 0.35, mark, mark), look);
    drawGloss(painter, inside, QRectF(200 - glass.topHalf + 18, glass.top + 40, 16, bottom - glass.top - 90));
}

void drawWineGlass(QPainter& painter, const Look& look) {
    QPainterPath bowl(QPointF(108, 420));
    bowl.cubicTo(70, 640, 130, 730, 200, 734);
    bowl.cubicTo(270, 730, 330, 640, 292, 420);
    bowl.closeSubpath();
    drawShadow(painter, 150);
    painter.setPen(QPen(QColor(0x9F, 0xB2, 0xB8), 5));
    painter.setBrush(QColor(255, 255, 255, 60));
    painter.drawPath(bowl);
    QPainterPath wine(QPointF(95, 540));
    wine.cubicTo(92, 660, 140, 726, 200, 728);
    wine.cubicTo(260, 726, 308, 660, 305, 540);
    wine.quadTo(200, 566, 95, 540);
    painter.setPen(Qt::NoPen);
    painter.setBrush(rounded(colour(look.liquid), 95, 305));
    painter.drawPath(wine);
    painter.setBrush(QColor(0xC9, 0xD6, 0xDA));
    painter.drawRect(QRectF(193, 732, 14, 214));
    painter.drawEllipse(QPointF(200, 958), 92, 20);
    drawGloss(painter, bowl, QRectF(122, 450, 14, 220));
    drawMark(painter, QRectF(164, 590, 72, 72), look);
}

void drawTumbler(QPainter& painter, const Look& look) {
    drawGlass(painter, look, {.top = 520, .topHalf = 120, .bottomHalf = 96, .foam = 0});
    painter.save();
    painter.setPen(QPen(QColor(255, 255, 255, 150), 3));
    painter.setBrush(QColor(255, 255, 255, 110));
    for (const auto& [x, y, angle] :
         {std::tuple{150.0, 560.0, 14.0}, {238.0, 580.0, -18.0}, {196.0, 630.0, 32.0}}) {
        painter.save();
        painter.translate(x, y);
        painter.rotate(angle);
        painter.drawRoundedRect(QRectF(-34, -34, 68, 68), 10, 10);
        painter.restore();
    }
    painter.setPen(QPen(QColor(0xF2, 0xC1, 0x2E), 12));
    painter.setBrush(QColor(0xFB, 0xE9, 0x8E));
    painter.drawEllipse(QPointF(306, 512), 52, 52);
    painter.restore();
}

void drawJug(QPainter& painter, const Look& look) {
    painter.setPen(QPen(QColor(0xA9, 0xBB, 0xC0), 26));
    painter.setBrush(Qt::NoBrush);
    painter.drawArc(QRectF(250, 520, 140, 280), -90 * 16, 180 * 16);
    drawGlass(painter, look, {.top = 430, .topHalf = 130, .bottomHalf = 124, .foam = 60});
}

/// Translucent gradients do not survive a PDF, so there a vessel is a picture of 360 dots per inch.
void drawAsImage(QPainter& painter, const QRectF& rectangle, const Look& look, Vessel vessel) {
    const double scale = painter.worldTransform().m11() / 2;
    QImage image((rectangle.size() * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter brush(&image);
    brush.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    drawVessel(brush, QRectF(QPointF(0, 0), QSizeF(image.size())), look, vessel);
    brush.end();
    painter.drawImage(rectangle, image);
}

} // namespace

void drawVessel(QPainter& painter, const QRectF& rectangle, const Look& look, Vessel vessel) {
    if (painter.paintEngine()->type() == QPaintEngine::Pdf) {
        return drawAsImage(painter, rectangle, look, vessel);
    }
    const Canvas canvas(painter, rectangle, QSizeF(400, 1000));
    switch (vessel) {
    case Vessel::glass:
        return drawGlass(painter, look, {.top = 560, .topHalf = 104, .bottomHalf = 74, .foam = 78});
    case Vessel::tallGlass:
        return drawGlass(painter, look,
                         {.top = 400, .topHalf = 112, .bottomHalf = 64, .foam = 96, .foot = true});
    case Vessel::pint:
        return drawGlass(painter, look, {.top = 330, .topHalf = 136, .bottomHalf = 92, .foam = 110});
    case Vessel::smallBottle:
        return drawBottle(painter, look, stubby(), QRectF(88, 650, 224, 220), 300, 56,
                          QRectF(130, 390, 140, 50));
    case Vessel::bottle:
        return drawBottle(painter, look, longNeck(), QRectF(76, 560, 248, 270), 40, 52,
                          QRectF(130, 170, 140, 90));
    case Vessel::largeBottle:
        return drawBottle(painter, look, bordeaux(138, 52), QRectF(62, 540, 276, 300), 22, 48,
                          QRectF(140, 170, 120, 110));
    case Vessel::can:
        return drawCan(painter, look, 480);
    case Vessel::tallCan:
        return drawCan(painter, look, 330);
    case Vessel::wineGlass:
        return drawWineGlass(painter, look);
    case Vessel::wineBottle:
        return drawWineBottle(painter, look, 104, 90);
    case Vessel::magnum:
        return drawWineBottle(painter, look, 134, 30);
    case Vessel::softBottle:
        return drawBottle(painter, look, curvy(), QRectF(92, 640, 216, 170), 208, 50,
                          QRectF(130, 320, 140, 46));
    case Vessel::softCan:
        return drawCan(painter, look, 520);
    case Vessel::tumbler:
        return drawTumbler(painter, look);
    case Vessel::jug:
        return drawJug(painter, look);
    }
}

void drawBox(QPainter& painter, const QRectF& rectangle, const Look& look, int bottles) {
    const Canvas canvas(painter, rectangle, QSizeF(400, 400));
    const QColor card(0xC9, 0x9A, 0x62);
    painter.setPen(Qt::NoPen);
    painter.setBrush(mixed(card, Qt::black, 0.35));
    painter.drawPolygon(QPolygonF{QPointF(40, 150), QPointF(110, 80), QPointF(370, 80), QPointF(300, 150)});
    for (int i = 0; i < 5; ++i) {
        drawVessel(painter, QRectF(58 + i * 48, 24, 64, 160), look, Vessel::bottle);
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(card);
    painter.drawRect(QRectF(40, 150, 260, 220));
    painter.setBrush(mixed(card, Qt::black, 0.2));
    painter.drawPolygon(QPolygonF{QPointF(300, 150), QPointF(370, 80), QPointF(370, 300), QPointF(300, 370)});
    painter.setBrush(colour(look.base));
    painter.drawRect(QRectF(40, 216, 260, 118));
    drawMark(painter, QRectF(50, 222, 106, 106), look);
    painter.setPen(inkOn(colour(look.base)));
    drawFitted(painter, QRectF(160, 226, 132, 54), Qt::AlignCenter, text(look.name), face(Face::script, 44));
    drawFitted(painter, QRectF(160, 286, 132, 36), Qt::AlignCenter, QString("%1 uds.").arg(bottles),
               face(Face::body, 26, true));
}

} // namespace kavor::demo
