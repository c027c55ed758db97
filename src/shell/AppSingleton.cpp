#include "shell/AppSingleton.h"

#include "base/StopProcess.h"
#include "shell/StateFile.h"

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

bool AppSingleton::restoreSession() {
    loginResult = state_file::read<LoginResult>(documentsFolder_, state_file::loginResult);
    if (auto information =
            state_file::read<ApplicationInformation>(documentsFolder_, state_file::applicationInformation))
        applicationInformation = std::make_shared<const Catalogue>(std::move(*information));
    else
        applicationInformation = nullptr;
    return loginResult.has_value() && applicationInformation != nullptr;
}

void AppSingleton::storeSession() const {
    state_file::write(documentsFolder_, state_file::applicationInformation, catalogue().information());
    if (!loginResult)
        stopProcess("login result (loginResult)");
    state_file::write(documentsFolder_, state_file::loginResult, *loginResult);
}

} // namespace kavor
