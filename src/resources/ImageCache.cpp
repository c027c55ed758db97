#include "resources/ImageCache.h"

#include "base/AtomicFile.h"
#include "base/Log.h"
#include "device/Background.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QFile>
#include <QImageReader>
#include <QMetaObject>

#include <algorithm>
#include <utility>

namespace kavor {

namespace {

QImage readImage(const QString& path, const QSize& bounds) {
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true); // the file's name is a hash
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    const QSize room(bounds.width() > 0 ? bounds.width() : size.width(),
                     bounds.height() > 0 ? bounds.height() : size.height());
    if (size.isValid() && (size.width() > room.width() || size.height() > room.height()))
        reader.setScaledSize(size.scaled(room, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
    return reader.read();
}

// Whether bytes begin like a picture and do not decode, as after a connection that broke off.
bool isBrokenPicture(QByteArray bytes) {
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    return reader.canRead() && reader.read().isNull();
}

QString memoryKey(const QString& key, const QSize& bounds) {
    return QStringLiteral("%1x%2 %3").arg(bounds.width()).arg(bounds.height()).arg(key);
}

} // namespace

ImageCache::ImageCache(const std::filesystem::path& folder, PlainDownloader& downloader, QObject* parent,
                       qint64 memoryBytes)
    : QObject(parent)
    , folder_(QString::fromStdString(folder.string()))
    , downloader_(downloader)
    , memory_(qsizetype(memoryBytes)) {
    if (const auto done = atomic_file::makeFolder(folder); !done)
        logLine("Could not make the image folder: " + done.error().text());
    atomic_file::sweepTemporaries(folder);
}

ImageCache::~ImageCache() {
    pool_.waitForDone();
}

// The key comes from the server: its digest can neither leave the folder nor be too long for a file name.
QString ImageCache::pathOf(const QString& key) const {
    const QByteArray digest = QCryptographicHash::hash(key.toUtf8(), QCryptographicHash::Sha256);
    return folder_ + QLatin1Char('/') + QString::fromLatin1(digest.toHex());
}

std::optional<QString> ImageCache::localPath(const QString& key) const {
    QString path = pathOf(key);
    return QFile::exists(path) ? std::optional(std::move(path)) : std::nullopt;
}

QUrl ImageCache::localUrl(const QString& key) const {
    const auto path = localPath(key);
    return path ? QUrl::fromLocalFile(*path) : QUrl();
}

void ImageCache::fetch(const CachedResource& resource, QObject* context, FetchCallback callback,
                       PlainDownloader::Lane lane) {
    if (const auto path = localPath(resource.key)) {
        QMetaObject::invokeMethod(
            context, [path, callback = std::move(callback)] { callback(path); }, Qt::QueuedConnection);
        return;
    }
    if (const auto found = fetches_.find(resource.key); found != fetches_.end()) {
        found->waiting.push_back({context, std::move(callback)});
        if (lane < std::exchange(found->lane, std::min(lane, found->lane)))
            downloader_.hasten(found->ticket, lane);
        return;
    }
    fetches_[resource.key] = {download(resource, lane), lane, {{context, std::move(callback)}}};
}

PlainDownloader::Ticket ImageCache::download(const CachedResource& resource, PlainDownloader::Lane lane) {
    const auto received = [this, resource](const DownloadResult& result) {
        if (result.isComplete()) {
            store(resource, result.body, result.lengthIsVerified);
            return;
        }
        emit fetchFailed(resource.url, result.transportError.value_or(
                                           QStringLiteral("HTTP %1").arg(result.status.value_or(0))));
        finishFetch(resource.key, std::nullopt);
    };
    return downloader_.get(resource.url, this, received, PlainDownloader::defaultSizeLimit, lane);
}

void ImageCache::store(const CachedResource& resource, const QByteArray& body, bool lengthIsVerified) {
    const QString path = pathOf(resource.key);
    const auto stored = [this, resource, path](const QString& fault) {
        if (!fault.isEmpty())
            emit fetchFailed(resource.url, fault);
        finishFetch(resource.key, fault.isEmpty() ? std::optional(path) : std::nullopt);
    };
    runInBackground(
        this,
        [path, body, lengthIsVerified] {
            if (!lengthIsVerified && isBrokenPicture(body))
                return QStringLiteral("the picture was cut short");
            const auto done =
                atomic_file::write(path.toStdString(), {body.constData(), std::size_t(body.size())});
            if (done)
                return QString();
            logLine("Could not store an image: " + done.error().text());
            return QString::fromStdString(done.error().text());
        },
        stored, &pool_);
}

void ImageCache::finishFetch(const QString& key, const std::optional<QString>& path) {
    for (const Waiting& waiting : fetches_.take(key).waiting) {
        if (waiting.context)
            waiting.callback(path);
    }
}

void ImageCache::load(const CachedResource& resource, const QSize& bounds, QObject* context,
                      ImageCallback callback) {
    if (const QImage* image = memory_.object(memoryKey(resource.key, bounds))) {
        QMetaObject::invokeMethod(
            context, [image = *image, callback = std::move(callback)] { callback(image); },
            Qt::QueuedConnection);
        return;
    }
    decode(resource, bounds, isCached(resource.key), context, callback);
}

void ImageCache::decode(const CachedResource& resource, const QSize& bounds, bool mayFetchAgain,
                        QObject* context, const ImageCallback& callback) {
    const auto withFile = [=, this, guard = QPointer<QObject>(context)](const std::optional<QString>& path) {
        if (!path) {
            callback(QImage());
            return;
        }
        const auto withImage = [=, this](const QImage& image) {
            if (image.isNull() && mayFetchAgain) {
                QFile::remove(*path);
                if (guard)
                    decode(resource, bounds, false, guard, callback);
                return;
            }
            if (!image.isNull())
                memory_.insert(memoryKey(resource.key, bounds), new QImage(image), image.sizeInBytes());
            if (guard)
                callback(image);
        };
        runInBackground(
            this, [path = *path, bounds] { return readImage(path, bounds); }, withImage, &pool_);
    };
    fetch(resource, context, withFile);
}

} // namespace kavor
