#include "brochures/wizard/configuration/LanguagesForm.h"

#include "brochures/engine/BrochureIntermediateData.h"

#include <algorithm>

namespace kavor {

LanguagesForm::LanguagesForm(const WizardStepContext& context, QObject* parent)
    : QObject(parent)
    , context_(context) {}

void LanguagesForm::load() {
    const auto isOfTheKind = [&](const Brochures::Language& language) {
        return !context_.kind || std::ranges::any_of(language.orderTypes, [&](const auto& kind) {
            return kind.id == Int(*context_.kind);
        });
    };
    languages_ = PickerRows();
    languages_.appendByPosition(context_.catalogue->brochures().languages, isOfTheKind);
}

void LanguagesForm::serialize() {
    const auto chosen = context_.draft->currentLanguages();
    if (chosen && chosen->secondary && (!isSecondLanguageVisible() || chosen->secondary == chosen->main))
        context_.draft->setLanguages(chosen->main, std::nullopt);
}

void LanguagesForm::chooseMainLanguage(int row) {
    const auto id = languages_.idAt(row);
    if (!id)
        return;
    const auto current = context_.draft->currentLanguages();
    // The second language as the first one changes places with it: none is chosen twice.
    const bool swapped = current && current->secondary == *id && current->main != *id;
    context_.draft->setLanguages(*id, swapped   ? std::optional(current->main)
                                      : current ? current->secondary
                                                : std::nullopt);
    emit changed();
    emit edited();
}

void LanguagesForm::chooseSecondaryLanguage(int row) {
    const auto current = context_.draft->currentLanguages();
    if (!current)
        return;
    context_.draft->setLanguages(current->main, otherLanguages().idAt(row));
    emit changed();
    emit edited();
}

int LanguagesForm::mainLanguage() const {
    const auto current = context_.draft->currentLanguages();
    return current ? languages_.rowOf(current->main) : -1;
}

PickerRows LanguagesForm::otherLanguages() const {
    PickerRows others(QStringLiteral("Ninguno"));
    const int main = mainLanguage();
    for (int row = 0; languages_.has(row); ++row) {
        if (row != main)
            others.append(*languages_.idAt(row), languages_.names()[row]);
    }
    return others;
}

int LanguagesForm::secondaryLanguage() const {
    const auto current = context_.draft->currentLanguages();
    return current ? std::max(0, otherLanguages().rowOf(current->secondary)) : -1;
}

} // namespace kavor
