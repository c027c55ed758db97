#pragma once

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QSizeF>
#include <QThreadPool>

#include <memory>

class QBuffer;
class QPdfDocument;

namespace kavor {

// One loaded PDF. Lives on the one thread of pool(): create, use and drop it there.
class PdfDocument {
public:
    explicit PdfDocument(QByteArray bytes);
    ~PdfDocument();

    // False when the bytes are no readable PDF or have no page.
    [[nodiscard]] bool isReadable() const { return !pageSizes_.isEmpty(); }
    // Sizes in points.
    [[nodiscard]] const QList<QSizeF>& pageSizes() const { return pageSizes_; }
    // The page on white paper, its width in pixels bounded; a null image for a page that does not exist.
    [[nodiscard]] QImage render(int page, int width) const;

    // All PDF work runs here, one job at a time, because the library behind it is not re-entrant.
    static QThreadPool& pool();

private:
    QByteArray bytes_;
    std::unique_ptr<QBuffer> buffer_;
    std::unique_ptr<QPdfDocument> document_;
    QList<QSizeF> pageSizes_;
};

// Open documents by number, shared between the models on the UI thread and the jobs of the pool.
class PdfRegistry {
public:
    static int add(const std::shared_ptr<PdfDocument>& document);
    static std::shared_ptr<PdfDocument> find(int id);
    // The last owner lets go on the pool's thread.
    static void remove(int id);
};

} // namespace kavor
