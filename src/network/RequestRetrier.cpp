#include "network/RequestRetrier.h"

#include <algorithm>
#include <utility>

namespace kavor {

namespace {

using std::chrono::milliseconds;

constexpr std::chrono::seconds pauseAfter419{10};
constexpr int repairsWithoutPause = 3;
constexpr std::chrono::seconds longestPause{60};

} // namespace

RequestRetrier::RequestRetrier(const AuthManager& auth, Clock& clock, Login login,
                               std::function<void(const std::string&)> setToken)
    : auth_(auth)
    , clock_(clock)
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
    // In a run that has come to its pauses, who is held back waits for the next one.
    if (pauseTimer_ != 0 || (state_ == State::Refreshing && pause().count() > 0)) {
        answers.retry(pause());
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
    const auto takeToken = [this, retry = answers.retry](const std::optional<std::string>& token) {
        endRun();
        if (!token)
            return; // meant so: without a token neither the request nor the repair ever ends
        setToken_(*token);
        // Idle comes last: a repeat that answers at once still finds the repair running.
        retry(milliseconds(0));
        state_ = State::Idle;
    };
    login_(credentials, {takeToken, [this, answers] { repairFailed(answers); }});
}

void RequestRetrier::repairFailed(const Answers& answers) {
    ++failedRepairs_;
    endPause();
    if (pause().count() > 0) // before the repeat's own wait, so that the repeat no longer meets it
        pauseTimer_ = clock_.after(pause(), nullptr, [this] { pauseTimer_ = 0; });
    answers.retry(pause());
    state_ = State::Idle;
}

void RequestRetrier::requestAnswered(int status) {
    if (status != 0 && status != 401)
        endRun();
}

void RequestRetrier::endRun() {
    failedRepairs_ = 0;
    endPause();
}

void RequestRetrier::endPause() {
    clock_.cancel(std::exchange(pauseTimer_, 0));
}

milliseconds RequestRetrier::pause() const {
    constexpr int doublings = 6; // beyond sixty seconds
    if (failedRepairs_ <= repairsWithoutPause)
        return milliseconds(0);
    const int steps = std::min(failedRepairs_ - repairsWithoutPause - 1, doublings);
    return std::min<milliseconds>(std::chrono::seconds(1 << steps), longestPause);
}

} // namespace kavor
