#pragma once

#include "catalogue/Brands.h"

#include <QPainter>
#include <QRectF>

namespace kavor::demo {

/// The badge of a brand with its name.
void drawEmblem(QPainter& painter, const QRectF& rectangle, const Look& look);

/// The badge without a name, for small sizes.
void drawMark(QPainter& painter, const QRectF& rectangle, const Look& look);

/// Badge and name side by side.
void drawWordmark(QPainter& painter, const QRectF& rectangle, const Look& look);

} // namespace kavor::demo
