#include "sellingsheets/screens/SheetProductChooser.h"

#include "interaction/QtText.h"
#include "screens/ResourceImages.h"
#include "sellingsheets/screens/SheetPage.h"

#include <QVariantMap>

#include <algorithm>
#include <utility>

namespace kavor {

namespace {

QVariantMap entry(const QString& source, const std::string& text) {
    return {{QStringLiteral("source"), source}, {QStringLiteral("text"), fromUtf8(text)}};
}

} // namespace

SheetProductChooser::SheetProductChooser(std::shared_ptr<const Catalogue> catalogue, QObject* parent)
    : QObject(parent)
    , catalogue_(std::move(catalogue))
    , brandList_(sheetBrands(*catalogue_)) {
    if (!brandList_.empty())
        takeBrand(0, 0);
}

bool SheetProductChooser::show(Int format) {
    const SheetFormat wanted = sheetFormat(*catalogue_, format);
    if (!isOnOffer(wanted)) {
        if (!brandList_.empty())
            takeBrand(0, 0);
        return false;
    }
    const auto formats = sheetFormats(*wanted.brand);
    takeBrand(int(std::ranges::find(brandList_, wanted.brand) - brandList_.begin()),
              int(std::ranges::find(formats, wanted.format) - formats.begin()));
    return true;
}

void SheetProductChooser::takeBrand(int brand, int format) {
    const bool isOther = std::exchange(brand_, brand) != brand;
    productList_ = sheetFormats(*brandList_[std::size_t(brand)]);
    format_ = format;
    if (isOther)
        emit brandChanged();
    emit changed();
}

void SheetProductChooser::chooseBrand(int index) {
    if (index >= 0 && index < int(brandList_.size()) && index != brand_)
        takeBrand(index, 0);
}

void SheetProductChooser::chooseFormat(int index) {
    if (index < 0 || index >= int(productList_.size()) || index == format_)
        return;
    format_ = index;
    emit changed();
}

SheetFormat SheetProductChooser::chosen() const {
    if (brand_ < 0 || format_ < 0)
        return {};
    return {brandList_[std::size_t(brand_)], productList_[std::size_t(format_)]};
}

QVariantList SheetProductChooser::brands() const {
    QVariantList all;
    for (const Product* brand : brandList_)
        all << entry(resourceImageUrl(brand->image), brand->name);
    return all;
}

QVariantList SheetProductChooser::formats() const {
    QVariantList all;
    for (const auto* format : productList_)
        all << entry(productImage(*catalogue_, format->id), format->icon);
    return all;
}

QString SheetProductChooser::boxText() const {
    const SheetFormat format = chosen();
    if (!format || !format.format->bottlesPerBox)
        return {};
    return (format.format->isBottle ? QStringLiteral("Caja de %1 botellas")
                                    : QStringLiteral("Caja de %1 unidades"))
        .arg(*format.format->bottlesPerBox);
}

} // namespace kavor
