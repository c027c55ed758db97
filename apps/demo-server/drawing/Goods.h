#pragma once

#include "catalogue/Content.h"
#include "catalogue/Posters.h"

#include <QPainter>
#include <QRectF>

#include <vector>

namespace kavor::demo {

/// Things that can be ordered beside a menu, and small signs of the forms.

void drawOrderSheet(QPainter& painter, const QRectF& area, const OrderSheet& sheet,
                    const std::vector<const Look*>& brands);
void drawPennantBrand(QPainter& painter, const QRectF& area, const PennantBrand& pennant,
                      const std::vector<const Look*>& brands);
void drawQrSticker(QPainter& painter, const QRectF& area, const Look& look, const std::string& address);
void drawQrBlock(QPainter& painter, const QRectF& area, const Look& look, const std::string& address);
void drawGarment(QPainter& painter, const QRectF& area, int type, int rgb, const Look& look);
void drawChalkboardSign(QPainter& painter, const QRectF& area, const ChalkboardFormat& format, bool selected);
void drawSupportSign(QPainter& painter, const QRectF& area, const Support& support);
void drawSheetStyle(QPainter& painter, const QRectF& area, const SheetStyle& style,
                    const std::vector<const Look*>& brands);
void drawServingSign(QPainter& painter, const QRectF& area, int productType);
void drawTasteSign(QPainter& painter, const QRectF& area, int tasteId, int segmentId);

} // namespace kavor::demo
