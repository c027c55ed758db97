#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>

namespace kavor::demo {

/// Small ornaments that covers, posters, emblems and icons are made of.
enum class Motif {
    hop,
    wheat,
    beer,
    grapes,
    plate,
    ball,
    lantern,
    note,
    star,
    leaf,
    sun,
    mountain,
    wave,
    record
};

/// The ornament of a scene, by its number there.
Motif motifOf(int scene);

/// Draws an ornament into a rectangle, in two colours.
void drawMotif(QPainter& painter, const QRectF& rectangle, Motif motif, const QColor& main,
               const QColor& second);

/// Rays over a page, all from one point.
void drawRays(QPainter& painter, const QRectF& page, const QPointF& centre, const QColor& tone);

} // namespace kavor::demo
