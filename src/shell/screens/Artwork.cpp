#include "shell/screens/Artwork.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>
#include <span>
#include <utility>

namespace kavor {

namespace {

const QColor bottle("#123F31");
const QColor bottleDark("#0C2E24");
const QColor amber("#E0A126");
const QColor foam("#FFF6E0");

// What stands on the shelf.
enum class Vessel { Longneck, Stout, Pint, Tulip, Stem, Mug };

// The colours of one picture.
struct Palette {
    QColor ground;
    QColor glow; // the round light behind the shelf
    QColor far;  // silhouettes at the back
    QColor near; // silhouettes in front
    QColor beer;
    QColor head; // foam
    QColor shelf;
};

QPainterPath longneck(const QRectF& r) {
    const double neck = r.width() * 0.30;
    const double x = r.center().x();
    QPainterPath path(QPointF(x - neck / 2, r.top()));
    path.lineTo(x + neck / 2, r.top());
    path.lineTo(x + neck * 0.55, r.top() + r.height() * 0.30);
    path.cubicTo(x + neck * 0.6, r.top() + r.height() * 0.42, r.right(), r.top() + r.height() * 0.40,
                 r.right(), r.top() + r.height() * 0.55);
    path.lineTo(r.right(), r.bottom());
    path.lineTo(r.left(), r.bottom());
    path.lineTo(r.left(), r.top() + r.height() * 0.55);
    path.cubicTo(r.left(), r.top() + r.height() * 0.40, x - neck * 0.6, r.top() + r.height() * 0.42,
                 x - neck * 0.55, r.top() + r.height() * 0.30);
    path.closeSubpath();
    return path;
}

// A glass whose sides run straight from a width at the rim to one at the foot.
QPainterPath straightGlass(const QRectF& r, double rim, double foot) {
    const double x = r.center().x();
    QPainterPath path(QPointF(x - r.width() * rim / 2, r.top()));
    path.lineTo(x + r.width() * rim / 2, r.top());
    path.lineTo(x + r.width() * foot / 2, r.bottom());
    path.lineTo(x - r.width() * foot / 2, r.bottom());
    path.closeSubpath();
    return path;
}

// A rounded bowl; the stem and the foot are drawn apart.
QPainterPath bowl(const QRectF& r, double belly) {
    const double rim = r.width() * 0.36;
    const double x = r.center().x();
    QPainterPath path(QPointF(x - rim, r.top()));
    path.lineTo(x + rim, r.top());
    path.cubicTo(x + r.width() * belly, r.top() + r.height() * 0.55, x + r.width() * belly, r.bottom(), x,
                 r.bottom());
    path.cubicTo(x - r.width() * belly, r.bottom(), x - r.width() * belly, r.top() + r.height() * 0.55,
                 x - rim, r.top());
    path.closeSubpath();
    return path;
}

void fillGlass(QPainter& p, const QPainterPath& glass, const Palette& colours, double headShare) {
    const QRectF r = glass.boundingRect();
    p.setPen(Qt::NoPen);
    p.save();
    p.setClipPath(glass, Qt::IntersectClip);
    p.fillRect(r, colours.beer);
    p.fillRect(QRectF(r.left(), r.top(), r.width(), r.height() * headShare), colours.head);
    QColor light(255, 255, 255, 70);
    p.fillRect(QRectF(r.left() + r.width() * 0.18, r.top(), r.width() * 0.10, r.height()), light);
    p.restore();
    // The foam stands above the rim.
    p.setBrush(colours.head);
    const double bubble = r.width() * 0.26;
    for (int i = 0; i < 3; ++i)
        p.drawEllipse(QPointF(r.left() + r.width() * (0.24 + 0.26 * i), r.top() + bubble * 0.12),
                      bubble * 0.72, bubble * (i == 1 ? 0.62 : 0.48));
}

void drawBottle(QPainter& p, const QRectF& r, const QColor& glass, const Palette& colours, bool labelled) {
    p.setPen(Qt::NoPen);
    p.setBrush(glass);
    p.drawPath(longneck(r));
    p.setBrush(colours.beer);
    p.drawRoundedRect(QRectF(r.center().x() - r.width() * 0.19, r.top() - r.height() * 0.015,
                             r.width() * 0.38, r.height() * 0.05),
                      2, 2);
    if (!labelled)
        return;
    const QRectF label(r.left() + r.width() * 0.04, r.top() + r.height() * 0.60, r.width() * 0.92,
                       r.height() * 0.24);
    p.setBrush(colours.head);
    p.drawRect(label);
    p.setBrush(colours.beer);
    p.drawEllipse(label.center(), label.height() * 0.30, label.height() * 0.30);
}

void drawStemmed(QPainter& p, const QRectF& r, const Palette& colours, bool wine) {
    const double share = wine ? 0.52 : 0.70;
    const QRectF cup(r.left(), r.top(), r.width(), r.height() * share);
    p.setPen(QPen(colours.head, r.width() * 0.07, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(r.center().x(), cup.bottom()), QPointF(r.center().x(), r.bottom()));
    p.drawLine(QPointF(r.center().x() - r.width() * 0.28, r.bottom()),
               QPointF(r.center().x() + r.width() * 0.28, r.bottom()));
    const QPainterPath glass = bowl(cup, wine ? 0.56 : 0.50);
    if (!wine) {
        fillGlass(p, glass, colours, 0.16);
        return;
    }
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(255, 255, 255, 60));
    p.drawPath(glass);
    p.save();
    p.setClipPath(glass, Qt::IntersectClip);
    p.fillRect(QRectF(cup.left(), cup.top() + cup.height() * 0.42, cup.width(), cup.height()),
               QColor("#8E2F46"));
    p.restore();
}

void drawVessel(QPainter& p, Vessel vessel, const QRectF& r, const Palette& colours) {
    switch (vessel) {
    case Vessel::Longneck:
        drawBottle(p, r, colours.near, colours, true);
        return;
    case Vessel::Stout:
        drawBottle(p, r.adjusted(-r.width() * 0.08, r.height() * 0.16, r.width() * 0.08, 0), colours.near,
                   colours, true);
        return;
    case Vessel::Pint:
        fillGlass(p, straightGlass(r.adjusted(0, r.height() * 0.38, 0, 0), 1.0, 0.72), colours, 0.14);
        return;
    case Vessel::Tulip:
        drawStemmed(p, r.adjusted(0, r.height() * 0.34, 0, 0), colours, false);
        return;
    case Vessel::Stem:
        drawStemmed(p, r.adjusted(0, r.height() * 0.24, 0, 0), colours, true);
        return;
    case Vessel::Mug: {
        const QRectF body = r.adjusted(0, r.height() * 0.46, -r.width() * 0.14, 0);
        p.setBrush(Qt::NoBrush);
        p.setPen(QPen(colours.head, r.width() * 0.10));
        p.drawRoundedRect(QRectF(body.right() - r.width() * 0.06, body.top() + body.height() * 0.2,
                                 r.width() * 0.30, body.height() * 0.5),
                          r.width() * 0.12, r.width() * 0.12);
        fillGlass(p, straightGlass(body, 1.0, 0.94), colours, 0.20);
        return;
    }
    }
}

// A shelf of bottles and glasses along the foot of the area; the left of a wide area stays calm for words.
void drawShelf(QPainter& p, const QRectF& area, const Palette& colours, std::span<const Vessel> vessels) {
    const double unit = std::min(area.height(), area.width() * 0.72);
    const double board = unit * 0.10;
    const double floor = area.bottom() - board;
    const double height = unit * 0.74;
    const double width = height * 0.30;
    const double step = width * 1.5;
    const bool calm = area.width() > area.height() * 1.5;
    const double stop = area.left() + (calm ? area.width() * 0.56 : -width);

    p.fillRect(area, colours.ground);
    p.setPen(Qt::NoPen);
    p.setBrush(colours.glow);
    p.drawEllipse(QPointF(area.right() - unit * 0.9, floor), unit * 1.15, unit * 0.95);
    p.setBrush(colours.far);
    for (int i = 0; area.right() - i * step - width * 1.6 > stop; ++i) {
        const double tall = height * (i % 3 == 0 ? 1.02 : i % 3 == 1 ? 0.84 : 0.93);
        p.drawPath(longneck({area.right() - i * step - width * 1.6, floor - tall, width * 0.86, tall}));
    }
    double x = area.right() - width * 1.45;
    for (std::size_t i = 0; x > stop; ++i, x -= step)
        drawVessel(p, vessels[i % vessels.size()], {x, floor - height * 0.9, width, height * 0.9}, colours);
    p.setPen(Qt::NoPen);
    p.fillRect(QRectF(area.left(), floor, area.width(), board), colours.shelf);
    p.fillRect(QRectF(area.left(), floor, area.width(), board * 0.18), colours.beer);
}

void drawLogo(QPainter& p, const QRectF& area) {
    const double side = std::min(area.width(), area.height());
    const QRectF r(area.center().x() - side / 2, area.center().y() - side / 2, side, side);
    p.setPen(Qt::NoPen);
    p.setBrush(bottle);
    p.drawRoundedRect(r, side * 0.24, side * 0.24);
    p.setBrush(QColor("#1D5543"));
    p.drawEllipse(r.center(), side * 0.40, side * 0.40);
    // The letter K: a glass for its stem, the two arms beside it.
    const Palette colours{bottle, bottle, bottle, bottle, amber, foam, bottle};
    QPen arm(foam, side * 0.095, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    p.setPen(arm);
    const QPointF joint(r.left() + side * 0.55, r.top() + side * 0.53);
    p.drawLine(joint, QPointF(r.left() + side * 0.72, r.top() + side * 0.31));
    p.drawLine(joint, QPointF(r.left() + side * 0.73, r.top() + side * 0.73));
    fillGlass(
        p,
        straightGlass({r.left() + side * 0.24, r.top() + side * 0.29, side * 0.26, side * 0.475}, 1.0, 0.78),
        colours, 0.16);
}

constexpr std::array beerShelf{Vessel::Pint,     Vessel::Longneck, Vessel::Tulip, Vessel::Stout, Vessel::Mug,
                               Vessel::Longneck, Vessel::Pint,     Vessel::Stout, Vessel::Tulip};
constexpr std::array mixedShelf{Vessel::Stem, Vessel::Stout,    Vessel::Tulip, Vessel::Longneck, Vessel::Stem,
                                Vessel::Pint, Vessel::Longneck, Vessel::Mug,   Vessel::Stem};

} // namespace

Artwork::Artwork(QQuickItem* parent)
    : QQuickPaintedItem(parent) {
    setAntialiasing(true);
}

void Artwork::setName(const QString& name) {
    if (std::exchange(name_, name) == name)
        return;
    emit nameChanged();
    update();
}

void Artwork::paint(QPainter* painter) {
    draw(*painter, name_, boundingRect());
}

void Artwork::draw(QPainter& painter, const QString& name, const QRectF& area) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(area, Qt::IntersectClip);
    if (name == QLatin1String("logo"))
        drawLogo(painter, area);
    else if (name == QLatin1String("login_image"))
        drawShelf(painter, area,
                  {bottle, QColor("#1A4F3E"), QColor("#175041"), QColor("#2E7257"), amber, foam, bottleDark},
                  beerShelf);
    else if (name == QLatin1String("login_image_nrv"))
        drawShelf(painter, area,
                  {bottle, QColor("#1A4F3E"), QColor("#175041"), QColor("#7A4A5C"), amber, foam, bottleDark},
                  mixedShelf);
    painter.restore();
}

QIcon Artwork::applicationIcon() {
    QIcon icon;
    for (const int side : {16, 24, 32, 48, 64, 128, 256}) {
        QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        draw(painter, QStringLiteral("logo"), image.rect());
        painter.end();
        icon.addPixmap(QPixmap::fromImage(image));
    }
    return icon;
}

void Snapshot::setImage(const QVariant& image) {
    image_ = image.value<QImage>();
    emit imageChanged();
    update();
}

void Snapshot::paint(QPainter* painter) {
    if (!image_.isNull())
        painter->drawImage(boundingRect(), image_);
}

} // namespace kavor
