#include "session/AppSingleton.h"

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

void AppSingleton::changeCatalogue(const std::function<void(Catalogue&)>& change,
                                   std::shared_ptr<Catalogue> copy) {
    if (!copy)
        copy = std::make_shared<Catalogue>(catalogue());
    change(*copy);
    auto former = std::exchange(applicationInformation, std::move(copy));
    if (catalogueKeeper_)
        catalogueKeeper_(std::move(former));
}

std::optional<BrochureType> AppSingleton::brochureType() const {
    return actualSection ? actualSection->brochureType() : std::nullopt;
}

void AppSingleton::setFolders(std::filesystem::path documents, std::filesystem::path caches) {
    documentsFolder_ = std::move(documents);
    cachesFolder_ = std::move(caches);
}

} // namespace kavor
