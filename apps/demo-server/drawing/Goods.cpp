#include "drawing/Goods.h"

#include "drawing/Covers.h"
#include "drawing/Emblems.h"
#include "drawing/Motifs.h"
#include "drawing/QrCode.h"
#include "drawing/Tools.h"
#include "drawing/Vessels.h"

#include <QPainterPath>
#include <QPolygonF>

#include <array>

namespace kavor::demo {

namespace {

Look neutralLook() {
    Look look;
    look.base = 0x123F31;
    look.accent = 0xE0A126;
    look.paper = 0xFAF6EE;
    look.liquid = 0xF2B632;
    look.bottleGlass = 0x5A2E12;
    look.name = "Kavor";
    return look;
}

} // namespace

void drawOrderSheet(QPainter& painter, const QRectF& area, const OrderSheet& sheet,
                    const std::vector<const Look*>& brands) {
    const Canvas canvas(painter, area, QSizeF(420, 600));
    const QColor tone = colour(sheet.colour);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 40));
    painter.drawRoundedRect(QRectF(36, 26, 360, 560), 10, 10);
    painter.setBrush(QColor(0xFF, 0xFD, 0xF7));
    painter.drawRoundedRect(QRectF(28, 16, 360, 560), 10, 10);
    painter.setBrush(tone);
    painter.drawRoundedRect(QRectF(28, 16, 360, 96), 10, 10);
    painter.drawRect(QRectF(28, 80, 360, 34));
    painter.setBrush(mixed(tone, Qt::white, 0.75));
    for (int ring = 0; ring < 9; ++ring) {
        painter.drawEllipse(QPointF(58 + ring * 38, 28), 6, 6);
    }
    painter.setPen(inkOn(tone));
    drawFitted(painter, QRectF(44, 44, 330, 58), Qt::AlignCenter, sheet.name, face(Face::script, 40));
    painter.setPen(mixed(tone, Qt::black, 0.2));
    painter.setFont(face(Face::body, 20, true));
    painter.drawText(QRectF(44, 124, 330, 30), Qt::AlignLeft | Qt::AlignVCenter,
                     "Mesa ......   Fecha ............");
    for (int row = 0; row < 9; ++row) {
        const double y = 168 + row * 36;
        painter.setPen(QPen(mixed(tone, Qt::white, 0.7), 1.5));
        painter.drawLine(QPointF(44, y + 34), QPointF(372, y + 34));
        if (!brands.empty() && row < int(brands.size())) {
            drawMark(painter, QRectF(46, y + 3, 28, 28), *brands[size_t(row)]);
            painter.setPen(colour(0x20262B));
            drawFitted(painter, QRectF(84, y + 2, 180, 30), Qt::AlignLeft | Qt::AlignVCenter,
                       text(brands[size_t(row)]->name), face(Face::body, 21));
        }
        painter.setPen(QPen(tone, 1.5));
        painter.setBrush(Qt::NoBrush);
        for (int box = 0; box < 3; ++box) {
            painter.drawRoundedRect(QRectF(276 + box * 32, y + 6, 24, 22), 4, 4);
        }
    }
    painter.setPen(mixed(tone, Qt::black, 0.1));
    painter.setFont(face(Face::body, 16));
    painter.drawText(QRectF(44, 540, 330, 26), Qt::AlignRight | Qt::AlignVCenter, sheet.reference);
}

void drawPennantBrand(QPainter& painter, const QRectF& area, const PennantBrand& pennant,
                      const std::vector<const Look*>& brands) {
    const Canvas canvas(painter, area, QSizeF(600, 400));
    const Look& look = brands.empty() ? neutralLook() : *brands.front();
    Theme theme = themes()[0];
    theme.ink = look.base;
    theme.accent = look.accent;
    theme.second = look.base;
    if (pennant.shape == 1) {
        painter.setPen(QPen(colour(0x6B4423), 10, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(150, 34), QPointF(450, 34));
        painter.setPen(Qt::NoPen);
        painter.setBrush(colour(look.base));
        painter.drawPolygon(QPolygonF{QPointF(170, 40), QPointF(430, 40), QPointF(430, 360),
                                      QPointF(300, 310), QPointF(170, 360)});
        painter.setBrush(colour(look.accent));
        painter.drawRect(QRectF(170, 56, 260, 12));
        drawEmblem(painter, QRectF(186, 76, 228, 220), look);
        return;
    }
    const double rows = pennant.shape == 2 ? 2 : 1;
    for (int row = 0; row < int(rows); ++row) {
        const double height = 320 / rows + 30;
        drawBunting(painter, QRectF(16, 30 + row * 175, 568, height), theme, brands);
    }
}

void drawQrSticker(QPainter& painter, const QRectF& area, const Look& look, const std::string& address) {
    const Canvas canvas(painter, area, QSizeF(400, 400));
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour(look.base));
    painter.drawEllipse(QRectF(4, 4, 392, 392));
    painter.setBrush(colour(look.accent));
    painter.drawEllipse(QRectF(14, 14, 372, 372));
    painter.setBrush(colour(look.paper));
    painter.drawEllipse(QRectF(22, 22, 356, 356));
    drawQrCode(painter, QRectF(112, 92, 176, 176), address, mixed(colour(look.base), Qt::black, 0.3));
    drawMark(painter, QRectF(164, 26, 72, 66), look);
    painter.setPen(mixed(colour(look.base), Qt::black, 0.2));
    drawFitted(painter, QRectF(80, 274, 240, 44), Qt::AlignCenter, text(look.name), face(Face::script, 38));
    drawFitted(painter, QRectF(110, 318, 180, 26), Qt::AlignCenter, "Mira nuestra carta",
               face(Face::body, 20));
}

void drawQrBlock(QPainter& painter, const QRectF& area, const Look& look, const std::string& address) {
    const Canvas canvas(painter, area, QSizeF(400, 400));
    const QColor wood(0xC6, 0x93, 0x5B);
    painter.setPen(Qt::NoPen);
    painter.setBrush(mixed(wood, Qt::black, 0.3));
    painter.drawPolygon(QPolygonF{QPointF(320, 60), QPointF(372, 92), QPointF(372, 356), QPointF(320, 380)});
    painter.setBrush(mixed(wood, Qt::white, 0.25));
    painter.drawPolygon(QPolygonF{QPointF(40, 60), QPointF(96, 26), QPointF(372, 92), QPointF(320, 60)});
    painter.setBrush(wood);
    painter.drawRect(QRectF(40, 60, 280, 320));
    painter.setPen(QPen(mixed(wood, Qt::black, 0.12), 2));
    for (int grain = 0; grain < 7; ++grain) {
        QPainterPath line(QPointF(40, 90 + grain * 44));
        line.cubicTo(120, 70 + grain * 44, 220, 110 + grain * 44, 320, 86 + grain * 44);
        painter.drawPath(line);
    }
    drawQrCode(painter, QRectF(96, 84, 168, 168), address, colour(0x3B2A1A));
    drawMark(painter, QRectF(60, 272, 84, 84), look);
    painter.setPen(colour(0x3B2A1A));
    drawFitted(painter, QRectF(150, 286, 160, 56), Qt::AlignCenter, text(look.name), face(Face::script, 44));
}

namespace {

QPainterPath shirtPath(bool longSleeves) {
    QPainterPath path(QPointF(190, 70));
    path.quadTo(250, 120, 310, 70);
    path.lineTo(370, 96);
    if (longSleeves) {
        path.lineTo(450, 360);
        path.lineTo(392, 384);
        path.lineTo(356, 240);
    } else {
        path.lineTo(456, 200);
        path.lineTo(398, 244);
        path.lineTo(362, 210);
    }
    path.lineTo(366, 450);
    path.quadTo(250, 466, 134, 450);
    path.lineTo(longSleeves ? QPointF(144, 240) : QPointF(138, 210));
    if (longSleeves) {
        path.lineTo(108, 384);
        path.lineTo(50, 360);
    } else {
        path.lineTo(102, 244);
        path.lineTo(44, 200);
    }
    path.lineTo(130, 96);
    path.closeSubpath();
    return path;
}

QPainterPath apronPath() {
    QPainterPath path(QPointF(186, 90));
    path.lineTo(314, 90);
    path.cubicTo(316, 170, 350, 200, 392, 214);
    path.lineTo(398, 446);
    path.quadTo(250, 470, 102, 446);
    path.lineTo(108, 214);
    path.cubicTo(150, 200, 184, 170, 186, 90);
    path.closeSubpath();
    return path;
}

} // namespace

void drawGarment(QPainter& painter, const QRectF& area, int type, int rgb, const Look& look) {
    const Canvas canvas(painter, area, QSizeF(500, 500));
    const QColor cloth = colour(rgb);
    const QColor line = mixed(cloth, cloth.lightness() > 128 ? Qt::black : Qt::white, 0.25);
    const QPainterPath path = type == 3 ? apronPath() : shirtPath(type == 4);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 45));
    painter.drawPath(path.translated(7, 9));
    QLinearGradient fold(60, 0, 440, 0);
    fold.setColorAt(0, mixed(cloth, Qt::black, 0.18));
    fold.setColorAt(0.35, mixed(cloth, Qt::white, 0.10));
    fold.setColorAt(0.6, cloth);
    fold.setColorAt(1, mixed(cloth, Qt::black, 0.2));
    painter.setBrush(fold);
    painter.setPen(QPen(line, 3));
    painter.drawPath(path);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(line, 3));
    if (type == 3) {
        painter.drawArc(QRectF(196, 26, 108, 120), 0, 180 * 16);
        painter.drawRoundedRect(QRectF(170, 320, 160, 90), 8, 8);
    } else {
        painter.drawArc(QRectF(192, 34, 116, 70), 200 * 16, 140 * 16);
    }
    if (type == 2) {
        painter.setBrush(mixed(cloth, Qt::white, 0.2));
        painter.drawPolygon(QPolygonF{QPointF(190, 70), QPointF(250, 106), QPointF(222, 138)});
        painter.drawPolygon(QPolygonF{QPointF(310, 70), QPointF(250, 106), QPointF(278, 138)});
        painter.drawLine(QPointF(250, 106), QPointF(250, 190));
    }
    if (type == 4) {
        painter.drawRoundedRect(QRectF(180, 330, 140, 76), 18, 18);
    }
    const bool chest = type == 2;
    drawEmblem(painter, chest ? QRectF(284, 150, 70, 66) : QRectF(176, type == 3 ? 176 : 168, 148, 134),
               look);
}

void drawChalkboardSign(QPainter& painter, const QRectF& area, const ChalkboardFormat& format,
                        bool selected) {
    const Canvas canvas(painter, area, QSizeF(240, 240));
    const double scale = 0.55 + 0.15 * format.sizeIcon;
    const QSizeF board = (format.landscape ? QSizeF(200, 140) : QSizeF(140, 200)) * scale;
    const QRectF frame(120 - board.width() / 2, 116 - board.height() / 2, board.width(), board.height());
    painter.setPen(QPen(selected ? colour(0xE0A126) : colour(0x9C8464), 10));
    painter.setBrush(selected ? QColor(0x24, 0x2B, 0x2B) : QColor(0x6C, 0x74, 0x74));
    painter.drawRoundedRect(frame, 6, 6);
    painter.setPen(QPen(QColor(0xF4, 0xF1, 0xE4, selected ? 255 : 150), 4, Qt::SolidLine, Qt::RoundCap));
    for (int line = 0; line < 3; ++line) {
        const double y = frame.top() + frame.height() * (0.3 + 0.2 * line);
        painter.drawLine(QPointF(frame.left() + frame.width() * 0.2, y),
                         QPointF(frame.right() - frame.width() * 0.2, y));
    }
}

void drawSupportSign(QPainter& painter, const QRectF& area, const Support& support) {
    const Canvas canvas(painter, area, QSizeF(200, 200));
    const QSizeF size = QSizeF(support.width, support.height).scaled(150, 150, Qt::KeepAspectRatio);
    const QRectF sheet(QPointF(100 - size.width() / 2, 100 - size.height() / 2), size);
    painter.setPen(QPen(colour(0x123F31), 6));
    painter.setBrush(colour(0xFAF6EE));
    if (support.id == 4) {
        painter.drawPolygon(QPolygonF{QPointF(30, 150), QPointF(100, 52), QPointF(170, 150)});
    } else {
        painter.drawRoundedRect(sheet, 6, 6);
    }
    drawMotif(painter, QRectF(72, 70, 56, 64), Motif::beer, colour(0xE0A126), colour(0x123F31));
}

void drawSheetStyle(QPainter& painter, const QRectF& area, const SheetStyle& style,
                    const std::vector<const Look*>& brands) {
    const Canvas canvas(painter, area, QSizeF(744, 1052));
    const Theme& theme = themes()[size_t(style.theme)];
    const QRectF page(0, 0, 744, 1052);
    drawPaper(painter, page, theme, false);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour(theme.ink));
    painter.drawRect(QRectF(0, 0, 744, 190));
    painter.setBrush(colour(theme.accent));
    painter.drawRect(QRectF(0, 190, 744, 12));
    painter.setPen(colour(theme.paper));
    drawFitted(painter, QRectF(50, 40, 644, 110), Qt::AlignCenter, style.name,
               theme.script ? face(Face::script, 90) : face(Face::title, 70, true));
    for (int module = 0; module < 4; ++module) {
        const int column = module % 2;
        const int row = module / 2;
        const QRectF box(50 + column * 330, 240 + row * 380, 314, 350);
        painter.setPen(QPen(colour(theme.accent), 3));
        painter.setBrush(mixed(colour(theme.paper), Qt::white, 0.6));
        painter.drawRoundedRect(box, 14, 14);
        if (!brands.empty()) {
            const Look& look = *brands[size_t(module) % brands.size()];
            drawVessel(painter, QRectF(box.left() + 20, box.top() + 16, 120, 240), look, Vessel::bottle);
            painter.setPen(colour(theme.ink));
            drawFitted(painter, QRectF(box.left() + 140, box.top() + 40, 160, 60), Qt::AlignCenter,
                       text(look.name), face(Face::script, 40));
        }
        painter.setPen(Qt::NoPen);
        painter.setBrush(colour(theme.accent));
        painter.drawRoundedRect(QRectF(box.left() + 160, box.top() + 140, 124, 62), 31, 31);
        painter.setPen(colour(theme.paper));
        drawFitted(painter, QRectF(box.left() + 160, box.top() + 140, 124, 62), Qt::AlignCenter, "00,00 €",
                   face(Face::round, 30, true));
    }
}

void drawServingSign(QPainter& painter, const QRectF& area, int productType) {
    constexpr std::array vessels = {Vessel::glass,     Vessel::tallGlass,  Vessel::bottle, Vessel::can,
                                    Vessel::wineGlass, Vessel::wineBottle, Vessel::magnum, Vessel::softBottle,
                                    Vessel::softCan,   Vessel::tumbler};
    Look look = neutralLook();
    if (productType >= 4 && productType <= 6) {
        look.liquid = 0x7B1E3A;
        look.bottleGlass = 0x1E3A22;
    } else if (productType >= 7) {
        look.liquid = 0xF59E34;
        look.bottleGlass = 0xF59E34;
    }
    drawVessel(painter, area, look, vessels[size_t(productType) % vessels.size()]);
}

void drawTasteSign(QPainter& painter, const QRectF& area, int tasteId, int segmentId) {
    const Canvas canvas(painter, area, QSizeF(200, 200));
    constexpr std::array tones = {0xF2B632, 0xC9812B, 0x2F6F6B, 0x3C5A2E, 0x0F5C8C};
    constexpr std::array motifs = {Motif::wheat, Motif::sun, Motif::wave, Motif::hop, Motif::mountain};
    const size_t place = size_t(segmentId % 100 + 4) % tones.size();
    const QColor tone = colour(tones[place]);
    painter.setPen(QPen(mixed(tone, Qt::black, 0.2), 5));
    painter.setBrush(mixed(tone, Qt::white, 0.82));
    painter.drawEllipse(QRectF(8, 8, 184, 184));
    drawMotif(painter, QRectF(48, 44, 104, 104), motifs[size_t(tasteId > 0 ? tasteId % 5 : int(place))], tone,
              mixed(tone, Qt::black, 0.35));
}

} // namespace kavor::demo
