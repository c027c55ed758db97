#include "sellingsheets/screens/SheetShelf.h"

#include "interaction/QtText.h"
#include "screens/ResourceImages.h"
#include "sellingsheets/SheetRules.h"
#include "sellingsheets/screens/SheetDates.h"

#include <QStringList>

#include <algorithm>

namespace kavor::sheet_shelf {

namespace {

constexpr auto folder = OrderDiskManager::DirectoryName::draft;

QString modulesText(std::size_t count) {
    if (count == 0)
        return QStringLiteral("Sin módulos");
    return count == 1 ? QStringLiteral("1 módulo") : QStringLiteral("%1 módulos").arg(count);
}

QString imageOf(const SellingSheetOrder& order, const Catalogue& catalogue) {
    const auto& sheets = catalogue.information().sellingSheet;
    if (!sheets)
        return {};
    const auto style = std::ranges::find(sheets->styles, order.styleIdentifier, &SellingSheet::Style::id);
    return style == sheets->styles.end() ? QString() : resourceImageUrl(style->image);
}

SheetListRow row(const SellingSheetOrder& order, const Catalogue& catalogue, QDate today) {
    SheetListRow row;
    row.name = order.orderName.empty() ? QStringLiteral("(Sin nombre)") : fromUtf8(order.orderName);
    row.title = fromUtf8(order.title);
    if (const auto inForce = isInForce(order, sheet_dates::write(today)))
        row.state = *inForce ? QStringLiteral("vigente") : QStringLiteral("caducada");
    QStringList details{modulesText(order.items.size()), sheet_dates::validity(order.fromDate, order.toDate)};
    details.removeAll(QString());
    row.details = details.join(QStringLiteral(" · "));
    QStringList all{row.title, row.details, row.state};
    all.removeAll(QString());
    row.description = all.join(QStringLiteral(". "));
    row.image = imageOf(order, catalogue);
    return row;
}

} // namespace

Drafts readDrafts(const OrderDiskManager& orders) {
    Drafts result;
    for (auto& file : orders.list<SellingSheetOrder>(folder)) {
        auto order = orders.retrieve<SellingSheetOrder>(file.fileName, folder);
        const auto name = OrderDiskManager::plainName(file.fileName);
        if (order)
            result.drafts.push_back({name, std::move(*order), std::move(file)});
        else if (orders.exists<SellingSheetOrder>(name, folder)) // or it went meanwhile
            result.isComplete = false;
    }
    std::ranges::sort(result.drafts, [](const Draft& a, const Draft& b) {
        if (a.file.modificationMoment != b.file.modificationMoment)
            return a.file.modificationMoment > b.file.modificationMoment;
        return a.filename > b.filename;
    });
    return result;
}

std::optional<std::string> store(const OrderDiskManager& orders, const SellingSheetOrder& order,
                                 const std::optional<std::string>& filename, const LocalDateTime& now) {
    const auto isTaken = [&](const std::string& name) {
        return orders.moment<SellingSheetOrder>(OrderDiskManager::fileName(name), folder).has_value();
    };
    const std::string name = filename ? *filename : draftName(now, isTaken);
    const bool stored = filename && isTaken(name)
                            ? orders.update(order, OrderDiskManager::fileName(name), folder)
                            : orders.create(order, folder, name);
    return stored ? std::optional(name) : std::nullopt;
}

SheetListRow rowOf(const Draft& draft, const Catalogue& catalogue, QDate today) {
    SheetListRow shown = row(draft.order, catalogue, today);
    shown.key = fromUtf8(draft.filename);
    shown.date = fromUtf8(draft.file.modificationDate.text().substr(0, 16)); // without seconds
    return shown;
}

SheetListRow rowOf(const SellingSheetOrder& sent, const Catalogue& catalogue, QDate today) {
    SheetListRow shown = row(sent, catalogue, today);
    shown.key = QString::number(sent.identifier);
    shown.date = fromUtf8(sent.createdAt);
    return shown;
}

} // namespace kavor::sheet_shelf
