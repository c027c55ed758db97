#pragma once

#include "catalogue/ActivationsInformation.h"
#include "screens/RowListModel.h"

#include <vector>

namespace kavor {

// The elements of an activation as cards: a row each, in the order of the catalogue, with the roles "name",
// "description", "source" (the first picture), "required" and "selected".
class ActivationItemModel : public kavor::RowListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the screen")

public:
    enum Role { NameRole = Qt::UserRole + 1, DescriptionRole, SourceRole, RequiredRole, SelectedRole };

    // The items outlive the model; the selection is one yes or no for each.
    void show(const std::vector<ActivationInformation::Item>& items, const std::vector<bool>& selected);

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    struct Row {
        const ActivationInformation::Item* item = nullptr;
        bool selected = false;
        bool operator==(const Row&) const = default;
    };
    struct Key {
        const ActivationInformation::Item* operator()(const Row& row) const { return row.item; }
    };

    RowList<Row, Key> rows_{*this};
};

} // namespace kavor
