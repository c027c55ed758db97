#include "brochures/wizard/ComingSoonStep.h"

#include <utility>

namespace kavor {

ComingSoonStep::ComingSoonStep(QString title, QString icon, QObject* parent)
    : WizardStepViewController(parent)
    , title_(std::move(title))
    , icon_(std::move(icon)) {}

QUrl ComingSoonStep::view() const {
    return QUrl(QStringLiteral("qrc:/qt/qml/Kavor/Screens/ComingSoonStepView.qml"));
}

} // namespace kavor
