#pragma once

#include "Json.h"
#include "server/Database.h"

#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace kavor::demo {

struct Account {
    std::int64_t id = 0;
    std::string login;
    std::string userToken;
    bool fullRights = false;
};

/// The people who may log in, their bearer tokens and their rights.
class Accounts {
public:
    Accounts(Database& database, int tokenSeconds);

    struct Known {
        const char* login;
        const char* password;
        const char* rights; ///< in words, for the line printed at the start
    };
    static const std::vector<Known>& known();

    std::optional<Account> byPassword(const std::string& login, const std::string& password);
    std::optional<Account> byUserToken(const std::string& login, const std::string& token);

    /// The account of a bearer token that has not expired.
    std::optional<Account> byBearer(const std::string& token);

    /// True when this login name has failed too often in the last minute.
    bool isThrottled(const std::string& login);

    std::string newToken(const Account& account);
    void expireTokens();

    /// The answer to a login and to a request for user information.
    Json answer(const Account& account, const std::string& token, const Json& notifications) const;

private:
    std::optional<Account> find(const std::string& where, const std::string& value);

    Database& database_;
    int tokenSeconds_;
    std::mutex mutex_;
    std::map<std::string, std::vector<std::int64_t>> failures_;
};

} // namespace kavor::demo
