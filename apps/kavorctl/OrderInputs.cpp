#include "OrderInputs.h"

#include "base/StopProcess.h"
#include "brochures/engine/BrochureIntermediateData.h"
#include "orders/OrderDiskManager.h"
#include "session/AppSingleton.h"

#include <charconv>

namespace kavor::ctl {

namespace {

void requireBrochureType(const Catalogue& catalogue, BrochureType type) {
    static_cast<void>(catalogue.brochures()); // stops without them
    if (catalogue.brochureType(type) == nullptr)
        stopProcess("brochure type " + std::to_string(static_cast<Int>(type)));
}

} // namespace

void openSession(const OrderInputs& inputs) {
    auto& session = AppSingleton::shared();
    session.applicationInformation =
        std::make_shared<const Catalogue>(readRecord<ApplicationInformation>(inputs.catalogue));
    if (!inputs.login.empty())
        session.loginResult = readRecord<LoginResult>(inputs.login);
}

Int rowIdentifier(const std::string& row) {
    Int number = 0;
    const char* const end = row.data() + row.size();
    const auto [read, error] = std::from_chars(row.data(), end, number);
    if (row.empty() || error != std::errc() || read != end)
        throw CommandFailure(wrongUsage, "--row: expected a whole number, found \"" + row + "\"");
    return number;
}

std::shared_ptr<BrochureIntermediateData> openDraft(const OrderInputs& inputs, BrochureKind kind) {
    openSession(inputs);
    const auto order = readRecord<SaveBrochuresOrder>(inputs.order);
    auto& session = AppSingleton::shared();
    session.actualSection = SectionIdentifier::brochure(order.menu.orderType);
    if (kind == BrochureKind::Required)
        requireBrochureType(session.catalogue(), order.menu.orderType);
    auto draft = BrochureIntermediateData::replaceTemporalBrochure();
    draft->loadOrder(order);
    // An order file is named by its place on the device; any other document by what it says itself.
    const std::filesystem::path path(inputs.order);
    draft->fileName = path.extension() == "." + std::string(OrderDiskManager::extension)
                          ? std::optional(utf8Text(path.stem().string()))
                          : order.filename;
    if (const auto* type = session.catalogue().brochureType(order.menu.orderType))
        draft->brochureTypeParameters = type->parameters;
    return draft;
}

} // namespace kavor::ctl
