#include "pointofsale/services/CustomerLookup.h"

#include "interaction/AlertPresenter.h"
#include "interaction/Questions.h"
#include "interaction/VeiledRun.h"
#include "network/ServiceOperations.h"
#include "network/ShowRequestFailure.h"
#include "session/AppSingleton.h"

#include <utility>

namespace kavor {

CustomerLookup::CustomerLookup(ServiceOperations& network, AlertPresenter& alerts, UrlOpener& urls,
                               VeiledRun& wait, CustomerLookupTexts texts, QObject* parent)
    : QObject(parent)
    , network_(network)
    , alerts_(alerts)
    , urls_(urls)
    , wait_(wait)
    , texts_(std::move(texts)) {}

void CustomerLookup::search(const QString& code, Answered answered) {
    if (!network_.isReachable()) {
        alerts_.inform(texts_.offlineTitle, texts_.offlineText);
        return;
    }
    if (code.isEmpty() && !texts_.noCodeText.isEmpty()) {
        alerts_.inform(texts_.noCodeTitle, texts_.noCodeText);
        return;
    }
    if (!AppSingleton::shared()
             .actualApplicationType) { // a kind of order that the server looks nothing up for
        alerts_.inform(QStringLiteral("Incidencia"), QStringLiteral("Error"));
        return;
    }
    network_.getCustomerDataFromTevoCode(
        code, {wait_.begin("Buscando el cliente…"),
               [this, answered = std::move(answered)](const std::vector<Customer>& customers) {
                   wait_.end();
                   finish(customers.empty() ? std::nullopt : std::optional(customers.front()), answered);
               },
               [this](const RequestFailure& failure) {
                   wait_.end();
                   showRequestFailure({alerts_, urls_}, {}, failure, true, texts_.failureTitle);
               }});
}

void CustomerLookup::finish(const std::optional<Customer>& found, const Answered& answered) {
    answered(found);
    if (!found)
        ask(alerts_, this, texts_.nobodyTitle, texts_.nobodyText,
            {{texts_.nobodyButton, AlertButton::Role::Cancel, {}}});
}

} // namespace kavor
