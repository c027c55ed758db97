#include "brochures/wizard/configuration/SecondPriceForm.h"

#include "brochures/engine/BrochureIntermediateData.h"

namespace kavor {

SecondPriceForm::SecondPriceForm(const WizardStepContext& context, QObject* parent)
    : QObject(parent)
    , context_(context) {}

void SecondPriceForm::load() {
    prices_ = PickerRows();
    for (const Brochures::Price& price : context_.catalogue->brochures().prices) {
        // The first column is always there; it can't be the second one as well.
        if (price.id != PriceType::main)
            prices_.append(Int(price.id), fromUtf8(price.name));
    }
}

void SecondPriceForm::chooseSecondPrice(bool on) {
    if (on == isSecondPriceAllowed())
        return;
    const auto first = prices_.idAt(0);
    context_.draft->setSecondPrice(on && first ? std::optional(PriceType(*first)) : std::nullopt);
    emit changed();
    emit edited();
}

void SecondPriceForm::choosePriceType(int row) {
    const auto id = prices_.idAt(row);
    if (!id || row == priceType()) // choosing the same again would throw the typed prices away
        return;
    context_.draft->setSecondPrice(PriceType(*id));
    emit changed();
    emit edited();
}

bool SecondPriceForm::isSecondPriceAllowed() const {
    return context_.draft->currentSecondPrice().has_value();
}

int SecondPriceForm::priceType() const {
    const auto type = context_.draft->currentSecondPrice();
    return type ? prices_.rowOf(Int(*type)) : -1;
}

} // namespace kavor
