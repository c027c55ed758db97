#include "network/ShowRequestFailure.h"

#include "interaction/AlertPresenter.h"
#include "interaction/OpenLink.h"
#include "interaction/Questions.h"

namespace kavor {

namespace {

void offerUpdate(const FailurePresenter& presenter, const ServerResponseError& update) {
    const auto open = [presenter, link = update.updateLink] {
        openLink(presenter.urls, presenter.alerts, link.toString(QUrl::FullyEncoded));
    };
    ask(presenter.alerts, nullptr, QStringLiteral("Atención"), update.errorMessage,
        {no(), {QStringLiteral("Actualizar"), AlertButton::Role::Normal, open}});
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
