#include "activations/screens/ActivationsSelectionViewController.h"

#include "activations/screens/ActivationElementsSelectionViewController.h"
#include "activations/screens/ActivationTexts.h"
#include "device/Reachability.h"
#include "interaction/QtText.h"
#include "interaction/Questions.h"
#include "network/ServiceOperations.h"
#include "network/ShowRequestFailure.h"
#include "screens/ResourceImages.h"
#include "screens/ScreenStack.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace kavor {

namespace {

BoardBadge badgeOf(const ActivationInformation& activation, const ActivationQuota& quota) {
    constexpr Int largestFont = 400;
    return {boardPlace(activation.quotaX, activation.quotaY, activation.quotaW, activation.quotaH),
            int(std::clamp<Int>(activation.quotaSize, 1, largestFont)),
            QStringLiteral("%1/%2").arg(quota.numberMade).arg(quota.quota), quota.hasRoom()};
}

} // namespace

ActivationsSelectionViewController::ActivationsSelectionViewController(const ActivationServices& services,
                                                                       ActivationRoute route, QObject* parent)
    : ScreenController(parent)
    , services_(services)
    , route_(std::move(route)) {
    showButtons();
    connect(&services_.reachability, &Reachability::changed, this,
            &ActivationsSelectionViewController::offlineChanged);
}

ActivationsSelectionViewController::~ActivationsSelectionViewController() = default;

QUrl ActivationsSelectionViewController::view() {
    return {QStringLiteral("qrc:/qt/qml/Kavor/Screens/ActivationsSelectionView.qml")};
}

void ActivationsSelectionViewController::viewWillAppear() {
    covered_ = false;
    veil_.follow();
    showButtons(); // an order may have counted up
    if (!std::exchange(loaded_, true))
        requestQuota();
}

void ActivationsSelectionViewController::requestQuota() {
    if (!services_.network.isReachable())
        return informOffline(services_.alerts);
    services_.network.activationUserQuota({wait_.begin("Consultando el cupo…"),
                                           [this](const ActivationsUserQuota& answer) {
                                               wait_.end();
                                               ActivationMemory::shared().quotas.take(answer);
                                               showButtons();
                                           },
                                           [this](const RequestFailure& failure) { quotaFailed(failure); }});
}

void ActivationsSelectionViewController::quotaFailed(const RequestFailure& failure) {
    wait_.end();
    showRequestFailure(
        {services_.alerts, services_.urls}, {}, failure, true,
        QStringLiteral("No se puede obtener información del cupo disponible para cada activación."));
}

void ActivationsSelectionViewController::showButtons() {
    const ActivationQuotas& quotas = ActivationMemory::shared().quotas;
    std::vector<BoardControl> controls;
    for (const auto& each : route_.selectedBrandActivation->activationsList) {
        const bool selected = selectedActivation_ == &each;
        controls.push_back({each.id, fromUtf8(each.name),
                            resourceImageUrl(selected ? each.imageOn : each.imageOff),
                            boardPlace(each.imageX, each.imageY, each.imageWidth, each.imageHeight),
                            int(each.imageRotate % 360), selected, badgeOf(each, quotas.of(each))});
    }
    presentButtons_.show(std::move(controls));
    emit selectionChanged();
}

void ActivationsSelectionViewController::selectActivation(qint64 activation) {
    const auto& all = route_.selectedBrandActivation->activationsList;
    const auto found = std::ranges::find(all, activation, &ActivationInformation::id);
    if (found == all.end())
        return;
    selectedActivation_ = &*found;
    showButtons();
}

void ActivationsSelectionViewController::nextAction() {
    if (!selectedActivation_)
        return services_.alerts.inform(QStringLiteral("Atención"),
                                       QStringLiteral("Selecciona una de las activaciones."));
    if (std::exchange(covered_, true))
        return;
    services_.screens.push( // "showActivationSegueIdentifier"
        {ActivationElementsSelectionViewController::view(),
         new ActivationElementsSelectionViewController(services_, route_, *selectedActivation_)});
}

void ActivationsSelectionViewController::closeSceneAction() {
    if (!route_.tie) {
        emit closed();
        return;
    }
    askToLeave(services_.alerts, this, [this] { emit closed(); });
}

QString ActivationsSelectionViewController::brandName() const {
    return fromUtf8(route_.selectedBrandActivation->brandName);
}

QString ActivationsSelectionViewController::titleLabel() const {
    return fromUtf8(route_.selectedBrandActivation->name);
}

QString ActivationsSelectionViewController::background() const {
    return resourceImageUrl(route_.selectedBrandActivation->imageBackground);
}

QString ActivationsSelectionViewController::selectedName() const {
    return selectedActivation_ ? fromUtf8(selectedActivation_->name) : QString();
}

QString ActivationsSelectionViewController::selectedDescription() const {
    return selectedActivation_ ? fromUtf8(selectedActivation_->description) : QString();
}

QString ActivationsSelectionViewController::selectedNotice() const {
    return selectedActivation_ ? noticeText(selectedActivation_->antelationDays) : QString();
}

ActivationQuota ActivationsSelectionViewController::selectedQuota() const {
    return selectedActivation_ ? ActivationMemory::shared().quotas.of(*selectedActivation_)
                               : ActivationQuota();
}

int ActivationsSelectionViewController::quota() const {
    return shownCount(selectedQuota().quota);
}

int ActivationsSelectionViewController::numberMade() const {
    return shownCount(selectedQuota().numberMade);
}

QString ActivationsSelectionViewController::remainingText() const {
    return quotaText(selectedQuota());
}

QString ActivationsSelectionViewController::emptyText() const {
    return presentButtons_.count() > 0 ? QString()
                                       : QStringLiteral("Esta marca no tiene activaciones por ahora.");
}

bool ActivationsSelectionViewController::isOffline() const {
    return !services_.reachability.isReachable();
}

} // namespace kavor
