#pragma once

#include "documents/MenuPromotion.h"
#include "screens/RowListModel.h"

#include <QString>

#include <vector>

namespace kavor {

// A promotion of the menu as the list shows it.
struct MenuPromotionRow {
    MenuPromotion promotion;
    int occurrence = 0; // among those of the same number
    QString image;
    bool known = false; // the catalogue has it

    struct Key {
        std::pair<Int, int> operator()(const MenuPromotionRow& row) const {
            return {row.promotion.promotionId, row.occurrence};
        }
    };
    bool operator==(const MenuPromotionRow&) const = default;
};

// The promotions of the menu in their order.
class MenuPromotionModel : public kavor::RowListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the promotions step")

public:
    enum Role { NumberRole = Qt::UserRole + 1, BrandRole, NameRole, DataRole, ImageRole, KnownRole };

    using RowListModel::RowListModel;

    // Finds picture and presence of each by the function.
    template <class Describe>
    void show(const std::vector<MenuPromotion>& promotions, Describe describe) {
        std::vector<MenuPromotionRow> rows;
        for (const MenuPromotion& promotion : promotions) {
            MenuPromotionRow row{promotion, 0, {}, false};
            for (const MenuPromotionRow& other : rows)
                row.occurrence += other.promotion.promotionId == promotion.promotionId ? 1 : 0;
            describe(row);
            rows.push_back(std::move(row));
        }
        rows_.show(std::move(rows));
        rows_.repaint({NumberRole});
    }
    // Nothing outside the list.
    [[nodiscard]] const MenuPromotionRow* at(int row) const { return rows_.at(row); }

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    RowList<MenuPromotionRow, MenuPromotionRow::Key> rows_{*this};
};

} // namespace kavor
