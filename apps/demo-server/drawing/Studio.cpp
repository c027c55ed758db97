#include "drawing/Studio.h"

#include "catalogue/Content.h"
#include "drawing/Covers.h"
#include "drawing/Emblems.h"
#include "drawing/Goods.h"
#include "drawing/PosterArt.h"
#include "drawing/Scenes.h"
#include "drawing/Vessels.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>

#include <algorithm>

namespace kavor::demo {

namespace {

constexpr size_t memoryLimit = 200u << 20;

template <typename Records>
const auto& recordOf(const Records& records, int id) {
    const auto found = std::ranges::find(records, id, [](const auto& record) { return record.id; });
    return found == records.end() ? records.front() : *found;
}

std::vector<const Look*> looksAt(const Catalogue& catalogue, const std::vector<int>& places) {
    std::vector<const Look*> looks;
    looks.reserve(places.size());
    for (const int place : places) {
        looks.push_back(&brandAt(catalogue.brands(), Family::beer, place).look);
    }
    return looks;
}

CoverText sampleText(const Catalogue& catalogue, const Style& style) {
    CoverText words;
    words.title = style.kind == BrochureKind::digital ? "Carta en línea" : kindName(int(style.kind));
    words.bar = "Nombre del local";
    words.tagline = "Fría, bien tirada y en buena compañía";
    words.backLines = {"Teléfono del local", "Dirección web", "Redes sociales",
                       "Texto libre de la contraportada"};
    for (const int logo : style.logos) {
        if (words.logos.size() < 3) {
            words.logos.push_back(&catalogue.brand(logo - logoIdOf(0))->look);
        }
    }
    return words;
}

QSizeF fittedTo(const QSizeF& size, double longest) {
    return size.scaled(longest, longest, Qt::KeepAspectRatio);
}

const Format& formatOf(const Brand& brand, int place) {
    return brand.formats[size_t(place) % brand.formats.size()];
}

void drawCover(QPainter& painter, const QRectF& area, const Picture& picture, const Catalogue& catalogue) {
    const Style* style = catalogue.style(picture.a);
    const CoverText words = sampleText(catalogue, *style);
    const QSizeF size = sheetSize(style->kind, isLandscape(*style));
    painter.scale(area.width() / size.width(), area.height() / size.height());
    const auto side = picture.kind == PictureKind::coverBack ? drawCoverBack : drawCoverFront;
    side(painter, QRectF(QPointF(0, 0), size), style->kind, themes()[size_t(style->theme)], words);
}

// A record that names brands by their places, with their looks.
template <typename Draw, typename Record>
void drawSample(Draw draw, QPainter& painter, const QRectF& area, const Record& record,
                const Catalogue& catalogue) {
    draw(painter, area, record, looksAt(catalogue, record.brandPlaces));
}

void drawPosterOf(QPainter& painter, const QRectF& area, const Poster& poster, int language,
                  const Catalogue& catalogue) {
    PosterWords words;
    words.language = language;
    drawPoster(painter, area, poster, poster.look(catalogue.brands()), words);
}

void drawActivation(QPainter& painter, const QRectF& area, const Picture& picture,
                    const Catalogue& catalogue) {
    if (picture.kind == PictureKind::activationBackground) {
        return drawActivationBackground(painter, area, recordOf(activationGroups(), picture.a).colour);
    }
    if (picture.kind == PictureKind::activationSign) {
        return drawActivationSign(painter, area, recordOf(activations(), picture.a), picture.b == 1);
    }
    const bool isLogo = picture.kind == PictureKind::activationLogo;
    const int groupId = isLogo ? picture.a : recordOf(activations(), picture.a).groupId;
    const ActivationGroup& group = recordOf(activationGroups(), groupId);
    const Look& look = brandAt(catalogue.brands(), Family::beer, group.brandPlace).look;
    if (isLogo) {
        return drawActivationLogo(painter, area, group, look);
    }
    constexpr int firstElement = 10;
    const Activation& activation = recordOf(activations(), picture.a);
    if (picture.b >= firstElement) {
        return drawActivationElement(painter, area, activation, picture.b - firstElement, look);
    }
    drawActivationScene(painter, area, activation, picture.b, look);
}

} // namespace

std::optional<QByteArray> Studio::png(const std::string& hash) {
    const std::optional<Picture> picture = catalogue_.book().find(hash);
    if (!picture) {
        return std::nullopt;
    }
    {
        const std::lock_guard lock(mutex_);
        if (const auto made = made_.find(hash); made != made_.end()) {
            return made->second;
        }
    }
    // Drawn without the lock: two threads may draw the same picture at once, and both get it right.
    QImage image(sizeOf(*picture).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform);
    draw(painter, *picture);
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG", 70); // larger than it could be, and made in half the time
    const std::lock_guard lock(mutex_);
    if (bytes_ > memoryLimit) {
        made_.clear();
        bytes_ = 0;
    }
    bytes_ += size_t(bytes.size());
    made_.emplace(hash, bytes);
    return bytes;
}

QSizeF Studio::sizeOf(const Picture& picture) const {
    switch (picture.kind) {
    case PictureKind::emblem:
        return {336, 306};
    case PictureKind::wordmark:
        return {480, 160};
    case PictureKind::vessel:
        return {240, 600};
    case PictureKind::vesselThumb:
        return {80, 200};
    case PictureKind::box:
        return {320, 320};
    case PictureKind::coverFront:
    case PictureKind::coverBack:
        if (const Style* style = catalogue_.style(picture.a)) {
            return fittedTo(sheetSize(style->kind, isLandscape(*style)), 900);
        }
        return {640, 900};
    case PictureKind::coverThumb:
        if (const Style* style = catalogue_.style(picture.a)) {
            return fittedTo(sheetSize(style->kind, isLandscape(*style)), 280);
        }
        return {200, 280};
    case PictureKind::servingType:
        return picture.b == 1 ? QSizeF(60, 150) : QSizeF(120, 300);
    case PictureKind::taste:
    case PictureKind::segment:
    case PictureKind::support:
        return {160, 160};
    case PictureKind::chalkboardFormat:
    case PictureKind::notice:
        return {240, 240};
    case PictureKind::orderSheet:
        return {420, 600};
    case PictureKind::pennantThumb:
        return {240, 160};
    case PictureKind::pennantSample:
        return {900, 600};
    case PictureKind::qrSticker:
    case PictureKind::qrBlock:
        return {400, 400};
    case PictureKind::poster:
    case PictureKind::sheetStyle:
        return {520, 736};
    case PictureKind::activationLogo:
    case PictureKind::activationSign:
        return {570, 360};
    case PictureKind::activationBackground:
        return {1000, 700};
    case PictureKind::activationScene:
    case PictureKind::manual:
        return {640, 420};
    case PictureKind::garment:
        return {480, 480};
    }
    return {100, 100};
}

void Studio::draw(QPainter& painter, const Picture& picture) const {
    const QRectF area(QPointF(0, 0), sizeOf(picture));
    const auto brandOf = [this](int id) -> const Brand& {
        const Brand* brand = catalogue_.brand(id);
        return brand ? *brand : catalogue_.brands().front();
    };
    const std::string address = catalogue_.baseUrl() + "/carta/muestra";
    switch (picture.kind) {
    case PictureKind::emblem:
        return drawEmblem(painter, area, brandOf(picture.a).look);
    case PictureKind::wordmark:
        return drawWordmark(painter, area, brandOf(picture.a).look);
    case PictureKind::vessel:
    case PictureKind::vesselThumb:
        return drawVessel(painter, area, brandOf(picture.a).look,
                          formatOf(brandOf(picture.a), picture.b).vessel);
    case PictureKind::box:
        return drawBox(painter, area, brandOf(picture.a).look,
                       formatOf(brandOf(picture.a), picture.b).bottlesPerBox.value_or(24));
    case PictureKind::coverFront:
    case PictureKind::coverThumb:
    case PictureKind::coverBack:
        return drawCover(painter, area, picture, catalogue_);
    case PictureKind::servingType:
        return drawServingSign(painter, area, picture.a);
    case PictureKind::taste:
        return drawTasteSign(painter, area, picture.a, picture.b);
    case PictureKind::segment:
        return drawTasteSign(painter, area, 0, picture.a);
    case PictureKind::chalkboardFormat:
        return drawChalkboardSign(painter, area, recordOf(chalkboardFormats(), picture.a), picture.b == 1);
    case PictureKind::orderSheet:
        return drawSample(drawOrderSheet, painter, area, recordOf(orderSheets(), picture.a), catalogue_);
    case PictureKind::pennantThumb:
    case PictureKind::pennantSample:
        return drawSample(drawPennantBrand, painter, area, recordOf(pennantBrands(), picture.a), catalogue_);
    case PictureKind::qrSticker:
        return drawQrSticker(painter, area, brandOf(picture.a).look, address);
    case PictureKind::qrBlock:
        return drawQrBlock(painter, area, brandOf(picture.a).look, address);
    case PictureKind::poster:
        return drawPosterOf(painter, area, recordOf(posters(), picture.a), picture.b, catalogue_);
    case PictureKind::support:
        return drawSupportSign(painter, area, recordOf(supports(), picture.a));
    case PictureKind::sheetStyle:
        return drawSheetStyle(painter, area, recordOf(sheetStyles(), picture.a),
                              looksAt(catalogue_, {0, 1, 2, 3}));
    case PictureKind::activationLogo:
    case PictureKind::activationBackground:
    case PictureKind::activationSign:
    case PictureKind::activationScene:
        return drawActivation(painter, area, picture, catalogue_);
    case PictureKind::garment:
        return drawGarment(painter, area, picture.a, recordOf(garmentColours(), picture.b).colour,
                           brandOf(picture.c).look);
    case PictureKind::manual:
        return drawManual(painter, area, recordOf(manuals(), picture.a));
    case PictureKind::notice:
        return drawNotice(painter, area, recordOf(notices(), picture.a));
    }
}

} // namespace kavor::demo
