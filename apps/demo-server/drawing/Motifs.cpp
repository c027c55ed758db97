#include "drawing/Motifs.h"

#include "drawing/Tools.h"

#include <QPainterPath>
#include <QPolygonF>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace kavor::demo {

namespace {

constexpr double turn = 2 * std::numbers::pi;

QPainterPath petal(double width, double height) {
    QPainterPath path;
    path.cubicTo(-width, -height * 0.3, -width * 0.7, -height * 0.85, 0, -height);
    path.cubicTo(width * 0.7, -height * 0.85, width, -height * 0.3, 0, 0);
    return path;
}

void drawHop(QPainter& painter, const QColor& main, const QColor& second) {
    painter.setPen(QPen(mixed(main, Qt::black, 0.25), 1.2));
    for (int row = 3; row >= 0; --row) {
        const int petals = row == 3 ? 1 : 3;
        for (int i = 0; i < petals; ++i) {
            painter.save();
            const double offset = petals == 1 ? 0 : (i - 1) * 18;
            painter.translate(50 + offset, 38 + row * 13);
            painter.rotate(180 - offset * 0.7);
            painter.setBrush(mixed(main, second, 0.15 * row + (i == 1 ? 0.0 : 0.12)));
            painter.drawPath(petal(14, 30));
            painter.restore();
        }
    }
    for (const double side : {-1.0, 1.0}) {
        painter.save();
        painter.translate(50, 34);
        painter.rotate(side * 62);
        painter.setBrush(second);
        painter.drawPath(petal(9, 34));
        painter.restore();
    }
    painter.setPen(QPen(mixed(main, Qt::black, 0.3), 3, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(50, 34), QPointF(54, 14));
}

void drawWheat(QPainter& painter, const QColor& main, const QColor& second) {
    for (const double lean : {-16.0, 0.0, 16.0}) {
        painter.save();
        painter.translate(50, 96);
        painter.rotate(lean);
        painter.setPen(QPen(second, 2.4, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(0, 0), QPointF(0, -64));
        painter.setPen(Qt::NoPen);
        painter.setBrush(main);
        for (int i = 0; i < 5; ++i) {
            for (const double side : {-1.0, 1.0}) {
                painter.save();
                painter.translate(0, -34 - i * 10);
                painter.rotate(side * 34);
                painter.drawPath(petal(4.6, 15));
                painter.restore();
            }
        }
        painter.translate(0, -78);
        painter.drawPath(petal(4.6, 16));
        painter.restore();
    }
}

void drawBeer(QPainter& painter, const QColor& main, const QColor& second) {
    QPainterPath body;
    body.addRoundedRect(QRectF(22, 30, 46, 62), 7, 7);
    painter.setPen(QPen(mixed(second, Qt::black, 0.2), 3));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(64, 42, 20, 34), 10, 10);
    painter.setPen(Qt::NoPen);
    painter.setBrush(main);
    painter.drawPath(body);
    painter.setBrush(QColor(255, 255, 255, 70));
    for (const double x : {32.0, 44.0, 56.0}) {
        painter.drawRoundedRect(QRectF(x, 48, 4, 36), 2, 2);
    }
    painter.setBrush(mixed(second, Qt::white, 0.85));
    for (const auto& [x, y, r] :
         {std::tuple{28.0, 28.0, 10.0}, {42.0, 23.0, 12.0}, {57.0, 26.0, 11.0}, {66.0, 32.0, 7.0}}) {
        painter.drawEllipse(QPointF(x, y), r, r);
    }
    painter.drawRoundedRect(QRectF(20, 28, 50, 11), 5, 5);
}

void drawGrapes(QPainter& painter, const QColor& main, const QColor& second) {
    painter.setPen(Qt::NoPen);
    painter.save();
    painter.translate(50, 28);
    painter.rotate(48);
    painter.setBrush(second);
    painter.drawPath(petal(14, 32));
    painter.restore();
    painter.setPen(QPen(second, 3));
    painter.drawLine(QPointF(50, 12), QPointF(50, 32));
    painter.setPen(Qt::NoPen);
    int count = 5;
    for (int row = 0; count > 0; ++row, --count) {
        for (int i = 0; i < count; ++i) {
            const QPointF centre(50 + (i - (count - 1) / 2.0) * 15, 40 + row * 12);
            painter.setBrush(mixed(main, Qt::white, 0.06 * ((row + i) % 3)));
            painter.drawEllipse(centre, 8.4, 8.4);
            painter.setBrush(QColor(255, 255, 255, 90));
            painter.drawEllipse(centre - QPointF(2.6, 2.8), 2, 2);
        }
    }
}

void drawPlate(QPainter& painter, const QColor& main, const QColor& second) {
    painter.setPen(QPen(main, 3));
    painter.setBrush(mixed(second, Qt::white, 0.75));
    painter.drawEllipse(QPointF(50, 54), 32, 32);
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QPointF(50, 54), 22, 22);
    painter.setPen(QPen(main, 3.4, Qt::SolidLine, Qt::RoundCap));
    for (const double x : {6.0, 10.0, 14.0}) {
        painter.drawLine(QPointF(x, 22), QPointF(x, 40));
    }
    painter.drawLine(QPointF(10, 40), QPointF(10, 88));
    painter.drawLine(QPointF(91, 22), QPointF(91, 88));
    painter.setPen(Qt::NoPen);
    painter.setBrush(main);
    painter.drawPath([] {
        QPainterPath blade(QPointF(91, 20));
        blade.cubicTo(82, 30, 83, 48, 91, 54);
        return blade;
    }());
    painter.setBrush(second);
    painter.drawEllipse(QPointF(44, 50), 7, 7);
    painter.drawEllipse(QPointF(57, 53), 6, 6);
    painter.drawEllipse(QPointF(49, 62), 6.5, 6.5);
}

QPolygonF star(const QPointF& centre, int points, double outer, double inner) {
    QPolygonF polygon;
    for (int i = 0; i < points * 2; ++i) {
        const double radius = i % 2 == 0 ? outer : inner;
        const double angle = turn * i / (points * 2) - turn / 4;
        polygon << centre + QPointF(std::cos(angle) * radius, std::sin(angle) * radius);
    }
    return polygon;
}

void drawBall(QPainter& painter, const QColor& main, const QColor& second) {
    const QPointF centre(50, 52);
    painter.setPen(QPen(main, 3));
    painter.setBrush(mixed(second, Qt::white, 0.8));
    painter.drawEllipse(centre, 36, 36);
    painter.setBrush(main);
    QPolygonF pentagon;
    for (int i = 0; i < 5; ++i) {
        const double angle = turn * i / 5 - turn / 4;
        const QPointF direction(std::cos(angle), std::sin(angle));
        pentagon << centre + direction * 13;
        painter.drawLine(centre + direction * 13, centre + direction * 25);
        painter.drawPolygon(QPolygonF{centre + direction * 35 + QPointF(-direction.y(), direction.x()) * 8,
                                      centre + direction * 25,
                                      centre + direction * 35 + QPointF(direction.y(), -direction.x()) * 8});
    }
    painter.drawPolygon(pentagon);
}

void drawLantern(QPainter& painter, const QColor& main, const QColor& second) {
    painter.setPen(QPen(second, 3));
    painter.drawLine(QPointF(50, 4), QPointF(50, 20));
    painter.setPen(Qt::NoPen);
    painter.setBrush(second);
    painter.drawRoundedRect(QRectF(36, 18, 28, 8), 3, 3);
    painter.drawRoundedRect(QRectF(36, 78, 28, 8), 3, 3);
    painter.drawRect(QRectF(48.5, 86, 3, 11));
    painter.setBrush(main);
    painter.drawEllipse(QPointF(50, 52), 34, 27);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(mixed(main, Qt::white, 0.45), 2.4));
    for (const double radius : {12.0, 24.0}) {
        painter.drawEllipse(QPointF(50, 52), radius, 27);
    }
}

void drawNote(QPainter& painter, const QColor& main, const QColor& second) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(main);
    painter.drawEllipse(QRectF(16, 66, 26, 20));
    painter.drawEllipse(QRectF(58, 58, 26, 20));
    painter.drawRect(QRectF(37, 22, 5, 54));
    painter.drawRect(QRectF(79, 14, 5, 54));
    painter.setBrush(second);
    painter.drawPolygon(QPolygonF{QPointF(37, 20), QPointF(84, 10), QPointF(84, 26), QPointF(37, 36)});
}

void drawSun(QPainter& painter, const QColor& main, const QColor& second) {
    painter.setPen(QPen(second, 5, Qt::SolidLine, Qt::RoundCap));
    for (int i = 0; i < 12; ++i) {
        const double angle = turn * i / 12;
        const QPointF direction(std::cos(angle), std::sin(angle));
        painter.drawLine(QPointF(50, 50) + direction * 32,
                         QPointF(50, 50) + direction * (i % 2 == 0 ? 46 : 40));
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(main);
    painter.drawEllipse(QPointF(50, 50), 24, 24);
}

void drawMountain(QPainter& painter, const QColor& main, const QColor& second) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(second);
    painter.drawPolygon(QPolygonF{QPointF(30, 86), QPointF(66, 26), QPointF(98, 86)});
    painter.setBrush(main);
    painter.drawPolygon(QPolygonF{QPointF(2, 86), QPointF(38, 16), QPointF(76, 86)});
    painter.setBrush(mixed(second, Qt::white, 0.85));
    painter.drawPolygon(QPolygonF{QPointF(38, 16), QPointF(25, 42), QPointF(34, 37), QPointF(40, 45),
                                  QPointF(45, 37), QPointF(51, 40)});
}

void drawWave(QPainter& painter, const QColor& main, const QColor& second) {
    for (int row = 0; row < 3; ++row) {
        QPainterPath path(QPointF(2, 36 + row * 20));
        for (int i = 0; i < 3; ++i) {
            const double x = 2 + i * 32;
            path.cubicTo(x + 8, 18 + row * 20, x + 24, 18 + row * 20, x + 32, 36 + row * 20);
        }
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(row == 1 ? second : main, 7, Qt::SolidLine, Qt::RoundCap));
        painter.drawPath(path);
    }
}

void drawRecord(QPainter& painter, const QColor& main, const QColor& second) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(main);
    painter.drawEllipse(QPointF(50, 50), 42, 42);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(255, 255, 255, 45), 1));
    for (const double radius : {36.0, 31.0, 26.0, 21.0}) {
        painter.drawEllipse(QPointF(50, 50), radius, radius);
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(second);
    painter.drawEllipse(QPointF(50, 50), 15, 15);
    painter.setBrush(mixed(main, Qt::black, 0.4));
    painter.drawEllipse(QPointF(50, 50), 3.4, 3.4);
}

void drawLeaf(QPainter& painter, const QColor& main, const QColor& second) {
    painter.save();
    painter.translate(50, 94);
    painter.setPen(Qt::NoPen);
    painter.setBrush(main);
    painter.drawPath(petal(36, 86));
    painter.setPen(QPen(second, 2.4, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(0, 4), QPointF(0, -76));
    for (int i = 1; i < 5; ++i) {
        painter.drawLine(QPointF(0, -i * 13), QPointF(16, -i * 13 - 13));
        painter.drawLine(QPointF(0, -i * 13), QPointF(-16, -i * 13 - 13));
    }
    painter.restore();
}

} // namespace

void drawMotif(QPainter& painter, const QRectF& rectangle, Motif motif, const QColor& main,
               const QColor& second) {
    const Canvas canvas(painter, rectangle, QSizeF(100, 100));
    switch (motif) {
    case Motif::hop:
        return drawHop(painter, main, second);
    case Motif::wheat:
        return drawWheat(painter, main, second);
    case Motif::beer:
        return drawBeer(painter, main, second);
    case Motif::grapes:
        return drawGrapes(painter, main, second);
    case Motif::plate:
        return drawPlate(painter, main, second);
    case Motif::ball:
        return drawBall(painter, main, second);
    case Motif::lantern:
        return drawLantern(painter, main, second);
    case Motif::note:
        return drawNote(painter, main, second);
    case Motif::star:
        painter.setPen(Qt::NoPen);
        painter.setBrush(main);
        painter.drawPolygon(star(QPointF(50, 52), 5, 46, 19));
        return;
    case Motif::leaf:
        return drawLeaf(painter, main, second);
    case Motif::sun:
        return drawSun(painter, main, second);
    case Motif::mountain:
        return drawMountain(painter, main, second);
    case Motif::wave:
        return drawWave(painter, main, second);
    case Motif::record:
        return drawRecord(painter, main, second);
    }
}

Motif motifOf(int scene) {
    constexpr std::array motifs = {Motif::beer,   Motif::hop,    Motif::plate, Motif::ball, Motif::lantern,
                                   Motif::grapes, Motif::record, Motif::note,  Motif::sun};
    return motifs[size_t(scene) % motifs.size()];
}

void drawRays(QPainter& painter, const QRectF& page, const QPointF& centre, const QColor& tone) {
    const double reach = 1.3 * std::max(page.width(), page.height());
    painter.save();
    painter.setClipRect(page, Qt::IntersectClip);
    painter.setPen(Qt::NoPen);
    painter.setBrush(tone);
    for (int ray = 0; ray < 18; ++ray) {
        painter.save();
        painter.translate(centre);
        painter.rotate(ray * 20);
        painter.drawPolygon(
            QPolygonF{QPointF(0, 0), QPointF(reach, -reach * 0.08), QPointF(reach, reach * 0.08)});
        painter.restore();
    }
    painter.restore();
}

} // namespace kavor::demo
