#include "server/DemoServer.h"

#include "server/History.h"
#include "server/Time.h"

#include <httplib.h>

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <thread>

namespace kavor::demo {

namespace {

int boundPort(httplib::Server& http, int wanted) {
    // Without the library's own choice, which lets two servers share a port.
    http.set_socket_options([](int socket) {
        const int yes = 1;
        setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
    });
    const int port = wanted == 0                              ? http.bind_to_any_port("127.0.0.1")
                     : http.bind_to_port("127.0.0.1", wanted) ? wanted
                                                              : -1;
    if (port <= 0) {
        throw std::runtime_error("port " + std::to_string(wanted) + " is in use");
    }
    return port;
}

std::string databaseIn(const std::string& folder) {
    std::filesystem::create_directories(std::filesystem::path(folder) / "pdf");
    return (std::filesystem::path(folder) / "demo.sqlite").string();
}

/// The relative paths by their configuration keys.
constexpr std::pair<const char*, const char*> paths[] = {
    {"firstTimeUserURL", "/primera-vez"},
    {"forgotPasswordURL", "/recuperar"},
    {"loginURL", "/api/login"},
    {"userInformation", "/api/user"},
    {"appInformationURL", "/api/catalogue"},
    {"profileInformationURL", "/api/profile"},
    {"suggestionMailboxAdd", "/api/suggestions"},
    {"getCustomerDataFromTevoCodeURL", "/api/customers"},
    {"searchMapsURL", "/api/places"},
    {"priceRecommendationURL", "/api/prices"},
    {"saveOrderURL", "/api/orders"},
    {"retrieveBrochureOrderListURL", "/api/orders/list"},
    {"retrieveBrochureOrderURL", "/api/orders/brochure"},
    {"deleteOrder", "/api/orders/delete"},
    {"claimOrder", "/api/orders/claim"},
    {"demandBrandQr", "/api/orders/qr"},
    {"sendRawOrder", "/api/orders/raw"},
    {"createTextileOrder", "/api/textile"},
    {"retrieveTextileOrder", "/api/textile/order"},
    {"promotionOrderSendURL", "/api/promotions"},
    {"sellingSheetOrderListURL", "/api/sheets/list"},
    {"sellingSheetOrderSendURL", "/api/sheets"},
    {"sellingSheetOrderDeleteURL", "/api/sheets/delete"},
    {"activationOrderURL", "/api/activations"},
    {"activationUserQuota", "/api/activations/quota"},
    {"menuMantelOnline", "/api/menu/mantel"},
};

std::vector<int> versionParts(const std::string& version) {
    std::vector<int> parts;
    const char* place = version.data();
    const char* end = place + version.size();
    while (place < end) {
        int part = 0;
        const auto [next, error] = std::from_chars(place, end, part);
        if (error != std::errc()) {
            break;
        }
        parts.push_back(part);
        place = next < end && *next == '.' ? next + 1 : end;
    }
    while (!parts.empty() && parts.back() == 0) {
        parts.pop_back(); // 2.0 is no older than 2
    }
    return parts;
}

/// The value of each named form field is taken out of a logged text.
std::string redacted(std::string text) {
    for (const char* name : {"password=", "token="}) {
        for (size_t start = text.find(name); start != std::string::npos; start = text.find(name, start)) {
            start += std::string_view(name).size();
            text.replace(start, std::min(text.find('&', start), text.size()) - start, "***");
        }
    }
    return text;
}

Json logEntry(const httplib::Request& request) {
    Json headers = Json::object();
    for (const auto& [name, value] : request.headers) {
        headers[name] = name == "Authorization" ? "***" : value;
    }
    Json query = Json::object();
    for (const auto& [name, value] : request.params) {
        query[name] = name == "password" || name == "token" || name == "order_token" ? "***" : value;
    }
    return {{"method", request.method},
            {"path", request.path},
            {"query", std::move(query)},
            {"headers", std::move(headers)},
            {"body", redacted(request.body)}};
}

Json provokedErrors() {
    return {{"campo", {"Primer mensaje provocado.", "Segundo mensaje provocado."}}};
}

Answer withoutAddresses(Answer answer) {
    Json body = Json::parse(*answer.body, nullptr, false);
    if (!body.is_object()) {
        return answer;
    }
    for (const char* address : {"url", "url_pdf", "url_order"}) {
        body.erase(address);
    }
    return Answer::json(body, answer.status);
}

} // namespace

DemoServer::DemoServer(const Options& options)
    : options_(options)
    , http_(std::make_unique<httplib::Server>())
    , port_(boundPort(*http_, options.port))
    , baseUrl_("http://127.0.0.1:" + std::to_string(port_))
    , catalogue_(options.brands, baseUrl_)
    , catalogueText_(std::shared_ptr<const std::string>(), &catalogue_.text())
    , studio_(catalogue_)
    , database_(databaseIn(options.dataFolder))
    , accounts_(database_, options.tokenSeconds)
    , orders_(database_, options.stateSeconds) {
    // Idle connections hold a thread each, and a client keeps a dozen of them.
    http_->new_task_queue = [] { return new httplib::ThreadPool(48); };
    http_->set_keep_alive_max_count(10000);
    http_->set_payload_max_length(size_t(256) << 20);
    http_->set_tcp_nodelay(true);
    http_->set_pre_routing_handler([this](const httplib::Request& request, httplib::Response& response) {
        return servedWithoutBody(request, response) ? httplib::Server::HandlerResponse::Handled
                                                    : httplib::Server::HandlerResponse::Unhandled;
    });
    http_->set_error_handler(
        httplib::Server::HandlerWithResponse([](const httplib::Request&, httplib::Response& response) {
            return explainRefusal(response) ? httplib::Server::HandlerResponse::Handled
                                            : httplib::Server::HandlerResponse::Unhandled;
        }));
    addSessionRoutes();
    addAccountRoutes();
    addOrderRoutes();
    addMaterialRoutes();
    addActivationRoutes();
    addPromotionRoutes();
    addFileRoutes();
    addTestRoutes();
    if (options.history) {
        addHistory(orders_, catalogue_, 1, options.orders);
    }
}

DemoServer::~DemoServer() = default;

void DemoServer::listen() {
    http_->listen_after_bind();
}
void DemoServer::stop() {
    http_->stop();
}

std::string DemoServer::configuration() const {
    std::string list =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST "
        "1.0//EN\" \"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n<plist version=\"1.0\">\n<dict>\n"
        "\t<key>urls</key>\n\t<dict>\n";
    const auto add = [&list](const std::string& key, const std::string& value) {
        list += "\t\t<key>" + key + "</key>\n\t\t<string>" + value + "</string>\n";
    };
    add("baseURLDev", baseUrl_);
    add("baseURLPro", baseUrl_);
    for (const auto& [key, path] : paths) {
        add(key, path);
    }
    return list + "\t</dict>\n</dict>\n</plist>\n";
}

std::string DemoServer::Call::parameter(const char* name) const {
    return request.get_param_value(name);
}

std::optional<std::int64_t> DemoServer::Call::number(const char* name) const {
    const std::string text = parameter(name);
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || error != std::errc() || end != text.data() + text.size()) {
        return std::nullopt;
    }
    return value;
}

std::string DemoServer::Call::part(size_t index) const {
    return request.matches[index].str();
}

Json DemoServer::Call::json() const {
    return Json::parse(request.body, nullptr, false);
}

void DemoServer::route(const std::string& method, const std::string& pattern, Access access,
                       Handler handler) {
    const auto run = [this, access, handler = std::move(handler)](const httplib::Request& request,
                                                                  httplib::Response& response) {
        const bool logged = request.path.starts_with("/api/");
        const long number = logged ? log_.add(logEntry(request)) : 0;
        const Answer answer = answerFor(request, access, handler);
        if (logged) {
            log_.setStatus(number, answer.delivery == Answer::Delivery::close ? 0 : answer.status);
        }
        if (!options_.quiet) {
            std::fprintf(stderr, "%d %s %s\n", answer.status, request.method.c_str(), request.path.c_str());
        }
        deliver(answer, request, response);
    };
    if (method == "GET") {
        http_->Get(pattern, run);
    } else if (method == "POST") {
        http_->Post(pattern, run);
    } else {
        http_->Delete(pattern, run);
    }
    routes_.push_back({method, std::regex(pattern), run});
}

bool DemoServer::explainRefusal(httplib::Response& response) {
    constexpr int targetTooLong = 414; // nothing of the request has been read, so it is not logged either
    if (response.status != targetTooLong) {
        return false;
    }
    const Answer answer =
        refusal({{"query", {"El texto es demasiado largo. Acórtalo y vuelve a enviarlo."}}});
    response.status = answer.status;
    response.set_content(*answer.body, answer.type);
    return true;
}

/// The library would wait for a body until the connection ends.
bool DemoServer::servedWithoutBody(const httplib::Request& request, httplib::Response& response) const {
    if (request.method == "GET" || request.has_header("Content-Length") ||
        request.has_header("Transfer-Encoding")) {
        return false;
    }
    for (const Route& route : routes_) {
        if (route.method == request.method && std::regex_match(request.path, route.pattern)) {
            route.run(request, response);
            return true;
        }
    }
    return false;
}

Answer DemoServer::answerFor(const httplib::Request& request, Access access, const Handler& handler) {
    try {
        const auto real = [&] { return guarded(request, access, handler); };
        if (!request.path.starts_with("/demo/")) {
            if (const auto fault = faults_.take(request.method, request.path)) {
                return withFault(*fault, real);
            }
        }
        return real();
    } catch (const std::exception& error) {
        return Answer::message(500, std::string("El servidor de demostración ha fallado: ") + error.what());
    }
}

Answer DemoServer::guarded(const httplib::Request& request, Access access, const Handler& handler) {
    if (request.path.starts_with("/api/")) {
        if (auto answer = outdated(request)) {
            return *answer;
        }
    }
    Call call{request, {}};
    if (access == Access::open) {
        return handler(call);
    }
    const std::string authorization = request.get_header_value("Authorization");
    constexpr std::string_view scheme = "Bearer ";
    std::optional<Account> account;
    if (authorization.starts_with(scheme)) {
        account = accounts_.byBearer(authorization.substr(scheme.size()));
    }
    if (!account) {
        return Answer::message(401, "La sesión ha caducado.");
    }
    call.account = *account;
    return access == Access::bearerWrite ? onlyOnce(call, handler) : handler(call);
}

Answer DemoServer::onlyOnce(const Call& call, const Handler& handler) {
    const std::string key = call.request.get_header_value("Idempotency-Key");
    const std::lock_guard lock(writeMutex_);
    if (key.empty()) {
        return handler(call);
    }
    const auto stored =
        database_.query("SELECT body FROM answers WHERE account = ? AND key = ?", {call.account.id, key});
    if (!stored.empty()) {
        return Answer::text(stored.front().text(0), "application/json; charset=utf-8");
    }
    Answer answer = handler(call);
    if (answer.status == 200) {
        database_.run("INSERT INTO answers (account, key, body) VALUES (?, ?, ?)",
                      {call.account.id, key, *answer.body});
    }
    return answer;
}

std::optional<Answer> DemoServer::outdated(const httplib::Request& request) const {
    if (options_.minimumVersion.empty() ||
        versionParts(request.get_header_value("version")) >= versionParts(options_.minimumVersion)) {
        return std::nullopt;
    }
    return Answer::json(
        {{"msg", "Hay una versión nueva de la aplicación. Actualízala para seguir trabajando."},
         {"update_link", baseUrl_ + "/actualizar"}},
        505);
}

Answer DemoServer::withFault(const FaultSwitch& fault, const std::function<Answer()>& real) const {
    const bool needsReal = fault.after || fault.kind == FaultSwitch::Kind::cut ||
                           fault.kind == FaultSwitch::Kind::slow || fault.kind == FaultSwitch::Kind::noUrl;
    Answer answer = needsReal ? real() : Answer::message(fault.status, "Fallo provocado");
    switch (fault.kind) {
    case FaultSwitch::Kind::status: {
        Json body = {{"msg", "Fallo provocado"}};
        if (fault.status == 422 || fault.status == 429) {
            body["errors"] = provokedErrors();
        } else if (fault.status == 505) {
            body["update_link"] = baseUrl_ + "/actualizar";
        }
        answer = Answer::text(fault.body.value_or(body.dump()), "application/json; charset=utf-8");
        answer.status = fault.status;
        return answer;
    }
    case FaultSwitch::Kind::wrongShape:
        return Answer::json({1, {{"inesperado", true}}});
    case FaultSwitch::Kind::html:
        return Answer::page("<!DOCTYPE html><html><body><h1>Acceso a la red del local</h1></body></html>");
    case FaultSwitch::Kind::notJson:
        return Answer::text("{\"msg\": \"texto que se corta", "application/json; charset=utf-8");
    case FaultSwitch::Kind::empty:
        return Answer::text("", "application/json; charset=utf-8");
    case FaultSwitch::Kind::cut:
        answer.delivery = Answer::Delivery::cut;
        return answer;
    case FaultSwitch::Kind::slow:
        answer.delivery = Answer::Delivery::slow;
        answer.milliseconds = fault.milliseconds;
        return answer;
    case FaultSwitch::Kind::delay:
        std::this_thread::sleep_for(std::chrono::milliseconds(fault.milliseconds));
        return real();
    case FaultSwitch::Kind::errors:
        return Answer::json({{"errors", provokedErrors()}});
    case FaultSwitch::Kind::noUrl:
        return withoutAddresses(std::move(answer));
    case FaultSwitch::Kind::close:
        answer.delivery = Answer::Delivery::close;
        return answer;
    }
    return answer;
}

Answer DemoServer::refusal(const Faults& faults, int status) {
    Json errors = Json::object();
    for (const auto& [member, sentences] : faults) {
        errors[member] = sentences;
    }
    const std::string first = faults.empty() ? "" : faults.begin()->second.front();
    return Answer::json({{"msg", first}, {"errors", std::move(errors)}}, status);
}

std::string DemoServer::previewUrl(const std::string& kind, const Json& body) {
    return baseUrl_ + "/pdf/" + orders_.addDocument(kind, body) + ".pdf";
}

} // namespace kavor::demo
