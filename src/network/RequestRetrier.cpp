#include "network/RequestRetrier.h"

#include <utility>

namespace kavor {

namespace {

constexpr std::chrono::seconds pauseAfter419{10};

} // namespace

RequestRetrier::RequestRetrier(const AuthManager& auth, Login login,
                               std::function<void(const std::string&)> setToken)
    : auth_(auth)
    , login_(std::move(login))
    , setToken_(std::move(setToken)) {}

void RequestRetrier::decide(std::optional<int> status, const Answers& answers) {
    // Meant so: once a 401 met no stored credential, no failure gets past this point, whatever its status.
    if (state_ == State::HeldForGood)
        return;
    if (status == 419) {
        answers.retry(pauseAfter419);
        return;
    }
    if (status != 401) {
        answers.doNotRetry();
        return;
    }
    // Meant so: a second request that expires during a repair stays unanswered.
    if (state_ == State::Refreshing)
        return;
    if (const auto credentials = auth_.readCredentials())
        repair(*credentials, answers);
    else
        state_ = State::HeldForGood;
}

void RequestRetrier::repair(const StoredCredentials& credentials, const Answers& answers) {
    state_ = State::Refreshing;
    // Idle comes last: a repeat that answers at once still finds the repair running.
    const auto repeat = [this, retry = answers.retry] {
        retry(std::chrono::milliseconds(0));
        state_ = State::Idle;
    };
    const auto takeToken = [this, repeat](const std::optional<std::string>& token) {
        if (!token)
            return; // meant so: without a token neither the request nor the repair ever ends
        setToken_(*token);
        repeat();
    };
    login_(credentials, {takeToken, repeat});
}

void RequestRetrier::refreshWasLost() {
    if (state_ == State::Refreshing)
        state_ = State::Idle;
}

} // namespace kavor
