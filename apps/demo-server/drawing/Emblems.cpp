#include "drawing/Emblems.h"

#include "drawing/Motifs.h"
#include "drawing/Tools.h"

#include <QPainterPath>
#include <QPolygonF>

#include <array>
#include <cmath>
#include <numbers>

namespace kavor::demo {

namespace {

QPainterPath regular(const QPointF& centre, int corners, double radius, double start) {
    QPolygonF polygon;
    for (int i = 0; i < corners; ++i) {
        const double angle = 2 * std::numbers::pi * i / corners + start;
        polygon << centre + QPointF(std::cos(angle), std::sin(angle)) * radius;
    }
    QPainterPath path;
    path.addPolygon(polygon);
    path.closeSubpath();
    return path;
}

QPainterPath toothed(const QPointF& centre, int teeth, double outer, double inner) {
    QPolygonF polygon;
    for (int i = 0; i < teeth * 2; ++i) {
        const double angle = std::numbers::pi * i / teeth;
        polygon << centre + QPointF(std::cos(angle), std::sin(angle)) * (i % 2 == 0 ? outer : inner);
    }
    QPainterPath path;
    path.addPolygon(polygon);
    path.closeSubpath();
    return path;
}

/// The outline of a badge on a canvas of 200 by 200, `inset` inside its edge.
QPainterPath outline(int shape, double inset) {
    const QPointF centre(100, 100);
    QPainterPath path;
    switch (shape) {
    case 1: // shield
        path.moveTo(18 + inset, 22 + inset);
        path.lineTo(182 - inset, 22 + inset);
        path.cubicTo(184 - inset, 120, 150 - inset * 0.5, 168 - inset, 100, 194 - inset);
        path.cubicTo(50 + inset * 0.5, 168 - inset, 16 + inset, 120, 18 + inset, 22 + inset);
        return path;
    case 2: // hexagon
        return regular(centre, 6, 96 - inset, std::numbers::pi / 6);
    case 3: // toothed seal
        return inset < 4 ? toothed(centre, 28, 97, 88) : regular(centre, 60, 90 - inset, 0);
    case 4: // diamond
        return regular(centre, 4, 99 - inset * 1.2, 0);
    case 5: // arch
        path.moveTo(26 + inset, 188 - inset);
        path.lineTo(26 + inset, 92);
        path.cubicTo(26 + inset, 44, 60, 10 + inset, 100, 10 + inset);
        path.cubicTo(140, 10 + inset, 174 - inset, 44, 174 - inset, 92);
        path.lineTo(174 - inset, 188 - inset);
        path.closeSubpath();
        return path;
    case 6: // lying oval
        path.addEllipse(centre, 98 - inset, 78 - inset);
        return path;
    case 7: // rounded square
        path.addRoundedRect(QRectF(14 + inset, 14 + inset, 172 - 2 * inset, 172 - 2 * inset), 30, 30);
        return path;
    default:
        path.addEllipse(centre, 95 - inset, 95 - inset);
        return path;
    }
}

Motif motifOf(const Look& look) {
    constexpr std::array motifs = {Motif::hop,  Motif::wheat, Motif::mountain, Motif::star, Motif::sun,
                                   Motif::beer, Motif::leaf,  Motif::grapes,   Motif::leaf, Motif::grapes,
                                   Motif::sun,  Motif::wave,  Motif::leaf};
    return motifs[size_t(look.motif) % motifs.size()];
}

QString initialOf(const Look& look) {
    return text(look.name).left(1);
}

void drawGround(QPainter& painter, const Look& look) {
    const QColor base = colour(look.base), accent = colour(look.accent);
    painter.setPen(Qt::NoPen);
    painter.setBrush(mixed(base, Qt::black, 0.18));
    painter.drawPath(outline(look.emblem, 0));
    painter.setBrush(accent);
    painter.drawPath(outline(look.emblem, 5));
    QLinearGradient depth(0, 10, 0, 190);
    depth.setColorAt(0, mixed(base, Qt::white, 0.12));
    depth.setColorAt(1, mixed(base, Qt::black, 0.12));
    painter.setBrush(depth);
    painter.drawPath(outline(look.emblem, 10));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(mixed(accent, base, 0.35), 1.6));
    painter.drawPath(outline(look.emblem, 15));
}

void drawBanner(QPainter& painter, const Look& look, const QRectF& band) {
    const QColor paper = colour(look.paper), accent = colour(look.accent);
    painter.setPen(Qt::NoPen);
    painter.setBrush(mixed(accent, Qt::black, 0.3));
    const double fold = 10;
    painter.drawPolygon(QPolygonF{band.topLeft() + QPointF(0, 5), band.topLeft() + QPointF(-fold, 12),
                                  band.bottomLeft() + QPointF(-fold, 12), band.bottomLeft() + QPointF(16, 6),
                                  band.bottomLeft() + QPointF(16, 0)});
    painter.drawPolygon(QPolygonF{band.topRight() + QPointF(0, 5), band.topRight() + QPointF(fold, 12),
                                  band.bottomRight() + QPointF(fold, 12),
                                  band.bottomRight() + QPointF(-16, 6),
                                  band.bottomRight() + QPointF(-16, 0)});
    painter.setBrush(paper);
    painter.drawRoundedRect(band, 3, 3);
    painter.setPen(mixed(colour(look.base), Qt::black, 0.2));
    drawFitted(painter, band.adjusted(7, 2, -7, -2), Qt::AlignCenter, text(look.name),
               look.label % 2 == 0 ? face(Face::script, 34) : face(Face::title, 26, true));
}

} // namespace

void drawEmblem(QPainter& painter, const QRectF& rectangle, const Look& look) {
    const Canvas canvas(painter, rectangle, QSizeF(224, 204));
    painter.translate(12, 2);
    drawGround(painter, look);
    const bool narrow = look.emblem == 4;
    drawMotif(painter, QRectF(58, narrow ? 30 : 24, 84, 78), motifOf(look), colour(look.accent),
              mixed(colour(look.accent), Qt::white, 0.5));
    drawBanner(painter, look, QRectF(-2, 108, 204, 44));
    painter.setPen(colour(look.accent));
    painter.setFont(face(Face::body, 15, true));
    painter.drawText(QRectF(50, 156, 100, 20), Qt::AlignCenter,
                     QStringLiteral("· ") + initialOf(look) + " ·");
}

void drawMark(QPainter& painter, const QRectF& rectangle, const Look& look) {
    const Canvas canvas(painter, rectangle, QSizeF(200, 200));
    drawGround(painter, look);
    drawMotif(painter, QRectF(46, 34, 108, 84), motifOf(look), colour(look.accent),
              mixed(colour(look.accent), Qt::white, 0.5));
    painter.setPen(colour(look.paper));
    drawFitted(painter, QRectF(40, 112, 120, 62), Qt::AlignCenter, initialOf(look), face(Face::script, 58));
}

void drawWordmark(QPainter& painter, const QRectF& rectangle, const Look& look) {
    const Canvas canvas(painter, rectangle, QSizeF(480, 160));
    drawMark(painter, QRectF(4, 4, 152, 152), look);
    painter.setPen(colour(look.base));
    drawFitted(painter, QRectF(172, 22, 300, 84), Qt::AlignVCenter | Qt::AlignLeft, text(look.name),
               look.label % 2 == 0 ? face(Face::script, 72) : face(Face::title, 58, true));
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour(look.accent));
    painter.drawRoundedRect(QRectF(174, 114, 150, 7), 3, 3);
    painter.drawEllipse(QPointF(340, 117.5), 4, 4);
}

} // namespace kavor::demo
