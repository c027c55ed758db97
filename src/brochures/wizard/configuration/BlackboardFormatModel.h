#pragma once

#include "brochures/engine/BrochureIntermediateData.h"
#include "screens/RowListModel.h"

#include <memory>

namespace kavor {

class Catalogue;

// The format elements of a chalkboard, with the roles "identifier", "name", "description", "image" (of its
// state) and "selected".
class BlackboardFormatModel : public RowListModel {
    Q_OBJECT
public:
    enum Role { IdentifierRole = Qt::UserRole + 1, NameRole, DescriptionRole, ImageRole, SelectedRole };

    using RowListModel::RowListModel;

    // Shows the formats of the catalogue, and which of them the draft has chosen.
    void show(const Catalogue& catalogue, std::shared_ptr<const BrochureIntermediateData> draft);
    void selectionChanged();

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    struct Key {
        Int operator()(const Brochures::BlackBoardFormat& format) const { return format.id; }
    };

    std::shared_ptr<const BrochureIntermediateData> draft_;
    RowList<Brochures::BlackBoardFormat, Key> formats_{*this};
};

} // namespace kavor
