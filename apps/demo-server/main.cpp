#include "Options.h"
#include "catalogue/Catalogue.h"
#include "server/Accounts.h"
#include "server/DemoServer.h"

#include <QGuiApplication>

#include <sys/prctl.h>

#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <thread>

namespace kavor::demo {

namespace {

bool writeFile(const std::string& path, const std::string& content) {
    std::ofstream file(path, std::ios::binary);
    file << content;
    file.flush();
    if (!file) {
        std::cerr << path << ": cannot be written\n";
    }
    return bool(file);
}

std::string defaultDataFolder() {
    const char* home = std::getenv("XDG_DATA_HOME");
    const char* user = std::getenv("HOME");
    const std::filesystem::path base =
        home ? std::filesystem::path(home) : std::filesystem::path(user ? user : ".") / ".local" / "share";
    return (base / "kavor-demo-server").string();
}

/// Waits for the signals that end the server. Idle connections are not waited for longer than a moment.
void endOnSignal(DemoServer& server, std::atomic<bool>& ended, sigset_t endings) {
    int signal = 0;
    sigwait(&endings, &signal);
    server.stop();
    for (int wait = 0; wait < 50 && !ended; ++wait) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    if (!ended) {
        std::fflush(nullptr);
        std::_Exit(0);
    }
}

int serve(const Options& options) {
    sigset_t endings;
    sigemptyset(&endings);
    sigaddset(&endings, SIGTERM);
    sigaddset(&endings, SIGINT);
    pthread_sigmask(SIG_BLOCK, &endings, nullptr);
    std::signal(SIGPIPE, SIG_IGN);
    if (options.stopWithParent) {
        prctl(PR_SET_PDEATHSIG, SIGTERM);
    }
    DemoServer server(options);
    if (options.configurationFile && !writeFile(*options.configurationFile, server.configuration())) {
        return 1;
    }
    std::cout << "Kavor demonstration server on " << server.baseUrl() << std::endl;
    for (const Accounts::Known& account : Accounts::known()) {
        std::cout << "Cuenta: " << account.login << "  Contraseña: " << account.password << " ("
                  << account.rights << ")" << std::endl;
    }
    std::atomic<bool> ended = false;
    std::thread waiter(endOnSignal, std::ref(server), std::ref(ended), endings);
    server.listen();
    ended = true;
    waiter.join();
    return 0;
}

int run(int argc, char** argv) {
    const auto read = readOptions(argc, argv);
    if (const int* status = std::get_if<int>(&read)) {
        return *status;
    }
    Options options = std::get<Options>(read);
    if (options.dumpCatalogueFile) {
        return writeFile(*options.dumpCatalogueFile, Catalogue(options.brands, options.baseUrl).text()) ? 0
                                                                                                        : 1;
    }
    if (options.dataFolder.empty()) {
        options.dataFolder = defaultDataFolder();
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    try {
        return serve(options);
    } catch (const std::exception& error) {
        std::cerr << "kavor-demo-server: " << error.what() << "\n";
        return 1;
    }
}

} // namespace

} // namespace kavor::demo

int main(int argc, char** argv) {
    return kavor::demo::run(argc, argv);
}
