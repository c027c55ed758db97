#include "shell/AppSingleton.h"

#include "base/StopProcess.h"

namespace kavor {

AppSingleton::AppSingleton() = default;

AppSingleton& AppSingleton::shared() {
    static AppSingleton instance;
    return instance;
}

const Catalogue& AppSingleton::catalogue() const {
    if (!applicationInformation)
        stopProcess("catalogue (applicationInformation)");
    return *applicationInformation;
}

Catalogue& AppSingleton::catalogueToChange() {
    auto changed = std::make_shared<Catalogue>(catalogue());
    Catalogue& result = *changed;
    applicationInformation = std::move(changed);
    return result;
}

std::optional<BrochureType> AppSingleton::brochureType() const {
    return actualSection ? actualSection->brochureType() : std::nullopt;
}

void AppSingleton::setFolders(std::filesystem::path documents, std::filesystem::path caches) {
    documentsFolder_ = std::move(documents);
    cachesFolder_ = std::move(caches);
}

} // namespace kavor
