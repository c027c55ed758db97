#include "brochures/wizard/products/BrandListModel.h"

#include "base/Text.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/wizard/StepSupport.h"
#include "screens/ResourceImages.h"

#include <algorithm>
#include <numeric>
#include <ranges>

namespace kavor {

void BrandListModel::setBrands(std::shared_ptr<const Catalogue> catalogue, ApplicationFather family) {
    const auto products = catalogue->productsOfFamily(family);
    // Brands are mostly added at the end: the names before them are folded already.
    const auto isSame = [](const Product* former, const Product* now) {
        return former->id == now->id && former->name == now->name;
    };
    const auto firstOther = std::ranges::mismatch(brands_, products, isSame).in1;
    const bool onlyGrown = firstOther == brands_.end();
    folded_.resize(std::size_t(firstOther - brands_.begin()));
    brands_.assign(products.begin(), products.end());
    catalogue_ = std::move(catalogue);
    folded_.reserve(brands_.size());
    for (std::size_t i = folded_.size(); i < brands_.size(); ++i)
        folded_.push_back(text::sanitised(brands_[i]->name));
    visible_.show(filtered(false));
    if (!onlyGrown)
        visible_.repaint();
}

void BrandListModel::setDraft(std::shared_ptr<BrochureIntermediateData> draft) {
    draft_ = std::move(draft);
    visible_.repaint({SelectedFormatsRole});
}

void BrandListModel::setPriorityBrands(std::set<Int> brands) {
    priority_ = std::move(brands);
    visible_.show(filtered(false));
    visible_.repaint({PriorityRole});
}

void BrandListModel::setFilter(const BrandFilter& filter) {
    if (filter == filter_)
        return;
    const bool narrower = filter.priorityOnly == filter_.priorityOnly &&
                          filter.propertyId == filter_.propertyId &&
                          filter.search.starts_with(filter_.search);
    filter_ = filter;
    visible_.show(filtered(narrower));
}

void BrandListModel::selectionChanged(Int brand) {
    for (int row = 0; row < count(); ++row) {
        if (brandAt(row)->id == brand)
            emit dataChanged(index(row), index(row), {SelectedFormatsRole});
    }
}

bool BrandListModel::passes(int brand) const {
    const auto place = std::size_t(brand);
    const Product& product = *brands_[place];
    if (filter_.priorityOnly && !priority_.contains(product.id))
        return false;
    if (filter_.propertyId && (!product.category || product.category->propertyId != *filter_.propertyId))
        return false;
    return filter_.search.empty() || folded_[place].find(filter_.search) != std::string::npos;
}

std::vector<int> BrandListModel::filtered(bool withinVisible) const {
    std::vector<int> all;
    if (!withinVisible) {
        all.resize(brands_.size());
        std::iota(all.begin(), all.end(), 0);
    }
    std::vector<int> result;
    std::ranges::copy_if(withinVisible ? visible_.all() : all, std::back_inserter(result),
                         [this](int brand) { return passes(brand); });
    return result;
}

bool BrandListModel::hasVisibleName(const std::string& sanitised) const {
    return std::ranges::any_of(visible_.all(),
                               [&](int brand) { return folded_[std::size_t(brand)] == sanitised; });
}

const Product* BrandListModel::brandAt(int row) const {
    const int* place = visible_.at(row);
    return place ? brands_[std::size_t(*place)] : nullptr;
}

QString BrandListModel::pairingText(const Product& brand) const {
    if (brand.pairingsLabel)
        return fromUtf8(*brand.pairingsLabel);
    QStringList names;
    for (const Int id : brand.pairings.value_or(std::vector<Int>())) {
        const auto& all = catalogue_->information().pairings;
        const auto found = std::ranges::find(all, id, &Pairing::id);
        if (found != all.end())
            names << fromUtf8(found->name);
    }
    return names.join(QStringLiteral(", "));
}

QVariantList BrandListModel::formats(const Product& brand) const {
    QVariantList result;
    for (const Product::ProductFormat& format : brand.productList) {
        if (!format.showOnBrochures)
            continue;
        result << QVariantMap{{QStringLiteral("formatId"), qint64(format.id)},
                              {QStringLiteral("text"), fromUtf8(format.icon)},
                              {QStringLiteral("image"),
                               resourceImageUrl(format.imageThumb ? format.imageThumb : format.image)}};
    }
    return result;
}

QVariantList BrandListModel::selectedFormats(const Product& brand) const {
    QVariantList result;
    const auto found = draft_->selectedBrands.find(brand.id);
    if (found == draft_->selectedBrands.end())
        return result;
    for (const Int format : found->second)
        result << qint64(format);
    return result;
}

QVariant BrandListModel::data(const QModelIndex& index, int role) const {
    const Product* brand = index.isValid() ? brandAt(index.row()) : nullptr;
    if (!brand)
        return {};
    switch (role) {
    case BrandIdRole:
        return qint64(brand->id);
    case NameRole:
        return fromUtf8(brand->name);
    case ImageRole:
        return resourceImageUrl(brand->image);
    case CategoryRole:
        return brand->category && brand->category->categoryLabel ? fromUtf8(*brand->category->categoryLabel)
                                                                 : QString();
    case PriorityRole:
        return priority_.contains(brand->id);
    case BitternessRole:
        return int(std::clamp<Int>(brand->bitterness.value_or(0), 0, 4));
    case PairingRole:
        return pairingText(*brand);
    case FormatsRole:
        return formats(*brand);
    case SelectedFormatsRole:
        return selectedFormats(*brand);
    default:
        return {};
    }
}

QHash<int, QByteArray> BrandListModel::roleNames() const {
    return {{BrandIdRole, "brandId"},
            {NameRole, "brandLabel"},
            {ImageRole, "brandImage"},
            {CategoryRole, "category"},
            {PriorityRole, "showPriorityBadge"},
            {BitternessRole, "bitterness"},
            {PairingRole, "extraInfoMaridajeLabel"},
            {FormatsRole, "formats"},
            {SelectedFormatsRole, "selectedFormats"}};
}

} // namespace kavor
