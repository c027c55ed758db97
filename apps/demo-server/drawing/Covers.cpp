#include "drawing/Covers.h"

#include "drawing/Emblems.h"
#include "drawing/Motifs.h"
#include "drawing/Tools.h"
#include "drawing/Vessels.h"

#include <QPainterPath>
#include <QPolygonF>

#include <array>
#include <cmath>

namespace kavor::demo {

namespace {

constexpr int patternCount = 6;

void drawLattice(QPainter& painter, const QRectF& page, const QColor& tone) {
    painter.setPen(QPen(tone, 1.4));
    const double step = 46;
    for (double x = page.left() - page.height(); x < page.right(); x += step) {
        painter.drawLine(QPointF(x, page.top()), QPointF(x + page.height(), page.bottom()));
        painter.drawLine(QPointF(x, page.bottom()), QPointF(x + page.height(), page.top()));
    }
}

void drawTiles(QPainter& painter, const QRectF& page, const QColor& tone, const QColor& other) {
    const double step = 62;
    for (int row = 0; page.top() + row * step < page.bottom(); ++row) {
        for (int column = 0; page.left() + column * step < page.right(); ++column) {
            const QPointF centre = page.topLeft() + QPointF((column + 0.5) * step, (row + 0.5) * step);
            painter.setPen(QPen(tone, 1.6));
            painter.setBrush(Qt::NoBrush);
            painter.drawRect(QRectF(centre - QPointF(step / 2, step / 2), QSizeF(step, step)));
            painter.drawEllipse(centre, step * 0.36, step * 0.36);
            painter.setPen(Qt::NoPen);
            painter.setBrush((row + column) % 2 == 0 ? tone : other);
            QPolygonF diamond;
            diamond << centre + QPointF(0, -14) << centre + QPointF(14, 0) << centre + QPointF(0, 14)
                    << centre + QPointF(-14, 0);
            painter.drawPolygon(diamond);
            for (const auto& corner : {QPointF(-1, -1), QPointF(1, -1), QPointF(1, 1), QPointF(-1, 1)}) {
                painter.drawEllipse(centre + corner * step * 0.4, 4, 4);
            }
        }
    }
}

void drawStripes(QPainter& painter, const QRectF& page, const QColor& tone) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(tone);
    for (double x = page.left(); x < page.right(); x += 52) {
        painter.drawRect(QRectF(x, page.top(), 22, page.height()));
    }
}

void drawSea(QPainter& painter, const QRectF& page, const QColor& tone) {
    painter.setPen(QPen(tone, 3));
    painter.setBrush(Qt::NoBrush);
    for (double y = page.top() + 20; y < page.bottom(); y += 36) {
        QPainterPath path(QPointF(page.left() - 40, y));
        for (double x = page.left() - 40; x < page.right(); x += 80) {
            path.cubicTo(x + 20, y - 22, x + 60, y + 22, x + 80, y);
        }
        painter.drawPath(path);
    }
}

void drawConfetti(QPainter& painter, const QRectF& page, const QColor& tone, const QColor& other) {
    painter.setPen(Qt::NoPen);
    const int pieces = int(page.width() * page.height() / 2600);
    for (int i = 0; i < pieces; ++i) {
        painter.save();
        painter.translate(page.left() + std::fmod(i * 97.31, page.width()),
                          page.top() + std::fmod(i * 61.77, page.height()));
        painter.rotate(i * 41 % 180);
        painter.setBrush(i % 2 == 0 ? tone : other);
        i % 3 == 0 ? painter.drawEllipse(QPointF(0, 0), 4.5, 4.5) : painter.drawRect(QRectF(-8, -3, 16, 6));
        painter.restore();
    }
}

void drawLeaves(QPainter& painter, const QRectF& page, const QColor& tone, const QColor& other) {
    int index = 0;
    for (double y = page.top() + 40; y < page.bottom(); y += 110) {
        for (double x = page.left() + (index % 2 == 0 ? 40 : 95); x < page.right(); x += 110) {
            painter.save();
            painter.translate(x, y);
            painter.rotate(index * 47 % 360);
            drawMotif(painter, QRectF(-26, -26, 52, 52), index % 3 == 0 ? Motif::hop : Motif::leaf, tone,
                      other);
            painter.restore();
            ++index;
        }
        ++index;
    }
}

void drawPattern(QPainter& painter, const QRectF& page, const Theme& theme, int strength) {
    const QColor tone = colour(theme.accent, strength), other = colour(theme.second, strength);
    painter.save();
    painter.setClipRect(page);
    switch (theme.pattern % patternCount) {
    case 0:
        drawLattice(painter, page, tone);
        break;
    case 1:
        drawTiles(painter, page, tone, other);
        break;
    case 2:
        drawStripes(painter, page, tone);
        break;
    case 3:
        drawSea(painter, page, tone);
        break;
    case 4:
        drawConfetti(painter, page, tone, other);
        break;
    default:
        drawLeaves(painter, page, tone, other);
    }
    painter.restore();
}

QFont titleFont(const Theme& theme, double size) {
    return theme.script ? face(Face::script, size) : face(Face::title, size * 0.82, true);
}

Motif coverMotif(BrochureKind kind, const Theme& theme) {
    switch (kind) {
    case BrochureKind::wineA4:
    case BrochureKind::wineOrder:
        return Motif::grapes;
    case BrochureKind::menu:
        return Motif::plate;
    case BrochureKind::beverage:
        return theme.pattern == 3 ? Motif::wave : Motif::sun;
    case BrochureKind::video:
        return Motif::record;
    case BrochureKind::pennant:
        return Motif::lantern;
    default:
        return theme.pattern == 5 ? Motif::hop : theme.pattern == 4 ? Motif::star : Motif::beer;
    }
}

void drawFrame(QPainter& painter, const QRectF& page, const Theme& theme) {
    const double edge = page.width() * 0.035;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colour(theme.ink), page.width() * 0.006));
    painter.drawRect(page.adjusted(edge, edge, -edge, -edge));
    const double inner = edge * 1.35;
    painter.setPen(QPen(colour(theme.accent), page.width() * 0.002));
    painter.drawRect(page.adjusted(inner, inner, -inner, -inner));
}

void drawWoodFrame(QPainter& painter, const QRectF& page) {
    const double edge = std::min(page.width(), page.height()) * 0.045;
    QLinearGradient wood(page.topLeft(), page.bottomRight());
    wood.setColorAt(0, QColor(0x9C, 0x6B, 0x3A));
    wood.setColorAt(0.5, QColor(0x7A, 0x4E, 0x28));
    wood.setColorAt(1, QColor(0x8E, 0x5F, 0x33));
    QPainterPath frame;
    frame.addRect(page);
    frame.addRect(page.adjusted(edge, edge, -edge, -edge));
    painter.setPen(Qt::NoPen);
    painter.setBrush(wood);
    painter.drawPath(frame);
}

/// Lays a translucent panel under the words so that they read over any pattern.
void drawPanel(QPainter& painter, const QRectF& panel, const Theme& theme) {
    painter.setPen(QPen(colour(theme.accent), panel.width() * 0.006));
    QColor ground = colour(theme.paper);
    ground.setAlpha(235);
    painter.setBrush(ground);
    painter.drawRoundedRect(panel, 14, 14);
}

void drawLogos(QPainter& painter, const QRectF& strip, const std::vector<const Look*>& logos) {
    const double cell = strip.width() / double(std::max<size_t>(1, logos.size()));
    for (size_t i = 0; i < logos.size(); ++i) {
        drawEmblem(painter,
                   QRectF(strip.left() + cell * double(i) + 6, strip.top(), cell - 12, strip.height()),
                   *logos[i]);
    }
}

void drawPlayButton(QPainter& painter, const QRectF& page, const Theme& theme) {
    const double radius = page.height() * 0.07;
    const QPointF centre(page.right() - radius * 1.8, page.bottom() - radius * 1.8);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour(theme.accent));
    painter.drawEllipse(centre, radius, radius);
    painter.setBrush(colour(theme.paper));
    painter.drawPolygon(QPolygonF{centre + QPointF(-radius * 0.3, -radius * 0.45),
                                  centre + QPointF(radius * 0.5, 0),
                                  centre + QPointF(-radius * 0.3, radius * 0.45)});
}

void drawPennantSheet(QPainter& painter, const QRectF& page, const Theme& theme, const CoverText& words) {
    drawPaper(painter, page, theme, true);
    const double height = page.height() / 5;
    std::vector<const Look*> marks = words.logos;
    for (int row = 0; row < 4; ++row) {
        drawBunting(
            painter,
            QRectF(page.left() + 20, page.top() + height * (row + 0.35), page.width() - 40, height * 0.95),
            theme, marks);
    }
    painter.setPen(colour(theme.ink));
    drawFitted(painter,
               QRectF(page.left() + 40, page.bottom() - height * 0.7, page.width() - 80, height * 0.5),
               Qt::AlignCenter, text(words.title), titleFont(theme, page.width() * 0.11));
}

} // namespace

QSizeF sheetSize(BrochureKind kind, bool landscape) {
    switch (kind) {
    case BrochureKind::digital:
        return {540, 1080};
    case BrochureKind::video:
        return {1120, 630};
    default:
        return landscape ? QSizeF(1052, 744) : QSizeF(744, 1052);
    }
}

bool isLandscape(const Style& style) {
    return style.kind == BrochureKind::video || style.kind == BrochureKind::mantel ||
           (style.kind == BrochureKind::chalkboard && style.chalkboardFormatType == 2);
}

void drawPaper(QPainter& painter, const QRectF& page, const Theme& theme, bool strong) {
    painter.fillRect(page, colour(theme.paper));
    drawPattern(painter, page, theme, strong ? 70 : 16);
}

void drawBunting(QPainter& painter, const QRectF& strip, const Theme& theme,
                 const std::vector<const Look*>& marks, int flags) {
    const double width = strip.width() / flags;
    const std::array tones = {theme.ink, theme.accent, theme.second};
    QPainterPath cord(strip.topLeft());
    cord.quadTo(strip.center().x(), strip.top() + strip.height() * 0.24, strip.right(), strip.top());
    for (int i = 0; i < flags; ++i) {
        const double share = (i + 0.5) / flags;
        const double top = cord.pointAtPercent(share).y();
        const double left = strip.left() + i * width + 3;
        const QColor tone = colour(tones[size_t(i) % tones.size()]);
        painter.setPen(Qt::NoPen);
        painter.setBrush(tone);
        painter.drawPolygon(QPolygonF{QPointF(left, top), QPointF(left + width - 6, top),
                                      QPointF(left + width / 2 - 3, top + strip.height() * 0.74)});
        const QRectF inside(left + width * 0.24, top + 4, width * 0.44, width * 0.44);
        if (!marks.empty()) {
            drawMark(painter, inside, *marks[size_t(i) % marks.size()]);
        } else {
            drawMotif(painter, inside, i % 2 == 0 ? Motif::beer : Motif::hop, colour(theme.paper),
                      mixed(tone, Qt::white, 0.6));
        }
    }
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colour(theme.ink), 4));
    painter.drawPath(cord);
}

namespace {

/// Bottles and glasses in the colours of a theme.
Look houseLook(BrochureKind kind, const Theme& theme, const std::string& bar) {
    const bool wine = kind == BrochureKind::wineA4 || kind == BrochureKind::wineOrder;
    const bool soft = kind == BrochureKind::beverage;
    Look look;
    look.base = theme.dark ? theme.accent : theme.ink;
    look.accent = theme.dark ? theme.second : theme.accent;
    look.paper = theme.dark ? 0xF7EEDC : theme.paper;
    look.liquid = wine ? 0x7B1E3A : soft ? 0xF59E34 : 0xF2B632;
    look.bottleGlass = wine ? 0x1E3A22 : soft ? 0xF59E34 : 0x5A2E12;
    look.motif = wine ? 7 : soft ? 4 : 0;
    look.emblem = theme.pattern % 3;
    look.label = 2;
    look.name = bar.substr(0, 1);
    return look;
}

/// Three vessels side by side on the bottom of an area.
void drawShelf(QPainter& painter, const QRectF& area, BrochureKind kind, const Theme& theme,
               const std::string& bar) {
    const Look look = houseLook(kind, theme, bar);
    std::array vessels = {Vessel::tallGlass, Vessel::bottle, Vessel::pint};
    if (kind == BrochureKind::wineA4 || kind == BrochureKind::wineOrder) {
        vessels = {Vessel::wineGlass, Vessel::wineBottle, Vessel::wineGlass};
    } else if (kind == BrochureKind::beverage) {
        vessels = {Vessel::tumbler, Vessel::softBottle, Vessel::jug};
    }
    const double width = std::min(area.width() / 3, area.height() * 0.42);
    for (int i = 0; i < 3; ++i) {
        drawVessel(painter, QRectF(area.center().x() + (i - 1.5) * width, area.top(), width, area.height()),
                   look, vessels[size_t(i)]);
    }
}

/// Title, rule, name of the bar, tagline and logos, one under the other in a block.
void drawWords(QPainter& painter, const QRectF& block, const Theme& theme, const CoverText& words) {
    const bool logos = !words.logos.empty();
    const double height = block.height();
    painter.setPen(colour(theme.ink));
    const QRectF title(block.left(), block.top(), block.width(), height * (logos ? 0.34 : 0.46));
    drawFitted(painter, title, Qt::AlignCenter, text(words.title), titleFont(theme, height * 0.4));
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour(theme.accent));
    painter.drawRoundedRect(QRectF(block.center().x() - block.width() * 0.14, title.bottom() + height * 0.01,
                                   block.width() * 0.28, height * 0.018),
                            3, 3);
    painter.setPen(colour(theme.ink));
    QRectF bar(block.left(), title.bottom() + height * 0.06, block.width(), height * (logos ? 0.17 : 0.24));
    if (!words.barLogo.isNull()) {
        const double side = bar.height() * 1.5;
        painter.drawImage(QRectF(bar.left(), bar.center().y() - side / 2, side, side), words.barLogo);
        bar.setLeft(bar.left() + side + 8);
    }
    drawFitted(painter, bar, Qt::AlignCenter, text(words.bar), face(Face::round, height * 0.18, true));
    painter.setPen(mixed(colour(theme.ink), colour(theme.paper), 0.25));
    const QRectF tagline(block.left(), bar.bottom() + height * 0.015, block.width(), height * 0.1);
    drawFitted(painter, tagline, Qt::AlignCenter, text(words.tagline), face(Face::body, height * 0.1));
    if (logos) {
        const double top = tagline.bottom() + height * 0.03;
        drawLogos(painter, QRectF(block.left(), top, block.width(), block.bottom() - top), words.logos);
    }
}

/// A framed panel with the words over a shelf.
void drawFramedCover(QPainter& painter, const QRectF& page, BrochureKind kind, const Theme& theme,
                     const CoverText& words) {
    const double w = page.width(), h = page.height();
    const QRectF panel = page.adjusted(w * 0.11, h * 0.085, -w * 0.11, -h * 0.085);
    drawPanel(painter, panel, theme);
    const double motif = std::min(panel.width(), panel.height()) * 0.2;
    drawMotif(painter,
              QRectF(panel.center().x() - motif / 2, panel.top() + panel.height() * 0.03, motif, motif),
              coverMotif(kind, theme), colour(theme.accent), colour(theme.second));
    const double top = panel.top() + panel.height() * 0.045 + motif;
    drawWords(painter, QRectF(panel.left() + w * 0.05, top, panel.width() - w * 0.1, panel.height() * 0.38),
              theme, words);
    const double shelf = top + panel.height() * 0.41;
    drawShelf(painter,
              QRectF(panel.left() + w * 0.04, shelf, panel.width() - w * 0.08, panel.bottom() - shelf - 12),
              kind, theme, words.bar);
}

/// A coloured upper half with the shelf on its edge, the words below.
void drawBandedCover(QPainter& painter, const QRectF& page, BrochureKind kind, const Theme& theme,
                     const CoverText& words) {
    const double w = page.width(), h = page.height(), edge = page.top() + h * 0.56;
    const QColor ground = theme.dark ? mixed(colour(theme.accent), Qt::black, 0.25) : colour(theme.ink);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawRect(QRectF(page.left(), page.top(), w, edge - page.top()));
    painter.save();
    painter.setClipRect(QRectF(page.left(), page.top(), w, edge - page.top()));
    painter.setBrush(mixed(ground, Qt::white, 0.08));
    for (int ray = 0; ray < 16; ++ray) {
        painter.save();
        painter.translate(page.center().x(), edge);
        painter.rotate(ray * 22.5 + 6);
        painter.drawPolygon(QPolygonF{QPointF(0, 0), QPointF(h, -h * 0.09), QPointF(h, h * 0.09)});
        painter.restore();
    }
    painter.restore();
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour(theme.accent));
    const double scallop = w / 14;
    for (int i = 0; i < 14; ++i) {
        painter.drawEllipse(QPointF(page.left() + (i + 0.5) * scallop, edge), scallop / 2, scallop * 0.36);
    }
    painter.drawRect(QRectF(page.left(), edge - 7, w, 9));
    drawBunting(painter, QRectF(page.left() - 6, page.top() + 4, w + 12, h * 0.11), theme, {});
    drawShelf(painter,
              QRectF(page.left() + w * 0.12, page.top() + h * 0.13, w * 0.76, edge - page.top() - h * 0.125),
              kind, theme, words.bar);
    drawWords(painter,
              QRectF(page.left() + w * 0.09, edge + h * 0.055, w * 0.82, page.bottom() - edge - h * 0.09),
              theme, words);
}

/// A large round badge with the words, the shelf standing before it.
void drawRoundCover(QPainter& painter, const QRectF& page, BrochureKind kind, const Theme& theme,
                    const CoverText& words) {
    const double w = page.width(), h = page.height();
    const double radius = std::min(w * 0.43, h * 0.31);
    const QPointF centre(page.center().x(), page.top() + radius + h * 0.05);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour(theme.ink));
    painter.drawEllipse(centre, radius, radius);
    painter.setBrush(colour(theme.accent));
    painter.drawEllipse(centre, radius * 0.965, radius * 0.965);
    painter.setBrush(colour(theme.paper));
    painter.drawEllipse(centre, radius * 0.935, radius * 0.935);
    const double motif = radius * 0.4;
    drawMotif(painter, QRectF(centre.x() - motif / 2, centre.y() - radius * 0.86, motif, motif),
              coverMotif(kind, theme), colour(theme.accent), colour(theme.second));
    drawWords(painter,
              QRectF(centre.x() - radius * 0.72, centre.y() - radius * 0.4, radius * 1.44,
                     radius * (words.logos.empty() ? 0.85 : 1.05)),
              theme, words);
    const double shelf = centre.y() + radius * (words.logos.empty() ? 0.72 : 0.84);
    drawShelf(painter, QRectF(page.left() + w * 0.12, shelf, w * 0.76, page.bottom() - shelf - h * 0.06),
              kind, theme, words.bar);
}

/// For sheets that lie: words on one side, a coloured field with the shelf on the other.
void drawWideCover(QPainter& painter, const QRectF& page, BrochureKind kind, const Theme& theme,
                   const CoverText& words) {
    const double w = page.width(), h = page.height(), inset = h * 0.075;
    const QRectF field(page.left() + w * 0.6, page.top() + inset, w * 0.4 - inset, h - 2 * inset);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme.dark ? mixed(colour(theme.accent), Qt::black, 0.35) : colour(theme.ink));
    painter.drawRoundedRect(field, 18, 18);
    drawBunting(painter, QRectF(field.left() + 8, field.top() + 8, field.width() - 16, h * 0.13), theme, {});
    drawShelf(painter,
              QRectF(field.left() + 10, field.top() + h * 0.16, field.width() - 20, field.height() - h * 0.2),
              kind, theme, words.bar);
    const QRectF panel(page.left() + inset * 1.2, page.top() + inset, w * 0.6 - inset * 2, h - 2 * inset);
    drawPanel(painter, panel, theme);
    const double motif = h * 0.2;
    drawMotif(painter, QRectF(panel.center().x() - motif / 2, panel.top() + h * 0.04, motif, motif),
              coverMotif(kind, theme), colour(theme.accent), colour(theme.second));
    drawWords(painter, panel.adjusted(w * 0.03, h * 0.27, -w * 0.03, -h * 0.05), theme, words);
}

} // namespace

void drawCoverFront(QPainter& painter, const QRectF& page, BrochureKind kind, const Theme& theme,
                    const CoverText& words) {
    if (kind == BrochureKind::pennant) {
        return drawPennantSheet(painter, page, theme, words);
    }
    painter.save();
    Theme shown = theme;
    if (kind == BrochureKind::chalkboard) {
        shown.paper = 0x242B2B;
        shown.ink = 0xF4F1E4;
        shown.dark = true;
    }
    drawPaper(painter, page, shown, true);
    const bool wide = page.width() > page.height();
    if (wide) {
        drawWideCover(painter, page, kind, shown, words);
    } else if (kind == BrochureKind::chalkboard || theme.pattern < 2) {
        drawFramedCover(painter, page, kind, shown, words);
    } else if (theme.pattern % 2 == 0) {
        drawBandedCover(painter, page, kind, shown, words);
    } else {
        drawRoundCover(painter, page, kind, shown, words);
    }
    if (kind == BrochureKind::chalkboard) {
        drawWoodFrame(painter, page);
    } else if (!wide && theme.pattern < 2) {
        drawFrame(painter, page, shown);
    }
    if (kind == BrochureKind::video) {
        drawPlayButton(painter, page, shown);
    }
    painter.restore();
}

void drawCoverBack(QPainter& painter, const QRectF& page, BrochureKind kind, const Theme& theme,
                   const CoverText& words) {
    painter.save();
    drawPaper(painter, page, theme, false);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour(theme.ink));
    const double band = page.height() * 0.16;
    painter.drawRect(QRectF(page.left(), page.bottom() - band, page.width(), band));
    painter.setBrush(colour(theme.accent));
    painter.drawRect(QRectF(page.left(), page.bottom() - band - 6, page.width(), 6));
    const double unit = std::min(page.width(), page.height());
    const double motif = unit * 0.24;
    drawMotif(painter, QRectF(page.center().x() - motif / 2, page.top() + page.height() * 0.1, motif, motif),
              coverMotif(kind, theme), colour(theme.accent), colour(theme.second));
    painter.setPen(colour(theme.ink));
    double y = page.top() + page.height() * 0.14 + motif;
    const double left = page.left() + page.width() * 0.12, width = page.width() * 0.76;
    drawFitted(painter, QRectF(left, y, width, unit * 0.1), Qt::AlignCenter, text(words.bar),
               titleFont(theme, unit * 0.1));
    y += unit * 0.13;
    for (const std::string& line : words.backLines) {
        const double height = unit * (line.size() > 60 ? 0.085 : 0.05);
        drawFitted(painter, QRectF(left, y, width, height), Qt::AlignCenter | Qt::TextWordWrap, text(line),
                   face(Face::body, unit * 0.036));
        y += height + unit * 0.008;
    }
    painter.setPen(colour(theme.paper));
    drawFitted(
        painter,
        QRectF(page.left() + page.width() * 0.07, page.bottom() - band * 0.62, width * 0.7, band * 0.34),
        Qt::AlignLeft | Qt::AlignVCenter, text(words.tagline), face(Face::body, unit * 0.036));
    painter.restore();
}

} // namespace kavor::demo
