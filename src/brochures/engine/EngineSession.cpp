#include "brochures/engine/EngineSession.h"

#include "session/AppSingleton.h"

#include <utility>

namespace kavor::engine {

const Catalogue& catalogue() {
    return AppSingleton::shared().catalogue();
}

void addProducts(std::vector<Product> made) {
    AppSingleton::shared().changeCatalogue(
        [&](Catalogue& catalogue) { catalogue.addProducts(std::move(made)); });
}

std::optional<BrochureType> sectionKind() {
    return AppSingleton::shared().brochureType();
}

bool isCustomerCodeRequired() {
    const auto& login = AppSingleton::shared().loginResult;
    return login && login->customerCodeRequired == true;
}

const std::filesystem::path& documentsFolder() {
    return AppSingleton::shared().documentsFolder();
}

} // namespace kavor::engine
