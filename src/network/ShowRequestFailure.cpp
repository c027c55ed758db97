#include "network/ShowRequestFailure.h"

#include "device/AlertPresenter.h"
#include "device/OpenLink.h"

namespace kavor {

namespace {

void offerUpdate(const FailurePresenter& presenter, const ServerResponseError& update) {
    AlertRequest alert;
    alert.title = QStringLiteral("Atención");
    alert.text = update.errorMessage;
    alert.buttons = {{QStringLiteral("No"), AlertButton::Role::Cancel},
                     {QStringLiteral("Actualizar"), AlertButton::Role::Normal}};
    presenter.alerts.present(
        alert, nullptr, [presenter, link = update.updateLink](const AlertAnswer& answer) {
            if (answer.button == 1)
                openLink(presenter.urls, presenter.alerts, link.toString(QUrl::FullyEncoded));
        });
}

} // namespace

void showRequestFailure(const FailurePresenter& presenter, const std::function<void()>& hideVeil,
                        const RequestFailure& failure, bool preferMessages, const QString& title) {
    if (failure.error.updateNeeded) {
        offerUpdate(presenter, *failure.error.updateNeeded);
        return;
    }
    const bool hasMessage = preferMessages && failure.messages && !failure.messages->isEmpty();
    presenter.alerts.inform(title,
                            hasMessage ? failure.messages->first() : failure.error.localizedDescription);
    if (hideVeil)
        hideVeil();
}

} // namespace kavor
