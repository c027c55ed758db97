#include "network/HttpSession.h"

#include "device/Reachability.h"

#include <utility>

namespace kavor {

HttpSession::HttpSession(SessionConfiguration configuration, Clock& clock, Reachability& reachability,
                         QObject* parent)
    : QObject(parent)
    , configuration_(std::move(configuration))
    , clock_(clock)
    , reachability_(reachability)
    , connections_(this) {
    connect(&reachability_, &Reachability::changed, this, &HttpSession::networkChanged);
}

void HttpSession::send(HttpRequest request, Callback callback, IsWanted isWanted) {
    request.headers = configuration_.additionalHeaders + request.headers;
    HttpRules rules;
    rules.answerSizeLimit = configuration_.answerSizeLimit;
    const auto sent = std::make_shared<Sent>(Sent{std::move(callback), std::move(isWanted)});
    const auto ended = [this, sent](const HttpAnswer& answer) {
        forget(sent);
        sent->callback(answer); // whose end may be that of this session too
    };
    auto* exchange = new HttpExchange(connections_, rules, std::move(request), ended, this);
    sent->exchange = exchange;
    sent->deadline =
        clock_.after(configuration_.requestTimeout, exchange, [exchange] { exchange->timeOut(); });
    ++open_;
    startOrWait(sent);
}

void HttpSession::startOrWait(const SentPointer& sent) {
    if (configuration_.waitsForConnectivity && !reachability_.isReachable())
        waiting_.push_back(sent);
    else
        sent->exchange->start();
}

void HttpSession::networkChanged() {
    for (const SentPointer& sent : std::exchange(waiting_, {})) {
        if (!sent->isWanted || sent->isWanted()) {
            startOrWait(sent);
        } else {
            forget(sent);
            delete sent->exchange;
        }
    }
}

void HttpSession::forget(const SentPointer& sent) {
    clock_.cancel(sent->deadline);
    std::erase(waiting_, sent);
    --open_;
    if (retiring_)
        retire();
}

void HttpSession::retire() {
    retiring_ = true;
    if (open_ == 0)
        deleteLater();
}

} // namespace kavor
