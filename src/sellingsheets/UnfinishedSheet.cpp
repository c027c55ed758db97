#include "sellingsheets/UnfinishedSheet.h"

#include "sellingsheets/SellingSheetTables.h"

namespace kavor::json {

template <>
struct Table<SheetInWork> {
    using R = SheetInWork;
    static constexpr auto fields =
        std::tuple{required("order", &R::order), optional("filename", &R::filename)};
};

} // namespace kavor::json

KAVOR_JSON_DOCUMENT(kavor::SheetInWork)

namespace kavor {

UnfinishedSheet::UnfinishedSheet()
    : UnfinishedWork(stateFile) {}

UnfinishedSheet& UnfinishedSheet::shared() {
    static UnfinishedSheet instance;
    return instance;
}

bool UnfinishedSheet::open() {
    return bringBack(onlyKind, [](const SheetInWork& kept) {
        StyleSingleton::shared() = {kept.order, kept.filename};
        return true;
    });
}

// The one that all share, which nobody owns.
std::shared_ptr<const StyleSingleton> UnfinishedSheet::current() const {
    return {std::shared_ptr<const StyleSingleton>(), &StyleSingleton::shared()};
}

std::optional<SheetInWork> UnfinishedSheet::recordOf(const StyleSingleton& work) const {
    if (!work.editingOrder)
        return std::nullopt;
    return SheetInWork{*work.editingOrder, work.orderFilename};
}

} // namespace kavor
