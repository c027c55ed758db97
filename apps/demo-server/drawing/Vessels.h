#pragma once

#include "catalogue/Brands.h"

#include <QPainter>
#include <QRectF>

namespace kavor::demo {

/// A bottle, can or glass of a brand, standing on the bottom of the rectangle; tall rectangles suit it.
void drawVessel(QPainter& painter, const QRectF& rectangle, const Look& look, Vessel vessel);

/// A box of bottles of a brand.
void drawBox(QPainter& painter, const QRectF& rectangle, const Look& look, int bottles);

} // namespace kavor::demo
