#include "network/FailureMapping.h"

#include "base/json/Json.h"
#include "documents/Answers.h"
#include "http/HttpExchange.h"
#include "interaction/QtText.h"
#include "network/records/ErrorRecords.h"

#include <string_view>

namespace kavor {

namespace {

QString timedOutMessage() {
    return QStringLiteral("No podemos procesar su petición por exceso de tiempo. Inténtelo más tarde.");
}

QString text(const std::string& utf8) {
    return QString::fromStdString(utf8);
}

// An unexpected status counts only when the answer came whole.
RequestError errorOf(const HttpAnswer& answer) {
    using Kind = RequestError::Kind;
    if (answer.fault == HttpAnswer::Fault::TimedOut)
        return {Kind::TimedOut,
                answer.status,
                QStringLiteral("El servidor ha tardado demasiado en responder."),
                {}};
    if (answer.fault == HttpAnswer::Fault::Transport)
        return {
            Kind::Transport, answer.status, QStringLiteral("Se ha perdido la conexión con el servidor."), {}};
    if (answer.status == 200)
        return {Kind::Decoding,
                answer.status,
                QStringLiteral("No se ha podido leer la respuesta del servidor."),
                {}};
    return {Kind::Status,
            answer.status,
            QStringLiteral("El servidor no ha podido atender la petición (código %1).").arg(answer.status),
            {}};
}

QStringList allErrors(const ValidationErrorsResponse& response) {
    QStringList messages;
    for (const auto& [field, texts] : response.errors) {
        for (const std::string& each : texts)
            messages.append(text(each));
    }
    return messages;
}

RequestFailure statusFailure(RequestError error, std::string_view body) {
    if (error.status == 422 || error.status == 429) {
        if (const auto response = json::decode<ValidationErrorsResponse>(body))
            return {std::move(error), allErrors(*response)};
    }
    if (error.status == 505) {
        if (const auto response = json::decode<OutdatedVersionErrorResponse>(body)) {
            error.localizedDescription = text(response->message);
            error.updateNeeded =
                ServerResponseError{text(response->message), QUrl(text(response->updateLink.text))};
            return {std::move(error), std::nullopt};
        }
    }
    const auto response = json::decode<MessageResponse>(body);
    return {std::move(error), QStringList{response ? text(response->msg) : genericFailureMessage()}};
}

} // namespace

QString genericFailureMessage() {
    return QStringLiteral(
        "Se ha producido una incidencia. Por favor, póngase en contacto con el equipo de soporte.");
}

RequestFailure mapFailure(const HttpAnswer& answer) {
    RequestError error = errorOf(answer);
    if (answer.body.isEmpty())
        return {std::move(error), QStringList{genericFailureMessage()}};
    if (error.kind == RequestError::Kind::TimedOut)
        return {std::move(error), QStringList{timedOutMessage()}};
    if (error.kind != RequestError::Kind::Status)
        return {std::move(error), QStringList{genericFailureMessage()}};
    return statusFailure(std::move(error), {answer.body.constData(), std::size_t(answer.body.size())});
}

std::optional<RequestFailure> refusalIn(const GenericOrderResponse& answer) {
    if (!answer.errors || answer.errors->empty())
        return std::nullopt;
    QStringList messages;
    for (const auto& [member, texts] : *answer.errors) {
        for (const std::string& text : texts)
            messages << fromUtf8(text);
    }
    const QString said = messages.isEmpty() ? genericFailureMessage() : messages.join(QLatin1Char('\n'));
    constexpr int ok = 200;
    return RequestFailure{{RequestError::Kind::Status, ok, said, std::nullopt}, QStringList{said}};
}

} // namespace kavor
