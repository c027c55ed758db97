#include "account/screens/SuggestionViewController.h"

#include "catalogue/Catalogue.h"
#include "device/Reachability.h"
#include "documents/Answers.h"
#include "interaction/QtText.h"
#include "interaction/Questions.h"
#include "network/ServiceOperations.h"
#include "network/ShowRequestFailure.h"
#include "screens/QueryText.h"
#include "session/AppSingleton.h"
#include "session/services/AuthManager.h"

#include <algorithm>

namespace kavor {

namespace {

const std::vector<SuggestionCategory>& offered(const Catalogue* catalogue) {
    static const std::vector<SuggestionCategory> none;
    return catalogue ? catalogue->information().suggestionCategories : none;
}

} // namespace

SuggestionViewController::SuggestionViewController(const AccountServices& services, QObject* parent)
    : ScreenController(parent)
    , services_(services)
    , catalogue_(services.session.applicationInformation) {
    const auto stored = services_.auth.readCredentials();
    const std::string account = stored ? stored->account : std::string();
    if (services_.suggestion.account != account) // what somebody else wrote on this device
        services_.suggestion = {account, std::nullopt, {}};
    connect(&services_.reachability, &Reachability::changed, this, &SuggestionViewController::offlineChanged);
}

SuggestionViewController::~SuggestionViewController() = default;

void SuggestionViewController::chooseCategory(int index) {
    const auto& all = offered(catalogue_.get());
    if (index < 0 || index >= int(all.size()))
        return;
    services_.suggestion.category = all[std::size_t(index)].id;
    emit formChanged();
}

QString SuggestionViewController::editBody(const QString& text) {
    QString kept = query_text::fitting(text);
    services_.suggestion.body = kept.toStdString();
    emit formChanged();
    return kept;
}

void SuggestionViewController::sendAction() {
    if (isSending())
        return;
    tried_ = true;
    emit formChanged();
    if (category() < 0 || isBodyBlank())
        return;
    if (isOffline())
        return informOffline(services_.alerts);
    services_.network.suggestionMailboxAdd(
        *services_.suggestion.category, body(),
        {run_.begin(), [this](const MessageResponse& answer) { sent(fromUtf8(answer.msg)); },
         [this](const RequestFailure& failure) { failed(failure); }});
    emit sendingChanged();
}

void SuggestionViewController::sent(const QString& message) {
    run_.end();
    services_.suggestion.category.reset();
    services_.suggestion.body.clear();
    tried_ = false;
    emit sendingChanged();
    emit formChanged();
    emit emptied();
    services_.alerts.inform(QStringLiteral("Buzón"), message);
}

void SuggestionViewController::failed(const RequestFailure& failure) {
    run_.end();
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

void SuggestionViewController::leaveVeil() {
    run_.end();
    emit sendingChanged();
    services_.alerts.inform(QStringLiteral("Atención"),
                            QStringLiteral("Es posible que la sugerencia ya se haya enviado."));
}

void SuggestionViewController::closeSceneAction() {
    if (isBodyBlank()) {
        emit closed();
        return;
    }
    ask(services_.alerts, this, QStringLiteral("Atención"), QStringLiteral("¿Salir sin enviar?"),
        {no(), yes([this] { emit closed(); })});
}

QStringList SuggestionViewController::categories() const {
    QStringList names;
    for (const SuggestionCategory& each : offered(catalogue_.get()))
        names.append(fromUtf8(each.name));
    return names;
}

int SuggestionViewController::category() const {
    const auto& all = offered(catalogue_.get());
    const auto found = services_.suggestion.category
                           ? std::ranges::find(all, *services_.suggestion.category, &SuggestionCategory::id)
                           : all.end();
    return found == all.end() ? -1 : int(found - all.begin());
}

QString SuggestionViewController::body() const {
    return fromUtf8(services_.suggestion.body);
}

bool SuggestionViewController::isBodyBlank() const {
    return body().trimmed().isEmpty();
}

QString SuggestionViewController::counter() const {
    return query_text::counter(body());
}

QString SuggestionViewController::categoryError() const {
    return tried_ && category() < 0 ? QStringLiteral("Elige una categoría.") : QString();
}

QString SuggestionViewController::bodyError() const {
    return tried_ && isBodyBlank() ? QStringLiteral("Escribe tu sugerencia.") : QString();
}

bool SuggestionViewController::isOffline() const {
    return !services_.network.isReachable();
}

} // namespace kavor
