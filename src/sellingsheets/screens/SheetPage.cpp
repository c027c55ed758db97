#include "sellingsheets/screens/SheetPage.h"

#include "base/AppFormatter.h"
#include "interaction/QtText.h"
#include "screens/ResourceImages.h"
#include "sellingsheets/SheetModules.h"
#include "sellingsheets/screens/SheetDates.h"

#include <QStringList>
#include <QVariantMap>

#include <algorithm>
#include <utility>

namespace kavor {

namespace {

QString money(double price) {
    return fromUtf8(AppFormatter::shared().currencyFormatter(price));
}

QVariantMap productMap(const Catalogue& catalogue, Int product, Int boxes) {
    return {{QStringLiteral("image"), productImage(catalogue, product)},
            {QStringLiteral("boxes"), QString::number(boxes)},
            {QStringLiteral("name"), productText(catalogue, product)}};
}

QVariantMap moduleMap(const Catalogue& catalogue, const SellingSheetOrder::Item& module) {
    QVariantMap map = productMap(catalogue, module.productIdentifier1, module.productBox1);
    if (module.productIdentifier2)
        map[QStringLiteral("second")] =
            productMap(catalogue, *module.productIdentifier2, module.productBox2.value_or(0));
    map[QStringLiteral("price")] = money(module.price);
    map[QStringLiteral("bottle")] = bottleText(catalogue, module);
    map[QStringLiteral("reference")] = fromUtf8(module.promotionCode.value_or(""));
    return map;
}

} // namespace

QString productText(const Catalogue& catalogue, Int product) {
    const SheetFormat found = sheetFormat(catalogue, product);
    return found ? fromUtf8(found.brand->name + " " + found.format->icon)
                 : QStringLiteral("Producto fuera de catálogo");
}

QString boxesText(const Catalogue& catalogue, Int product, Int boxes) {
    return (boxes == 1 ? QStringLiteral("1 caja de %1")
                       : QString::number(boxes) + QStringLiteral(" cajas de %1"))
        .arg(productText(catalogue, product));
}

QString bottleText(const Catalogue& catalogue, const SellingSheetOrder::Item& module) {
    const auto bottle = pricePerBottle(module, catalogue);
    return bottle ? QStringLiteral("%1 por botella").arg(money(*bottle)) : QString();
}

QString programmeText(const Catalogue& catalogue, const SellingSheetOrder::Item& module) {
    QStringList prices;
    const auto add = [&](Int product) {
        const SheetFormat found = sheetFormat(catalogue, product);
        if (found && found.format->price)
            prices << money(*found.format->price);
    };
    add(module.productIdentifier1);
    if (module.productIdentifier2)
        add(*module.productIdentifier2);
    return prices.isEmpty() ? QString()
                            : QStringLiteral("Programa: %1").arg(prices.join(QStringLiteral(" y ")));
}

QString productImage(const Catalogue& catalogue, Int product) {
    const SheetFormat found = sheetFormat(catalogue, product);
    if (!found)
        return {};
    for (const auto* picture :
         {&found.format->bottleBoxImage, &found.format->image, &found.format->imageThumb}) {
        if (QString source = resourceImageUrl(*picture); !source.isEmpty())
            return source;
    }
    return {};
}

SheetPage::SheetPage(std::shared_ptr<const Catalogue> catalogue, QObject* parent)
    : QObject(parent)
    , catalogue_(std::move(catalogue)) {}

void SheetPage::show(const SellingSheetOrder& order) {
    order_ = order;
    QVariantList modules;
    for (const auto& module : order.items)
        modules << moduleMap(*catalogue_, module);
    emit changed();
    if (modules == modules_)
        return;
    modules_ = std::move(modules);
    emit modulesChanged();
}

QString SheetPage::title() const {
    return fromUtf8(order_.title);
}

QString SheetPage::subtitle() const {
    return fromUtf8(order_.subtitle.value_or(""));
}

QString SheetPage::styleImage() const {
    const auto& sheets = catalogue_->information().sellingSheet;
    if (!sheets)
        return {};
    const auto style = std::ranges::find(sheets->styles, order_.styleIdentifier, &SellingSheet::Style::id);
    return style == sheets->styles.end() ? QString() : resourceImageUrl(style->image);
}

QString SheetPage::validity() const {
    return sheet_dates::validity(order_.fromDate, order_.toDate);
}

QString SheetPage::freeText() const {
    return fromUtf8(order_.freeText.value_or(""));
}

QString SheetPage::logo() const {
    return order_.distributionLogo ? dataImageUrl(*order_.distributionLogo) : QString();
}

QString SheetPage::foot() const {
    const QString taxes = order_.areTaxesIncluded ? QStringLiteral("Impuestos incluidos")
                                                  : QStringLiteral("Impuestos no incluidos");
    const auto count = order_.items.size();
    return order_.showOneModulePerPage && count > 1 ? QStringLiteral("%1 · %2 páginas").arg(taxes).arg(count)
                                                    : taxes;
}

QString SheetPage::text() const {
    QStringList texts{title(), subtitle(), validity()};
    for (const auto& module : order_.items)
        texts << boxesText(*catalogue_, module.productIdentifier1, module.productBox1) << money(module.price);
    texts.removeAll(QString());
    return texts.isEmpty() ? QStringLiteral("Hoja vacía") : texts.join(QStringLiteral(". "));
}

} // namespace kavor
