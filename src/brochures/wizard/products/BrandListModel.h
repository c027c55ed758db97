#pragma once

#include "catalogue/Catalogue.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace kavor {

class BrochureIntermediateData;

// What reduces the list of brands; all together.
struct BrandFilter {
    bool priorityOnly = false;
    std::optional<Int> propertyId;
    std::string search; // sanitised

    bool operator==(const BrandFilter&) const = default;
};

// The brands of one family in catalogue order, reduced by a filter. A change of the filter arrives as few row
// changes: one row at a time where the user looks, and one span for the rest.
class BrandListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the product step")
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Role {
        BrandIdRole = Qt::UserRole + 1,
        NameRole,
        ImageRole,
        CategoryRole,
        PriorityRole,
        BitternessRole,
        PairingRole,
        FormatsRole,         // list of {formatId, text, image}
        SelectedFormatsRole, // list of format ids
    };

    using QAbstractListModel::QAbstractListModel;

    // Takes the brands of a family. Called again with a catalogue that has grown, it keeps the rows on show.
    void setBrands(std::shared_ptr<const Catalogue> catalogue, ApplicationFather family);
    void setDraft(std::shared_ptr<BrochureIntermediateData> draft);
    void setPriorityBrands(std::set<Int> brands);
    void setFilter(const BrandFilter& filter);
    // Tells that formats of a brand were selected or deselected.
    void selectionChanged(Int brand);

    [[nodiscard]] int count() const { return int(visible_.size()); }
    // Whether a brand on show has this sanitised name.
    [[nodiscard]] bool hasVisibleName(const std::string& sanitised) const;
    // The brand of a row; nullptr outside the list.
    [[nodiscard]] const Product* brandAt(int row) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

signals:
    void countChanged();

private:
    [[nodiscard]] bool passes(int brand) const;
    [[nodiscard]] std::vector<int> filtered(bool withinVisible) const;
    void show(const std::vector<int>& wanted);
    void removeRowsBetween(std::size_t first, std::size_t last);
    void insertAt(std::size_t place, std::vector<int>::const_iterator first,
                  std::vector<int>::const_iterator last);
    [[nodiscard]] QString pairingText(const Product& brand) const;
    [[nodiscard]] QVariantList formats(const Product& brand) const;
    [[nodiscard]] QVariantList selectedFormats(const Product& brand) const;

    std::shared_ptr<const Catalogue> catalogue_;
    std::shared_ptr<BrochureIntermediateData> draft_;
    std::vector<const Product*> brands_; // of the family, owned by catalogue_
    std::vector<std::string> folded_;    // the sanitised names of brands_
    std::vector<int> visible_;           // ascending places in brands_
    std::set<Int> priority_;
    BrandFilter filter_;
};

} // namespace kavor
