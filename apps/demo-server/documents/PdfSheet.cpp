#include "documents/PdfSheet.h"

#include <QPageLayout>
#include <QPageSize>

namespace kavor::demo {

namespace {

// At 90 dots per inch an A4 page is 744 by 1052; a higher resolution keeps the letters where they belong.
constexpr double unitsPerInch = 90;
constexpr int resolution = 720;

} // namespace

PdfSheet::PdfSheet(const QString& title, bool landscape)
    : buffer_(&bytes_) {
    buffer_.open(QIODevice::WriteOnly);
    writer_ = std::make_unique<QPdfWriter>(&buffer_);
    writer_->setTitle(title);
    writer_->setCreator(QStringLiteral("Kavor"));
    writer_->setResolution(resolution);
    writer_->setPageLayout(QPageLayout(QPageSize(QPageSize::A4),
                                       landscape ? QPageLayout::Landscape : QPageLayout::Portrait,
                                       QMarginsF(0, 0, 0, 0)));
    painter_ = std::make_unique<QPainter>(writer_.get());
    painter_->scale(resolution / unitsPerInch, resolution / unitsPerInch);
    painter_->setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    page_ = landscape ? QRectF(0, 0, 1052.4, 744.1) : QRectF(0, 0, 744.1, 1052.4);
}

void PdfSheet::newPage() {
    writer_->newPage();
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
