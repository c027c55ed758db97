#include "screens/ResourceImages.h"

#include "resources/ImageCache.h"

#include <QPointer>
#include <QQuickTextureFactory>
#include <QUrl>

namespace kavor {

namespace {

QString encoded(const QString& text) {
    return QString::fromLatin1(QUrl::toPercentEncoding(text));
}

class Response : public QQuickImageResponse {
public:
    void finish(const QImage& image) {
        image_ = image;
        emit finished();
    }
    [[nodiscard]] QQuickTextureFactory* textureFactory() const override {
        return QQuickTextureFactory::textureFactoryForImage(image_);
    }
    [[nodiscard]] QString errorString() const override {
        return image_.isNull() ? QStringLiteral("the picture could not be had") : QString();
    }

private:
    QImage image_;
};

} // namespace

QString resourceImageUrl(const HashedResource& resource) {
    return QStringLiteral("image://resource/") + encoded(QString::fromStdString(resource.cacheKey)) +
           QLatin1Char('?') + encoded(QString::fromStdString(resource.downloadURL.text));
}

QString resourceImageUrl(const std::optional<HashedResource>& resource) {
    return resource ? resourceImageUrl(*resource) : QString();
}

QString dataImageUrl(const std::string& dataText) {
    return dataText.starts_with("data:image/") ? QString::fromStdString(dataText) : QString();
}

ResourceImageProvider::ResourceImageProvider(ImageCache& cache)
    : cache_(cache) {}

QQuickImageResponse* ResourceImageProvider::requestImageResponse(const QString& id,
                                                                 const QSize& requestedSize) {
    auto* response = new Response; // the engine owns it
    const auto mark = id.indexOf(QLatin1Char('?'));
    const CachedResource resource{QUrl::fromPercentEncoding(id.left(mark).toLatin1()),
                                  QUrl(QUrl::fromPercentEncoding(id.mid(mark + 1).toLatin1()))};
    // Requests come from the pixmap reader's thread; the cache lives on the main thread.
    QMetaObject::invokeMethod(
        &cache_,
        [cache = &cache_, resource, requestedSize, guard = QPointer<Response>(response)] {
            if (guard)
                cache->load(resource, requestedSize, cache, [guard](const QImage& image) {
                    if (guard)
                        guard->finish(image);
                });
        },
        Qt::QueuedConnection);
    return response;
}

} // namespace kavor
