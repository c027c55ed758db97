#include "brochures/wizard/ordersheet/OrderSheetModel.h"

#include "interaction/QtText.h"
#include "screens/ResourceImages.h"

#include <algorithm>

namespace kavor {

void OrderSheetModel::setSheets(const std::vector<Brochures::OrderSheet>& sheets) {
    std::vector<OrderSheetEntry> entries;
    entries.reserve(sheets.size() + 1);
    for (const Brochures::OrderSheet& sheet : sheets)
        entries.push_back({sheet});
    std::ranges::stable_sort(entries, {}, [](const OrderSheetEntry& entry) { return entry.sheet->position; });
    entries.insert(entries.begin(), OrderSheetEntry{});
    entries_.show(std::move(entries));
}

int OrderSheetModel::indexOf(std::optional<Int> sheet) const {
    const auto& all = entries_.all();
    const auto found = std::ranges::find(all, sheet, OrderSheetEntry::Key());
    return found == all.end() ? 0 : int(found - all.begin());
}

const Brochures::OrderSheet* OrderSheetModel::sheetAt(int index) const {
    const OrderSheetEntry* entry = entries_.at(index);
    return entry && entry->sheet ? &*entry->sheet : nullptr;
}

QVariant OrderSheetModel::data(const QModelIndex& index, int role) const {
    const OrderSheetEntry* entry = entries_.at(index);
    if (!entry)
        return {};
    switch (role) {
    case NameRole:
        return entry->sheet ? fromUtf8(entry->sheet->name) : QStringLiteral("SIN COMANDERO");
    case ReferenceRole:
        return entry->sheet ? fromUtf8(entry->sheet->reference) : QString();
    case ImageRole:
        return entry->sheet ? resourceImageUrl(entry->sheet->image) : QString();
    default:
        return {};
    }
}

QHash<int, QByteArray> OrderSheetModel::roleNames() const {
    return {{NameRole, "entryName"}, {ReferenceRole, "entryReference"}, {ImageRole, "entryImage"}};
}

} // namespace kavor
