#include "ui/PdfPageProvider.h"

#include "ui/PdfDocument.h"

#include <QPointer>

#include <atomic>
#include <memory>

namespace kavor {

namespace {

constexpr int kUnaskedWidth = 1200;

class PageResponse : public QQuickImageResponse {
public:
    PageResponse(int document, int page, int width) {
        // The response lives until finished() was handled, so the job may hold it; a cancelled one ends at
        // once.
        PdfDocument::pool().start([this, document, page, width] {
            if (!cancelled_) {
                if (const auto open = PdfRegistry::find(document))
                    image_ = open->render(page, width);
            }
            emit finished();
        });
    }

    [[nodiscard]] QQuickTextureFactory* textureFactory() const override {
        return QQuickTextureFactory::textureFactoryForImage(image_);
    }
    [[nodiscard]] QString errorString() const override {
        return image_.isNull() ? QStringLiteral("the page cannot be drawn") : QString();
    }
    void cancel() override { cancelled_ = true; }

private:
    QImage image_;
    std::atomic<bool> cancelled_ = false;
};

} // namespace

QString PdfPageProvider::name() {
    return QStringLiteral("kavorpdf");
}

QQuickImageResponse* PdfPageProvider::requestImageResponse(const QString& id, const QSize& requestedSize) {
    const int document = id.section(u'/', 0, 0).toInt();
    const int page = id.section(u'/', 1, 1).toInt();
    return new PageResponse(document, page,
                            requestedSize.width() > 0 ? requestedSize.width() : kUnaskedWidth);
}

} // namespace kavor
