#pragma once

#include "brochures/wizard/WizardStepContext.h"
#include "brochures/wizard/drinks/BeveragesTableView.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <optional>

namespace kavor {

class DrinkStock;

// What the cells of the selected drinks do with their rows: descriptions, prices, and the way out of the
// menu. Each change goes at once to the draft.
class SelectedDrinksForm : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the drink step")

public:
    // All three outlive the form.
    SelectedDrinksForm(const WizardStepContext& context, const DrinkStock& stock, BeveragesTableView& table,
                       QObject* parent = nullptr);

    Q_INVOKABLE void categoryDescriptionModified(int row, const QString& description);
    Q_INVOKABLE void categoryDeleteButtonDelegateMethod(int row);
    Q_INVOKABLE void productDescriptionButtonDelegateMethod(int row);
    Q_INVOKABLE void productDeleteButtonDelegateMethod(int row);
    Q_INVOKABLE void formatDeleteButtonDelegateMethod(int row);
    // A price is being typed, and its field was left.
    Q_INVOKABLE void priceEdited(int row, bool second, const QString& text);
    Q_INVOKABLE void productModifyPriceDelegateMethod(int row, bool second, const QString& text);
    // A price that still stands in its field goes to the draft.
    void takeTyped();

signals:
    // The draft has other drinks or descriptions; of prices the table knows.
    void edited();

private:
    struct TypedPrice {
        BeverageRow beverage;
        bool second = false;
        QString text;
    };

    void askToRemove(const QString& question, const QString& failure, std::function<bool()> remove);
    void setPrice(const BeverageRow& beverage, bool second, const QString& text);

    const WizardStepContext& context_;
    const DrinkStock& stock_;
    BeveragesTableView& table_;
    std::optional<TypedPrice> typedPrice_;
};

} // namespace kavor
