#include "drawing/PosterArt.h"

#include "catalogue/Styles.h"
#include "drawing/Covers.h"
#include "drawing/Emblems.h"
#include "drawing/Motifs.h"
#include "drawing/Tools.h"
#include "drawing/Vessels.h"

#include <QPainterPath>
#include <QPolygonF>

#include <array>
#include <cmath>
#include <numbers>

namespace kavor::demo {

namespace {

constexpr int centred = Qt::AlignCenter | Qt::TextWordWrap;
constexpr double side = 744; ///< the short side of every poster, in its own units

QString callToAction(int language) {
    switch (language) {
    case 2:
        return QStringLiteral("Vine i tasta-la");
    case 3:
        return QStringLiteral("Come and taste it");
    default:
        return QStringLiteral("Ven y pruébala");
    }
}

QString only(int language) {
    return language == 2   ? QStringLiteral("només")
           : language == 3 ? QStringLiteral("only")
                           : QStringLiteral("solo");
}

/// One poster on its page. Every arrangement is made of the same parts.
class Press {
public:
    Press(QPainter& painter, const QSizeF& size, const Poster& poster, const Look& look,
          const PosterWords& words)
        : painter_(painter)
        , page_(QPointF(0, 0), size)
        , poster_(poster)
        , look_(look)
        , words_(words)
        , theme_(themes()[size_t(poster.theme)])
        , paper_(colour(theme_.paper))
        , ink_(colour(theme_.ink))
        , accent_(colour(theme_.accent)) {}

    void print() {
        if (page_.width() > page_.height()) {
            return printWide();
        }
        switch (poster_.id % 3) {
        case 0:
            return printRound();
        case 1:
            return printBanded();
        default:
            return printFramed();
        }
    }

private:
    double w() const { return page_.width(); }
    double h() const { return page_.height(); }
    QRectF part(double left, double top, double right, double bottom) const {
        return {QPointF(w() * left, h() * top), QPointF(w() * right, h() * bottom)};
    }
    void fill(const QColor& tone) {
        painter_.setPen(Qt::NoPen);
        painter_.setBrush(tone);
    }

    /// A band with the title over the vessels, which stand in rays.
    void printBanded() {
        painter_.fillRect(page_, paper_);
        rays(page_, QPointF(w() / 2, h() * 0.53), colour(theme_.accent, 46));
        fill(ink_);
        painter_.drawRect(part(0, 0, 1, 0.225));
        fill(accent_);
        painter_.drawPolygon(QPolygonF{QPointF(0, h() * 0.225), QPointF(w(), h() * 0.225),
                                       QPointF(w(), h() * 0.25), QPointF(0, h() * 0.286)});
        title(part(0.06, 0.03, 0.94, 0.2), paper_);
        phrase(part(0.08, 0.287, 0.92, 0.345), ink_);
        vessels(part(0.1, words_.phrase.isEmpty() ? 0.29 : 0.345, 0.7, 0.8));
        sideSign(part(0.665, 0.42, 0.935, 0.64));
        hours(part(0.66, 0.68, 0.94, 0.735), ink_);
        description(part(0.08, 0.806, 0.92, 0.884), ink_);
        footer(part(0.05, 0.9, 0.95, 0.972), ink_);
    }

    /// A disc with the vessels on a coloured ground, the title below.
    void printRound() {
        const QColor ground = theme_.dark ? mixed(accent_, Qt::black, 0.55) : ink_;
        const QColor light = theme_.dark ? ink_ : paper_;
        painter_.fillRect(page_, ground);
        const QPointF centre(w() / 2, h() * 0.325);
        rays(page_, centre, mixed(ground, light, 0.07));
        const double radius = std::min(w() * 0.4, h() * 0.275);
        fill(accent_);
        painter_.drawEllipse(centre, radius * 1.05, radius * 1.05);
        fill(theme_.dark ? mixed(light, Qt::white, 0.4) : light);
        painter_.drawEllipse(centre, radius, radius);
        vessels(QRectF(centre.x() - radius * 0.75, centre.y() - radius * 0.92, radius * 1.5, radius * 1.85));
        if (words_.price.isEmpty()) {
            fill(theme_.dark ? mixed(light, Qt::white, 0.4) : light);
            painter_.drawEllipse(centre + QPointF(radius * 0.86, -radius * 0.72), radius * 0.34,
                                 radius * 0.34);
        }
        sideSign(QRectF(centre.x() + radius * 0.5, centre.y() - radius * 1.08, radius * 0.72, radius * 0.72));
        title(part(0.06, 0.618, 0.94, 0.745), light);
        description(part(0.09, 0.75, 0.91, 0.815), light);
        const bool both = !words_.phrase.isEmpty() && !words_.hours.isEmpty();
        phrase(part(0.08, 0.818, both ? 0.6 : 0.92, 0.878), mixed(accent_, light, 0.35));
        hours(both ? part(0.64, 0.825, 0.92, 0.875) : part(0.3, 0.825, 0.7, 0.875), light);
        fill(accent_);
        painter_.drawRect(part(0, 0.895, 1, 1));
        footer(part(0.05, 0.91, 0.95, 0.982), inkOn(accent_));
    }

    /// A frame on a patterned ground, with a string of pennants.
    void printFramed() {
        drawPaper(painter_, page_, theme_, true);
        const QRectF panel = page_.adjusted(w() * 0.055, w() * 0.055, -w() * 0.055, -w() * 0.055);
        painter_.setPen(QPen(ink_, 8));
        painter_.setBrush(paper_);
        painter_.drawRoundedRect(panel, 26, 26);
        painter_.setPen(QPen(accent_, 3));
        painter_.drawRoundedRect(panel.adjusted(14, 14, -14, -14), 18, 18);
        drawBunting(painter_, part(0.1, 0.075, 0.9, 0.185), theme_, {});
        title(part(0.11, 0.19, 0.89, 0.335), ink_);
        fill(accent_);
        painter_.drawRoundedRect(part(0.38, 0.341, 0.62, 0.348), 4, 4);
        description(part(0.13, 0.352, 0.87, 0.425), ink_);
        phrase(part(0.13, 0.427, 0.87, 0.485), mixed(accent_, theme_.dark ? Qt::white : Qt::black, 0.25));
        vessels(part(0.12, words_.phrase.isEmpty() ? 0.43 : 0.485, 0.68, 0.85));
        sideSign(part(0.62, 0.5, 0.885, 0.715));
        hours(part(0.61, 0.755, 0.89, 0.81), ink_);
        footer(part(0.11, 0.868, 0.89, 0.93), ink_);
    }

    /// For what lies: the vessels on a coloured side, the words on the other.
    void printWide() {
        painter_.fillRect(page_, paper_);
        const double edge = std::min(w() * 0.42, h() * 0.95);
        const QColor ground = theme_.dark ? mixed(accent_, Qt::black, 0.55) : ink_;
        const QRectF field(0, 0, edge, h());
        fill(ground);
        painter_.drawRect(field);
        rays(field, QPointF(edge / 2, h() * 0.55), mixed(ground, theme_.dark ? ink_ : paper_, 0.1));
        fill(accent_);
        painter_.drawRect(QRectF(edge, 0, 10, h()));
        vessels(QRectF(edge * 0.1, h() * 0.09, edge * 0.8, h() * 0.83));
        const bool sign = !words_.price.isEmpty();
        const double left = edge + 54, right = w() - 40, words = sign ? right - h() * 0.36 : right;
        title(QRectF(QPointF(left, h() * 0.06), QPointF(words, h() * 0.4)), ink_);
        description(QRectF(QPointF(left, h() * 0.42), QPointF(words, h() * 0.57)), ink_);
        phrase(QRectF(QPointF(left, h() * 0.58), QPointF(words, h() * 0.69)),
               mixed(accent_, theme_.dark ? Qt::white : Qt::black, 0.25));
        if (sign) {
            sideSign(QRectF(right - h() * 0.33, h() * 0.1, h() * 0.33, h() * 0.33));
        }
        hours(QRectF(left, h() * 0.71, std::min(300.0, (right - left) * 0.5), h() * 0.085), ink_);
        footer(QRectF(QPointF(left, h() * 0.83), QPointF(right, h() * 0.945)), ink_);
    }

    /// Not quite to the edge, where a clip would cover more than the ground below it.
    void rays(const QRectF& area, const QPointF& centre, const QColor& tone) {
        drawRays(painter_, area.adjusted(1, 1, -1, -1), centre, tone);
    }

    void title(const QRectF& area, const QColor& tone) {
        painter_.setPen(tone);
        drawFitted(painter_, area, centred, poster_.in(words_.language).title,
                   theme_.script ? face(Face::script, area.height() * 0.68)
                                 : face(Face::title, area.height() * 0.54, true));
    }

    void description(const QRectF& area, const QColor& tone) {
        painter_.setPen(tone);
        drawFitted(painter_, area, centred, poster_.in(words_.language).description,
                   face(Face::round, area.height() * 0.5, true));
    }

    void phrase(const QRectF& area, const QColor& tone) {
        if (words_.phrase.isEmpty()) {
            return;
        }
        painter_.setPen(tone);
        drawFitted(painter_, area, centred, QStringLiteral("«%1»").arg(words_.phrase),
                   face(Face::script, area.height() * 0.66));
    }

    void vessels(const QRectF& area) {
        const bool wine = poster_.family == Family::wine, soft = poster_.family == Family::market;
        const Vessel tall = wine ? Vessel::wineBottle : soft ? Vessel::softBottle : Vessel::bottle;
        const Vessel small = wine                  ? Vessel::wineGlass
                             : soft                ? Vessel::tumbler
                             : poster_.id % 2 == 0 ? Vessel::pint
                                                   : Vessel::glass;
        const double width = std::min(area.width() * 0.62, area.height() * 0.47);
        const double centre = area.center().x() + width * 0.24;
        drawVessel(painter_, QRectF(centre - width / 2, area.top(), width, area.height()), look_, tall);
        drawVessel(painter_,
                   QRectF(centre - width * 1.12, area.top() + area.height() * 0.24, width * 0.8,
                          area.height() * 0.765),
                   look_, small);
    }

    /// The price in a burst; an ornament where there is none.
    void sideSign(const QRectF& area) {
        if (words_.price.isEmpty()) {
            return drawMotif(painter_,
                             area.adjusted(area.width() * 0.12, area.height() * 0.12, -area.width() * 0.12,
                                           -area.height() * 0.12),
                             motifOf(poster_.motif), accent_, colour(theme_.second));
        }
        const QPointF centre = area.center();
        const double radius = std::min(area.width(), area.height()) / 2;
        constexpr int points = 18;
        QPolygonF burst;
        for (int i = 0; i < 2 * points; ++i) {
            const double angle = i * std::numbers::pi / points,
                         reach = i % 2 == 0 ? radius * 1.06 : radius * 0.9;
            burst << centre + QPointF(std::cos(angle), std::sin(angle)) * reach;
        }
        const QColor tone = colour(theme_.second);
        painter_.setPen(QPen(Qt::white, radius * 0.05));
        painter_.setBrush(tone);
        painter_.drawPolygon(burst);
        painter_.setPen(inkOn(tone));
        const double inner = radius * 0.8;
        drawFitted(painter_, QRectF(centre.x() - inner, centre.y() - inner * 0.72, 2 * inner, inner * 0.44),
                   Qt::AlignCenter, only(words_.language), face(Face::script, inner * 0.42));
        drawFitted(painter_, QRectF(centre.x() - inner, centre.y() - inner * 0.38, 2 * inner, inner * 0.94),
                   Qt::AlignCenter, words_.price, face(Face::round, inner * 0.72, true));
    }

    /// A clock and when the promotion holds.
    void hours(const QRectF& area, const QColor& tone) {
        if (words_.hours.isEmpty()) {
            return;
        }
        const double radius = area.height() / 2;
        painter_.setPen(QPen(tone, 3));
        painter_.setBrush(Qt::NoBrush);
        painter_.drawRoundedRect(area, radius, radius);
        const QPointF centre(area.left() + radius * 1.25, area.center().y());
        painter_.setPen(QPen(tone, radius * 0.14, Qt::SolidLine, Qt::RoundCap));
        painter_.drawEllipse(centre, radius * 0.5, radius * 0.5);
        painter_.drawLine(centre, centre - QPointF(0, radius * 0.3));
        painter_.drawLine(centre, centre + QPointF(radius * 0.22, radius * 0.1));
        drawFitted(painter_, area.adjusted(radius * 2, 2, -radius * 0.7, -2), Qt::AlignCenter, words_.hours,
                   face(Face::round, area.height() * 0.56, true));
    }

    /// The bar with its logo, and what to do; without a bar the brand and what to do.
    void footer(const QRectF& area, const QColor& tone) {
        const QString call = callToAction(words_.language);
        const double pill = std::min(area.width() * 0.42, area.height() * 4.6);
        const QRectF button(area.right() - pill, area.top() + area.height() * 0.1, pill, area.height() * 0.8);
        fill(tone == inkOn(accent_) && poster_.id % 3 == 0 ? colour(theme_.ink) : accent_);
        const QColor ground = painter_.brush().color();
        painter_.drawRoundedRect(button, button.height() / 2, button.height() / 2);
        painter_.setPen(inkOn(ground));
        drawFitted(painter_, button.adjusted(12, 2, -12, -2), Qt::AlignCenter, call,
                   face(Face::body, button.height() * 0.52, true));
        QRectF words(area.left(), area.top(), area.width() - pill - 20, area.height());
        if (!words_.logo.isNull()) {
            const QRectF tile(words.left(), words.top(), area.height() * 1.4, area.height());
            painter_.setPen(Qt::NoPen);
            painter_.setBrush(Qt::white); // logos are made for white paper
            painter_.drawRoundedRect(tile, 8, 8);
            const Canvas frame(painter_, tile.adjusted(5, 5, -5, -5), words_.logo.size());
            painter_.drawImage(QPointF(0, 0), words_.logo);
            words.setLeft(tile.right() + 14);
        } else if (words_.bar.isEmpty()) {
            drawMark(painter_, QRectF(words.left(), words.top(), area.height(), area.height()), look_);
            words.setLeft(words.left() + area.height() + 14);
        }
        painter_.setPen(tone);
        drawFitted(painter_, words, Qt::AlignLeft | Qt::AlignVCenter,
                   words_.bar.isEmpty() ? text(look_.name) : words_.bar,
                   face(Face::round, area.height() * 0.5, true));
    }

    QPainter& painter_;
    QRectF page_;
    const Poster& poster_;
    const Look& look_;
    const PosterWords& words_;
    const Theme& theme_;
    QColor paper_, ink_, accent_;
};

} // namespace

void drawPoster(QPainter& painter, const QRectF& page, const Poster& poster, const Look& look,
                const PosterWords& words) {
    const QSizeF size = page.size() * (side / std::min(page.width(), page.height()));
    const Canvas canvas(painter, page, size);
    Press(painter, size, poster, look, words).print();
}

} // namespace kavor::demo
