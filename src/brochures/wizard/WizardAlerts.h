#pragma once

#include "base/NotificationCenter.h"
#include "device/AlertPresenter.h"

#include <functional>
#include <string>
#include <utility>

// Short forms of what the steps of the wizard show.
namespace kavor {

// A dialogue with these buttons.
inline AlertRequest dialogue(QString title, QString message, QList<AlertButton> buttons) {
    AlertRequest request;
    request.title = std::move(title);
    request.text = std::move(message);
    request.buttons = std::move(buttons);
    return request;
}

// Asks whether the order that was sent becomes the start of another one.
inline void askForAnotherOrder(AlertPresenter& alerts, QObject* context, std::function<void(bool)> answered) {
    alerts.present(
        dialogue(QStringLiteral("Atención"),
                 QStringLiteral("Este pedido ya se ha realizado. ¿Desea hacer otro a partir de él?"),
                 {{QStringLiteral("No"), AlertButton::Role::Cancel},
                  {QStringLiteral("Sí"), AlertButton::Role::Normal}}),
        context,
        [answered = std::move(answered)](const AlertAnswer& answer) { answered(answer.button == 1); });
}

// Shows or hides the full-screen blocker of the wizard, which says what it waits for.
inline void showVeil(bool show, const char* waitingFor = "") {
    NotificationCenter::shared().post(notification::visibilityVeilView,
                                      {{"show", show}, {"text", std::string(waitingFor)}});
}

} // namespace kavor
