#pragma once

#include <QQuickAsyncImageProvider>

namespace kavor {

// Draws pages of open PDF documents for "image://kavorpdf/DOCUMENT/PAGE", off the UI thread.
// The requested width decides the resolution; without one a page is drawn at 1200 pixels.
class PdfPageProvider : public QQuickAsyncImageProvider {
public:
    static QString name();
    QQuickImageResponse* requestImageResponse(const QString& id, const QSize& requestedSize) override;
};

} // namespace kavor
