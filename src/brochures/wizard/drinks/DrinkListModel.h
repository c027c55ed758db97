#pragma once

#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/wizard/drinks/DrinkStock.h"
#include "screens/RowListModel.h"

#include <QtQml/qqmlregistration.h>

#include <string>
#include <utility>
#include <vector>

namespace kavor {

// An entry of a list of the drink step: a category, a product or (without a number) a format.
struct DrinkChoice {
    Int identifier = 0;
    std::string name;
    std::string folded; // as the search compares it
    std::string detail = {};
    bool taken = false;  // in the menu
    bool chosen = false; // the current choice of its list

    bool operator==(const DrinkChoice&) const = default;
    struct Key {
        std::pair<Int, std::string> operator()(const DrinkChoice& each) const {
            return {each.identifier, each.name};
        }
    };
};

// A list of the drink step with the text that reduces it.
class DrinkListModel : public kavor::RowListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("one of the lists derives from it")
    Q_PROPERTY(QString filterText READ filterText WRITE setFilterText NOTIFY filterTextChanged)
    // Says why nothing is on show; empty while something is.
    Q_PROPERTY(QString hint READ hint NOTIFY hintChanged)
    // The row of the current choice; -1 when there is none on show.
    Q_PROPERTY(int chosenRow READ chosenRow NOTIFY chosenRowChanged)

public:
    enum Role { TextRole = Qt::UserRole + 1, DetailRole, TakenRole, ChosenRole };

    using RowListModel::RowListModel;

    [[nodiscard]] QString filterText() const { return filterText_; }
    void setFilterText(const QString& text);
    [[nodiscard]] QString hint() const { return hint_; }
    [[nodiscard]] int chosenRow() const { return chosenRow_; }
    // The entry of a row; null outside the list.
    [[nodiscard]] const DrinkChoice* choiceAt(int row) const { return visible_.at(row); }
    // Everything that is offered, whatever the filter.
    [[nodiscard]] const std::vector<DrinkChoice>& all() const { return all_; }

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

signals:
    void filterTextChanged();
    void hintChanged();
    void chosenRowChanged();

protected:
    // Shows these as far as the filter lets them pass; the text says why there are none.
    void show(std::vector<DrinkChoice> all, const QString& whenEmpty);

private:
    void showFiltered();

    std::vector<DrinkChoice> all_;
    RowList<DrinkChoice, DrinkChoice::Key> visible_{*this};
    QString filterText_;
    QString whenEmpty_;
    QString hint_;
    std::string folded_; // the filter as names are compared
    int chosenRow_ = -1;
};

// The categories of the catalogue, and those of the user in the draft.
class CategoriesDataSource : public kavor::DrinkListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the drink step")
public:
    using DrinkListModel::DrinkListModel;
    void reload(const DrinkStock& stock, const BrochureIntermediateData& draft, std::optional<Int> chosen);
};

// The products of a category, and those that the draft has in it besides.
class ProductDataSource : public kavor::DrinkListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the drink step")
public:
    using DrinkListModel::DrinkListModel;
    void reload(const DrinkStock& stock, const BrochureIntermediateData& draft, std::optional<Int> category,
                std::optional<Int> chosen);
};

// The formats of a product, then every other format name of the catalogue and of the draft.
class FormatDataSource : public kavor::DrinkListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the drink step")
public:
    using DrinkListModel::DrinkListModel;
    void reload(const DrinkStock& stock, const BrochureIntermediateData& draft, std::optional<Int> product);
};

} // namespace kavor
