#pragma once

#include "base/json/Json.h"
#include "network/FailureMapping.h"
#include "network/NetworkManager.h"
#include "network/ParameterEncoding.h"

#include <QString>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>

// What the pipeline and the operations of NetworkManager share; not for others.
namespace kavor {

// What an operation asks of the server.
struct Operation {
    QString name; // its key in the configuration
    QByteArray method = "GET";
    QUrl url;
    QByteArray body = {};
    QByteArray contentType = {};
    bool changesServer = false;     // carries an idempotency key
    QByteArray idempotencyKey = {}; // of the caller's intent; empty: a new one
};

// One request from its start to its end, through all its repeats.
struct PipelineRequest {
    Operation operation;
    QByteArray idempotencyKey; // the same for every repeat
    bool isSilentLogin = false;
    qint64 startedAt = 0; // of the attempt under way, in milliseconds
    // Reads the body and keeps the response; runs off the main thread.
    std::function<std::optional<json::Error>(const QByteArray&)> decode;
    // Whether anybody still hears how it ends.
    std::function<bool()> isAwaited;
    std::function<void()> succeed;
    std::function<void(const RequestFailure&)> fail;
};

QByteArray newIdempotencyKey();

template <class Response>
json::Decoded<Response> decodeBody(const json::Source& body) {
    return json::decode<Response>(body);
}

template <class Response, class Read>
NetworkManager::RequestPointer NetworkManager::prepare(const Operation& operation,
                                                       const Completion<Response>& done, Read read) {
    auto request = std::make_shared<PipelineRequest>();
    auto response = std::make_shared<std::optional<Response>>();
    request->operation = operation;
    if (operation.changesServer)
        request->idempotencyKey =
            operation.idempotencyKey.isEmpty() ? newIdempotencyKey() : operation.idempotencyKey;
    request->decode = [response, read](const QByteArray& body) -> std::optional<json::Error> {
        auto decoded = read(std::string_view(body.constData(), std::size_t(body.size())));
        if (!decoded)
            return std::move(decoded.error());
        response->emplace(std::move(*decoded));
        return std::nullopt;
    };
    request->isAwaited = [bound = done.bound, context = done.context] { return !bound || context; };
    request->succeed = [response, done, isAwaited = request->isAwaited] {
        if (isAwaited() && done.success)
            done.success(**response);
    };
    request->fail = [done, isAwaited = request->isAwaited](const RequestFailure& failure) {
        if (isAwaited() && done.failure)
            done.failure(failure);
    };
    return request;
}

template <class Response>
void NetworkManager::request(const Operation& operation, const Completion<Response>& done) {
    run(prepare(operation, done, decodeBody<Response>));
}

} // namespace kavor
