#include "interaction/Questions.h"

#include <utility>

namespace kavor {

void ask(AlertPresenter& alerts, QObject* context, const QString& title, const QString& text,
         std::vector<Choice> choices) {
    AlertRequest request;
    request.title = title;
    request.text = text;
    for (const Choice& choice : choices)
        request.buttons.append({choice.text, choice.role});
    alerts.present(std::move(request), context, [choices = std::move(choices)](const AlertAnswer& answer) {
        if (answer.button < 0 || answer.button >= int(choices.size()))
            return;
        if (const auto& taken = choices[std::size_t(answer.button)].taken)
            taken();
    });
}

void askForText(AlertPresenter& alerts, QObject* context, const QString& title, const QString& caption,
                const QString& proposal, const QString& button, std::function<void(const QString&)> taken) {
    AlertRequest request;
    request.title = title;
    request.buttons = {{button, AlertButton::Role::Normal},
                       {QStringLiteral("Cancelar"), AlertButton::Role::Cancel}};
    request.textField = AlertTextField{caption, proposal, 0};
    alerts.present(std::move(request), context, [taken = std::move(taken)](const AlertAnswer& answer) {
        if (answer.button == 0 && !answer.text.isEmpty())
            taken(answer.text);
    });
}

void informOffline(AlertPresenter& alerts) {
    alerts.inform(QStringLiteral("Error"), QStringLiteral("No hay conexión a internet."));
}

} // namespace kavor
