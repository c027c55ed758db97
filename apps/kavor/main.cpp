#include "base/AtomicFile.h"
#include "device/LogFile.h"
#include "kavor/KavorApplication.h"
#include "kavor/SingleInstance.h"
#include "session/services/SessionStore.h"

#include <QGuiApplication>

#include <sys/stat.h>

#include <cstdio>
#include <filesystem>
#include <memory>
#include <optional>
#include <utility>

namespace {

// What the command line says before there is an application object, which takes arguments of its own out of
// it; none when it cannot be read without that.
std::optional<kavor::KavorOptions> earlyOptions(int argc, char* argv[]) {
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    auto options = kavor::KavorOptions::read(arguments);
    return options ? std::optional(std::move(*options)) : std::nullopt;
}

std::unique_ptr<kavor::SessionStore> beginReadingEarly(const std::optional<kavor::KavorOptions>& options) {
    std::error_code error;
    if (!options || !std::filesystem::is_directory(options->documents, error))
        return nullptr;
    return kavor::KavorApplication::beginReading(*options);
}

// Whether the options only ask for a text, which is written; that needs no display.
bool answersInWords(const kavor::KavorOptions& options) {
    if (options.help)
        std::fputs(kavor::KavorOptions::helpText().c_str(), stdout);
    else if (options.version)
        std::fputs(kavor::KavorOptions::versionText().c_str(), stdout);
    return options.help || options.version;
}

} // namespace

int main(int argc, char* argv[]) {
    ::umask(S_IRWXG | S_IRWXO); // what the client writes is its user's alone
    kavor::atomic_file::survivePassingTheSizeLimit();
    kavor::KavorApplication::prepareProcess();
    const auto early = earlyOptions(argc, argv);
    if (early && answersInWords(*early))
        return 0;
    kavor::LogFile log;
    // A large catalogue is read while the application object and the window are made.
    auto sessions = beginReadingEarly(early);
    QGuiApplication application(argc, argv);
    const auto options = kavor::KavorOptions::read(QCoreApplication::arguments().mid(1));
    if (!options) {
        std::fprintf(stderr, "%s\n", options.error().c_str());
        return 64;
    }
    if (answersInWords(*options))
        return 0;
    auto configuration = kavor::KavorApplication::loadConfiguration(*options);
    if (!configuration) {
        std::fprintf(stderr, "%s\n", configuration.error().c_str());
        return 1;
    }
    if (const auto made = kavor::atomic_file::makeFolder(options->documents); !made) {
        std::fprintf(stderr, "kavor: %s\n", made.error().text().c_str());
        return 1;
    }
    kavor::SingleInstance instance(options->documents);
    if (!instance.isFirst()) {
        instance.handOver(options->urls);
        std::fprintf(stderr, "Kavor ya está abierto con la carpeta %s.\n", options->documents.c_str());
        return 0;
    }
    log.open(options->caches / kavor::LogFile::folderName);
    if (!sessions)
        sessions = kavor::KavorApplication::beginReading(*options);
    kavor::KavorApplication kavor(*options, std::move(*configuration), std::move(sessions));
    kavor.keepSecretsOutOf(log);
    QObject::connect(&instance, &kavor::SingleInstance::startedAgain, &kavor,
                     &kavor::KavorApplication::startedAgain);
    return kavor.start() ? QGuiApplication::exec() : 1;
}
