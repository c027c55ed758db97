#include "OrderInputs.h"

#include "brochures/engine/BrochureIntermediateData.h"
#include "orders/OrderDiskManager.h"
#include "shell/AppSingleton.h"

namespace kavor::ctl {

void openSession(const OrderInputs& inputs) {
    auto& session = AppSingleton::shared();
    session.applicationInformation =
        std::make_shared<const Catalogue>(readRecord<ApplicationInformation>(inputs.catalogue));
    if (!inputs.login.empty())
        session.loginResult = readRecord<LoginResult>(inputs.login);
}

OrderRequestType requestType(const std::string& save) {
    if (save == "print")
        return OrderRequestType::sendToPrint;
    return save == "preview" ? OrderRequestType::sendPreview : OrderRequestType::saveCloud;
}

std::shared_ptr<BrochureIntermediateData> openDraft(const OrderInputs& inputs) {
    openSession(inputs);
    const auto order = readRecord<SaveBrochuresOrder>(inputs.order);
    auto& session = AppSingleton::shared();
    session.actualSection = SectionIdentifier::brochure(order.menu.orderType);
    auto draft = BrochureIntermediateData::replaceTemporalBrochure();
    draft->loadOrder(order);
    // An order file is named by its place on the device; any other document by what it says itself.
    const std::filesystem::path path(inputs.order);
    draft->fileName = path.extension() == "." + std::string(OrderDiskManager::extension)
                          ? std::optional(path.stem().string())
                          : order.filename;
    if (const auto* type = session.catalogue().brochureType(order.menu.orderType))
        draft->brochureTypeParameters = type->parameters;
    return draft;
}

} // namespace kavor::ctl
