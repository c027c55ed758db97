#pragma once

#include "catalogue/HashedResource.h"

#include <QQuickAsyncImageProvider>
#include <QString>

#include <optional>

namespace kavor {

class ImageCache;

// The source under which QML shows a resource of the catalogue; empty for none.
QString resourceImageUrl(const HashedResource& resource);
QString resourceImageUrl(const std::optional<HashedResource>& resource);
// The source of a picture given as "data:image/png;base64,..."; empty for anything else.
QString dataImageUrl(const std::string& dataText);

// "image://resource/...": pictures from the image cache, fetched when absent.
class ResourceImageProvider : public QQuickAsyncImageProvider {
public:
    // The cache outlives the provider's requests and lives on the main thread.
    explicit ResourceImageProvider(ImageCache& cache);
    QQuickImageResponse* requestImageResponse(const QString& id, const QSize& requestedSize) override;

private:
    ImageCache& cache_;
};

} // namespace kavor
