#include "textile/screens/TextileDesk.h"

#include "base/AppFormatter.h"
#include "interaction/AlertPresenter.h"
#include "resources/FontRegistry.h"
#include "screens/PictureText.h"
#include "screens/ResourceImages.h"
#include "textile/UnfinishedTextile.h"

#include <QColor>

#include <algorithm>
#include <utility>

namespace kavor {

namespace {

constexpr int pictureOfTextSize = 96; // in pixels
constexpr const char* darkInk = "#20262B";
constexpr const char* lightInk = "#FBF7EE";

const TextileArticles& articles() {
    return TextileArticles::current();
}

// What can be read on a garment of the colour.
QString inkOn(const QString& colour) {
    const QColor ground(colour);
    const double lightness = 0.299 * ground.redF() + 0.587 * ground.greenF() + 0.114 * ground.blueF();
    constexpr double middle = 0.55;
    return QString::fromLatin1(lightness > middle ? darkInk : lightInk);
}

} // namespace

TextileDesk::TextileDesk(const TextileServices& services, QObject* parent)
    : QObject(parent)
    , services_(services) {
    take(TextileIntermediateData::shared());
    connect(&services_.fonts, &FontRegistry::changed, this, [this] { pictures_.clear(); });
}

TextileDesk::~TextileDesk() = default;

void TextileDesk::take(std::shared_ptr<TextileIntermediateData> draft) {
    draft_ = std::move(draft);
    road_ = std::make_unique<TextileRoad>(
        OrderRoadServices{services_.network, services_.alerts, services_.urls}, services_.orders, draft_);
}

void TextileDesk::change(const std::function<void(TextileIntermediateData&)>& edit) {
    if (draft_->orderURL) {
        beginAnew();
        emit begunAnew();
        return;
    }
    edit(*draft_);
    UnfinishedTextile::shared().keep();
    emit changed();
}

void TextileDesk::beginAnew() {
    const auto section = draft_->section;
    UnfinishedTextile::shared().beginAnew();
    take(TextileIntermediateData::shared());
    draft_->section = section;
    emit replaced();
}

void TextileDesk::removeGoneArticles() {
    if (!draft_->removeGoneArticles())
        return;
    UnfinishedTextile::shared().keep();
    services_.alerts.inform(
        QStringLiteral("Atención"),
        QStringLiteral("Algunos artículos del carrito ya no están en el catálogo y se han "
                       "quitado del pedido."),
        this);
}

QString TextileDesk::sampleText() const {
    QString text = fromUtf8(draft_->customizedText.value_or(""));
    if (!text.trimmed().isEmpty())
        return text;
    const QString bar = draft_->customer ? fromUtf8(draft_->customer->name.value_or("")) : QString();
    return bar.trimmed().isEmpty() ? QStringLiteral("Tu texto") : bar;
}

QVariantMap TextileDesk::lettering(const Textile::Typography* typography, const QString& text,
                                   const QString& ink) const {
    QVariantMap map{{QStringLiteral("text"), text},
                    {QStringLiteral("ink"), ink},
                    {QStringLiteral("family"), QString()},
                    {QStringLiteral("picture"), QString()}};
    if (!typography)
        return map;
    const QString name = fromUtf8(typography->mimetype);
    const QString family = services_.fonts.family(name);
    map[QStringLiteral("family")] = family;
    if (family.isEmpty() && services_.fonts.isRegistered(name))
        map[QStringLiteral("picture")] = pictureOf(name, text, ink);
    return map;
}

QString TextileDesk::pictureOf(const QString& font, const QString& text, const QString& ink) const {
    constexpr qsizetype most = 64;
    if (pictures_.size() > most)
        pictures_.clear();
    QString& picture = pictures_[{font, text, ink}];
    if (picture.isEmpty())
        picture = dataImageUrl(
            picture_text::of(services_.fonts.picture(font, text, pictureOfTextSize, QColor(ink))));
    return picture;
}

QVariantMap TextileDesk::garment(const Textile::Item* article, const Textile::Color* color) const {
    const QString colour = colourOf(color);
    return {
        {QStringLiteral("image"), article ? resourceImageUrl(article->image) : QString()},
        {QStringLiteral("colour"), colour},
        {QStringLiteral("lettering"), lettering(draft_->selectedTypography(), sampleText(), inkOn(colour))}};
}

std::vector<TextileCartRow> TextileDesk::cartRows() const {
    std::vector<TextileCartRow> rows;
    const auto selected = draft_->selectedItem();
    for (const auto& [item, sizes] : draft_->order) {
        const Textile::Color* color = articles().color(item.colorIdentifier);
        TextileCartRow row;
        row.key = keyOf(item);
        row.title = garmentName(item.formatIdentifier, item.genderIdentifier);
        row.detail = brandName(item.brandIdentifier);
        if (color)
            row.detail += QStringLiteral(" · ") + fromUtf8(color->name);
        for (const auto& [size, quantity] : sizes) {
            const Textile::Size* known = articles().size(size);
            const QString code = known ? fromUtf8(known->code) : QString::number(size);
            row.sizes << code + QStringLiteral(": ") + number(quantity) + QStringLiteral(" uds. ");
        }
        row.units = number(TextileIntermediateData::totalUnits(sizes));
        const Textile::Item* first =
            sizes.empty() ? nullptr : articles().article(item, sizes.front().sizeIdentifier);
        row.garment = garment(first, color);
        row.selected = selected == item;
        rows.push_back(std::move(row));
    }
    return rows;
}

const TextileIntermediateData::OrderItem* TextileDesk::cartLine(const QString& key) const {
    const auto found =
        std::ranges::find_if(draft_->order, [&key](const auto& line) { return keyOf(line.item) == key; });
    return found == draft_->order.end() ? nullptr : &*found;
}

QString TextileDesk::keyOf(const TextileUniqueItem& item) {
    return QStringLiteral("%1-%2-%3-%4")
        .arg(item.brandIdentifier)
        .arg(item.formatIdentifier)
        .arg(item.genderIdentifier)
        .arg(item.colorIdentifier);
}

QString TextileDesk::garmentName(Int format, Int gender) {
    const Textile::Type* type = articles().type(format);
    const Textile::Gender* model = articles().gender(gender);
    QStringList words;
    if (type)
        words << fromUtf8(type->name);
    if (model)
        words << fromUtf8(model->name);
    return words.join(QStringLiteral(" · "));
}

QString TextileDesk::brandName(Int brand) {
    const Product* product = articles().catalogue().product(brand);
    return product ? fromUtf8(product->name) : QString();
}

QString TextileDesk::colourOf(const Textile::Color* color) {
    if (!color)
        return QStringLiteral("#FFFDF8");
    const QString text = fromUtf8(color->colorString).trimmed();
    for (const QString& each : {text, QStringLiteral("#") + text}) {
        if (QColor::isValidColor(each))
            return QColor(each).name();
    }
    return QStringLiteral("#C9C2B4");
}

QString TextileDesk::number(UInt value) {
    return fromUtf8(AppFormatter::shared().unsignedIntegerFormatter(value));
}

} // namespace kavor
