#pragma once

#include "catalogue/Brochures.h"
#include "screens/RowListModel.h"

#include <optional>
#include <vector>

namespace kavor {

// An entry of the carousel: an order sheet, or none of them.
struct OrderSheetEntry {
    std::optional<Brochures::OrderSheet> sheet;

    struct Key {
        std::optional<Int> operator()(const OrderSheetEntry& entry) const {
            return entry.sheet ? std::optional(entry.sheet->id) : std::nullopt;
        }
    };
};

// The order sheets of the catalogue by position; entry 0 is the absence of one.
class OrderSheetModel : public kavor::RowListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the order sheet step")

public:
    enum Role { NameRole = Qt::UserRole + 1, ReferenceRole, ImageRole };

    using RowListModel::RowListModel;

    void setSheets(const std::vector<Brochures::OrderSheet>& sheets);
    // The entry of a sheet; entry 0 for none and for one that is not in the list.
    [[nodiscard]] int indexOf(std::optional<Int> sheet) const;
    // The sheet of an entry; nullptr for entry 0 and outside the list.
    [[nodiscard]] const Brochures::OrderSheet* sheetAt(int index) const;

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    RowList<OrderSheetEntry, OrderSheetEntry::Key> entries_{*this};
};

} // namespace kavor
