#pragma once

#include <optional>
#include <string>

namespace kavor {

class KeychainStore;
class UserDefaults;

// What the device remembers of a user.
struct StoredCredentials {
    std::string account; // the login name
    std::string password;
    std::string token;
    bool operator==(const StoredCredentials&) const = default;
};

// The one credential that the device may remember for a server, in the keychain. What the keychain answers to
// a change is ignored.
class AuthManager {
public:
    // `server` is baseURLPro.
    AuthManager(KeychainStore& keychain, UserDefaults& defaults, std::string server);

    // Nothing when there is no item, or one without an account or with a value that isn't a credential.
    [[nodiscard]] std::optional<StoredCredentials> readCredentials() const;
    void addCredentials(const std::string& account, const std::string& password, const std::string& token);
    void updateCredentials(const std::string& account, const std::string& password, const std::string& token);
    // Also ends the automatic login.
    void deleteCredentials();
    // Ends the automatic login; the login form still pre-fills from the item.
    void blankCredentials(const std::string& account);

private:
    void endAutomaticLogin();

    KeychainStore& keychain_;
    UserDefaults& defaults_;
    std::string server_;
};

} // namespace kavor
