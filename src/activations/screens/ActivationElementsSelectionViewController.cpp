#include "activations/screens/ActivationElementsSelectionViewController.h"

#include "activations/ActivationMemory.h"
#include "activations/screens/ActivationDetailViewController.h"
#include "activations/screens/ActivationTexts.h"
#include "activations/screens/ActivationsSendViewController.h"
#include "device/Reachability.h"
#include "interaction/AlertPresenter.h"
#include "interaction/QtText.h"
#include "screens/ScreenStack.h"

#include <algorithm>
#include <utility>

namespace kavor {

ActivationElementsSelectionViewController::ActivationElementsSelectionViewController(
    const ActivationServices& services, ActivationRoute route,
    const ActivationInformation& selectedActivation, QObject* parent)
    : ScreenController(parent)
    , services_(services)
    , route_(std::move(route))
    , selectedActivation_(selectedActivation)
    , selectedItems_(selectedActivation.itemsList.size(), true) {
    items_.show(selectedActivation_.itemsList, selectedItems_);
    connect(&services_.reachability, &Reachability::changed, this,
            &ActivationElementsSelectionViewController::offlineChanged);
}

ActivationElementsSelectionViewController::~ActivationElementsSelectionViewController() = default;

QUrl ActivationElementsSelectionViewController::view() {
    return {QStringLiteral("qrc:/qt/qml/Kavor/Screens/ActivationElementsSelectionView.qml")};
}

void ActivationElementsSelectionViewController::viewWillAppear() {
    covered_ = false;
    emit quotaChanged();
    const bool isFull = !ActivationMemory::shared().quotas.of(selectedActivation_).hasRoom();
    if (isFull && !std::exchange(warned_, true))
        services_.alerts.inform(
            QStringLiteral("Atención"),
            QStringLiteral("No dispones de cupo para realizar más activaciones de este tipo"));
}

void ActivationElementsSelectionViewController::tapItem(int item) {
    if (item < 0 || item >= int(selectedItems_.size()))
        return;
    const auto place = std::size_t(item);
    if (selectedActivation_.itemsList[place].required)
        return services_.alerts.inform(
            QStringLiteral("Información"),
            QStringLiteral("El elemento en el que ha pinchado no puede ser deseleccionado, es obligatorio."));
    selectedItems_[place] = !selectedItems_[place];
    items_.show(selectedActivation_.itemsList, selectedItems_);
    emit selectionChanged();
}

void ActivationElementsSelectionViewController::showDetail() {
    if (!isDetailVisible() || std::exchange(covered_, true))
        return;
    services_.screens.push(
        {ActivationDetailViewController::view(),
         new ActivationDetailViewController(QUrl(fromUtf8(selectedActivation_.detailsPDF->text)),
                                            activationName(), services_.downloader, services_.clock)});
}

// "showSendSceneIdentifier"
void ActivationElementsSelectionViewController::nextAction() {
    if (std::exchange(covered_, true))
        return;
    services_.screens.push(
        {ActivationsSendViewController::view(),
         new ActivationsSendViewController(services_, route_, selectedActivation_,
                                           chosenItems(selectedActivation_, selectedItems_))});
}

void ActivationElementsSelectionViewController::closeSceneAction() {
    askToLeave(services_.alerts, this, [this] { emit closed(); });
}

QString ActivationElementsSelectionViewController::activationName() const {
    return fromUtf8(selectedActivation_.name);
}

QString ActivationElementsSelectionViewController::brandName() const {
    return fromUtf8(route_.selectedBrandActivation->brandName);
}

QString ActivationElementsSelectionViewController::descriptionText() const {
    return fromUtf8(selectedActivation_.description);
}

QString ActivationElementsSelectionViewController::agencyName() const {
    return fromUtf8(selectedActivation_.agencyName);
}

QString ActivationElementsSelectionViewController::agencyDescription() const {
    return fromUtf8(selectedActivation_.agencyDescription);
}

QString ActivationElementsSelectionViewController::noticeLabel() const {
    return noticeText(selectedActivation_.antelationDays);
}

QString ActivationElementsSelectionViewController::availabilityLabel() const {
    return availabilityText(selectedActivation_);
}

QVariantList ActivationElementsSelectionViewController::images() const {
    QVariantList entries;
    for (const QString& source : picturesOf(selectedActivation_.imagesList))
        entries << QVariantMap{{QStringLiteral("source"), source}, {QStringLiteral("text"), QString()}};
    return entries;
}

QString ActivationElementsSelectionViewController::countText() const {
    const auto chosen = chosenItems(selectedActivation_, selectedItems_).size();
    return QStringLiteral("%1 de %2").arg(chosen).arg(selectedItems_.size());
}

int ActivationElementsSelectionViewController::quota() const {
    return shownCount(ActivationMemory::shared().quotas.of(selectedActivation_).quota);
}

int ActivationElementsSelectionViewController::numberMade() const {
    return shownCount(ActivationMemory::shared().quotas.of(selectedActivation_).numberMade);
}

QString ActivationElementsSelectionViewController::remainingText() const {
    return quotaText(ActivationMemory::shared().quotas.of(selectedActivation_));
}

QString ActivationElementsSelectionViewController::tieText() const {
    if (!route_.tie || !route_.tie->extraOrderInformation.activationInfo.otherActivationRelationIdentifier)
        return {};
    return QStringLiteral("Asociada al pedido %1")
        .arg(*route_.tie->extraOrderInformation.activationInfo.otherActivationRelationIdentifier);
}

bool ActivationElementsSelectionViewController::isOffline() const {
    return !services_.reachability.isReachable();
}

} // namespace kavor
