#include "resources/ResourceUpdateRun.h"

#include "base/NotificationCenter.h"
#include "catalogue/ApplicationInformation.h"
#include "resources/FontUpdater.h"
#include "resources/Prefetcher.h"

#include <QPointer>

#include <memory>
#include <utility>
#include <vector>

namespace kavor {

namespace {

using Lane = PlainDownloader::Lane;

constexpr int withProgress = 1;
constexpr int inBackground = 2;
constexpr int concurrency = 5;

Prefetcher::Resources ofType(const std::vector<HashedResource>& images, int downloadType) {
    Prefetcher::Resources found;
    for (const HashedResource& image : images) {
        if (image.downloadType == downloadType)
            found.push_back({QString::fromStdString(image.cacheKey),
                             QUrl(QString::fromStdString(image.downloadURL.text))});
    }
    return found;
}

} // namespace

ResourceUpdateRun::ResourceUpdateRun(ImageCache& cache, FontUpdater& fonts, NotificationCenter& notifications,
                                     QObject* parent)
    : QObject(parent)
    , cache_(cache)
    , fonts_(fonts)
    , notifications_(notifications) {}

void ResourceUpdateRun::start(const ApplicationInformation& catalogue, const Progress& progress) {
    const auto launch = [this, pending = std::make_shared<int>(2)](Prefetcher* prefetcher, Lane lane) {
        connect(prefetcher, &Prefetcher::finished, this, [this, prefetcher, pending] {
            prefetcher->deleteLater();
            if (--*pending == 0)
                emit picturesEnded();
        });
        prefetcher->setMaxConcurrentDownloads(concurrency);
        prefetcher->setLane(lane);
        prefetcher->start();
    };
    auto waitedFor = ofType(catalogue.images, withProgress);
    const int total = int(waitedFor.size());
    if (progress)
        progress(0, total);
    const auto advance = [progress, total](const auto& skipped, const auto& failed, const auto& completed) {
        if (progress)
            progress(int(skipped.size() + failed.size() + completed.size()), total);
    };
    auto typographies =
        catalogue.textile ? catalogue.textile->typographies : std::vector<Textile::Typography>();
    QObject* run = run_.begin();
    const auto goOn = [this, typographies, guard = QPointer(run)](const auto&, const auto&, const auto&) {
        fonts_.update(typographies, [guard, &notifications = notifications_] {
            if (guard)
                notifications.post(notification::updatingResourcesDidEnd);
        });
    };
    launch(new Prefetcher(cache_, std::move(waitedFor), advance, goOn, run), Lane::Ahead);
    launch(new Prefetcher(cache_, ofType(catalogue.images, inBackground), {}, {}, this), Lane::Background);
}

QString ResourceUpdateRun::label(int count, int total) {
    return QStringLiteral("Actualizando imágenes %1/%2").arg(count).arg(total);
}

double ResourceUpdateRun::fraction(int count, int total) {
    return total == 0 ? 2.0 / 3 : double(count) / total / 3 + 2.0 / 3;
}

} // namespace kavor
