#pragma once

#include "server/DemoServer.h"

#include <QTemporaryDir>

#include <httplib.h>

#include <string>
#include <thread>

namespace kavor::demo {

/// A demonstration server on a free port with a folder of its own or a given one, and a client that talks to
/// it.
class RunningServer {
public:
    explicit RunningServer(Options options = {})
        : server_(prepared(options))
        , client_(server_.baseUrl()) {
        thread_ = std::thread([this] { server_.listen(); });
        client_.set_keep_alive(false);
    }
    ~RunningServer() {
        server_.stop();
        thread_.join();
    }

    const std::string& baseUrl() const { return server_.baseUrl(); }
    DemoServer& server() { return server_; }

    struct Reply {
        int status = 0; ///< 0: the connection ended without a whole answer
        std::string text;
        Json json;
    };

    Reply get(const std::string& path) { return reply(client_.Get(path, headers())); }
    /// The library's own answer, with its headers.
    httplib::Result raw(const std::string& method, const std::string& path, const std::string& range = {}) {
        httplib::Request request;
        request.method = method;
        request.path = path;
        request.headers = headers();
        if (!range.empty()) {
            request.headers.emplace("Range", range);
        }
        return client_.send(request);
    }
    Reply post(const std::string& path, const Json& body, const std::string& key = {}) {
        httplib::Headers all = headers();
        if (!key.empty()) {
            all.emplace("Idempotency-Key", key);
        }
        return reply(client_.Post(path, all, body.dump(), "application/json"));
    }
    Reply form(const std::string& path, const httplib::Params& values) {
        return reply(client_.Post(path, headers(), values));
    }
    /// What a request says in its query and not in a body.
    Reply query(const std::string& path, const httplib::Params& values) {
        return reply(client_.Post(httplib::append_query_params(path, values), headers(), "", "text/plain"));
    }
    Reply list(httplib::Params values = {}) {
        values.emplace("cloud", "1");
        return form("/api/orders/list", values);
    }
    Reply remove(const std::string& path, const Json& body) {
        return reply(client_.Delete(path, headers(), body.dump(), "application/json"));
    }

    Reply login(const std::string& name = "rep@kavor.example", const std::string& password = "lupulo2024") {
        token_.clear();
        const Reply answer = form("/api/login", {{"login", name}, {"password", password}});
        token_ = answer.status == 200 ? answer.json["token"].get<std::string>() : std::string();
        return answer;
    }

    std::string version; ///< sent as the header "version" when it is not empty

private:
    Options prepared(Options& options) {
        options.port = 0;
        options.quiet = true;
        if (options.dataFolder.empty()) {
            options.dataFolder = folder_.path().toStdString();
        }
        return options;
    }
    httplib::Headers headers() const {
        httplib::Headers all = {{"Authorization", "Bearer " + token_}};
        if (!version.empty()) {
            all.emplace("version", version);
        }
        return all;
    }
    static Reply reply(const httplib::Result& result) {
        if (!result) {
            return {};
        }
        return {result->status, result->body, Json::parse(result->body, nullptr, false)};
    }

    QTemporaryDir folder_;
    DemoServer server_;
    httplib::Client client_;
    std::string token_;
    std::thread thread_;
};

} // namespace kavor::demo
