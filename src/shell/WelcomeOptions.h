#pragma once

#include "catalogue/Enumerations.h"
#include "session/SectionIdentifier.h"

#include <map>
#include <optional>
#include <span>
#include <string_view>

namespace kavor {

struct LoginResult;

// One kind of order that the dashboard may offer.
struct WelcomeOption {
    ApplicationType type;
    std::optional<bool> LoginResult::*flag; // the right that offers it
    std::string_view label;
    std::string_view image;
    std::string_view transition;
    SectionIdentifier section;
};

namespace transition {
inline constexpr std::string_view brochure = "showBrochureSegue";
inline constexpr std::string_view promotion = "showPromotionSegue";
inline constexpr std::string_view sellingSheet = "showSellingSheetSegue";
inline constexpr std::string_view textile = "showTextileSegue";
inline constexpr std::string_view activations = "showActivationsSegue";
// Beside the sections: what is about the user.
inline constexpr std::string_view profile = "showProfileSegue";
inline constexpr std::string_view allOrders = "AllOrdersControllerIdentifier";
inline constexpr std::string_view suggestions = "showSuggestionsSegue";
} // namespace transition

// The options that have a button, in the order of the dashboard (which is not the order of their
// identifiers).
std::span<const WelcomeOption> sortedWelcomeOptions();

// The option that an identifier opens, also one without a button; the process stops for any other identifier.
const WelcomeOption& openableOption(Int identifier);

// The application type of a section; some kinds of brochure have none.
std::optional<ApplicationType> applicationTypeOf(const SectionIdentifier& section);

// Which identifiers the user's rights set to true or false; an absent right leaves no entry.
std::map<ApplicationType, bool> welcomeFlags(const LoginResult& rights);

// The columns of the dashboard's grid. A device whose orientation is unknown counts as not in landscape.
int welcomeColumns(int total, bool landscape);

} // namespace kavor
