#pragma once

#include "base/Int.h"

#include <optional>
#include <string>
#include <vector>

namespace kavor {

// A message for the dashboard's panel.
struct UserNotification {
    std::string title;
    std::optional<std::string> description;
    std::optional<std::string> image;
};

// The answer of "loginURL" and "userInformation": the user's rights. An absent flag is neither true nor
// false; each reader says what it does then.
struct LoginResult {
    std::string msg;
    std::optional<Int> userIdentifier;
    std::optional<std::string> token;
    std::optional<std::string> userToken;
    std::optional<bool> showBeerBrochures;
    std::optional<bool> showBeveragesBrochures;
    std::optional<bool> showFoodBrochures;
    std::optional<bool> showSellingSheet;
    std::optional<bool> showFlyer;
    std::optional<bool> showChalkboard;
    std::optional<bool> showPromotion;
    std::optional<bool> showCarteleria;
    std::optional<bool> showActivations;
    std::optional<bool> showTextile;
    std::optional<bool> showRRSS;
    std::optional<bool> showVideoBrochure;
    std::optional<bool> showMantelBrochure;
    std::optional<bool> showEncarteBrochure;
    std::optional<bool> sendOrderInformation;
    std::optional<bool> customerCodeRequired;
    std::optional<bool> withShowMenuOnline;
    std::optional<bool> appShowWineA4;
    std::optional<bool> appShowWineOrder;
    std::optional<bool> appShowWineTextil;
    std::optional<bool> showLogoNrv;
    std::optional<std::vector<UserNotification>> notifications;
};

// The secret of the stored credential.
struct AuthCredentials {
    std::string password;
    std::string token;
};

} // namespace kavor
