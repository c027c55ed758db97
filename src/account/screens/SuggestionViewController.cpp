#include "account/screens/SuggestionViewController.h"

#include "catalogue/Catalogue.h"
#include "documents/Answers.h"
#include "interaction/AlertPresenter.h"
#include "interaction/QtText.h"
#include "session/AppSingleton.h"
#include "session/services/AuthManager.h"

#include <algorithm>

namespace kavor {

namespace {

const std::vector<SuggestionCategory>& offered(const Catalogue* catalogue) {
    static const std::vector<SuggestionCategory> none;
    return catalogue ? catalogue->information().suggestionCategories : none;
}

// The draft of who is logged in.
SuggestionDraft& ownDraft(const AccountServices& services) {
    const auto stored = services.auth.readCredentials();
    const std::string account = stored ? stored->account : std::string();
    if (services.suggestion.account != account) // what somebody else wrote on this device
        services.suggestion = {account, std::nullopt, {}};
    return services.suggestion;
}

} // namespace

SuggestionViewController::SuggestionViewController(const AccountServices& services, QObject* parent)
    : MessageFormController({services.network, services.alerts, services.urls, services.reachability},
                            ownDraft(services).body,
                            QStringLiteral("Es posible que la sugerencia ya se haya enviado."), parent)
    , draft_(services.suggestion)
    , catalogue_(services.session.applicationInformation) {}

SuggestionViewController::~SuggestionViewController() = default;

void SuggestionViewController::chooseCategory(int index) {
    const auto& all = offered(catalogue_.get());
    if (index < 0 || index >= int(all.size()))
        return;
    draft_.category = all[std::size_t(index)].id;
    emit formChanged();
}

void SuggestionViewController::sendAction() {
    if (isSending())
        return;
    tried_ = true;
    emit formChanged();
    if (category() < 0 || isTextBlank())
        return;
    const Int chosen = *draft_.category;
    send<MessageResponse>(
        "suggestion/" + std::to_string(chosen) + '/' + draft_.body.text,
        [&](const Completion<MessageResponse>& done, const QByteArray& key) {
            services().network.suggestionMailboxAdd(chosen, text(), done, key);
        },
        [this](const MessageResponse& answer) { sent(fromUtf8(answer.msg)); });
}

void SuggestionViewController::sent(const QString& message) {
    draft_.category.reset();
    tried_ = false;
    emptyText();
    services().alerts.inform(QStringLiteral("Buzón"), message);
}

QStringList SuggestionViewController::categories() const {
    QStringList names;
    for (const SuggestionCategory& each : offered(catalogue_.get()))
        names.append(fromUtf8(each.name));
    return names;
}

int SuggestionViewController::category() const {
    const auto& all = offered(catalogue_.get());
    const auto found =
        draft_.category ? std::ranges::find(all, *draft_.category, &SuggestionCategory::id) : all.end();
    return found == all.end() ? -1 : int(found - all.begin());
}

QString SuggestionViewController::categoryError() const {
    return tried_ && category() < 0 ? QStringLiteral("Elige una categoría.") : QString();
}

QString SuggestionViewController::bodyError() const {
    return tried_ && isTextBlank() ? QStringLiteral("Escribe tu sugerencia.") : QString();
}

} // namespace kavor
