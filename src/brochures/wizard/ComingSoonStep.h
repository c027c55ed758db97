#pragma once

#include "brochures/wizard/WizardStep.h"

#include <QQmlEngine>
#include <QString>

namespace kavor {

// Stands for a step that is still to come: says so and changes nothing in the draft.
class ComingSoonStep : public kavor::WizardStepViewController, public SerializeAutoSave {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the wizard")
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString icon READ icon CONSTANT)

public:
    ComingSoonStep(QString title, QString icon, QObject* parent);

    [[nodiscard]] QUrl view() const override;
    [[nodiscard]] QString title() const { return title_; }
    [[nodiscard]] QString icon() const { return icon_; }
    void serializeAutoSave() override {}

private:
    QString title_;
    QString icon_;
};

} // namespace kavor
