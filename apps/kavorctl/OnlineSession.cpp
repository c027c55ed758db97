#include "OnlineSession.h"

#include "base/AtomicFile.h"
#include "base/NotificationCenter.h"
#include "shell/AppSingleton.h"

#include <QCoreApplication>
#include <QStandardPaths>

#include <termios.h>
#include <unistd.h>

#include <iostream>

namespace kavor::ctl {

namespace {

constexpr int requestFailed = 1;

std::filesystem::path standardFolder(QStandardPaths::StandardLocation location) {
    return (QStandardPaths::writableLocation(location) + QStringLiteral("/kavor")).toStdString();
}

AppSingleton& openFolders(const CommandContext& context) {
    auto& session = AppSingleton::shared();
    session.version = KAVOR_VERSION;
    session.compilation = "kavorctl";
    const auto documents =
        context.documents.empty() ? standardFolder(QStandardPaths::GenericDataLocation) : context.documents;
    const auto caches = context.documents.empty() ? standardFolder(QStandardPaths::GenericCacheLocation)
                                                  : context.documents / "caches";
    for (const auto& folder : {documents, caches}) {
        if (const auto made = atomic_file::makeFolder(folder); !made)
            throw CommandFailure(unreadableInput, made.error().text());
    }
    session.setFolders(documents, caches);
    return session;
}

NetworkConfiguration loadConfiguration(const CommandContext& context) {
    if (context.configuration.empty())
        throw CommandFailure(wrongUsage, "kavorctl: --configuration FILE says where the server is");
    auto configuration = NetworkConfiguration::load(context.configuration);
    if (!configuration)
        throw CommandFailure(unreadableInput, configuration.error());
    return std::move(*configuration);
}

} // namespace

OnlineSession::OnlineSession(const CommandContext& context)
    : OnlineSession(context, loadConfiguration(context)) {}

OnlineSession::OnlineSession(const CommandContext& context, const NetworkConfiguration& configuration)
    : session(openFolders(context))
    , defaults(session.documentsFolder() / "UserDefaults")
    , keychain(makeKeychain(session.documentsFolder()))
    , auth(*keychain, defaults, configuration.urls.baseURLPro)
    , network(configuration, {auth, reachability, clock})
    , orders(session.documentsFolder())
    , sessions(session)
    , images(session.cachesFolder() / "Images", downloader)
    , fontUpdater(session.cachesFolder(), downloader, fonts)
    , resources(images, fontUpdater, NotificationCenter::shared())
    , catalogue({session, network, resources, sessions, defaults, clock}) {
    sessions.restoreSession();
}

void OnlineSession::requireLogin() {
    const auto stored = auth.readCredentials();
    if (!stored || stored->password.empty())
        throw CommandFailure(requestFailed, "Nadie ha iniciado sesión: kavorctl login");
    network.setAccessToken(QString::fromStdString(stored->token));
}

void OnlineSession::logIn(const QString& account, const QString& password) {
    const auto answer =
        await<LoginResult>(QStringLiteral("Incidencia"), [&](const Completion<LoginResult>& done) {
            network.login({account, password, std::nullopt}, done);
        });
    if (!answer.token)
        throw CommandFailure(requestFailed, "Incidencia: the answer brings no token");
    network.setAccessToken(QString::fromStdString(*answer.token));
    const auto keep = auth.readCredentials() ? &AuthManager::updateCredentials : &AuthManager::addCredentials;
    (auth.*keep)(account.toStdString(), password.toStdString(), *answer.token);
    defaults.setBoolean(QLatin1String(default_key::loadIntoInitialViewController), true);
    session.loginResult = answer;
    sessions.storeInBackground();
    sessions.flush();
}

void OnlineSession::fail(const QString& title, const RequestFailure& failure) {
    QString text = failure.error.localizedDescription;
    if (failure.error.updateNeeded)
        text = failure.error.updateNeeded->errorMessage;
    else if (failure.messages && !failure.messages->isEmpty())
        text = failure.messages->join(QLatin1Char('\n'));
    const QString reason = failure.error.status != 0 ? QStringLiteral("HTTP %1").arg(failure.error.status)
                                                     : failure.error.localizedDescription;
    throw CommandFailure(requestFailed, (title + QStringLiteral(": ") + text + QStringLiteral(" (") + reason +
                                         QLatin1Char(')'))
                                            .toStdString());
}

std::string readPassword(std::ostream& prompt) {
    const bool terminal = ::isatty(STDIN_FILENO) != 0;
    termios former{};
    if (terminal) {
        prompt << "Contraseña: " << std::flush;
        ::tcgetattr(STDIN_FILENO, &former);
        termios silent = former;
        silent.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        ::tcsetattr(STDIN_FILENO, TCSANOW, &silent);
    }
    std::string password;
    std::getline(std::cin, password);
    if (terminal) {
        ::tcsetattr(STDIN_FILENO, TCSANOW, &former);
        prompt << '\n';
    }
    return password;
}

} // namespace kavor::ctl
