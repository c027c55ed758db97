#pragma once

#include "brochures/engine/BrochureIntermediateData.h"

#include <QAbstractListModel>

#include <memory>
#include <vector>

namespace kavor {

class Catalogue;

// The format elements of a chalkboard, with the roles "identifier", "name", "description", "image" (of its
// state) and "selected".
class BlackboardFormatModel : public QAbstractListModel {
    Q_OBJECT
public:
    enum Role { IdentifierRole = Qt::UserRole + 1, NameRole, DescriptionRole, ImageRole, SelectedRole };

    using QAbstractListModel::QAbstractListModel;

    // Shows the formats of the catalogue, and which of them the draft has chosen.
    void show(std::shared_ptr<const Catalogue> catalogue,
              std::shared_ptr<const BrochureIntermediateData> draft);
    void selectionChanged();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    std::shared_ptr<const Catalogue> catalogue_;
    std::shared_ptr<const BrochureIntermediateData> draft_;
    std::vector<const Brochures::BlackBoardFormat*> formats_;
};

} // namespace kavor
