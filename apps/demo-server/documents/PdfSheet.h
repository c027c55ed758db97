#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QPainter>
#include <QPdfWriter>
#include <QRectF>
#include <QString>

#include <memory>

namespace kavor::demo {

/// A PDF of A4 pages under way. Drawing is in units of which a page's short side has 744 and its long side
/// 1052.
class PdfSheet {
public:
    PdfSheet(const QString& title, bool landscape);

    QPainter& painter() { return *painter_; }
    QRectF page() const { return page_; }
    void newPage();

    /// Ends the document and answers its bytes.
    QByteArray finish();

private:
    QByteArray bytes_;
    QBuffer buffer_;
    std::unique_ptr<QPdfWriter> writer_;
    std::unique_ptr<QPainter> painter_;
    QRectF page_;
};

/// A price as a Spaniard writes it: "2,20 €".
QString euros(double price);

} // namespace kavor::demo
