#include "session/services/AuthManager.h"

#include "base/StopProcess.h"
#include "base/json/Json.h"
#include "device/UserDefaults.h"
#include "device/keychain/KeychainStore.h"
#include "session/LoginResult.h"

#include <utility>

namespace kavor {

namespace {

std::string encoded(const std::string& password, const std::string& token) {
    auto value = json::encodePretty(AuthCredentials{password, token});
    if (!value)
        stopProcess("JSON form of the credential");
    return std::move(*value);
}

} // namespace

AuthManager::AuthManager(KeychainStore& keychain, UserDefaults& defaults, std::string server)
    : keychain_(keychain)
    , defaults_(defaults)
    , server_(std::move(server)) {}

std::optional<StoredCredentials> AuthManager::readCredentials() const {
    const auto item = keychain_.readOne(KeychainKey{.server = server_});
    if (!item || !item->account)
        return std::nullopt;
    auto credentials = json::decode<AuthCredentials>(item->value);
    if (!credentials)
        return std::nullopt;
    return StoredCredentials{*item->account, std::move(credentials->password), std::move(credentials->token)};
}

void AuthManager::addCredentials(const std::string& account, const std::string& password,
                                 const std::string& token) {
    keychain_.add({KeychainKey{.server = server_}, account, encoded(password, token)});
}

void AuthManager::updateCredentials(const std::string& account, const std::string& password,
                                    const std::string& token) {
    keychain_.update({KeychainKey{.server = server_}, account, encoded(password, token)});
}

void AuthManager::deleteCredentials() {
    keychain_.remove(KeychainKey{.server = server_});
    endAutomaticLogin();
}

// Meant so: the blank record goes to the keychain as it is and not as bytes, a value that a keychain refuses,
// and the refusal is ignored. The item keeps its content, and after a logout the login form pre-fills from
// it.
void AuthManager::blankCredentials(const std::string&) {
    endAutomaticLogin();
}

void AuthManager::endAutomaticLogin() {
    defaults_.setBoolean(QString::fromLatin1(default_key::loadIntoInitialViewController), false);
}

} // namespace kavor
