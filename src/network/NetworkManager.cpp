#include "network/NetworkManager.h"

#include "base/Log.h"
#include "device/Background.h"
#include "device/Clock.h"
#include "device/Reachability.h"
#include "network/Pipeline.h"
#include "session/AppSingleton.h"
#include "session/LoginResult.h"

#include <QJsonDocument>
#include <QUuid>

#include <utility>

namespace kavor {

QByteArray newIdempotencyKey() {
    return QUuid::createUuid().toByteArray(QUuid::WithoutBraces);
}

NetworkManager::NetworkManager(NetworkConfiguration configuration, const Collaborators& collaborators,
                               QObject* parent)
    : QObject(parent)
    , networkConfiguration_(std::move(configuration))
    , reachability_(collaborators.reachability)
    , clock_(collaborators.clock)
    , retrier_(
          collaborators.auth, collaborators.clock,
          [this](const StoredCredentials& credentials, const RequestRetrier::LoginAnswers& answers) {
              silentLogin(credentials, answers);
          },
          [this](const std::string& token) { setAccessToken(QString::fromStdString(token)); })
    , trafficLog_(qEnvironmentVariable("KAVOR_TRAFFIC_LOG")) {
    if (const auto stored = collaborators.auth.readCredentials())
        keepOutOfLog(*stored);
    configureSession(defaultConfiguration());
}

NetworkManager::~NetworkManager() = default;

SessionConfiguration NetworkManager::defaultConfiguration() {
    const AppSingleton& app = AppSingleton::shared();
    SessionConfiguration configuration;
    configuration.additionalHeaders = {{"version", QByteArray::fromStdString(app.version)},
                                       {"compilation", QByteArray::fromStdString(app.compilation)},
                                       {"User-Agent", "Kavor/" + QByteArray::fromStdString(app.version)}};
    return configuration;
}

SessionConfiguration NetworkManager::backgroundConfiguration() {
    SessionConfiguration configuration = defaultConfiguration();
    configuration.waitsForConnectivity = true;
    return configuration;
}

void NetworkManager::configureSession(const SessionConfiguration& configuration) {
    if (sessionManager_ != nullptr)
        sessionManager_->retire();
    additionalHeaders_ = configuration.additionalHeaders;
    sessionManager_ = new HttpSession(configuration, clock_, reachability_, this);
}

void NetworkManager::setAccessToken(const QString& token) {
    accessToken_ = token;
    trafficLog_.keepOut(token);
}

bool NetworkManager::isReachable() const {
    return reachability_.isReachable();
}

QString NetworkManager::baseUrl() const {
    return QString::fromStdString(networkConfiguration_.urls.baseURLPro);
}

QString NetworkManager::forgotPasswordUrl() const {
    return baseUrl() + QString::fromStdString(networkConfiguration_.urls.forgotPasswordURL);
}

QUrl NetworkManager::urlOf(const std::string& path, const QString& trailing) const {
    return QUrl(baseUrl() + QString::fromStdString(path) + trailing);
}

// What nobody waits for any more is neither repeated nor sent for the first time; a write might be done by
// another request by now.
void NetworkManager::run(const RequestPointer& request) {
    if (!request->isAwaited())
        return;
    request->startedAt = clock_.now().toMSecsSinceEpoch();
    sessionManager_->send(
        adapted(*request), [this, request](const HttpAnswer& answer) { received(request, answer); },
        request->isAwaited);
}

HttpRequest NetworkManager::adapted(const PipelineRequest& request) const {
    const Operation& operation = request.operation;
    HttpRequest adapted{operation.method, operation.url, {}, operation.body, operation.contentType};
    adapted.headers.append({"Authorization", "Bearer " + accessToken_.toUtf8()});
    if (!request.idempotencyKey.isEmpty())
        adapted.headers.append({"Idempotency-Key", request.idempotencyKey});
    return adapted;
}

void NetworkManager::received(const RequestPointer& request, const HttpAnswer& answer) {
    if (trafficLog_.isOpen())
        log(*request, answer);
    if (!request->isSilentLogin)
        retrier_.requestAnswered(answer.status);
    if (answer.fault == HttpAnswer::Fault::None && answer.status == 200)
        decode(request, answer);
    else
        failed(request, answer);
}

void NetworkManager::log(const PipelineRequest& request, const HttpAnswer& answer) {
    // The answers that bring a token may hold it elsewhere too.
    if (request.operation.name == QLatin1String("loginURL") ||
        request.operation.name == QLatin1String("userInformation"))
        trafficLog_.keepOut(QJsonDocument::fromJson(answer.body)[QLatin1String("token")].toString());
    trafficLog_.write({request.operation.name, adapted(request), additionalHeaders_, answer,
                       clock_.now().toMSecsSinceEpoch() - request.startedAt});
}

// Large answers take a while, so all are read off the main thread.
void NetworkManager::decode(const RequestPointer& request, const HttpAnswer& answer) {
    runInBackground(
        this, [decode = request->decode, body = answer.body] { return decode(body); },
        [this, request, answer](const std::optional<json::Error>& error) {
            if (!error) {
                request->succeed();
                return;
            }
            logLine(request->operation.name.toStdString() + ": " + error->text());
            failed(request, answer);
        });
}

void NetworkManager::failed(const RequestPointer& request, const HttpAnswer& answer) {
    if (!request->isAwaited()) // nor is a token repaired for it
        return;
    const auto status = answer.status != 0 ? std::optional(answer.status) : std::nullopt;
    retrier_.decide(status,
                    {[request, answer] { request->fail(mapFailure(answer)); },
                     [this, request](std::chrono::milliseconds delay) { repeatAfter(request, delay); }});
}

void NetworkManager::keepOutOfLog(const StoredCredentials& credentials) {
    trafficLog_.keepOut(QString::fromStdString(credentials.password));
    trafficLog_.keepOut(QString::fromStdString(credentials.token));
}

void NetworkManager::repeatAfter(const RequestPointer& request, std::chrono::milliseconds delay) {
    if (delay.count() == 0) {
        run(request);
        return;
    }
    clock_.after(delay, this, [this, request] { run(request); });
}

void NetworkManager::silentLogin(const StoredCredentials& credentials,
                                 const RequestRetrier::LoginAnswers& answers) {
    keepOutOfLog(credentials);
    const LoginParameters parameters{QString::fromStdString(credentials.account),
                                     QString::fromStdString(credentials.password), std::nullopt};
    const Completion<LoginResult> done(
        nullptr, [success = answers.success](const LoginResult& result) { success(result.token); },
        [failure = answers.failure](const RequestFailure&) { failure(); });
    const RequestPointer request = prepare(loginOperation(parameters), done, decodeBody<LoginResult>);
    request->isSilentLogin = true;
    run(request);
}

} // namespace kavor
