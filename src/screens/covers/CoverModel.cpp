#include "screens/covers/CoverModel.h"

#include <algorithm>
#include <utility>

namespace kavor {

void CoverModel::setCovers(std::vector<Cover> covers) {
    beginResetModel(); // once for each visit; what a bad catalogue numbers twice stands twice
    covers_ = std::move(covers);
    isCoverStileList_.clear();
    for (const Cover& cover : covers_)
        isCoverStileList_.push_back({cover.id, true});
    endResetModel();
    emit coversChanged();
}

void CoverModel::flip(int row) {
    if (!coverAt(row))
        return;
    Side& side = isCoverStileList_[std::size_t(row)];
    side.isCover = !side.isCover;
    emit dataChanged(index(row), index(row), {ImageRole, CoverRole});
}

const Cover* CoverModel::coverAt(int row) const {
    return row >= 0 && row < count() ? &covers_[std::size_t(row)] : nullptr;
}

int CoverModel::indexOf(std::optional<Int> cover) const {
    const auto found = std::ranges::find_if(covers_, [&](const Cover& each) { return each.id == cover; });
    return found == covers_.end() ? -1 : int(found - covers_.begin());
}

bool CoverModel::hasPreferred() const {
    return std::ranges::any_of(covers_, &Cover::isPreferred);
}

QVariantList CoverModel::thumbnails() const {
    QVariantList result;
    for (const Cover& cover : covers_)
        result << QVariantMap{{QStringLiteral("source"), cover.thumbImage},
                              {QStringLiteral("text"), cover.name}};
    return result;
}

int CoverModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant CoverModel::data(const QModelIndex& index, int role) const {
    const Cover* cover = index.isValid() ? coverAt(index.row()) : nullptr;
    if (!cover)
        return {};
    switch (role) {
    case NameRole:
        return cover->name;
    case ImageRole:
        return isCover(index.row()) ? cover->firstImage : cover->secondImage;
    case CoverRole:
        return isCover(index.row());
    case PreferredRole:
        return cover->isPreferred;
    default:
        return {};
    }
}

QHash<int, QByteArray> CoverModel::roleNames() const {
    return {{NameRole, "coverName"},
            {ImageRole, "coverImage"},
            {CoverRole, "isCover"},
            {PreferredRole, "isPreferred"}};
}

} // namespace kavor
