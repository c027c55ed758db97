#pragma once

#include "brochures/wizard/WizardStepContext.h"
#include "screens/PickerRows.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace kavor {

// The second price list of the brochure.
class SecondPriceForm : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the configuration step")
    Q_PROPERTY(bool secondPriceVisible READ isSecondPriceVisible CONSTANT)
    Q_PROPERTY(bool secondPriceAllowed READ isSecondPriceAllowed NOTIFY changed)
    Q_PROPERTY(QStringList priceTypes READ priceTypes CONSTANT)
    Q_PROPERTY(int priceType READ priceType NOTIFY changed)

public:
    // Looks into the context as long as it lives.
    explicit SecondPriceForm(const WizardStepContext& context, QObject* parent = nullptr);

    void load();

    Q_INVOKABLE void chooseSecondPrice(bool on);
    Q_INVOKABLE void choosePriceType(int row);

    [[nodiscard]] bool isSecondPriceVisible() const {
        return context_.type && context_.type->isSecondBrochuresPriceAllowed;
    }
    [[nodiscard]] bool isSecondPriceAllowed() const;
    [[nodiscard]] const QStringList& priceTypes() const { return prices_.names(); }
    [[nodiscard]] int priceType() const;

signals:
    void changed();
    // The draft has a new choice.
    void edited();

private:
    const WizardStepContext& context_;
    PickerRows prices_;
};

} // namespace kavor
