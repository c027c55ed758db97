#pragma once

#include "device/Clock.h"
#include "session/services/AuthManager.h"

#include <chrono>
#include <functional>
#include <optional>
#include <string>

namespace kavor {

// Decides what becomes of a failed request: given up, repeated, or left without any answer. An expired token
// is repaired with the stored credential. A run of repairs whose logins fail goes on without end, but from
// the fourth on with pauses that double from one second to sixty: a server may lock an account that is
// refused too often. Main thread only; the lock of the design is a state here.
class RequestRetrier {
public:
    struct Answers {
        std::function<void()> doNotRetry;
        std::function<void(std::chrono::milliseconds delay)> retry;
    };
    // How the login of a repair ended: with the new token, without one, or not at all.
    struct LoginAnswers {
        std::function<void(const std::optional<std::string>& token)> success;
        std::function<void()> failure;
    };
    using Login = std::function<void(const StoredCredentials&, const LoginAnswers&)>;

    // `login` starts the login operation, `setToken` takes the token that it brought.
    RequestRetrier(const AuthManager& auth, Clock& clock, Login login,
                   std::function<void(const std::string&)> setToken);
    RequestRetrier(const RequestRetrier&) = delete;
    RequestRetrier& operator=(const RequestRetrier&) = delete;
    ~RequestRetrier() { endPause(); }

    // Calls one of the two answers, now or after the repair, or neither ever. `status` is absent when no
    // answer came.
    void decide(std::optional<int> status, const Answers& answers);

    // A request other than the login of a repair was answered with this status, 0 for not at all: any but 401
    // ends a run of failed repairs.
    void requestAnswered(int status);

    [[nodiscard]] bool isTokenRefreshing() const { return state_ != State::Idle; }

private:
    enum class State {
        Idle,
        Refreshing,  // a silent login runs, or answered without a token, which it never gets over
        HeldForGood, // a 401 without a stored credential has locked the retrier
    };

    void repair(const StoredCredentials& credentials, const Answers& answers);
    void repairFailed(const Answers& answers);
    // How long the run of failed repairs lets the next one wait; 0 while it doesn't.
    [[nodiscard]] std::chrono::milliseconds pause() const;
    void endRun();
    void endPause();

    const AuthManager& auth_;
    Clock& clock_;
    Login login_;
    std::function<void(const std::string&)> setToken_;
    State state_ = State::Idle;
    int failedRepairs_ = 0;         // in a row
    Clock::TimerId pauseTimer_ = 0; // 0: no pause is under way
};

} // namespace kavor
