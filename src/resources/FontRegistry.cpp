#include "resources/FontRegistry.h"

#include "base/AtomicFile.h"

#include <QCryptographicHash>
#include <QFontDatabase>
#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace kavor {

namespace {

constexpr qreal lookUpSize = 17;

QByteArray digestOf(const QByteArray& data) {
    return QCryptographicHash::hash(data, QCryptographicHash::Sha256);
}

// The glyphs of one line on its base line, and how far they reach.
struct Line {
    QPainterPath path;
    qreal width = 0;
};

Line lineOf(const QRawFont& font, const QString& text) {
    Line line;
    const QList<quint32> glyphs = font.glyphIndexesForString(text);
    const QList<QPointF> advances = font.advancesForGlyphIndexes(glyphs);
    for (qsizetype i = 0; i < glyphs.size(); ++i) {
        line.path.addPath(font.pathForGlyph(glyphs[i]).translated(line.width, 0));
        line.width += advances[i].x();
    }
    return line;
}

} // namespace

void FontRegistry::addStored(const std::filesystem::path& folder) {
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
        const auto content = atomic_file::read(entry.path());
        if (!content)
            continue;
        const QByteArray data = QByteArray::fromStdString(*content);
        const QRawFont raw(data, lookUpSize);
        const QByteArray digest = digestOf(data);
        if (!raw.isValid() || stored_.contains(digest))
            continue;
        const QStringList families =
            QFontDatabase::applicationFontFamilies(QFontDatabase::addApplicationFontFromData(data));
        if (families.isEmpty())
            continue;
        QFont font(families.first());
        font.setWeight(QFont::Weight(raw.weight()));
        font.setStyle(raw.style());
        stored_.insert(digest, font);
    }
}

bool FontRegistry::registerFont(const QString& name, const QByteArray& data) {
    const QByteArray digest = digestOf(data);
    if (const auto found = fonts_.constFind(name); found != fonts_.constEnd() && found->digest == digest)
        return true;
    const QRawFont raw(data, lookUpSize);
    if (!raw.isValid())
        return false;
    fonts_.insert(name, {digest, raw});
    emit changed(name);
    return true;
}

void FontRegistry::unregisterFont(const QString& name) {
    if (fonts_.remove(name))
        emit changed(name);
}

std::optional<QFont> FontRegistry::font(const QString& name, int pixelSize) const {
    const auto stored = stored_.constFind(fonts_.value(name).digest);
    if (stored == stored_.constEnd())
        return std::nullopt;
    QFont font = *stored;
    font.setPixelSize(pixelSize);
    return font;
}

QString FontRegistry::family(const QString& name) const {
    const auto found = font(name, int(lookUpSize));
    return found ? found->family() : QString();
}

QImage FontRegistry::picture(const QString& name, const QString& text, int pixelSize, QColor colour) const {
    QRawFont raw = fonts_.value(name).raw;
    if (!raw.isValid() || pixelSize <= 0)
        return {};
    raw.setPixelSize(pixelSize);
    const Line line = lineOf(raw, text);
    if (line.width <= 0)
        return {};
    QImage image(int(std::ceil(line.width)), int(std::ceil(raw.ascent() + raw.descent())),
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(0, raw.ascent());
    painter.fillPath(line.path, colour);
    return image;
}

} // namespace kavor
