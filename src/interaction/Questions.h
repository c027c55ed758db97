#pragma once

#include "interaction/AlertPresenter.h"

#include <functional>
#include <vector>

// Short forms of what screens ask and tell.
namespace kavor {

// A button of a question and what a press of it does.
struct Choice {
    QString text;
    AlertButton::Role role = AlertButton::Role::Normal;
    std::function<void()> taken;
};

inline Choice no() {
    return {QStringLiteral("No"), AlertButton::Role::Cancel, {}};
}
inline Choice yes(std::function<void()> taken) {
    return {QStringLiteral("Sí"), AlertButton::Role::Normal, std::move(taken)};
}
// "Sí" to something that cannot be taken back.
inline Choice yesDestroy(std::function<void()> taken) {
    return {QStringLiteral("Sí"), AlertButton::Role::Destructive, std::move(taken)};
}

// Shows the choices as buttons, in their order. A context that is gone by then hears nothing.
void ask(AlertPresenter& alerts, QObject* context, const QString& title, const QString& text,
         std::vector<Choice> choices);

// Asks for a line of text, which starts with the proposal; taken hears it, unless it is empty.
void askForText(AlertPresenter& alerts, QObject* context, const QString& title, const QString& caption,
                const QString& proposal, const QString& button, std::function<void(const QString&)> taken);

// A line of text to ask for.
struct TextQuestion {
    QString title;
    QString text = {};
    QString caption;
    QString proposal = {};
    QString button;
    int maximumLength = 0; // in user-perceived characters; 0 for no limit
    bool emptyToo = false; // an empty line is an answer
};

// The same for a question with more to it; the line that taken hears is never longer than its limit.
void askForText(AlertPresenter& alerts, QObject* context, const TextQuestion& question,
                std::function<void(const QString&)> taken);

// "No hay conexión a internet."
void informOffline(AlertPresenter& alerts);

} // namespace kavor
