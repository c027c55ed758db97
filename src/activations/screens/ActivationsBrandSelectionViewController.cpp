#include "activations/screens/ActivationsBrandSelectionViewController.h"

#include "activations/screens/ActivationElementsSelectionViewController.h"
#include "activations/screens/ActivationsSelectionViewController.h"
#include "device/Reachability.h"
#include "interaction/QtText.h"
#include "screens/ResourceImages.h"
#include "screens/ScreenStack.h"
#include "session/AppSingleton.h"

#include <algorithm>
#include <utility>

namespace kavor {

ActivationsBrandSelectionViewController::ActivationsBrandSelectionViewController(
    const ActivationServices& services, QObject* parent)
    : ScreenController(parent)
    , services_(services)
    , catalogue_(AppSingleton::shared().applicationInformation) {
    std::vector<BoardControl> controls;
    if (const auto* all = activations()) {
        for (const auto& each : all->definitionsList)
            controls.push_back({each.id, fromUtf8(each.name), resourceImageUrl(each.imageLogo),
                                boardPlace(each.imageX, each.imageY, each.imageWidth, each.imageHeight),
                                int(each.imageRotate % 360), false, std::nullopt});
    }
    board_.show(std::move(controls));
    connect(&services_.reachability, &Reachability::changed, this,
            &ActivationsBrandSelectionViewController::offlineChanged);
}

ActivationsBrandSelectionViewController::~ActivationsBrandSelectionViewController() = default;

const ActivationsInformation* ActivationsBrandSelectionViewController::activations() const {
    return catalogue_ && catalogue_->information().activations ? &*catalogue_->information().activations
                                                               : nullptr;
}

void ActivationsBrandSelectionViewController::selectBrand(qint64 definition) {
    const auto* all = activations();
    if (!all || covered_)
        return;
    const auto found =
        std::ranges::find(all->definitionsList, definition, &ActivationsInformation::Definition::id);
    if (found == all->definitionsList.end())
        return;
    covered_ = true;
    selectedBrandActivation_ = &*found;
    const ActivationRoute route{catalogue_, selectedBrandActivation_, this, std::nullopt};
    if (found->activationsList.size() == 1) // "showSelectableElementsIdentifier"
        services_.screens.push({ActivationElementsSelectionViewController::view(),
                                new ActivationElementsSelectionViewController(
                                    services_, route, found->activationsList.front())});
    else // "showActivationsIdentifier"
        services_.screens.push({ActivationsSelectionViewController::view(),
                                new ActivationsSelectionViewController(services_, route)});
}

QVariantList ActivationsBrandSelectionViewController::brandRows() const {
    QVariantList rows;
    const auto* all = activations();
    for (const auto& each : all ? all->definitionsList : std::vector<ActivationsInformation::Definition>()) {
        const auto count = each.activationsList.size();
        const QString word = count == 1 ? QStringLiteral("activación") : QStringLiteral("activaciones");
        rows << QVariantMap{
            {QStringLiteral("id"), qlonglong(each.id)},
            {QStringLiteral("text"), fromUtf8(each.name)},
            {QStringLiteral("detail"),
             QStringLiteral("%1 · %2 %3").arg(fromUtf8(each.brandName)).arg(count).arg(word)}};
    }
    return rows;
}

QString ActivationsBrandSelectionViewController::emptyTitle() const {
    return board_.count() > 0 ? QString() : QStringLiteral("No hay activaciones");
}

QString ActivationsBrandSelectionViewController::emptyText() const {
    return board_.count() > 0 ? QString() : QStringLiteral("El catálogo no tiene ninguna por ahora.");
}

bool ActivationsBrandSelectionViewController::isOffline() const {
    return !services_.reachability.isReachable();
}

} // namespace kavor
