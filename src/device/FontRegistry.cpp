#include "device/FontRegistry.h"

#include <QFontDatabase>
#include <QRawFont>

#include <utility>

namespace kavor {

namespace {

constexpr qreal lookUpSize = 17;

} // namespace

FontRegistry::~FontRegistry() {
    for (const Entry& entry : std::as_const(fonts_))
        QFontDatabase::removeApplicationFont(entry.id);
}

bool FontRegistry::registerFont(const QString& name, const QByteArray& data) {
    const QRawFont raw(data, lookUpSize);
    if (!raw.isValid())
        return false;
    const int id = QFontDatabase::addApplicationFontFromData(data);
    const QStringList families = QFontDatabase::applicationFontFamilies(id);
    if (families.isEmpty()) {
        QFontDatabase::removeApplicationFont(id);
        return false;
    }
    unregisterFont(name);
    QFont font(families.first());
    font.setWeight(QFont::Weight(raw.weight()));
    font.setStyle(raw.style());
    fonts_.insert(name, {id, font});
    emit changed(name);
    return true;
}

void FontRegistry::unregisterFont(const QString& name) {
    if (!fonts_.contains(name))
        return;
    QFontDatabase::removeApplicationFont(fonts_.take(name).id);
    emit changed(name);
}

std::optional<QFont> FontRegistry::font(const QString& name, int pixelSize) const {
    const auto found = fonts_.constFind(name);
    if (found == fonts_.constEnd())
        return std::nullopt;
    QFont font = found->font;
    font.setPixelSize(pixelSize);
    return font;
}

QString FontRegistry::family(const QString& name) const {
    return fonts_.value(name).font.family();
}

} // namespace kavor
