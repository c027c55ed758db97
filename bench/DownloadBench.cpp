#include "base/Log.h"
#include "base/NotificationCenter.h"
#include "catalogue/ApplicationInformation.h"
#include "resources/FontRegistry.h"
#include "resources/FontUpdater.h"
#include "resources/ImageCache.h"
#include "resources/PlainDownloader.h"
#include "resources/ResourceUpdateRun.h"
#include "support/ScriptedServer.h"
#include "support/TemporaryFolder.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

// How long 40 resources that somebody waits for take alone, and beside 20 slow ones that come in the
// background. Each takes the server its time, whatever else it does: a tenth of a second the former, a second
// the latter.
namespace kavor::bench {

namespace {

class NoFonts : public FontRegistry {
public:
    bool registerFont(const QString&, const QByteArray&) override { return true; }
    void unregisterFont(const QString&) override {}
    [[nodiscard]] std::optional<QFont> font(const QString&, int) const override { return std::nullopt; }
};

ApplicationInformation catalogueOf(const ScriptedServer& server, int waitedFor, int slow) {
    ApplicationInformation catalogue;
    for (int i = 0; i < waitedFor + slow; ++i) {
        const int downloadType = i < waitedFor ? 1 : 2;
        const QString path = QStringLiteral("/%1/%2").arg(downloadType).arg(i);
        catalogue.images.push_back({path.toStdString(), {server.address(path).toStdString()}, downloadType});
    }
    return catalogue;
}

// Milliseconds until the resources that are waited for are there, into an empty cache over new connections.
double millisecondsOf(ScriptedServer& server, int slow) {
    const TemporaryFolder folder;
    PlainDownloader downloader;
    ImageCache cache(folder / "images", downloader);
    NoFonts registry;
    FontUpdater fonts(folder.path(), downloader, registry);
    NotificationCenter center;
    ResourceUpdateRun run(cache, fonts, center);
    QEventLoop loop;
    const auto end =
        center.observe(notification::updatingResourcesDidEnd, [&](const NotificationInfo&) { loop.quit(); });
    QElapsedTimer timer;
    timer.start();
    run.start(catalogueOf(server, 40, slow), {});
    loop.exec();
    return double(timer.nsecsElapsed()) / 1e6;
}

double median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

} // namespace

} // namespace kavor::bench

// download_bench ROUNDS: the medians as one object of JSON.
int main(int argc, char* argv[]) {
    using namespace kavor;
    const QCoreApplication application(argc, argv);
    setLogSink([](const LogEntry&) {});
    const int rounds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 5;
    ScriptedServer server;
    server.setHandler([](const ScriptedRequest& request) {
        return ScriptedAnswer::slow(QByteArray(10, 'x'), 1, request.path.startsWith("/1/") ? 10 : 100);
    });
    std::vector<double> alone;
    std::vector<double> beside;
    for (int i = 0; i < rounds; ++i) {
        alone.push_back(bench::millisecondsOf(server, 0));
        beside.push_back(bench::millisecondsOf(server, 20));
    }
    std::printf("{\"alone_ms\": %.1f, \"beside_ms\": %.1f}\n", bench::median(alone), bench::median(beside));
    return 0;
}
