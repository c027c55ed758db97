#pragma once

#include "brochures/wizard/WizardStepContext.h"
#include "screens/PickerRows.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace kavor {

// The language of the brochure, and a second one beside it.
class LanguagesForm : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the configuration step")
    Q_PROPERTY(QStringList languages READ languages CONSTANT)
    Q_PROPERTY(int mainLanguage READ mainLanguage NOTIFY changed)
    Q_PROPERTY(bool secondLanguageVisible READ isSecondLanguageVisible CONSTANT)
    // "Ninguno" and what is not the main language.
    Q_PROPERTY(QStringList secondaryLanguages READ secondaryLanguages NOTIFY changed)
    Q_PROPERTY(int secondaryLanguage READ secondaryLanguage NOTIFY changed)

public:
    // Looks into the context as long as it lives.
    explicit LanguagesForm(const WizardStepContext& context, QObject* parent = nullptr);

    // Offers the languages of the kind of brochure.
    void load();
    // A second language that can't be seen, or is the main one, goes from the draft.
    void serialize();

    // Pickers answer by their row.
    Q_INVOKABLE void chooseMainLanguage(int row);
    Q_INVOKABLE void chooseSecondaryLanguage(int row);

    [[nodiscard]] const QStringList& languages() const { return languages_.names(); }
    [[nodiscard]] int mainLanguage() const;
    [[nodiscard]] bool isSecondLanguageVisible() const { return context_.parameters().multiLanguage; }
    [[nodiscard]] QStringList secondaryLanguages() const { return otherLanguages().names(); }
    [[nodiscard]] int secondaryLanguage() const;

signals:
    void changed();
    // The draft has a new choice.
    void edited();

private:
    [[nodiscard]] PickerRows otherLanguages() const; // "Ninguno" and all without the main one

    const WizardStepContext& context_;
    PickerRows languages_;
};

} // namespace kavor
