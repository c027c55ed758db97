#pragma once

#include "catalogue/Catalogue.h"
#include "promotions/PromotionTuple.h"
#include "screens/RowListModel.h"

#include <vector>

namespace kavor {

// A format of a promotion with its switch.
struct PromotionFormatRow {
    Int id = 0;
    QString name;
    QString description;
    bool on = false;

    struct Key {
        Int operator()(const PromotionFormatRow& row) const { return row.id; }
    };
    bool operator==(const PromotionFormatRow&) const = default;
};

// The formats in which a promotion can be ordered, by position.
class PromotionFormatModel : public kavor::RowListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the form of a promotion")

public:
    enum Role { NameRole = Qt::UserRole + 1, DescriptionRole, OnRole };

    using RowListModel::RowListModel;

    void show(const Posters* posters, const PromotionTuple& promotion, const std::vector<Int>& on);
    // Those switched on.
    [[nodiscard]] std::vector<Int> switchValues() const;
    Q_INVOKABLE void switchFormat(int row, bool on);

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

signals:
    // The user switched one.
    void edited();

private:
    RowList<PromotionFormatRow, PromotionFormatRow::Key> rows_{*this};
};

} // namespace kavor
