#include "brochures/wizard/StepSupport.h"

#include "base/NotificationCenter.h"
#include "base/StopProcess.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "brochures/engine/TemporalBrochure.h"
#include "catalogue/Catalogue.h"
#include "session/AppSingleton.h"

#include <algorithm>

namespace kavor {

QUrl stepView(const QString& fileName) {
    return {QStringLiteral("qrc:/qt/qml/Kavor/Screens/") + fileName};
}

const Brochures::Type* sectionBrochureType(const Catalogue& catalogue) {
    const auto kind = AppSingleton::shared().brochureType();
    if (!kind)
        return nullptr;
    const Brochures::Type* type = catalogue.brochureType(*kind);
    if (!type)
        stopProcess("brochure type " + std::to_string(static_cast<Int>(*kind)));
    return type;
}

const Brochures::Type::Parameters* sectionParameters(const Catalogue& catalogue) {
    const Brochures::Type* type = sectionBrochureType(catalogue);
    if (!type)
        return nullptr;
    if (!type->parameters)
        stopProcess("parameters of brochure type " + type->name);
    return &*type->parameters;
}

void autosave(const std::shared_ptr<BrochureIntermediateData>& draft) {
    if (draft != BrochureIntermediateData::temporalBrochure() || !AppSingleton::shared().brochureType())
        return;
    if (draft->sent)
        NotificationCenter::shared().post(sentDraftSaved);
    else
        TemporalBrochure::shared().write(*draft);
    NotificationCenter::shared().post(draftSaved);
}

QString notOffered(Int quantity, const std::vector<Int>& offered) {
    return QStringLiteral("%1 no está entre las cantidades disponibles (de %2 a %3).")
        .arg(quantity)
        .arg(std::ranges::min(offered))
        .arg(std::ranges::max(offered));
}

} // namespace kavor
