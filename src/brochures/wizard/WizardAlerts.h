#pragma once

#include "base/NotificationCenter.h"
#include "device/AlertPresenter.h"

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

// Shows or hides the full-screen blocker of the wizard, which says what it waits for.
inline void showVeil(bool show, const char* waitingFor = "") {
    NotificationCenter::shared().post(notification::visibilityVeilView,
                                      {{"show", show}, {"text", std::string(waitingFor)}});
}

} // namespace kavor
