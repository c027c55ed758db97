#include "drawing/Scenes.h"

#include "drawing/Covers.h"
#include "drawing/Emblems.h"
#include "drawing/Goods.h"
#include "drawing/Motifs.h"
#include "drawing/Tools.h"
#include "drawing/Vessels.h"

#include <QPainterPath>
#include <QPolygonF>

#include <array>

namespace kavor::demo {

void drawActivationLogo(QPainter& painter, const QRectF& area, const ActivationGroup& group,
                        const Look& look) {
    const Canvas canvas(painter, area, QSizeF(380, 240));
    painter.setPen(QPen(mixed(colour(group.colour), Qt::black, 0.3), 4));
    painter.setBrush(colour(group.colour));
    painter.drawRoundedRect(QRectF(8, 8, 364, 224), 26, 26);
    drawEmblem(painter, QRectF(24, 24, 186, 192), look);
    painter.setPen(inkOn(colour(group.colour)));
    drawFitted(painter, QRectF(214, 50, 146, 140), Qt::AlignCenter | Qt::TextWordWrap, group.name,
               face(Face::script, 48));
}

void drawActivationBackground(QPainter& painter, const QRectF& area, int rgb) {
    const Canvas canvas(painter, area, QSizeF(1000, 700));
    const QRectF board(0, 0, 1000, 700);
    painter.fillRect(board, mixed(colour(rgb), Qt::white, 0.86));
    drawRays(painter, board, QPointF(500, 760), colour(rgb, 22));
    Theme theme = themes()[8];
    theme.ink = rgb;
    drawBunting(painter, QRectF(-10, -6, 1020, 110), theme, {});
}

void drawActivationSign(QPainter& painter, const QRectF& area, const Activation& activation, bool on) {
    const Canvas canvas(painter, area, QSizeF(380, 240));
    const QColor tone = colour(activation.colour);
    painter.setPen(QPen(on ? mixed(tone, Qt::black, 0.35) : colour(0xC9BFA9), on ? 10 : 4));
    painter.setBrush(on ? tone : mixed(tone, Qt::white, 0.72));
    painter.drawRoundedRect(QRectF(10, 10, 360, 220), 22, 22);
    const QColor ink = on ? inkOn(tone) : mixed(tone, Qt::black, 0.55);
    drawMotif(painter, QRectF(24, 46, 130, 140), motifOf(activation.motif), ink, mixed(ink, tone, 0.4));
    painter.setPen(ink);
    drawFitted(painter, QRectF(164, 34, 192, 172), Qt::AlignCenter | Qt::TextWordWrap, activation.name,
               face(Face::round, 38, true));
}

void drawActivationScene(QPainter& painter, const QRectF& area, const Activation& activation, int number,
                         const Look& look) {
    const Canvas canvas(painter, area, QSizeF(640, 420));
    const QRectF scene(0, 0, 640, 420);
    const QColor tone = colour(activation.colour);
    QLinearGradient evening(0, 0, 0, 420);
    evening.setColorAt(0, mixed(tone, Qt::black, 0.72));
    evening.setColorAt(1, mixed(tone, Qt::black, 0.35));
    painter.fillRect(scene, evening);
    Theme theme = themes()[8];
    theme.accent = activation.colour;
    drawBunting(painter, QRectF(0, 0, 640, 90), theme, {});
    for (int i = 0; i < 4; ++i) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(255, 230, 160, 40));
        painter.drawEllipse(QPointF(90 + i * 155, 150), 60, 60);
    }
    painter.setBrush(colour(0x5B3A1E));
    painter.drawRect(QRectF(0, 318, 640, 102));
    painter.setBrush(colour(0x7A4E28));
    painter.drawRect(QRectF(0, 306, 640, 22));
    constexpr std::array line = {Vessel::pint, Vessel::bottle, Vessel::glass, Vessel::tallGlass, Vessel::can};
    for (int i = 0; i < 5; ++i) {
        drawVessel(painter, QRectF(70 + i * 104, 116, 88, 204), look, line[size_t(i + number) % line.size()]);
    }
    drawMotif(painter, QRectF(270, 326, 100, 88), motifOf(activation.motif + number), tone,
              mixed(tone, Qt::white, 0.5));
}

void drawActivationElement(QPainter& painter, const QRectF& area, const Activation& activation, int number,
                           const Look& look) {
    const Canvas canvas(painter, area, QSizeF(640, 420));
    const QColor tone = colour(activation.colour);
    painter.setPen(Qt::NoPen);
    painter.setBrush(mixed(tone, Qt::white, 0.8));
    painter.drawRoundedRect(QRectF(0, 0, 640, 420), 20, 20);
    switch (number) {
    case 0:
        for (int i = 0; i < 4; ++i) {
            drawVessel(painter, QRectF(60 + i * 135, 70, 115, 290), look,
                       i % 2 == 0 ? Vessel::pint : Vessel::glass);
        }
        return;
    case 1:
        painter.setPen(QPen(mixed(tone, Qt::black, 0.3), 6));
        painter.setBrush(colour(0xFFFDF8));
        painter.drawRect(QRectF(90, 70, 460, 290));
        drawEmblem(painter, QRectF(200, 100, 240, 230), look);
        return;
    case 2:
        return drawGarment(painter, QRectF(150, 40, 340, 340), 1, activation.colour, look);
    default:
        break;
    }
    Theme theme = themes()[8];
    theme.accent = activation.colour;
    drawBunting(painter, QRectF(20, 60, 600, 130), theme, {&look});
    drawBunting(painter, QRectF(20, 220, 600, 130), theme, {});
}

void drawManual(QPainter& painter, const QRectF& area, const Manual& manual) {
    const Canvas canvas(painter, area, QSizeF(640, 360));
    const Theme& theme = themes()[size_t(manual.id * 3) % themes().size()];
    drawPaper(painter, QRectF(0, 0, 640, 360), theme, true);
    painter.setPen(Qt::NoPen);
    QColor ground = colour(theme.paper);
    ground.setAlpha(225);
    painter.setBrush(ground);
    painter.drawRoundedRect(QRectF(50, 60, 540, 240), 20, 20);
    painter.setBrush(colour(theme.accent));
    painter.drawEllipse(QPointF(140, 180), 54, 54);
    painter.setBrush(colour(theme.paper));
    painter.drawPolygon(QPolygonF{QPointF(124, 152), QPointF(170, 180), QPointF(124, 208)});
    painter.setPen(colour(theme.ink));
    drawFitted(painter, QRectF(216, 90, 350, 180), Qt::AlignVCenter | Qt::AlignLeft | Qt::TextWordWrap,
               manual.label, face(Face::round, 46, true));
}

void drawNotice(QPainter& painter, const QRectF& area, const Notice& notice) {
    const Canvas canvas(painter, area, QSizeF(240, 240));
    const Theme& theme = themes()[size_t(notice.id) % themes().size()];
    painter.setPen(Qt::NoPen);
    painter.setBrush(mixed(colour(theme.accent), Qt::white, 0.75));
    painter.drawRoundedRect(QRectF(6, 6, 228, 228), 36, 36);
    drawMotif(painter, QRectF(46, 42, 148, 156), motifOf(notice.motif), colour(theme.accent),
              colour(theme.ink));
}

void drawBarLogo(QPainter& painter, const QRectF& area, const std::string& name, int number) {
    const Canvas canvas(painter, area, QSizeF(300, 300));
    const Theme& theme = themes()[size_t(number) % themes().size()];
    painter.setPen(QPen(colour(theme.accent), 8));
    painter.setBrush(colour(theme.dark ? theme.paper : theme.ink));
    painter.drawEllipse(QRectF(12, 12, 276, 276));
    const QColor ink = colour(theme.dark ? theme.ink : theme.paper);
    drawMotif(painter, QRectF(102, 34, 96, 96), motifOf(number), colour(theme.accent), ink);
    painter.setPen(ink);
    drawFitted(painter, QRectF(44, 134, 212, 96), Qt::AlignCenter | Qt::TextWordWrap, text(name),
               face(Face::script, 50));
}

} // namespace kavor::demo
