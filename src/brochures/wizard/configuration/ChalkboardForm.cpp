#include "brochures/wizard/configuration/ChalkboardForm.h"

#include "base/StopProcess.h"

#include <algorithm>

namespace kavor {

ChalkboardForm::ChalkboardForm(const WizardStepContext& context, QObject* parent)
    : QObject(parent)
    , context_(context) {}

void ChalkboardForm::load() {
    blackboardTypes_ = PickerRows();
    blackboardTypes_.appendByPosition(context_.catalogue->brochures().blackboardTypes);
    if (isOrientationPaneVisible())
        orientationElements_.show(*context_.catalogue, context_.draft);
}

void ChalkboardForm::serialize() {
    if (!isOrientationPaneVisible() || context_.draft->currentBlackboardType())
        return;
    const auto& types = context_.catalogue->brochures().blackboardTypes;
    if (const auto found = std::ranges::find(types, true, &Brochures::BlackBoardType::isDefault);
        found != types.end())
        context_.draft->setBlackboardType(found->id);
}

void ChalkboardForm::chooseBlackboardType(int row) {
    context_.draft->setBlackboardType(blackboardTypes_.idAt(row));
    emit changed();
    emit edited();
}

void ChalkboardForm::formatSelected(qint64 identifier) {
    if (!context_.draft->setBlackboardFormat(identifier))
        stopProcess("chalkboard format " + std::to_string(identifier));
    orientationElements_.selectionChanged();
    emit edited();
}

bool ChalkboardForm::isOrientationPaneVisible() const {
    return context_.kind == BrochureType::chalkboard &&
           !context_.catalogue->brochures().blackboardFormats.empty();
}

int ChalkboardForm::blackboardType() const {
    return blackboardTypes_.rowOf(context_.draft->selectedBlackboardTypeIdentifier);
}

} // namespace kavor
