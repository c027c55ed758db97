#include "brochures/wizard/prices/recommendation/BrochurePriceAssistantViewController.h"

#include "base/AppFormatter.h"
#include "base/StopProcess.h"
#include "interaction/QtText.h"

#include <QVariantMap>

#include <algorithm>
#include <string>
#include <utility>

namespace kavor {

namespace {

QString currency(double price) {
    return fromUtf8(AppFormatter::shared().currencyFormatter(price));
}

std::optional<double> priceIn(const QString& text) {
    return AppFormatter::shared().parseCurrency(text.toStdString());
}

// All prices on one scale, so that the areas compare.
struct Scale {
    double from = 0;
    double to = 0;
    bool empty = true;

    void take(std::optional<double> price) {
        if (!price)
            return;
        from = empty ? *price : std::min(from, *price);
        to = empty ? *price : std::max(to, *price);
        empty = false;
    }
    [[nodiscard]] double place(std::optional<double> price) const {
        if (!price)
            return -1;
        return to > from ? (*price - from) / (to - from) : 0.5;
    }
};

} // namespace

BrochurePriceAssistantViewController::BrochurePriceAssistantViewController(Recommendation recommendation,
                                                                           double ownPrice, QObject* parent)
    : ScreenController(parent)
    , recommendation_(std::move(recommendation))
    , ownPrice_(ownPrice) {}

void BrochurePriceAssistantViewController::viewWillAppear() {
    fillAreas();
    emit changed();
}

std::size_t BrochurePriceAssistantViewController::shownAreas() const {
    return std::min(numberOfAreas, data().table.size());
}

QString BrochurePriceAssistantViewController::brandLabel() const {
    return fromUtf8(data().brandName.value_or(""));
}

QString BrochurePriceAssistantViewController::formatLabel() const {
    return fromUtf8(data().productName.value_or(""));
}

QString BrochurePriceAssistantViewController::ownPriceLabel() const {
    return ownPrice_ > 0 ? QStringLiteral("Tu precio: ") + currency(ownPrice_)
                         : QStringLiteral("Todavía sin precio en la carta");
}

QString BrochurePriceAssistantViewController::placeNote() {
    return QStringLiteral("Se usará también para los demás productos de esta visita.");
}

QString BrochurePriceAssistantViewController::keptLabel() const {
    if (!recommendation_.kept)
        return {};
    return QStringLiteral("Sin conexión: respuesta guardada del ") +
           fromUtf8(recommendation_.kept->text()).left(16);
}

// The first of the captions heads the others and is never shown.
QStringList BrochurePriceAssistantViewController::rows() const {
    QStringList captions;
    for (std::size_t i = 1; i < data().files.size(); ++i)
        captions.append(fromUtf8(data().files[i]));
    return captions;
}

QStringList BrochurePriceAssistantViewController::columns() const {
    QStringList captions;
    for (std::size_t i = 0; i < std::min(numberOfAreas, data().columns.size()); ++i)
        captions.append(fromUtf8(data().columns[i]));
    return captions;
}

QStringList BrochurePriceAssistantViewController::prices(std::size_t area) const {
    QStringList texts;
    const auto& row = data().table[area];
    for (std::size_t i = 0; i + 1 < row.size(); ++i)
        texts.append(fromUtf8(row[i].value_or("-")));
    return texts;
}

QStringList BrochurePriceAssistantViewController::brochureNumbers() const {
    QStringList numbers;
    for (std::size_t area = 0; area < shownAreas(); ++area) {
        if (data().table[area].empty())
            stopProcess("area " + std::to_string(area) + " of the price recommendation");
        numbers.append(fromUtf8(data().table[area].back().value_or("")));
    }
    return numbers;
}

// The prices run from the least to the greatest; the usual one is the one that is called so, else the middle.
BrochurePriceAssistantViewController::Range
BrochurePriceAssistantViewController::rangeOf(std::size_t area) const {
    const QStringList texts = prices(area);
    if (texts.isEmpty())
        return {};
    const QStringList captions = rows();
    qsizetype usual = (texts.size() - 1) / 2;
    for (qsizetype i = 0; i < std::min(texts.size(), captions.size()); ++i) {
        if (captions[i].contains(QStringLiteral("habitual"), Qt::CaseInsensitive))
            usual = i;
    }
    if (texts.size() < 3)
        return {std::nullopt, priceIn(texts[usual]), std::nullopt};
    return {priceIn(texts.front()), priceIn(texts[usual]), priceIn(texts.back())};
}

QString BrochurePriceAssistantViewController::rangeText(const Range& range) const {
    QStringList parts;
    if (range.least && range.greatest)
        parts.append(QStringLiteral("De %1 a %2").arg(currency(*range.least), currency(*range.greatest)));
    if (range.usual)
        parts.append(QStringLiteral("lo más habitual %1").arg(currency(*range.usual)));
    if (ownPrice_ > 0)
        parts.append(QStringLiteral("tu precio %1").arg(currency(ownPrice_)));
    return parts.join(QStringLiteral(", "));
}

QVariantList BrochurePriceAssistantViewController::pricesOf(std::size_t area) const {
    const QStringList captions = rows();
    const QStringList texts = prices(area);
    QVariantList entries;
    for (qsizetype i = 0; i < std::max(captions.size(), texts.size()); ++i)
        entries.append(QVariantMap{{QStringLiteral("caption"), captions.value(i)},
                                   {QStringLiteral("text"), texts.value(i)}});
    return entries;
}

void BrochurePriceAssistantViewController::fillAreas() {
    const QStringList numbers = brochureNumbers();
    const QStringList captions = columns();
    const auto own = ownPrice_ > 0 ? std::optional(ownPrice_) : std::nullopt;
    Scale scale;
    scale.take(own);
    for (std::size_t area = 0; area < shownAreas(); ++area) {
        const Range range = rangeOf(area);
        for (const auto& price : {range.least, range.usual, range.greatest})
            scale.take(price);
    }
    areas_.clear();
    for (std::size_t area = 0; area < shownAreas(); ++area) {
        const Range range = rangeOf(area);
        const QString& menus = numbers[qsizetype(area)];
        areas_.append(QVariantMap{
            {QStringLiteral("caption"), captions.value(qsizetype(area))},
            {QStringLiteral("menus"), menus.isEmpty() ? menus
                                                      : menus + (menus == u"1" ? QStringLiteral(" carta")
                                                                               : QStringLiteral(" cartas"))},
            {QStringLiteral("prices"), pricesOf(area)},
            {QStringLiteral("range"), rangeText(range)},
            {QStringLiteral("least"), scale.place(range.least)},
            {QStringLiteral("usual"), scale.place(range.usual)},
            {QStringLiteral("greatest"), scale.place(range.greatest)},
            {QStringLiteral("own"), scale.place(own)}});
    }
}

void BrochurePriceAssistantViewController::changePlaceAction() {
    emit closed(); // what asks for the place stands below
    emit placeChangeRequested(recommendation_.productIdentifier);
}

} // namespace kavor
