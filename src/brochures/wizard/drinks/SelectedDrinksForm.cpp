#include "brochures/wizard/drinks/SelectedDrinksForm.h"

#include "base/AppFormatter.h"
#include "brochures/wizard/StepSupport.h"
#include "brochures/wizard/drinks/DrinkStock.h"
#include "interaction/Questions.h"

#include <utility>

namespace kavor {

namespace {

const QString attention = QStringLiteral("Atención");
const QString failed = QStringLiteral("Error");

// An empty text unsets what is the user's own; over a description of the catalogue it stays, or that one
// would show again.
std::optional<std::string> descriptionOf(const QString& typed, bool overCatalogue) {
    if (typed.isEmpty() && !overCatalogue)
        return std::nullopt;
    return typed.toStdString();
}

} // namespace

SelectedDrinksForm::SelectedDrinksForm(const WizardStepContext& context, const DrinkStock& stock,
                                       BeveragesTableView& table, QObject* parent)
    : QObject(parent)
    , context_(context)
    , stock_(stock)
    , table_(table) {}

// Descriptions are in the draft as they are typed; a price may still stand in its field.
void SelectedDrinksForm::takeTyped() {
    if (const auto typed = std::exchange(typedPrice_, std::nullopt))
        setPrice(typed->beverage, typed->second, typed->text);
}

void SelectedDrinksForm::categoryDescriptionModified(int row, const QString& description) {
    const BeverageRow* header = table_.beverageAt(row);
    if (!header || fromUtf8(header->description) == description)
        return;
    const auto* known = stock_.category(header->category);
    context_.draft->setBeverageCategoryDescription(
        descriptionOf(description, known && known->category.beverage.description), header->category);
    emit edited();
}

void SelectedDrinksForm::productDescriptionButtonDelegateMethod(int row) {
    const BeverageRow* beverage = table_.beverageAt(row);
    if (!beverage || !beverage->product)
        return;
    const Int category = beverage->category;
    const Int product = *beverage->product;
    const auto* known = stock_.product(category, product);
    const bool described = known && known->beverage.description;
    askForText(context_.services.alerts, this,
               {.title = QStringLiteral("Descripción"),
                .text = QStringLiteral("Introduzca una descripción para el producto '%1' (max: %2)")
                            .arg(fromUtf8(beverage->name))
                            .arg(context_.catalogue->information().validations.productDescription),
                .caption = QStringLiteral("Descripción:"),
                .proposal = fromUtf8(beverage->description),
                .button = QStringLiteral("Guardar"),
                .maximumLength = int(context_.catalogue->information().validations.productDescription),
                .emptyToo = true},
               [this, category, product, described](const QString& typed) {
                   context_.draft->setBeverageProductDescription(descriptionOf(typed.trimmed(), described),
                                                                 product, category);
                   emit edited();
               });
}

void SelectedDrinksForm::askToRemove(const QString& question, const QString& failure,
                                     std::function<bool()> remove) {
    ask(context_.services.alerts, this, attention, question,
        {no(), yesDestroy([this, failure, remove = std::move(remove)] {
             if (remove())
                 emit edited();
             else
                 context_.services.alerts.inform(failed, failure, this);
         })});
}

void SelectedDrinksForm::categoryDeleteButtonDelegateMethod(int row) {
    const BeverageRow* header = table_.beverageAt(row);
    if (!header)
        return;
    const QString name = fromUtf8(header->name);
    askToRemove(QStringLiteral("¿Desea quitar la categoría '%1'?").arg(name),
                QStringLiteral("No se ha podido deseleccionar la categoría '%1'").arg(name),
                [this, category = header->category] {
                    return context_.draft->setBeverageSelected(
                        false, {.identifier = category, .isCategory = true}, category);
                });
}

void SelectedDrinksForm::productDeleteButtonDelegateMethod(int row) {
    const BeverageRow* beverage = table_.beverageAt(row);
    if (!beverage || !beverage->product)
        return;
    const QString name = fromUtf8(beverage->name);
    askToRemove(QStringLiteral("¿Desea quitar el producto '%1'?").arg(name),
                QStringLiteral("No se ha podido eliminar el producto '%1'").arg(name),
                [this, category = beverage->category, product = *beverage->product] {
                    return context_.draft->setBeverageSelected(false, {.identifier = product}, category);
                });
}

void SelectedDrinksForm::formatDeleteButtonDelegateMethod(int row) {
    const BeverageRow* beverage = table_.beverageAt(row);
    if (!beverage || !beverage->product || !beverage->formatName)
        return;
    const QString format = fromUtf8(*beverage->formatName);
    const QString product = fromUtf8(beverage->name);
    askToRemove(
        QStringLiteral("¿Desea quitar el formato '%1' del producto '%2'?").arg(format, product),
        QStringLiteral("No se ha podido eliminar el formato '%1' del producto '%2'").arg(format, product),
        [this, doomed = *beverage] {
            return context_.draft->setBeverageFormatSelected(false, *doomed.formatName, *doomed.product,
                                                             doomed.category);
        });
}

void SelectedDrinksForm::priceEdited(int row, bool second, const QString& text) {
    const BeverageRow* beverage = table_.beverageAt(row);
    if (beverage && beverage->formatName)
        typedPrice_ = TypedPrice{*beverage, second, text};
}

void SelectedDrinksForm::productModifyPriceDelegateMethod(int row, bool second, const QString& text) {
    if (const BeverageRow* beverage = table_.beverageAt(row); beverage && beverage->formatName) {
        typedPrice_.reset();
        setPrice(BeverageRow(*beverage), second, text);
    } else {
        takeTyped(); // the cell went while one typed into it
    }
}

void SelectedDrinksForm::setPrice(const BeverageRow& beverage, bool second, const QString& text) {
    const auto value = AppFormatter::shared().parseNumber(text.toStdString());
    const auto info =
        context_.draft->beverageInfo(beverage.category, *beverage.product, false, beverage.formatName);
    const bool readable = value || text.trimmed().isEmpty();
    if (!info || !readable || (second ? info->price2 : info->price1) == value)
        return;
    if (!context_.draft->setBeveragePrice(value, second, *beverage.formatName, *beverage.product,
                                          beverage.category))
        return;
    autosave(context_.draft);
    table_.reloadPrices(*context_.draft, *beverage.product);
}

} // namespace kavor
