#pragma once

#include "catalogue/Catalogue.h"
#include "screens/RowListModel.h"

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

// The brands of one family in catalogue order, reduced by a filter.
class BrandListModel : public kavor::RowListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the product step")

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

    using RowListModel::RowListModel;

    // Takes the brands of a family. Called again with a catalogue that has grown, it keeps the rows on show.
    void setBrands(std::shared_ptr<const Catalogue> catalogue, ApplicationFather family);
    void setDraft(std::shared_ptr<BrochureIntermediateData> draft);
    void setPriorityBrands(std::set<Int> brands);
    void setFilter(const BrandFilter& filter);
    // Tells that formats of a brand were selected or deselected.
    void selectionChanged(Int brand);

    // Whether a brand on show has this sanitised name.
    [[nodiscard]] bool hasVisibleName(const std::string& sanitised) const;
    // The brand of a row; nullptr outside the list.
    [[nodiscard]] const Product* brandAt(int row) const;

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    [[nodiscard]] bool passes(int brand) const;
    [[nodiscard]] std::vector<int> filtered(bool withinVisible) const;
    [[nodiscard]] QString pairingText(const Product& brand) const;
    [[nodiscard]] QVariantList formats(const Product& brand) const;
    [[nodiscard]] QVariantList selectedFormats(const Product& brand) const;

    std::shared_ptr<const Catalogue> catalogue_;
    std::shared_ptr<BrochureIntermediateData> draft_;
    std::vector<const Product*> brands_; // of the family, owned by catalogue_
    std::vector<std::string> folded_;    // the sanitised names of brands_
    std::set<Int> priority_;
    BrandFilter filter_;
    RowList<int> visible_{*this}; // ascending places in brands_
};

} // namespace kavor
