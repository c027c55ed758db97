#include "documents/PdfSheet.h"

#include <QPageLayout>
#include <QPageSize>

#include <algorithm>

namespace kavor::demo {

namespace {

// A high resolution keeps the letters where they belong.
constexpr int resolution = 720;
constexpr double shortSide = 744.1;
constexpr QSizeF a4(210, 297);

} // namespace

PdfSheet::PdfSheet(const QString& title, bool landscape)
    : PdfSheet(title, landscape ? a4.transposed() : a4) {}

PdfSheet::PdfSheet(const QString& title, const QSizeF& millimetres)
    : buffer_(&bytes_) {
    buffer_.open(QIODevice::WriteOnly);
    writer_ = std::make_unique<QPdfWriter>(&buffer_);
    writer_->setTitle(title);
    writer_->setCreator(QStringLiteral("Kavor"));
    writer_->setResolution(resolution);
    setSize(millimetres);
    painter_ = std::make_unique<QPainter>(writer_.get());
    painter_->setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                             QPainter::SmoothPixmapTransform);
    setUnits();
}

void PdfSheet::setSize(const QSizeF& millimetres) {
    const bool landscape = millimetres.width() > millimetres.height();
    const QSizeF upright = landscape ? millimetres.transposed() : millimetres;
    writer_->setPageLayout(QPageLayout(QPageSize(upright, QPageSize::Millimeter, {}, QPageSize::ExactMatch),
                                       landscape ? QPageLayout::Landscape : QPageLayout::Portrait,
                                       QMarginsF(0, 0, 0, 0)));
}

/// From the page as the writer has rounded it, so that no bare edge is left.
void PdfSheet::setUnits() {
    const QSizeF dots(writer_->width(), writer_->height());
    const double scale = std::min(dots.width(), dots.height()) / shortSide;
    page_ = QRectF(QPointF(0, 0), dots / scale);
    painter_->resetTransform();
    painter_->scale(scale, scale);
}

void PdfSheet::newPage() {
    writer_->newPage();
}

void PdfSheet::newPage(const QSizeF& millimetres) {
    setSize(millimetres);
    writer_->newPage();
    setUnits();
}

QByteArray PdfSheet::finish() {
    painter_->end();
    painter_.reset();
    writer_.reset();
    buffer_.close();
    return bytes_;
}

QString euros(double price) {
    return QString::number(price, 'f', 2).replace('.', ',') + QChar(0x00A0) + QStringLiteral("€");
}

} // namespace kavor::demo
