#include "ui/Icon.h"

#include <QFile>
#include <QHash>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace kavor {

namespace {

constexpr qreal kGrid = 24;

// Reads absolute M, L, C and Z, the only commands that the bundled drawings use.
QPainterPath readPath(const QStringList& words) {
    QPainterPath path;
    auto point = [&words](qsizetype at) {
        return QPointF(words.value(at).toDouble(), words.value(at + 1).toDouble());
    };
    for (qsizetype at = 1; at < words.size(); ++at) {
        const QString& command = words[at];
        if (command == u"M") {
            path.moveTo(point(at + 1));
            at += 2;
        } else if (command == u"L") {
            path.lineTo(point(at + 1));
            at += 2;
        } else if (command == u"C") {
            path.cubicTo(point(at + 1), point(at + 3), point(at + 5));
            at += 6;
        } else if (command == u"Z") {
            path.closeSubpath();
        }
    }
    return path;
}

QHash<QString, QPainterPath> readDrawings() {
    QFile file(QStringLiteral(":/kavor/ui/icons/icons.txt"));
    if (!file.open(QIODevice::ReadOnly))
        qWarning("the bundled icons cannot be read");
    QHash<QString, QPainterPath> drawings;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        const QStringList words = line.split(u' ', Qt::SkipEmptyParts);
        drawings.insert(words.first(), readPath(words));
    }
    return drawings;
}

const QHash<QString, QPainterPath>& drawings() {
    static const QHash<QString, QPainterPath> all = readDrawings();
    return all;
}

} // namespace

Icon::Icon(QQuickItem* parent)
    : QQuickPaintedItem(parent) {
    setAntialiasing(true);
    setImplicitSize(size_, size_);
}

void Icon::setName(const QString& name) {
    if (name_ == name)
        return;
    name_ = name;
    if (!name.isEmpty() && !drawings().contains(name))
        qWarning("Icon: there is no drawing \"%s\"", qPrintable(name));
    update();
    emit nameChanged();
}

void Icon::setColour(const QColor& colour) {
    if (colour_ == colour)
        return;
    colour_ = colour;
    update();
    emit colourChanged();
}

void Icon::setSize(qreal size) {
    if (size_ == size)
        return;
    size_ = size;
    setImplicitSize(size, size);
    update();
    emit sizeChanged();
}

void Icon::setWeight(qreal weight) {
    if (weight_ == weight)
        return;
    weight_ = weight;
    update();
    emit weightChanged();
}

void Icon::setFilled(bool filled) {
    if (filled_ == filled)
        return;
    filled_ = filled;
    update();
    emit filledChanged();
}

void Icon::paint(QPainter* painter) {
    const auto drawing = drawings().constFind(name_);
    if (drawing == drawings().constEnd())
        return;
    const qreal side = std::min(width(), height());
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate((width() - side) / 2, (height() - side) / 2);
    painter->scale(side / kGrid, side / kGrid);
    painter->setPen(QPen(colour_, weight_, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->setBrush(filled_ ? QBrush(colour_) : QBrush(Qt::NoBrush));
    painter->drawPath(*drawing);
}

QStringList Icon::names() {
    QStringList names = drawings().keys();
    names.sort();
    return names;
}

} // namespace kavor
