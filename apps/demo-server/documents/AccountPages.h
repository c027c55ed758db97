#pragma once

#include "Json.h"

#include <span>
#include <string>
#include <vector>

namespace kavor::demo {

/// A member of the profile that its user may change.
struct ProfileField {
    const char* key;
    const char* label;
    const char* type; ///< of the input, so that a phone shows the right keys
    bool required;
};
std::span<const ProfileField> profileFields();

/// The form in which a user changes the own data: `faults` are sentences above it, `saved` says that it
/// worked.
std::string profileHtml(const Json& values, const std::vector<std::string>& faults, bool saved);

/// What users suggested, newest first: entries with "created", "account", "category" and "body".
std::string suggestionsHtml(const Json& suggestions);

/// What would have been mailed, newest first: entries with "created", "to", "subject", "order_id" and
/// "url_pdf".
std::string mailsHtml(const Json& mails);

} // namespace kavor::demo
