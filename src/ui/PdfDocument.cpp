#include "ui/PdfDocument.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QHash>
#include <QMutex>
#include <QPainter>
#include <QPdfDocument>

#include <algorithm>
#include <utility>

namespace kavor {

namespace {

constexpr int kWidestPage = 4096;   // pixels; bounds the memory of one page
constexpr qreal kTallestRatio = 20; // height to width; a page beyond it is refused

struct Registry {
    QMutex mutex;
    QHash<int, std::shared_ptr<PdfDocument>> documents;
    int lastId = 0;
};

Registry& registry() {
    static Registry shared;
    return shared;
}

} // namespace

PdfDocument::PdfDocument(QByteArray bytes)
    : bytes_(std::move(bytes))
    , buffer_(std::make_unique<QBuffer>(&bytes_))
    , document_(std::make_unique<QPdfDocument>(nullptr)) {
    buffer_->open(QIODevice::ReadOnly);
    document_->load(buffer_.get());
    if (document_->status() != QPdfDocument::Status::Ready)
        return;
    for (int page = 0; page < document_->pageCount(); ++page)
        pageSizes_.append(document_->pagePointSize(page));
    const bool drawable = std::ranges::all_of(pageSizes_, [](const QSizeF& size) {
        return size.width() > 0 && size.height() > 0 && size.height() <= size.width() * kTallestRatio;
    });
    if (!drawable)
        pageSizes_.clear();
}

PdfDocument::~PdfDocument() = default;

QImage PdfDocument::render(int page, int width) const {
    if (page < 0 || page >= pageSizes_.size() || width <= 0)
        return {};
    const QSizeF points = pageSizes_[page];
    const int columns = std::min(width, kWidestPage);
    const QSize size(columns, std::max(1, qRound(columns * points.height() / points.width())));
    const QImage drawn = document_->render(page, size);
    if (drawn.isNull())
        return {};
    QImage paper(size, QImage::Format_RGB32);
    paper.fill(Qt::white);
    // Pages come with a transparent ground.
    QPainter painter(&paper);
    painter.drawImage(0, 0, drawn);
    return paper;
}

QThreadPool& PdfDocument::pool() {
    static QThreadPool shared;
    static const bool once = [] {
        shared.setMaxThreadCount(1);
        shared.setExpiryTimeout(-1); // documents belong to this thread for as long as they live
        qAddPostRoutine([] { shared.waitForDone(); });
        return true;
    }();
    Q_UNUSED(once);
    return shared;
}

int PdfRegistry::add(const std::shared_ptr<PdfDocument>& document) {
    QMutexLocker lock(&registry().mutex);
    registry().documents.insert(++registry().lastId, document);
    return registry().lastId;
}

std::shared_ptr<PdfDocument> PdfRegistry::find(int id) {
    QMutexLocker lock(&registry().mutex);
    return registry().documents.value(id);
}

void PdfRegistry::remove(int id) {
    std::shared_ptr<PdfDocument> document;
    {
        QMutexLocker lock(&registry().mutex);
        document = registry().documents.take(id);
    }
    if (document)
        PdfDocument::pool().start([last = std::move(document)]() mutable { last.reset(); });
}

} // namespace kavor
