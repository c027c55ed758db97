#pragma once

#include <optional>
#include <string>

namespace kavor {

// The answer of "profileInformationURL".
struct UserProfile {
    struct User {
        std::optional<std::string> name;
        std::optional<std::string> delegation;
        std::optional<std::string> profile;
        std::optional<std::string> type;
        std::optional<std::string> zone;
        std::optional<std::string> email;
        std::optional<std::string> phoneNumber;
        std::optional<std::string> firstDirection;
        std::optional<std::string> secondDirection;
        std::optional<std::string> postalCode;
        std::optional<std::string> municipality;
        std::optional<std::string> province;
        std::optional<std::string> editUrl;
        std::string brochuresInitialBudget;
        std::string brochuresAvailableBudget;
        std::string brochureOrdersDone;
        std::string textileInitialBudget;
        std::string textileAvailableBudget;
        std::string textileOrdersDone;
    };

    User user;
};

} // namespace kavor
