#include "catalogue/Content.h"
#include "documents/AccountPages.h"
#include "server/DemoServer.h"
#include "server/Time.h"

#include <httplib.h>

#include <algorithm>

namespace kavor::demo {

namespace {

bool isBlank(const std::string& text) {
    return text.find_first_not_of(" \t\r\n") == std::string::npos;
}

Json firstProfile(const Account& account) {
    return {{"name", account.fullRights ? "Lucía Ferrandel" : "Nuño Casablana"},
            {"email", account.login},
            {"telefono", "600123456"},
            {"direccion1", "Calle del Lúpulo, 12"},
            {"direccion2", nullptr},
            {"cp", "49001"},
            {"municipio", "Zamora"},
            {"provincia", "Zamora"}};
}

std::vector<std::string> profileFaults(const Json& values) {
    std::vector<std::string> faults;
    const auto text = [&values](const char* key) {
        return values[key].is_string() ? values[key].get<std::string>() : std::string();
    };
    for (const ProfileField& field : profileFields()) {
        if (field.required && isBlank(text(field.key))) {
            faults.push_back(std::string(field.label) + ": es obligatorio.");
        }
        if (text(field.key).size() > 240) {
            faults.push_back(std::string(field.label) + ": es demasiado largo.");
        }
    }
    const std::string email = text("email"), postalCode = text("cp");
    if (!isBlank(email) && email.find('@') == std::string::npos) {
        faults.emplace_back("Correo electrónico: no es una dirección válida.");
    }
    const bool digits = std::ranges::all_of(postalCode, [](char c) { return c >= '0' && c <= '9'; });
    if (!postalCode.empty() && (postalCode.size() != 5 || !digits)) {
        faults.emplace_back("Código postal: son cinco cifras.");
    }
    return faults;
}

/// "4.800,00 €"
std::string euros(int amount) {
    std::string whole = std::to_string(amount);
    if (whole.size() > 3) {
        whole.insert(whole.size() - 3, ".");
    }
    return whole + ",00 €";
}

/// What was spent this year, in orders that went out.
int spent(const std::vector<Order>& orders, int price) {
    const int year = yearOf(now());
    return price * int(std::ranges::count_if(orders, [&](const Order& order) {
               return !order.cloud && yearOf(order.created) == year;
           }));
}

} // namespace

void DemoServer::addAccountRoutes() {
    route("GET", "/api/profile", Access::bearer, [this](const Call& call) { return profile(call); });
    for (const char* method : {"GET", "POST"}) {
        route(method, "/perfil/([0-9a-f]{32})", Access::open,
              [this](const Call& call) { return profileForm(call); });
    }
    route("POST", "/api/suggestions", Access::bearerWrite,
          [this](const Call& call) { return suggestion(call); });
    route("GET", "/demo/suggestions", Access::open,
          [this](const Call&) { return Answer::json(suggestions()); });
    route("GET", "/sugerencias", Access::open,
          [this](const Call&) { return Answer::page(suggestionsHtml(suggestions())); });
}

/// The profile's page is opened in a browser that has not logged in: its address is the secret.
DemoServer::StoredProfile DemoServer::storedProfile(const Account& account) {
    const auto rows = database_.query("SELECT page, body FROM profiles WHERE account = ?", {account.id});
    if (!rows.empty()) {
        return {rows.front().text(0), Json::parse(rows.front().text(1))};
    }
    StoredProfile made{randomHex(32), firstProfile(account)};
    database_.run("INSERT OR IGNORE INTO profiles (account, page, body) VALUES (?, ?, ?)",
                  {account.id, made.page, made.values.dump()});
    return made;
}

Answer DemoServer::profile(const Call& call) {
    const auto menus = orders_.rows(call.account.id, "brochure");
    const auto textile = orders_.rows(call.account.id, "textile");
    const bool full = call.account.fullRights;
    const StoredProfile stored = storedProfile(call.account);
    constexpr int menuBudget = 4800, textileBudget = 900;
    Json user = stored.values;
    user.update({{"delegacion", full ? "Delegación Centro" : "Delegación Noroeste"},
                 {"perfil", full ? "Representante" : "Ayudante"},
                 {"type", full ? "Comercial" : "Apoyo"},
                 {"zona", full ? "Zona 4" : "Zona 9"},
                 {"url", baseUrl_ + "/perfil/" + stored.page},
                 {"presupuesto", euros(menuBudget)},
                 {"disponible", euros(std::max(0, menuBudget - spent(menus, 85)))},
                 {"cartas_realizadas", std::to_string(menus.size())},
                 {"textil_presupuesto", euros(textileBudget)},
                 {"textil_disponible", euros(std::max(0, textileBudget - spent(textile, 120)))},
                 {"textil_pedidos", std::to_string(textile.size())}});
    return Answer::json({{"usuario", std::move(user)}});
}

Answer DemoServer::profileForm(const Call& call) {
    const auto rows = database_.query("SELECT account, body FROM profiles WHERE page = ?", {call.part(1)});
    if (rows.empty()) {
        return Answer::message(404, "No existe la página.");
    }
    Json values = Json::parse(rows.front().text(1));
    if (call.request.method == "GET") {
        return Answer::page(profileHtml(values, {}, false));
    }
    for (const ProfileField& field : profileFields()) {
        if (call.request.has_param(field.key)) {
            const std::string text = call.parameter(field.key);
            values[field.key] = isBlank(text) ? Json(nullptr) : Json(text);
        }
    }
    const std::vector<std::string> faults = profileFaults(values);
    if (faults.empty()) {
        database_.run("UPDATE profiles SET body = ? WHERE page = ?", {values.dump(), call.part(1)});
    }
    return Answer::page(profileHtml(values, faults, faults.empty()));
}

Answer DemoServer::suggestion(const Call& call) {
    const std::optional<std::int64_t> category = call.number("category_id");
    Faults faults;
    if (!category || *category < 1 || *category > std::int64_t(suggestionCategories().size())) {
        faults["category_id"].push_back("Elige una categoría.");
    }
    if (isBlank(call.parameter("body"))) {
        faults["body"].push_back("Escribe tu sugerencia.");
    }
    if (!faults.empty()) {
        return refusal(faults);
    }
    database_.run("INSERT INTO suggestions (account, category, body, created) VALUES (?, ?, ?, ?)",
                  {call.account.id, *category, call.parameter("body"), now()});
    return Answer::message(200, "Gracias, hemos recibido tu sugerencia.");
}

Json DemoServer::suggestions() {
    Json list = Json::array();
    for (const SqlRow& row : database_.query("SELECT suggestions.id, login, category, body, created FROM "
                                             "suggestions JOIN accounts ON accounts.id = account "
                                             "ORDER BY suggestions.id DESC")) {
        list.push_back({{"id", row.integer(0)},
                        {"account", row.text(1)},
                        {"category_id", row.integer(2)},
                        {"category", suggestionCategories()[size_t(row.integer(2)) - 1]},
                        {"body", row.text(3)},
                        {"created", wireDate(row.integer(4))}});
    }
    return list;
}

} // namespace kavor::demo
