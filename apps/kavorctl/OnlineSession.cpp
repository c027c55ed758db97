#include "OnlineSession.h"

#include "Password.h"
#include "base/StopProcess.h"
#include "session/StateFile.h"

#include <QCoreApplication>
#include <QStandardPaths>

namespace kavor::ctl {

namespace {

std::filesystem::path standardFolder(QStandardPaths::StandardLocation location) {
    return (QStandardPaths::writableLocation(location) + QStringLiteral("/kavor")).toStdString();
}

// Fonts are downloaded here, and there is nothing to draw with them.
class FontFiles : public FontRegistry {
public:
    bool registerFont(const QString&, const QByteArray&) override { return true; }
    void unregisterFont(const QString&) override {}
    [[nodiscard]] std::optional<QFont> font(const QString&, int) const override { return std::nullopt; }
};

void openFolders(const CommandContext& context) {
    const auto documents =
        context.documents.empty() ? standardFolder(QStandardPaths::GenericDataLocation) : context.documents;
    const auto caches =
        context.caches.empty() ? standardFolder(QStandardPaths::GenericCacheLocation) : context.caches;
    if (const auto opened = HeadlessCore::openFolders(documents, caches); !opened)
        throw CommandFailure(unreadableInput, opened.error().text());
}

NetworkConfiguration loadConfiguration(const CommandContext& context) {
    if (context.configuration.empty())
        throw CommandFailure(wrongUsage, "kavorctl: --configuration FILE says where the server is");
    auto configuration = NetworkConfiguration::load(context.configuration);
    if (!configuration)
        throw CommandFailure(unreadableInput, configuration.error());
    return std::move(*configuration);
}

HeadlessCore::Settings openCore(const CommandContext& context) {
    auto configuration = loadConfiguration(context);
    openFolders(context);
    return {std::move(configuration), std::make_unique<FontFiles>(), nullptr};
}

} // namespace

OnlineSession::OnlineSession(const CommandContext& context)
    : HeadlessCore(openCore(context))
    , err_(context.err) {
    sessions->restoreSession();
}

OnlineSession::~OnlineSession() {
    const std::string token = network.accessToken().toStdString();
    // Another process may have logged in or out meanwhile.
    if (!credential_ || credential_->token == token || auth.readCredentials() != credential_)
        return;
    auth.updateCredentials(credential_->account, credential_->password, token);
}

void OnlineSession::requireNetwork() const {
    if (!network.isReachable())
        throw CommandFailure(requestFailed, "No hay conexión a internet.");
}

void OnlineSession::requireLogin() {
    credential_ = auth.readCredentials();
    if (!credential_ || credential_->password.empty())
        throw CommandFailure(requestFailed, "Nadie ha iniciado sesión: kavorctl login");
    network.setAccessToken(QString::fromStdString(credential_->token));
}

void OnlineSession::logIn(const std::string& account) {
    const std::string password = readPassword(err_);
    const auto answer = await<LoginResult>(
        {QStringLiteral("Iniciando sesión"), QStringLiteral("Incidencia")},
        [&](const Completion<LoginResult>& done) {
            network.login({QString::fromStdString(account), QString::fromStdString(password), std::nullopt},
                          done);
        });
    if (!answer.token)
        stopProcess("token in the login answer");
    network.setAccessToken(QString::fromStdString(*answer.token));
    keepCredential({account, password, *answer.token});
    defaults.setBoolean(QLatin1String(default_key::loadIntoInitialViewController), true);
    session.loginResult = answer;
    sessions->storeInBackground();
    sessions->flush();
    if (!isStored(state_file::loginResult, answer))
        throw CommandFailure(requestFailed, "kavorctl: the login answer could not be stored");
}

// The store's answer to a change is not handed on, so what it holds is read again.
void OnlineSession::keepCredential(const StoredCredentials& credential) {
    const auto keep = auth.readCredentials() ? &AuthManager::updateCredentials : &AuthManager::addCredentials;
    (auth.*keep)(credential.account, credential.password, credential.token);
    if (auth.readCredentials() != credential)
        throw CommandFailure(requestFailed, "kavorctl: the credential could not be stored");
    credential_ = credential;
}

} // namespace kavor::ctl
