#pragma once

#include "catalogue/Content.h"

#include <QPainter>
#include <QRectF>

namespace kavor::demo {

void drawActivationLogo(QPainter& painter, const QRectF& area, const ActivationGroup& group,
                        const Look& look);
void drawActivationBackground(QPainter& painter, const QRectF& area, int rgb);
/// What goes with an activation: glasses, placemats, shirts, bunting.
void drawActivationElement(QPainter& painter, const QRectF& area, const Activation& activation, int number,
                           const Look& look);
void drawActivationSign(QPainter& painter, const QRectF& area, const Activation& activation, bool on);
void drawActivationScene(QPainter& painter, const QRectF& area, const Activation& activation, int number,
                         const Look& look);

void drawManual(QPainter& painter, const QRectF& area, const Manual& manual);
void drawNotice(QPainter& painter, const QRectF& area, const Notice& notice);
void drawBarLogo(QPainter& painter, const QRectF& area, const std::string& name, int number);

} // namespace kavor::demo
