#include "base/AtomicFile.h"
#include "base/json/Json.h"
#include "device/UserDefaults.h"
#include "device/keychain/FileKeychain.h"
#include "kavor/KavorApplication.h"
#include "session/LoginResult.h"
#include "session/StateFile.h"
#include "session/services/AuthManager.h"
#include "session/services/SessionStore.h"

#include <QGuiApplication>
#include <QProcess>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>

// start_bench CATALOGUE [ROUNDS]: from the start of a process to its first frame, the offline dashboard with
// that catalogue on disk against an empty window, and against a window with one word (which has the system
// look through its fonts), in turns. Prints the medians in milliseconds.
namespace kavor::bench {

namespace {

constexpr QSize windowSize(1024, 768);

// Whether the item, or one that it shows, has this name. Pages belong to what they are shown in, not to its
// object tree.
bool shows(const QQuickItem* item, const QString& name) {
    if (!item->isVisible())
        return false;
    return item->objectName() == name ||
           std::ranges::any_of(item->childItems(),
                               [&](const QQuickItem* child) { return shows(child, name); });
}

// Ends the process with the first frame; status 1 when the item is not in it.
void endWithFirstFrame(QQuickWindow* window, const QString& item) {
    QObject::connect(window, &QQuickWindow::frameSwapped, window, [window, item] {
        [[maybe_unused]] const auto told = ::write(STDOUT_FILENO, "frame\n", 6);
        ::_exit(item.isEmpty() || shows(window->contentItem(), item) ? 0 : 1);
    });
}

int showWindow(int& argc, char** argv, const QByteArray& content) {
    const QGuiApplication application(argc, argv);
    QQmlApplicationEngine engine;
    engine.loadData("import QtQuick\nWindow { visible: true; width: 1024; height: 768; " + content + " }");
    endWithFirstFrame(qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst()), {});
    return QGuiApplication::exec();
}

int showDashboard(int& argc, char** argv) {
    KavorApplication::prepareProcess();
    KavorOptions options;
    options.documents = argv[2];
    options.caches = options.documents / "caches";
    options.size = windowSize;
    options.offline = true;
    auto sessions = KavorApplication::beginReading(options); // as the client's main function does
    const QGuiApplication application(argc, argv);
    KavorApplication client(options, *KavorApplication::loadConfiguration(options), std::move(sessions));
    if (!client.start())
        return 1;
    endWithFirstFrame(client.window(), QStringLiteral("welcomeView"));
    return QGuiApplication::exec();
}

// A documents folder of a session that can go on without a network.
bool prepareSession(const std::filesystem::path& documents, const std::filesystem::path& catalogue) {
    LoginResult login;
    login.msg = "ok";
    login.showBeerBrochures = login.showFoodBrochures = login.showTextile = true;
    // The dashboard does not go without these.
    login.showLogoNrv = login.sendOrderInformation = false;
    login.notifications.emplace();
    FileUserDefaults defaults(documents / "UserDefaults");
    FileKeychain keychain(documents / ".keychain" / "items");
    const auto configuration = KavorApplication::loadConfiguration({});
    AuthManager(keychain, defaults, configuration->urls.baseURLPro).addCredentials("ana", "secret", "token");
    defaults.setBoolean(QLatin1String(default_key::loadIntoInitialViewController), true);
    std::error_code error;
    std::filesystem::copy_file(catalogue, documents / std::string(state_file::applicationInformation), error);
    return !error && state_file::write(documents, state_file::loginResult, login);
}

// Milliseconds from the start of a process to what it prints; below 0 when it ends otherwise.
double timeOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    const auto begin = std::chrono::steady_clock::now();
    process.start(program, arguments);
    process.waitForReadyRead(60000);
    const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - begin;
    process.waitForFinished(60000);
    const bool good = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    return good && process.readAllStandardOutput() == "frame\n" ? took.count() : -1;
}

double median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

int compare(int& argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QTemporaryDir folder;
    const std::filesystem::path documents = folder.path().toStdString();
    if (!prepareSession(documents, argv[1]))
        return 1;
    qputenv("KAVOR_KEYCHAIN", "file");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    const int rounds = argc > 2 ? QByteArray(argv[2]).toInt() : 11;
    std::vector<double> empty;
    std::vector<double> word;
    std::vector<double> client;
    for (int i = 0; i < rounds; ++i) {
        empty.push_back(timeOf(QCoreApplication::applicationFilePath(), {QStringLiteral("--empty")}));
        word.push_back(timeOf(QCoreApplication::applicationFilePath(), {QStringLiteral("--word")}));
        client.push_back(
            timeOf(QCoreApplication::applicationFilePath(), {QStringLiteral("--client"), folder.path()}));
        if (empty.back() < 0 || word.back() < 0 || client.back() < 0) {
            std::fprintf(stderr, "start_bench: a process showed no frame, or another than the dashboard\n");
            return 1;
        }
    }
    std::printf("{\"empty_ms\": %.1f, \"word_ms\": %.1f, \"client_ms\": %.1f, \"rounds\": %d}\n",
                median(empty), median(word), median(client), rounds);
    return 0;
}

} // namespace

} // namespace kavor::bench

int main(int argc, char** argv) {
    const QByteArray mode = argc > 1 ? argv[1] : "";
    if (mode.isEmpty())
        return 64;
    if (mode == "--empty")
        return kavor::bench::showWindow(argc, argv, {});
    if (mode == "--word")
        return kavor::bench::showWindow(argc, argv, "Text { text: 'Kavor' }");
    if (mode == "--client")
        return kavor::bench::showDashboard(argc, argv);
    return kavor::bench::compare(argc, argv);
}
