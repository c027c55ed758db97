#pragma once

#include "interaction/AlertPresenter.h"

#include <string>

namespace kavor {

// Answers the alert on show by a button's text.
inline bool press(AlertPresenter& alerts, const QString& button, const QString& typed = {}) {
    const auto* request = alerts.current();
    for (int index = 0; request && index < request->buttons.size(); ++index) {
        if (request->buttons[index].text == button) {
            alerts.answerButton(index, typed);
            return true;
        }
    }
    return false;
}

// The title and the text of the alert on show.
inline std::string shown(const AlertPresenter& alerts) {
    return (alerts.title() + " | " + alerts.text()).toStdString();
}

} // namespace kavor
