#include "activations/screens/ActivationDetailViewController.h"

namespace kavor {

ActivationDetailViewController::ActivationDetailViewController(const QUrl& detailsPDF, const QString& title,
                                                               PlainDownloader& downloader, Clock& clock,
                                                               QObject* parent)
    : ScreenController(parent)
    , document_(detailsPDF, title, downloader, clock, nullptr) {
    connect(&document_, &WebPreviewViewController::dismissed, this, &ScreenController::closed);
}

QUrl ActivationDetailViewController::view() {
    return {QStringLiteral("qrc:/qt/qml/Kavor/Screens/ActivationDetailView.qml")};
}

} // namespace kavor
