#include "interaction/Questions.h"

#include "base/Text.h"
#include "interaction/QtText.h"

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
    askForText(alerts, context, {.title = title, .caption = caption, .proposal = proposal, .button = button},
               std::move(taken));
}

void askForText(AlertPresenter& alerts, QObject* context, const TextQuestion& question,
                std::function<void(const QString&)> taken) {
    AlertRequest request;
    request.title = question.title;
    request.text = question.text;
    request.buttons = {{question.button, AlertButton::Role::Normal},
                       {QStringLiteral("Cancelar"), AlertButton::Role::Cancel}};
    request.textField = AlertTextField{question.caption, question.proposal, question.maximumLength};
    const auto limited = [most = question.maximumLength](const QString& text) {
        return most > 0 ? fromUtf8(text::firstCharacters(text.toStdString(), std::size_t(most))) : text;
    };
    alerts.present(
        std::move(request), context,
        [taken = std::move(taken), limited, emptyToo = question.emptyToo](const AlertAnswer& answer) {
            if (answer.button == 0 && (emptyToo || !answer.text.isEmpty()))
                taken(limited(answer.text));
        });
}

void informOffline(AlertPresenter& alerts) {
    alerts.inform(QStringLiteral("Error"), QStringLiteral("No hay conexión a internet."));
}

} // namespace kavor
