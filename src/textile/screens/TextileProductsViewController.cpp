#include "textile/screens/TextileProductsViewController.h"

#include "interaction/AlertPresenter.h"
#include "interaction/QtText.h"
#include "screens/ResourceImages.h"
#include "session/AppSingleton.h"
#include "textile/UnitsText.h"

#include <algorithm>
#include <limits>
#include <set>

namespace kavor {

namespace {

using Draft = TextileIntermediateData;

QString formatKey(Int format, Int gender) {
    return QStringLiteral("%1-%2").arg(format).arg(gender);
}

const TextileArticles& articles() {
    return TextileArticles::current();
}

} // namespace

TextileProductsViewController::TextileProductsViewController(TextileDesk& desk, QObject* parent)
    : TextileStepViewController(parent)
    , desk_(desk)
    , cart_(desk) {
    findAvailable();
    reload();
    connect(&desk_, &TextileDesk::changed, this, &TextileProductsViewController::reload);
}

TextileProductsViewController::~TextileProductsViewController() = default;

QUrl TextileProductsViewController::view() const {
    return {QStringLiteral("qrc:/qt/qml/Kavor/Screens/TextileProductListView.qml")};
}

void TextileProductsViewController::findAvailable() {
    const auto section = AppSingleton::shared().actualApplicationType;
    std::set<Int> brands;
    for (const Textile::Item& each : articles().textile().items) {
        if (!each.isDefault || each.applicationType != section)
            continue;
        availableItems_.push_back(&each);
        brands.insert(each.brandIdentifier);
    }
    std::ranges::stable_sort(availableItems_, {}, &Textile::Item::position);
    for (const Product& product : articles().catalogue().information().products) {
        if (brands.erase(product.id) > 0) // the first of its number
            availableBrands_.push_back(&product);
    }
}

void TextileProductsViewController::reload() {
    showBrands();
    showFormats();
    showColors();
    showSizes();
    emit selectionChanged();
}

// ---- What there is to choose

void TextileProductsViewController::showBrands() {
    std::vector<TextileChoice> rows;
    for (const Product* brand : availableBrands_) {
        TextileChoice row;
        row.key = QString::number(brand->id);
        row.title = fromUtf8(brand->name);
        row.image = resourceImageUrl(brand->image);
        row.selected = desk_.draft().selectedBrandIdentifier == brand->id;
        rows.push_back(std::move(row));
    }
    brands_.show(std::move(rows));
}

void TextileProductsViewController::showFormats() {
    std::vector<TextileChoice> rows;
    std::set<QString> keys;
    const Draft& draft = desk_.draft();
    for (const Textile::Item* each : availableItems_) {
        const QString key = formatKey(each->typeIdentifier, each->genderIdentifier);
        if (each->brandIdentifier != draft.selectedBrandIdentifier || !keys.insert(key).second)
            continue;
        TextileChoice row;
        row.key = key;
        row.title = TextileDesk::garmentName(each->typeIdentifier, each->genderIdentifier);
        row.image = resourceImageUrl(each->image);
        row.selected = draft.selectedFormatAndGenderIdentifier ==
                       Draft::FormatAndGender{each->typeIdentifier, each->genderIdentifier};
        rows.push_back(std::move(row));
    }
    formats_.show(std::move(rows));
}

void TextileProductsViewController::showColors() {
    std::vector<TextileChoice> rows;
    std::set<Int> found;
    const Draft& draft = desk_.draft();
    const auto& format = draft.selectedFormatAndGenderIdentifier;
    for (const Textile::Item* each : availableItems_) {
        const Textile::Color* color = articles().color(each->colorIdentifier);
        if (!format || each->brandIdentifier != draft.selectedBrandIdentifier ||
            each->typeIdentifier != format->formatIdentifier ||
            each->genderIdentifier != format->genderIdentifier || !found.insert(each->colorIdentifier).second)
            continue;
        TextileChoice row;
        row.key = QString::number(each->colorIdentifier);
        row.title = color ? fromUtf8(color->name) : row.key;
        row.image = resourceImageUrl(each->image);
        row.colour = TextileDesk::colourOf(color);
        row.selected = draft.selectedColorIdentifier == each->colorIdentifier;
        rows.push_back(std::move(row));
    }
    colors_.show(std::move(rows));
}

// The sizes on offer, and what the cart has besides.
void TextileProductsViewController::showSizes() {
    std::vector<const Textile::Size*> found;
    const auto item = desk_.draft().selectedItem();
    const auto add = [&found](Int identifier) {
        const Textile::Size* size = articles().size(identifier);
        if (size && std::ranges::count(found, size) == 0)
            found.push_back(size);
    };
    for (const Textile::Item* each : item ? availableItems_ : std::vector<const Textile::Item*>()) {
        if (uniqueItemOf(*each) == *item)
            add(each->sizeIdentifier);
    }
    if (const auto* line = item ? desk_.draft().cartLine(*item) : nullptr) {
        for (const auto& each : line->sizes)
            add(each.sizeIdentifier);
    }
    std::ranges::stable_sort(found, {}, &Textile::Size::position);
    std::vector<TextileSizeRow> rows;
    for (const Textile::Size* size : found) {
        const UInt units = shownUnits(size->identifier);
        rows.push_back({size->identifier, fromUtf8(size->code), fromUtf8(size->name),
                        TextileDesk::number(units), units});
    }
    sizes_.show(std::move(rows));
}

// What was typed stays until the selection changes.
UInt TextileProductsViewController::shownUnits(Int size) const {
    const auto typed = desk_.draft().selectedSizes.find(size);
    if (typed != desk_.draft().selectedSizes.end())
        return typed->second;
    const auto units = desk_.draft().sizes(false).value_or(Draft::Sizes());
    const auto found = units.find(size);
    return found == units.end() ? 0 : found->second;
}

// ---- What the user chooses

void TextileProductsViewController::tell(const char* title, const char* text) {
    desk_.services().alerts.inform(QString::fromUtf8(title), QString::fromUtf8(text), this);
}

void TextileProductsViewController::selectBrand(const QString& key) {
    desk_.change([&](Draft& draft) {
        if (!draft.selectBrand(key.toLongLong()))
            tell("Atención", "No se ha podido seleccionar correctamente el elemento.");
    });
}

void TextileProductsViewController::selectFormatAndGender(const QString& key) {
    desk_.change([&](Draft& draft) {
        const QStringList parts = key.split(QLatin1Char('-'));
        if (parts.size() != 2 || !draft.selectFormatAndGender(parts[0].toLongLong(), parts[1].toLongLong()))
            return tell("Atención", "No se ha podido seleccionar correctamente el elemento.");
        if (const auto color = draft.rememberedColor())
            draft.selectColor(color); // one that left the catalogue is not chosen
    });
}

void TextileProductsViewController::selectColor(const QString& key) {
    desk_.change([&](Draft& draft) {
        const Int color = key.toLongLong();
        if (!draft.selectColor(color))
            return tell("Atención", "No se ha podido seleccionar el color deseado.");
        draft.rememberColor(color);
    });
}

void TextileProductsViewController::selectCartLine(const QString& key) {
    desk_.change([&](Draft& draft) {
        const auto* line = desk_.cartLine(key);
        if (!line)
            return;
        const TextileUniqueItem item = line->item;
        if (draft.selectedItem() == item)
            return;
        if (!draft.selectBrand(item.brandIdentifier) ||
            !draft.selectFormatAndGender(item.formatIdentifier, item.genderIdentifier) ||
            !draft.selectColor(item.colorIdentifier))
            return tell("Atención", "No se ha podido seleccionar correctamente el elemento.");
        draft.rememberColor(item.colorIdentifier);
    });
}

void TextileProductsViewController::setUnits(Int size, UInt units) {
    if (shownUnits(size) == units)
        return;
    desk_.change([size, units](Draft& draft) { draft.setUnits(size, units); });
}

void TextileProductsViewController::editUnits(qlonglong size, const QString& text) {
    if (const auto units = unitsOf(text.toStdString()))
        setUnits(size, *units);
}

void TextileProductsViewController::finishUnits(qlonglong size, const QString& text) {
    setUnits(size, unitsOf(text.toStdString()).value_or(0));
}

void TextileProductsViewController::stepUnits(qlonglong size, int by) {
    const UInt units = shownUnits(size);
    if (by > 0 && units < std::numeric_limits<UInt>::max())
        setUnits(size, units + 1);
    if (by < 0 && units > 0)
        setUnits(size, units - 1);
}

// ---- Into the cart

// Why the selection cannot be added; null when it can.
const char* TextileProductsViewController::refusal() const {
    const Draft& draft = desk_.draft();
    if (!draft.selectedBrandIdentifier)
        return "No has seleccionado ninguna marca todavía.";
    if (!draft.selectedFormatAndGenderIdentifier)
        return "No has seleccionado ningún formato todavía.";
    if (!draft.selectedColorIdentifier)
        return "No has seleccionado ningún color.";
    const auto& sizes = draft.selectedSizes;
    const bool isAny = std::ranges::any_of(sizes, [](const auto& size) { return size.second > 0; });
    const bool isKnown = std::ranges::all_of(sizes, [&](const auto& size) {
        return articles().size(size.first) &&
               (size.second == 0 || articles().article(*draft.selectedItem(), size.first));
    });
    if (!isAny || !isKnown)
        return "No hay tallas elegidas.";
    const bool isOfOneBrand = std::ranges::all_of(draft.order, [&draft](const auto& line) {
        return line.item.brandIdentifier == draft.selectedBrandIdentifier;
    });
    return isOfOneBrand ? nullptr : "El pedido solamente puede ser de una marca.";
}

void TextileProductsViewController::addToCartAction() {
    if (const char* why = refusal())
        return tell("Atención", why);
    const TextileUniqueItem item = *desk_.draft().selectedItem();
    const bool wasThere = desk_.draft().cartLine(item) != nullptr;
    desk_.change([&item](Draft& draft) {
        const auto sizes = draft.selectedSizes;
        for (const auto& [size, units] : sizes) {
            if (const auto* article = articles().article(item, size))
                draft.addToCart(*article, units);
        }
    });
    if (wasThere)
        tell("Atención", "Cantidad modificada correctamente.");
}

// ---- What the selection looks like

// The article on offer that matches what is chosen so far.
const Textile::Item* TextileProductsViewController::matchingItem() const {
    const Draft& draft = desk_.draft();
    if (!draft.selectedBrandIdentifier)
        return nullptr;
    const auto& format = draft.selectedFormatAndGenderIdentifier;
    const auto matches = [&](const Textile::Item* each) {
        return each->brandIdentifier == draft.selectedBrandIdentifier &&
               (!format || (each->typeIdentifier == format->formatIdentifier &&
                            each->genderIdentifier == format->genderIdentifier)) &&
               (!draft.selectedColorIdentifier || each->colorIdentifier == draft.selectedColorIdentifier);
    };
    const auto found = std::ranges::find_if(availableItems_, matches);
    if (found != availableItems_.end())
        return *found;
    const auto item = draft.selectedItem();
    const auto& all = item ? articles().articlesOf(*item) : std::vector<const Textile::Item*>();
    return all.empty() ? nullptr : all.front();
}

QVariantMap TextileProductsViewController::garment() const {
    const Textile::Item* item = matchingItem();
    if (!item) {
        QVariantMap none = desk_.garment(nullptr, nullptr);
        none[QStringLiteral("image")] = QStringLiteral("sinseleccion");
        return none;
    }
    return desk_.garment(item, articles().color(item->colorIdentifier));
}

QString TextileProductsViewController::selectionText() const {
    const Draft& draft = desk_.draft();
    if (!draft.selectedBrandIdentifier)
        return QStringLiteral("Elige una marca");
    const auto& format = draft.selectedFormatAndGenderIdentifier;
    if (!format)
        return QStringLiteral("Elige una prenda");
    QStringList words{TextileDesk::garmentName(format->formatIdentifier, format->genderIdentifier)};
    const Textile::Color* color =
        draft.selectedColorIdentifier ? articles().color(*draft.selectedColorIdentifier) : nullptr;
    words << (color ? fromUtf8(color->name) : QStringLiteral("elige un color"));
    return words.join(QStringLiteral(" · "));
}

QString TextileProductsViewController::sizesTotal() const {
    std::vector<Draft::SizeQuantity> all;
    for (const TextileSizeRow& row : sizes_.rows())
        all.push_back({row.size, row.units});
    const UInt total = Draft::totalUnits(all);
    return total == 1 ? QStringLiteral("1 unidad")
                      : QStringLiteral("%1 unidades").arg(TextileDesk::number(total));
}

QString TextileProductsViewController::addTitle() const {
    const auto item = desk_.draft().selectedItem();
    return item && desk_.draft().cartLine(*item) ? QStringLiteral("Cambiar en el carrito")
                                                 : QStringLiteral("Añadir al carrito");
}

} // namespace kavor
