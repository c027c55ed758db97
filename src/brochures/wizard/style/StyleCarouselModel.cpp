#include "brochures/wizard/style/StyleCarouselModel.h"

#include "brochures/wizard/StepSupport.h"
#include "screens/ResourceImages.h"

#include <algorithm>

namespace kavor {

void StyleCarouselModel::setStyles(const std::vector<Brochures::Style>& unorderedStyles, BrochureType kind,
                                   const std::optional<Int>& blackboardFormatTypeId,
                                   const std::set<Int>& selectedBrandIdentifiers) {
    beginResetModel(); // once for each visit to the step
    brochureStyles_.clear();
    isCoverStileList_.clear();
    selectedBrandIdentifiers_ = selectedBrandIdentifiers;
    for (const Brochures::Style& style : unorderedStyles) {
        if (style.typeId != static_cast<Int>(kind))
            continue;
        const bool fits = kind != BrochureType::chalkboard ||
                          (blackboardFormatTypeId && style.blackboardFormatTypeId == blackboardFormatTypeId);
        if (fits)
            brochureStyles_.push_back(style);
    }
    std::ranges::stable_sort(brochureStyles_, {}, &Brochures::Style::position);
    for (const Brochures::Style& style : brochureStyles_)
        isCoverStileList_.push_back({style.id, true});
    endResetModel();
    emit stylesChanged();
}

void StyleCarouselModel::flip(int row) {
    if (!styleAt(row))
        return;
    Side& side = isCoverStileList_[std::size_t(row)];
    side.isCover = !side.isCover;
    emit dataChanged(index(row), index(row), {ImageRole, CoverRole});
}

const Brochures::Style* StyleCarouselModel::styleAt(int row) const {
    return row >= 0 && row < count() ? &brochureStyles_[std::size_t(row)] : nullptr;
}

int StyleCarouselModel::indexOf(std::optional<Int> style) const {
    const auto found =
        std::ranges::find_if(brochureStyles_, [&](const auto& offered) { return offered.id == style; });
    return found == brochureStyles_.end() ? -1 : int(found - brochureStyles_.begin());
}

bool StyleCarouselModel::isPreferred(const Brochures::Style& style) const {
    return std::ranges::any_of(style.preferredBrands,
                               [this](Int brand) { return selectedBrandIdentifiers_.contains(brand); });
}

bool StyleCarouselModel::hasPreferred() const {
    return std::ranges::any_of(brochureStyles_, [this](const auto& style) { return isPreferred(style); });
}

QVariantList StyleCarouselModel::thumbnails() const {
    QVariantList result;
    for (const Brochures::Style& style : brochureStyles_)
        result << QVariantMap{{QStringLiteral("source"), resourceImageUrl(style.thumbImage)},
                              {QStringLiteral("text"), fromUtf8(style.name)}};
    return result;
}

int StyleCarouselModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant StyleCarouselModel::data(const QModelIndex& index, int role) const {
    const Brochures::Style* style = index.isValid() ? styleAt(index.row()) : nullptr;
    if (!style)
        return {};
    switch (role) {
    case NameRole:
        return fromUtf8(style->name);
    case ImageRole:
        return resourceImageUrl(isCover(index.row()) ? style->firstImage : style->secondImage);
    case CoverRole:
        return isCover(index.row());
    case PreferredRole:
        return isPreferred(*style);
    default:
        return {};
    }
}

QHash<int, QByteArray> StyleCarouselModel::roleNames() const {
    return {{NameRole, "styleName"},
            {ImageRole, "styleImage"},
            {CoverRole, "isCover"},
            {PreferredRole, "isPreferred"}};
}

} // namespace kavor
