#include "kavor/KavorApplication.h"
#include "tour/DemoServerProcess.h"
#include "window/SoakSession.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>

namespace {

using kavor::SoakTask;

// One life of the client in a process of its own, which may die.
struct Life {
    bool died = false;
    bool failed = false;
};

Life live(const SoakTask& task) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(QCoreApplication::applicationFilePath(),
                  {QStringLiteral("--life"), QStringLiteral("--folder"), task.folder,
                   QStringLiteral("--configuration"), task.configuration, QStringLiteral("--account"),
                   task.account, QStringLiteral("--password"), task.password, QStringLiteral("--start"),
                   QString::number(task.start), QStringLiteral("--refreshes"),
                   QString::number(task.refreshes)});
    constexpr int longest = 30 * 60 * 1000;
    if (!process.waitForFinished(longest))
        process.kill();
    process.waitForFinished();
    return {process.exitStatus() == QProcess::CrashExit, process.exitCode() != 0};
}

int soak(int starts, int refreshes) {
    const QTemporaryDir folder;
    const QString serverFolder = folder.filePath(QStringLiteral("server"));
    QDir().mkpath(serverFolder);
    const kavor::DemoServerProcess server(serverFolder, {QStringLiteral("--no-history")});
    SoakTask task{folder.path(), server.configurationFile(), server.account(), server.password()};
    int deaths = 0;
    int failures = 0;
    const auto count = [&](const Life& life, const QString& what) {
        deaths += life.died ? 1 : 0;
        failures += life.failed && !life.died ? 1 : 0;
        if (life.died || life.failed)
            std::fprintf(stderr, "%s %s\n", qPrintable(what), life.died ? "died" : "went wrong");
    };
    for (int i = 0; i < starts; ++i) {
        task.start = i;
        count(live(task), QStringLiteral("start %1").arg(i + 1));
    }
    std::printf("window: %d starts over one folder, %d died, %d went wrong\n", starts, deaths, failures);
    std::fflush(stdout);
    task.refreshes = refreshes;
    const int formerDeaths = deaths;
    const int formerFailures = failures;
    if (refreshes > 0) {
        count(live(task), QStringLiteral("the session of refreshes"));
        std::printf("window: %d refreshes in one session, %d died, %d went wrong\n", refreshes,
                    deaths - formerDeaths, failures - formerFailures);
    }
    return deaths + failures == 0 ? 0 : 1;
}

} // namespace

// kavor-soak [--starts N] [--refreshes N]   starts the client again and again over one folder, then refreshes
// one
//                                           session again and again, in a real window that a thread draws
int main(int argc, char* argv[]) {
    qputenv("KAVOR_KEYCHAIN", "file");
    kavor::KavorApplication::prepareProcess();
    QGuiApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addOptions({{"starts", {}, "N", "30"},
                       {"refreshes", {}, "N", "100"},
                       {"life", {}},
                       {"folder", {}, "DIR"},
                       {"configuration", {}, "FILE"},
                       {"account", {}, "NAME"},
                       {"password", {}, "TEXT"},
                       {"start", {}, "N"}});
    parser.addHelpOption();
    parser.process(application);
    if (!parser.isSet("life"))
        return soak(parser.value("starts").toInt(), parser.value("refreshes").toInt());
    return kavor::playSoakSession({parser.value("folder"), parser.value("configuration"),
                                   parser.value("account"), parser.value("password"),
                                   parser.value("start").toInt(), parser.value("refreshes").toInt()});
}
