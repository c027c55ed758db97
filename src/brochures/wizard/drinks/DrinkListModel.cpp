#include "brochures/wizard/drinks/DrinkListModel.h"

#include "base/AppFormatter.h"
#include "base/Text.h"
#include "interaction/QtText.h"

#include <algorithm>
#include <set>

namespace kavor {

namespace {

using Draft = BrochureIntermediateData;
using Beverage = Draft::BeverageIdentifier;

DrinkChoice choiceOf(const Beverage& beverage) {
    return {.identifier = beverage.identifier,
            .name = beverage.name,
            .folded = text::sanitised(beverage.name),
            .detail = beverage.description.value_or("")};
}

DrinkChoice choiceOf(const DrinkStock::Entry& entry) {
    return {.identifier = entry.beverage.identifier,
            .name = entry.beverage.name,
            .folded = entry.folded,
            .detail = entry.beverage.description.value_or("")};
}

DrinkChoice formatChoice(const std::string& name, std::optional<double> price) {
    return {.identifier = 0,
            .name = name,
            .folded = text::sanitised(name.empty() ? "Sin formato" : name),
            .detail = price ? AppFormatter::shared().currencyFormatter(*price) : ""};
}

bool isFormatTaken(const Draft& draft, Int product, const std::string& name) {
    const auto found = draft.selectedProductFormat.find(product);
    return found != draft.selectedProductFormat.end() && found->second.contains(name);
}

// The user's own items follow those of the catalogue.
void appendByPosition(std::vector<DrinkChoice>& all, std::vector<Beverage> own) {
    std::ranges::sort(own, {},
                      [](const Beverage& each) { return std::pair(each.position, -each.identifier); });
    for (const Beverage& each : own) {
        all.push_back(choiceOf(each));
        all.back().taken = true;
    }
}

// What the draft has in a category beside the catalogue's products; what left the catalogue has no name.
std::vector<Beverage> otherProducts(const DrinkStock& stock, const Draft& draft, Int category) {
    std::vector<Beverage> others;
    const auto selected = draft.selectedBeverages.find(category);
    if (selected == draft.selectedBeverages.end())
        return others;
    for (const Int product : selected->second) {
        if (product >= 1 && stock.product(category, product))
            continue;
        auto info = draft.beverageInfo(category, product, false, std::nullopt);
        if (info && !info->name.empty())
            others.push_back(std::move(*info));
    }
    return others;
}

} // namespace

void DrinkListModel::setFilterText(const QString& text) {
    if (filterText_ == text)
        return;
    filterText_ = text;
    folded_ = text::sanitised(text.toStdString());
    showFiltered();
    emit filterTextChanged();
}

void DrinkListModel::show(std::vector<DrinkChoice> all, const QString& whenEmpty) {
    all_ = std::move(all);
    whenEmpty_ = whenEmpty;
    showFiltered();
}

void DrinkListModel::showFiltered() {
    std::vector<DrinkChoice> passing;
    std::ranges::copy_if(all_, std::back_inserter(passing), [this](const DrinkChoice& each) {
        return folded_.empty() || each.folded.find(folded_) != std::string::npos;
    });
    const auto chosen = std::ranges::find(passing, true, &DrinkChoice::chosen);
    const int row = chosen == passing.end() ? -1 : int(chosen - passing.begin());
    visible_.show(std::move(passing));
    if (std::exchange(chosenRow_, row) != row)
        emit chosenRowChanged();
    const QString hint = count() > 0    ? QString()
                         : all_.empty() ? whenEmpty_
                                        : QStringLiteral("Nada coincide con la búsqueda.");
    if (std::exchange(hint_, hint) != hint)
        emit hintChanged();
}

QVariant DrinkListModel::data(const QModelIndex& index, int role) const {
    const DrinkChoice* choice = visible_.at(index);
    if (!choice)
        return {};
    switch (role) {
    case TextRole:
        return choice->name.empty() ? QStringLiteral("Sin formato") : fromUtf8(choice->name);
    case DetailRole:
        return fromUtf8(choice->detail);
    case TakenRole:
        return choice->taken;
    case ChosenRole:
        return choice->chosen;
    default:
        return {};
    }
}

QHash<int, QByteArray> DrinkListModel::roleNames() const {
    return {{TextRole, "choiceText"},
            {DetailRole, "choiceDetail"},
            {TakenRole, "isTaken"},
            {ChosenRole, "isChosen"}};
}

void CategoriesDataSource::reload(const DrinkStock& stock, const Draft& draft, std::optional<Int> chosen) {
    std::vector<DrinkChoice> all;
    std::vector<Beverage> own;
    for (const auto& each : stock.allCategoriesWithProductsFromServer()) {
        all.push_back(choiceOf(each.category));
        all.back().taken = draft.selectedBeverages.contains(all.back().identifier);
    }
    for (const auto& entry : draft.selectedBeverages) {
        auto info = entry.first < 1 ? draft.beverageInfo(entry.first, 0, true, std::nullopt) : std::nullopt;
        if (info)
            own.push_back(std::move(*info));
    }
    appendByPosition(all, std::move(own));
    for (DrinkChoice& each : all)
        each.chosen = each.identifier == chosen;
    show(std::move(all), QStringLiteral("Todavía no hay categorías."));
}

void ProductDataSource::reload(const DrinkStock& stock, const Draft& draft, std::optional<Int> category,
                               std::optional<Int> chosen) {
    std::vector<DrinkChoice> all;
    if (category) {
        const auto selected = draft.selectedBeverages.find(*category);
        const auto isTaken = [&](Int product) {
            return selected != draft.selectedBeverages.end() && selected->second.contains(product);
        };
        if (const auto* known = stock.category(*category)) {
            all.reserve(known->products.size());
            for (const auto& product : known->products) {
                all.push_back(choiceOf(product));
                all.back().taken = isTaken(all.back().identifier);
            }
        }
        appendByPosition(all, otherProducts(stock, draft, *category));
    }
    for (DrinkChoice& each : all)
        each.chosen = each.identifier == chosen;
    show(std::move(all), category ? QStringLiteral("Esta categoría todavía no tiene productos.")
                                  : QStringLiteral("Elige primero una categoría."));
}

void FormatDataSource::reload(const DrinkStock& stock, const Draft& draft, std::optional<Int> product) {
    std::vector<DrinkChoice> all;
    std::set<std::string> names;
    const auto offer = [&](const std::string& name, std::optional<double> price = std::nullopt) {
        if (!names.insert(name).second)
            return;
        all.push_back(formatChoice(name, price));
        all.back().taken = isFormatTaken(draft, *product, name);
    };
    if (product) {
        for (const DrinkStock::Format& each : stock.formatsOf(*product))
            offer(each.name, each.price);
        if (*product < 1)
            offer("");
        if (const auto own = draft.selectedProductFormat.find(*product);
            own != draft.selectedProductFormat.end())
            std::ranges::for_each(own->second, [&](const std::string& name) { offer(name); });
        for (const std::string& name : stock.formatNames())
            offer(name);
        for (const auto& [other, others] : draft.selectedProductFormat) {
            for (const std::string& name : others) {
                if (!name.empty())
                    offer(name);
            }
        }
    }
    show(std::move(all), QStringLiteral("Elige primero un producto."));
}

} // namespace kavor
