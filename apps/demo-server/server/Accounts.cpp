#include "server/Accounts.h"

#include "server/Time.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <QPasswordDigestor>

#include <algorithm>

namespace kavor::demo {

namespace {

std::string hashed(const std::string& password, const std::string& salt) {
    return QPasswordDigestor::deriveKeyPbkdf2(QCryptographicHash::Sha256, QByteArray::fromStdString(password),
                                              QByteArray::fromStdString(salt), 5000, 32)
        .toHex()
        .toStdString();
}

constexpr size_t failuresAMinute = 10;

} // namespace

const std::vector<Accounts::Known>& Accounts::known() {
    static const std::vector<Known> accounts = {
        {"rep@kavor.example", "lupulo2024", "todos los permisos"},
        {"ayuda@kavor.example", "malta2024", "pocos permisos"},
    };
    return accounts;
}

Accounts::Accounts(Database& database, int tokenSeconds)
    : database_(database)
    , tokenSeconds_(tokenSeconds) {
    for (const Known& account : known()) {
        const std::string salt = randomHex(16);
        database_.run("INSERT OR IGNORE INTO accounts (login, salt, password, user_token, full_rights) "
                      "VALUES (?, ?, ?, ?, ?)",
                      {account.login, salt, hashed(account.password, salt), randomHex(32),
                       std::int64_t(&account == &known().front())});
    }
    database_.run("DELETE FROM tokens WHERE expires < ?", {now()});
}

std::optional<Account> Accounts::find(const std::string& where, const std::string& value) {
    const auto rows =
        database_.query("SELECT id, login, user_token, full_rights FROM accounts WHERE " + where, {value});
    if (rows.empty()) {
        return std::nullopt;
    }
    const SqlRow& row = rows.front();
    return Account{row.integer(0), row.text(1), row.text(2), row.integer(3) == 1};
}

std::optional<Account> Accounts::byPassword(const std::string& login, const std::string& password) {
    const auto rows = database_.query("SELECT salt, password FROM accounts WHERE login = ?", {login});
    if (!rows.empty() && hashed(password, rows.front().text(0)) == rows.front().text(1)) {
        const std::lock_guard lock(mutex_);
        failures_.erase(login);
        return find("login = ?", login);
    }
    const std::lock_guard lock(mutex_);
    failures_[login].push_back(now());
    return std::nullopt;
}

std::optional<Account> Accounts::byUserToken(const std::string& login, const std::string& token) {
    std::optional<Account> account = find("login = ?", login);
    return account && account->userToken == token ? account : std::nullopt;
}

std::optional<Account> Accounts::byBearer(const std::string& token) {
    return find("id = (SELECT account FROM tokens WHERE token = ? AND expires > " + std::to_string(now()) +
                    ")",
                token);
}

bool Accounts::isThrottled(const std::string& login) {
    const std::lock_guard lock(mutex_);
    auto& times = failures_[login];
    const std::int64_t minuteAgo = now() - 60;
    std::erase_if(times, [&](std::int64_t time) { return time < minuteAgo; });
    return times.size() >= failuresAMinute;
}

std::string Accounts::newToken(const Account& account) {
    std::string token = randomHex(40);
    database_.run("INSERT INTO tokens (token, account, expires) VALUES (?, ?, ?)",
                  {token, account.id, now() + tokenSeconds_});
    return token;
}

void Accounts::expireTokens() {
    database_.run("DELETE FROM tokens");
}

Json Accounts::answer(const Account& account, const std::string& token, const Json& notifications) const {
    Json answer = {{"msg", "Bienvenido"}, {"id", account.id},
                   {"token", token},      {"user_token", account.userToken},
                   {"show_cdc", true},    {"show_flyer", true}};
    if (account.fullRights) {
        for (const char* right :
             {"app_show_carta_bebida", "app_show_carta_menu", "app_show_order_sheet", "show_pizarra",
              "app_show_promotion", "show_carteleria", "app_show_activaciones", "app_show_textil",
              "app_show_rrss", "app_show_video_carta", "app_show_manteleria", "app_show_encarte",
              "app_show_wine_a4", "app_show_wine_order", "app_show_wine_textil"}) {
            answer[right] = true;
        }
    } else {
        // Some rights are refused and some are not mentioned at all: both show no button.
        answer["app_show_carta_bebida"] = false;
        answer["show_pizarra"] = false;
        answer["app_show_textil"] = false;
    }
    answer["customer_code_required"] = !account.fullRights;
    answer["with_show_menu_online"] = account.fullRights;
    answer["show_logo_nrv"] = account.fullRights;
    answer["test_send_order_info"] = !account.fullRights;
    answer["notificaciones"] = account.fullRights ? notifications : Json::array();
    return answer;
}

} // namespace kavor::demo
