#pragma once

#include "resources/PlainDownloader.h"

#include <QCache>
#include <QHash>
#include <QImage>
#include <QObject>
#include <QPointer>
#include <QSize>
#include <QString>
#include <QThreadPool>
#include <QUrl>

#include <filesystem>
#include <functional>
#include <optional>
#include <vector>

namespace kavor {

// A resource of the server: the hash of its content, which names it in the cache, and where to fetch it.
struct CachedResource {
    QString key;
    QUrl url;
};

// The resources of the catalogue on the device, by content hash, and decoded pictures in a bounded memory. A
// resource is downloaded once; a changed one has another key. Main thread only; files are read, written and
// decoded in a thread pool.
class ImageCache : public QObject {
    Q_OBJECT
public:
    // The path of the stored file, or nothing when it could not be had.
    using FetchCallback = std::function<void(const std::optional<QString>& path)>;
    // The picture, null when it could not be had or the bytes are no picture.
    using ImageCallback = std::function<void(const QImage& image)>;
    static constexpr qint64 defaultMemory = 64LL * 1024 * 1024;

    // Makes the folder where it can. The downloader outlives the cache.
    ImageCache(const std::filesystem::path& folder, PlainDownloader& downloader, QObject* parent = nullptr,
               qint64 memoryBytes = defaultMemory);
    ~ImageCache() override;

    // Where the resource is stored, in constant time; nothing when it is not on the device.
    [[nodiscard]] std::optional<QString> localPath(const QString& key) const;
    // The same as a file URL, empty when it is not on the device.
    Q_INVOKABLE QUrl localUrl(const QString& key) const;
    [[nodiscard]] bool isCached(const QString& key) const { return localPath(key).has_value(); }

    // Stores the resource unless it is there already. Callbacks of the cache run later, never inside the
    // call, and are dropped with their context, which must not be null. What several ask for is downloaded
    // once, in the most urgent of their lanes.
    void fetch(const CachedResource& resource, QObject* context, FetchCallback callback,
               PlainDownloader::Lane lane = PlainDownloader::Lane::OnShow);
    // Fetches where needed and decodes. A picture larger than a non-empty bounds is scaled down to fit in it.
    // A stored file that forms no picture is fetched anew, once.
    void load(const CachedResource& resource, const QSize& bounds, QObject* context, ImageCallback callback);

signals:
    // A resource could not be had, and why; once for each download.
    void fetchFailed(const QUrl& url, const QString& reason);

private:
    struct Waiting {
        QPointer<QObject> context;
        FetchCallback callback;
    };
    // A download and those who wait for it.
    struct Fetch {
        PlainDownloader::Ticket ticket = 0;
        PlainDownloader::Lane lane = PlainDownloader::Lane::OnShow;
        std::vector<Waiting> waiting;
    };

    [[nodiscard]] QString pathOf(const QString& key) const;
    [[nodiscard]] PlainDownloader::Ticket download(const CachedResource& resource,
                                                   PlainDownloader::Lane lane);
    void store(const CachedResource& resource, const QByteArray& body, bool lengthIsVerified);
    void finishFetch(const QString& key, const std::optional<QString>& path);
    void decode(const CachedResource& resource, const QSize& bounds, bool mayFetchAgain, QObject* context,
                const ImageCallback& callback);

    QString folder_;
    PlainDownloader& downloader_;
    QCache<QString, QImage> memory_;
    QHash<QString, Fetch> fetches_;
    QThreadPool pool_;
};

} // namespace kavor
