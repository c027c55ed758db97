#include "screens/messages/MessageFormController.h"

#include "device/Reachability.h"
#include "interaction/QtText.h"
#include "interaction/Questions.h"
#include "network/ShowRequestFailure.h"
#include "orders/services/SendIntent.h"
#include "screens/messages/QueryText.h"

namespace kavor {

namespace {

SendContent intentOf(const std::string& content) {
    return {OrderRequestType::sendToPrint, content};
}

} // namespace

MessageFormController::MessageFormController(const Services& services, MessageDraft& draft,
                                             const QString& leftWord, QObject* parent)
    : ScreenController(parent)
    , services_(services)
    , draft_(draft)
    , leftWord_(leftWord) {
    connect(&services_.reachability, &Reachability::changed, this, &MessageFormController::offlineChanged);
}

QString MessageFormController::editText(const QString& text) {
    QString kept = query_text::fitting(text);
    draft_.text = kept.toStdString();
    emit formChanged();
    return kept;
}

bool MessageFormController::mayBegin(const std::string& content) {
    if (isSending() || done_)
        return false;
    if (isOffline()) {
        informOffline(services_.alerts);
        return false;
    }
    content_ = content;
    return true;
}

QByteArray MessageFormController::keyOfSend() {
    return send_intent::keyFor(draft_.unanswered, intentOf(content_));
}

void MessageFormController::endAnswered() {
    run_.end();
    send_intent::answered(draft_.unanswered, intentOf(content_));
    emit sendingChanged();
}

void MessageFormController::emptyText() {
    draft_.text.clear();
    emit formChanged();
    emit emptied();
}

void MessageFormController::tellAndLeave(const QString& title, const QString& message) {
    done_ = true;
    ask(services_.alerts, this, title, message,
        {{QStringLiteral("Continuar"), AlertButton::Role::Normal, [this] { emit closed(); }}});
}

void MessageFormController::failed(const RequestFailure& failure) {
    run_.end();
    if (!send_intent::isAnswerLost(failure))
        send_intent::answered(draft_.unanswered, intentOf(content_));
    emit sendingChanged();
    if (failure.error.updateNeeded)
        return showRequestFailure({services_.alerts, services_.urls}, {}, failure, true, {});
    const QString message = failure.messages && !failure.messages->isEmpty()
                                ? failure.messages->first()
                                : failure.error.localizedDescription;
    ask(services_.alerts, this, QStringLiteral("Incidencia"), message,
        {{QStringLiteral("Cancelar"), AlertButton::Role::Cancel, {}},
         {QStringLiteral("Intentar de nuevo"), AlertButton::Role::Normal, [this] { sendAction(); }}});
}

void MessageFormController::leaveVeil() {
    if (!isSending())
        return;
    run_.end();
    emit sendingChanged();
    services_.alerts.inform(QStringLiteral("Atención"), leftWord_);
}

void MessageFormController::closeSceneAction() {
    if (isTextBlank() || done_) {
        emit closed();
        return;
    }
    if (asking_)
        return;
    asking_ = true;
    ask(services_.alerts, this, QStringLiteral("Atención"), QStringLiteral("¿Salir sin enviar?"),
        {{QStringLiteral("No"), AlertButton::Role::Cancel, [this] { asking_ = false; }},
         yes([this] { emit closed(); })});
}

QString MessageFormController::text() const {
    return fromUtf8(draft_.text);
}

QString MessageFormController::counter() const {
    return query_text::counter(text());
}

bool MessageFormController::isTextBlank() const {
    return text().trimmed().isEmpty();
}

bool MessageFormController::isOffline() const {
    return !services_.network.isReachable();
}

} // namespace kavor
