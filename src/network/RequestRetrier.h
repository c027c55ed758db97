#pragma once

#include "network/AuthManager.h"

#include <chrono>
#include <functional>
#include <optional>
#include <string>

namespace kavor {

// Decides what becomes of a failed request: given up, repeated, or left without any answer. An expired token
// is repaired with the stored credential. Main thread only; the lock of the design is a state here.
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
    RequestRetrier(const AuthManager& auth, Login login, std::function<void(const std::string&)> setToken);

    // Calls one of the two answers, now or after the repair, or neither ever. `status` is absent when no
    // answer came.
    void decide(std::optional<int> status, const Answers& answers);

    [[nodiscard]] bool isTokenRefreshing() const { return state_ != State::Idle; }
    // The login of the repair went down with its session.
    void refreshWasLost();

private:
    enum class State {
        Idle,
        Refreshing,  // a silent login runs, or answered without a token, which it never gets over
        HeldForGood, // a 401 without a stored credential has locked the retrier
    };

    void repair(const StoredCredentials& credentials, const Answers& answers);

    const AuthManager& auth_;
    Login login_;
    std::function<void(const std::string&)> setToken_;
    State state_ = State::Idle;
};

} // namespace kavor
