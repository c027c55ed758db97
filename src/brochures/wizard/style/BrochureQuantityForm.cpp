#include "brochures/wizard/style/BrochureQuantityForm.h"

#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/wizard/StepSupport.h"
#include "screens/PickerRows.h"

namespace kavor {

namespace {

const QString recommendedTail = QStringLiteral(" PVP recomendado*");

} // namespace

void BrochureQuantityForm::appear(const StyleContext& context) {
    context_ = context;
    secondVisible_ = context.type->isSecondBrochuresPriceAllowed && context.draft->currentSecondPrice();
    const auto stored = context.draft->selectedNumberOfBrochures;
    numbers_ = {stored ? stored->main : 0, stored ? stored->secondary.value_or(0) : 0};
    typing_ = -1;
    for (std::size_t column = 0; column < 2; ++column) {
        const int row = PickerRows::ofNumbers(range()).rowOf(numbers_[column]);
        rows_[column] =
            row >= 0 || numbers_[column] > 0 ? row : 0; // without a choice it starts at the first one
        texts_[column] = numbers_[column] > 0 ? QString::number(numbers_[column]) : QString();
    }
    emit changed();
}

Int BrochureQuantityForm::quantity(std::size_t column) const {
    if (!range().empty()) // what is no longer offered stays until another is chosen
        return rows_[column] < 0 ? numbers_[column] : range()[std::size_t(rows_[column])];
    return texts_[column].toLongLong(); // 0 for an empty field
}

void BrochureQuantityForm::serialize() {
    if (!isVisible())
        return;
    BrochureIntermediateData::MainAndSecondary numbers{quantity(0), std::nullopt};
    if (const Int second = secondVisible_ ? quantity(1) : 0; second > 0)
        numbers.secondary = second;
    if (numbers.main > 0 || numbers.secondary)
        context_.draft->selectedNumberOfBrochures = numbers;
    else
        context_.draft->selectedNumberOfBrochures.reset();
}

void BrochureQuantityForm::choose(int picker, int row) {
    if (picker < 0 || picker > 1 || row < 0 || row >= int(range().size()))
        return;
    rows_[std::size_t(picker)] = row;
    serialize();
    emit changed();
    emit edited();
}

void BrochureQuantityForm::type(int field, const QString& text) {
    if (field < 0 || field > 1)
        return;
    texts_[std::size_t(field)] = text.trimmed();
    typing_ = field;
    serialize();
    emit changed();
    emit edited();
}

void BrochureQuantityForm::leave(int field) {
    if (typing_ != field)
        return;
    typing_ = -1;
    emit changed();
}

QString BrochureQuantityForm::errorOf(std::size_t column) const {
    // Only what the check before sending would refuse is wrong.
    if (!isVisible() || !context_.draft->includePaperBrochure)
        return {};
    const auto& parameters = context_.parameters();
    if (column == 1 && !(secondVisible_ && parameters.multiPrices))
        return {};
    if (range().empty() && texts_[column].isEmpty())
        return {};
    const Int number = quantity(column);
    const bool low = number < parameters.minimumOrderQuantity && typing_ != int(column);
    if (low || number > parameters.maximumOrderQuantity)
        return QStringLiteral("Se pueden pedir de %1 a %2.")
            .arg(parameters.minimumOrderQuantity)
            .arg(parameters.maximumOrderQuantity);
    return rows_[column] < 0 && !range().empty() ? notOffered(number, range()) : QString();
}

bool BrochureQuantityForm::isVisible() const {
    return context_.type && context_.parameters().checkUnitsNumber;
}

QString BrochureQuantityForm::minimumAndMaximumNumberOfBrochureLabel() const {
    if (!isVisible())
        return {};
    return QStringLiteral("min: %1, max: %2")
        .arg(context_.parameters().minimumOrderQuantity)
        .arg(context_.parameters().maximumOrderQuantity);
}

QString BrochureQuantityForm::kindWord() const {
    switch (context_.type->id) {
    case BrochureType::chalkboard:
        return QStringLiteral("Nº de pizarras");
    case BrochureType::mantel:
        return QStringLiteral("Nº de manteles");
    case BrochureType::beer:
    case BrochureType::beverage:
    case BrochureType::menu:
    case BrochureType::flyer:
    case BrochureType::video:
    case BrochureType::encarte:
    case BrochureType::wineA4:
    case BrochureType::wineOrder:
    case BrochureType::digital:
    case BrochureType::pennant:
        break;
    }
    return QStringLiteral("Nº de cartas");
}

QString BrochureQuantityForm::numberOfBrochuresLabel() const {
    if (!isVisible())
        return {};
    if (!secondVisible_)
        return kindWord() + QStringLiteral("*");
    const Brochures::Price* main = context_.catalogue->price(PriceType::main);
    return (main ? fromUtf8(main->name) : QStringLiteral("Principal")) + recommendedTail;
}

QString BrochureQuantityForm::numberOfBrochuresSecondLabel() const {
    return secondVisible_ ? kindWord() + QStringLiteral(" 2º") + recommendedTail : QString();
}

QStringList BrochureQuantityForm::quantities() const {
    return context_.type ? PickerRows::ofNumbers(range()).names() : QStringList();
}

} // namespace kavor
